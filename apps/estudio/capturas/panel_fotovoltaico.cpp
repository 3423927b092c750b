#include "capturas/panel_fotovoltaico.h"

#include <memory>

#include <QuorvelEFV.h>

namespace efv::estudio {

namespace {

struct HorasHorizontal {
    double ad[12][31][24] = {};
};

}  // namespace

void AbrirPanelFotovoltaico()
{
    const auto horas = std::make_unique<HorasHorizontal>();
    CString csReferencia = L"Cubierta sur 1", csId = L"CHSM6612P-295", csOptimizador = L"Uno por panel";
    CString csString = L"S1-2", csIdMicro = L"Enphase#IQ8PLUS-72-2-US";
    int nPaneles = 4, bModelo = 1, bInclinacion = 1, iOrientacion = 0, iMontaje = 2, bDesconexion = 1;
    int bMPPT = 0, bSombra = 1, bExcluir = 0, bNoSombras = 0, iAux = 0, bClima = 1, iFuente = 1, bMicro = 0;
    int bMicroModelo = 1, iConexion = 0, bForzado = 1;
    double dInclinacion = 30.0, dRendimiento = 98.0, dDesconexion = 15.0, dSombreado = 25.0;
    double dLatitud = 40.4, dOrientacion = -20.0, dDatoSitio = 650.0;
    short nColor = 5;
    phShowPropertyPanelFoto(csReferencia, csId, nPaneles, bModelo, bInclinacion, dInclinacion, iOrientacion,
                            iMontaje, dRendimiento, 0, bDesconexion, dDesconexion, bMPPT, csOptimizador,
                            {csOptimizador}, csString, bSombra, dSombreado, bExcluir, bNoSombras, iAux,
                            dLatitud, dOrientacion, dDatoSitio, bClima, iFuente, bMicro, csIdMicro,
                            bMicroModelo, iConexion, horas->ad, bForzado, nColor);
}

}  // namespace efv::estudio
