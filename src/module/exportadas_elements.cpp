// Exported functions of the dialogs of an installation's elements.
#include <quorvel/elements.h>

#include "elements/acumulador_dialogo.h"
#include "elements/inversor_dialogo.h"
#include "elements/regulador_dialogo.h"
#include "elements/simples_dialogo.h"
#include "frame/estado.h"
#include "frame/recursos.h"
#include "module/elemento_exportado.h"
#include "module/singletons.h"

namespace elements = efv::elements;
using efv::frame::AmbitoRecursos;
using efv::module::Argumentos;
using efv::ui::Dialogo;

int phShowPropertyRedElectrica(CString& csReferencia, int& bExcluir, int& iRotulos)
{
    using D = elements::DatosRedElectrica;
    using Red = Argumentos<D, &D::csReferencia, &D::bExcluir, &D::iRotulos>;
    const AmbitoRecursos ambito;
    CDlgDatosRedElectrica dialogo(Red::Tomar(csReferencia, bExcluir, iRotulos), efv::frame::Estado().pBIMCtrl);
    return Red::Editar(dialogo, csReferencia, bExcluir, iRotulos);
}

int phShowPropertyRegulador(CString& csReferencia, CString& /*csAux*/, int& /*iAux*/, double& dVNom,
                            double& dPPanelMax, double& dIPanelMax, double& dVPanelMax, double& dVPanelMin,
                            double& /*dAux1*/, double& /*dAux2*/, double& /*dAux3*/, double& /*dAux4*/,
                            double& /*dAux5*/, double& /*dAux6*/, double& dPerdidas, double& /*dAux7*/,
                            double& /*dAux8*/, int& iTipoRegulador, double& dTensionSalida,
                            double& dPotenciaSalida, int& iTipoSalida, int& bExcluir, int& iRotulos, int iTipo)
{
    using D = elements::DatosRegulador;
    using Regulador = Argumentos<D, &D::csReferencia, &D::dVNom, &D::dPPanelMax, &D::dIPanelMax, &D::dVPanelMax,
                                 &D::dVPanelMin, &D::dPerdidas, &D::iTipoRegulador, &D::dTensionSalida,
                                 &D::dPotenciaSalida, &D::iTipoSalida, &D::bExcluir, &D::iRotulos>;
    const AmbitoRecursos ambito;
    // The dialogs show a fraction as a percentage.
    double dPorCiento = dPerdidas * 100.0;
    const D inicial =
        Regulador::Tomar(csReferencia, dVNom, dPPanelMax, dIPanelMax, dVPanelMax, dVPanelMin, dPorCiento,
                         iTipoRegulador, dTensionSalida, dPotenciaSalida, iTipoSalida, bExcluir, iRotulos);
    const auto editar = [&](efv::ui::DialogoFicha<D>& dialogo) {
        return Regulador::Editar(dialogo, csReferencia, dVNom, dPPanelMax, dIPanelMax, dVPanelMax, dVPanelMin,
                                 dPorCiento, iTipoRegulador, dTensionSalida, dPotenciaSalida, iTipoSalida,
                                 bExcluir, iRotulos);
    };
    int iResultado = Dialogo::cancelado;
    if (iTipo == 0) {
        CDlgDatosReguladorCarga dialogo(inicial);
        iResultado = editar(dialogo);
    } else {
        CDlgDatosReguladorAuto dialogo(inicial);
        iResultado = editar(dialogo);
    }
    if (iResultado == Dialogo::ok)
        dPerdidas = dPorCiento / 100.0;
    return iResultado;
}

int phShowPropertyAcumulador(CString& csReferencia, CString& csId, int& bModelo, double& /*dAux*/, int& nSerie,
                             int& nParalelo, int& bExcluir, int& bEscala, int& iRotulos)
{
    using D = elements::DatosAcumulador;
    using Acumulador = Argumentos<D, &D::csReferencia, &D::csId, &D::bModelo, &D::nSerie, &D::nParalelo,
                                  &D::bExcluir, &D::bEscala, &D::iRotulos>;
    const AmbitoRecursos ambito;
    CDlgDatosAcumulador dialogo(
        Acumulador::Tomar(csReferencia, csId, bModelo, nSerie, nParalelo, bExcluir, bEscala, iRotulos),
        efv::module::Bases());
    return Acumulador::Editar(dialogo, csReferencia, csId, bModelo, nSerie, nParalelo, bExcluir, bEscala,
                              iRotulos);
}

