#include "capturas/elementos.h"

#include <QuorvelEFV.h>

namespace efv::estudio {

void AbrirElementos()
{
    int bModelo = 1, bExcluir = 0, bEscala = 1, iRotulos = 0;
    CString csReferencia = L"BAT-1", csId = L"TAB#6 OPzS 420";
    double dAux = 0.0;
    int nSerie = 24, nParalelo = 2;
    phShowPropertyAcumulador(csReferencia, csId, bModelo, dAux, nSerie, nParalelo, bExcluir, bEscala, iRotulos);
    csReferencia = L"CV-1";
    csId = L"MEAN WELL#DDR-60L-12";
    phShowPropertyConvertidorCC(csReferencia, csId, bModelo, bExcluir, iRotulos);
    csReferencia = L"CC-1";
    int nEntradas = 4, bTrifasica = 1, bCaja = 0;
    phShowPropertyCajaConexion(csReferencia, nEntradas, 0, bTrifasica, bExcluir, iRotulos);
    csReferencia = L"N-1";
    phShowPropertyPageNudo(csReferencia, bCaja, iRotulos);
    csReferencia = L"AUX-1";
    phShowPropertyElementoAux(csReferencia, bExcluir, iRotulos);
    csReferencia = L"RED-1";
    phShowPropertyRedElectrica(csReferencia, bExcluir, iRotulos);
}

void AbrirReguladores()
{
    CString csReferencia = L"REG-1", csAux;
    int iAux = 0, iTipoRegulador = 1, iTipoSalida = 0, bExcluir = 0, iRotulos = 0;
    double dTension = 48.0, dPotencia = 5300.0, dCorriente = 100.0, dMaxima = 150.0, dMinima = 60.0;
    double dPerdidas = 0.02, dTensionSalida = 230.0, dPotenciaSalida = 5000.0;
    double adAux[8] = {};
    for (const int iTipo : {0, 1}) {
        phShowPropertyRegulador(csReferencia, csAux, iAux, dTension, dPotencia, dCorriente, dMaxima, dMinima,
                                adAux[0], adAux[1], adAux[2], adAux[3], adAux[4], adAux[5], dPerdidas, adAux[6],
                                adAux[7], iTipoRegulador, dTensionSalida, dPotenciaSalida, iTipoSalida,
                                bExcluir, iRotulos, iTipo);
    }
}

void AbrirInversores()
{
    for (const wchar_t* csModelo : {L"SMA#SB5.0-1AV-40", L"Studer Innotec#AJ 500-12"}) {
        CString csReferencia = L"INV-1", csId = csModelo;
        int bModelo = 1, bExcluir = 0, bEscala = 0, iRotulos = 0;
        CObArrayPropio<CSFVInverterInput> entradas;
        phShowPropertyInversor(csReferencia, csId, bModelo, entradas, bExcluir, bEscala, iRotulos, 0, 0, 0);
    }
}

void AbrirRotulacion()
{
    int iRotulos = 0x0B;
    elements::EditarRotulos(L"CDlgDatosInversor", iRotulos);
}

}  // namespace efv::estudio
