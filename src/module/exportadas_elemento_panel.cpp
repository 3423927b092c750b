// Exported function of an array of panels.
#include <algorithm>
#include <span>
#include <vector>

#include <quorvel/elements.h>

#include "elements/panel_dialogo.h"
#include "elements/panel_radiacion.h"
#include "frame/recursos.h"
#include "module/elemento_exportado.h"
#include "module/singletons.h"

namespace elements = efv::elements;
using D = elements::DatosPanel;

int phShowPropertyPanelFoto(CString& csReferencia, CString& csId, int& nPaneles, int& bModelo,
                            int& bInclinacion, double& dInclinacion, int& iOrientacion, int& iMontaje,
                            double& dRendimiento, int iOptimizador, int& bAutoDesconexion,
                            double& dAutoDesconexion, int& bOptimizadorMPPT, CString& csOptimizadorMPPT,
                            CStringArray acsOptimizadores, CString& csString, int& bInformarSombra,
                            double& dSombreado, int& bExcluir, int& bNoSombras, int& /*iAux*/, double& dLatitud,
                            double& dOrientacion, double& dDatoSitio, int& bClima, int& iFuente,
                            int& bMicroInversor, CString& csIdMicro, int& bMicroModelo, int& iConexion,
                            const double (&adHorizontal)[12][31][24], int& bForzado, short& nColor)
{
    using Panel =
        efv::module::Argumentos<D, &D::csReferencia, &D::csId, &D::nPaneles, &D::bModelo, &D::bInclinacion,
                                &D::dInclinacion, &D::iOrientacion, &D::iMontaje, &D::dRendimiento,
                                &D::bAutoDesconexion, &D::dAutoDesconexion, &D::bOptimizadorMPPT,
                                &D::csOptimizadorMPPT, &D::csString, &D::bInformarSombra, &D::dSombreado,
                                &D::bExcluir, &D::bNoSombras, &D::bMicroInversor, &D::csIdMicro,
                                &D::bMicroModelo, &D::iConexion, &D::bForzado, &D::nColor>;
    const efv::frame::AmbitoRecursos ambito;
    D datos = Panel::Tomar(csReferencia, csId, nPaneles, bModelo, bInclinacion, dInclinacion, iOrientacion,
                           iMontaje, dRendimiento, bAutoDesconexion, dAutoDesconexion, bOptimizadorMPPT,
                           csOptimizadorMPPT, csString, bInformarSombra, dSombreado, bExcluir, bNoSombras,
                           bMicroInversor, csIdMicro, bMicroModelo, iConexion, bForzado, nColor);
    datos.iOptimizador = iOptimizador;
    elements::ClimaPanel clima{
        .bHay = bClima != 0,
        .plano = {elements::FuenteDe(iFuente), dDatoSitio, dLatitud, dOrientacion},
        .adHorizontal = {},
    };
    // Other numbers than 2 may mean this source as well, but none of them brings its hours.
    if (iFuente == static_cast<int>(efv::solar::FuenteRadiacion::horizontal))
        clima.adHorizontal = std::span(&adHorizontal[0][0][0], efv::solar::kHorasBloque);
    CDlgDatosPanelFotovoltaico dialogo(datos, clima, acsOptimizadores, efv::module::Bases(),
                                       efv::module::RecuerdoDialogos().iPaginaPanel);
    return Panel::Editar(dialogo, csReferencia, csId, nPaneles, bModelo, bInclinacion, dInclinacion,
                         iOrientacion, iMontaje, dRendimiento, bAutoDesconexion, dAutoDesconexion,
                         bOptimizadorMPPT, csOptimizadorMPPT, csString, bInformarSombra, dSombreado, bExcluir,
                         bNoSombras, bMicroInversor, csIdMicro, bMicroModelo, iConexion, bForzado, nColor);
}
