// Exported functions of conductors' dialogs.
#include <quorvel/cables.h>

#include "electrical/conductor_dialogo.h"
#include "electrical/criterios_cableado_dialogo.h"
#include "frame/recursos.h"

namespace electrical = efv::electrical;
using efv::frame::AmbitoRecursos;
using efv::ui::Dialogo;

int phShowPropertyConductor(int iModo, int iIdGrafico, double dLongitud, double dDesnivel,
                            CString& csReferencia, int& iTipoTramo, int& bForzarLongitud,
                            double& dLongitudForzada, double& dLongitudAdicional, int& bNoContabilizar,
                            int& bForzarSeccion, double& dSeccionForzada, double& dSeccionMaxima,
                            int& bConductoresFase, int& iConductoresFase, double& dFactorCorrector,
                            int& iTipoInstalacion, int& iTipoAislante, int& iTipoCable, int& bTipoCable,
                            int& bExcluir, int& /*iAux*/)
{
    const AmbitoRecursos ambito;
    CDlgDatosConductor dialogo({iModo, iIdGrafico, dLongitud, dDesnivel},
                               {.csReferencia = csReferencia,
                                .iTipoTramo = iTipoTramo,
                                .bForzarLongitud = bForzarLongitud,
                                .dLongitudForzada = dLongitudForzada,
                                .dLongitudAdicional = dLongitudAdicional,
                                .bNoContabilizar = bNoContabilizar,
                                .bForzarSeccion = bForzarSeccion,
                                .dSeccionForzada = dSeccionForzada,
                                .dSeccionMaxima = dSeccionMaxima,
                                .bConductoresFase = bConductoresFase,
                                .iConductoresFase = iConductoresFase,
                                .dFactorCorrector = dFactorCorrector,
                                .iTipoInstalacion = iTipoInstalacion,
                                .iTipoAislante = iTipoAislante,
                                .bTipoCable = bTipoCable,
                                .iTipoCable = iTipoCable,
                                .bExcluir = bExcluir});
    if (dialogo.Mostrar() != Dialogo::ok)
        return Dialogo::cancelado;
    const electrical::DatosConductor& editado = dialogo.datos;
    csReferencia = editado.csReferencia;
    iTipoTramo = editado.iTipoTramo;
    bForzarLongitud = editado.bForzarLongitud;
    dLongitudForzada = editado.dLongitudForzada;
    dLongitudAdicional = editado.dLongitudAdicional;
    bNoContabilizar = editado.bNoContabilizar;
    bForzarSeccion = editado.bForzarSeccion;
    dSeccionForzada = editado.dSeccionForzada;
    dSeccionMaxima = editado.dSeccionMaxima;
    bConductoresFase = editado.bConductoresFase;
    iConductoresFase = editado.iConductoresFase;
    dFactorCorrector = editado.dFactorCorrector;
    iTipoInstalacion = editado.iTipoInstalacion;
    iTipoAislante = editado.iTipoAislante;
    iTipoCable = editado.iTipoCable;
    bTipoCable = editado.bTipoCable;
    bExcluir = editado.bExcluir;
    return Dialogo::ok;
}

int phShowDatosConductor(double (&adResistividad)[2], double (&adCoeficiente)[2])
{
    const AmbitoRecursos ambito;
    CDlgDatosFisicoConductor dialogo(
        {adResistividad[0], adResistividad[1], adCoeficiente[0], adCoeficiente[1]});
    if (dialogo.Mostrar() != Dialogo::ok)
        return 0;
    const electrical::DatosFisicosConductor& editado = dialogo.datos;
    adResistividad[0] = editado.dResistividadCobre;
    adResistividad[1] = editado.dResistividadAluminio;
    adCoeficiente[0] = editado.dCoeficienteCobre;
    adCoeficiente[1] = editado.dCoeficienteAluminio;
    return 1;
}

int phShowDatosMargenSeguridadCableado(double& dPaneles, double& dAcumuladores, double& dReceptores)
{
    const AmbitoRecursos ambito;
    CDlgDatosMargenSeguridadCableado dialogo({dPaneles, dAcumuladores, dReceptores});
    if (dialogo.Mostrar() != Dialogo::ok)
        return 0;
    dPaneles = dialogo.datos.dMargenPaneles;
    dAcumuladores = dialogo.datos.dMargenAcumuladores;
    dReceptores = dialogo.datos.dMargenReceptores;
    return 1;
}