int phShowPropertyInversor(CString& csReferencia, CString& csId, int& bModelo,
                           CObArrayPropio<CSFVInverterInput>& aEntradas, int& bExcluir, int& bEscala,
                           int& iRotulos, int /*iAux*/, int iNumMPPT, int iNumEntradas)
{
    using D = elements::DatosInversor;
    using Inversor =
        Argumentos<D, &D::csReferencia, &D::csId, &D::bModelo, &D::bExcluir, &D::bEscala, &D::iRotulos>;
    const AmbitoRecursos ambito;
    CDlgDatosInversor dialogo(Inversor::Tomar(csReferencia, csId, bModelo, bExcluir, bEscala, iRotulos),
                              aEntradas, iNumMPPT, iNumEntradas, efv::module::Bases());
    const int iResultado = Inversor::Editar(dialogo, csReferencia, csId, bModelo, bExcluir, bEscala, iRotulos);
    if (iResultado == Dialogo::ok)
        efv::electrical::CopiarEntradas(dialogo.entradas, aEntradas);
    return iResultado;
}

int phShowPropertyConvertidorCC(CString& csReferencia, CString& csId, int& bModelo, int& bExcluir,
                                int& iRotulos)
{
    using D = elements::DatosConvertidorCC;
    using Convertidor = Argumentos<D, &D::csReferencia, &D::csId, &D::bModelo, &D::bExcluir, &D::iRotulos>;
    const AmbitoRecursos ambito;
    CDlgDatosConvertidorCC dialogo(Convertidor::Tomar(csReferencia, csId, bModelo, bExcluir, iRotulos),
                                   efv::module::Bases());
    return Convertidor::Editar(dialogo, csReferencia, csId, bModelo, bExcluir, iRotulos);
}

int phShowPropertyCajaConexion(CString& csReferencia, int& nEntradas, int bFijo, int& bTrifasica, int& bExcluir,
                               int& iRotulos)
{
    using D = elements::DatosCajaConexion;
    using Caja = Argumentos<D, &D::csReferencia, &D::nEntradas, &D::bTrifasica, &D::bExcluir, &D::iRotulos>;
    const AmbitoRecursos ambito;
    CDlgDatosCajaConexion dialogo(Caja::Tomar(csReferencia, nEntradas, bTrifasica, bExcluir, iRotulos));
    // A number that the drawing's connections fix is asked for and not taken.
    int nEditadas = nEntradas;
    const int iResultado =
        Caja::Editar(dialogo, csReferencia, bFijo != 0 ? nEditadas : nEntradas, bTrifasica, bExcluir, iRotulos);
    return iResultado;
}

int phShowPropertyElementoAux(CString& csReferencia, int& bExcluir, int& iRotulos)
{
    using D = elements::DatosElementoAuxiliar;
    using Auxiliar = Argumentos<D, &D::csReferencia, &D::bExcluir, &D::iRotulos>;
    const AmbitoRecursos ambito;
    CDlgDatosElementoAuxiliar dialogo(Auxiliar::Tomar(csReferencia, bExcluir, iRotulos));
    return Auxiliar::Editar(dialogo, csReferencia, bExcluir, iRotulos);
}

int phShowPropertyPageNudo(CString& csReferencia, int& bCaja, int& iRotulos)
{
    using D = elements::DatosNudo;
    using Nudo = Argumentos<D, &D::csReferencia, &D::bCaja, &D::iRotulos>;
    const AmbitoRecursos ambito;
    CDlgDatosNudo dialogo(Nudo::Tomar(csReferencia, bCaja, iRotulos));
    return Nudo::Editar(dialogo, csReferencia, bCaja, iRotulos);
}
