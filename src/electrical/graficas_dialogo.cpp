#include "electrical/graficas_dialogo.h"

#include <utility>

CDlgItemDatosGraficaPanelFoto::CDlgItemDatosGraficaPanelFoto(efv::GraficasPanel graficas)
    : Dialogo("CDlgItemDatosGraficaPanelFoto", L"Curvas del panel fotovoltaico")
{
    bMaximizable = true;
    bAceptarVisible = false;
    csCancelar = L"&Cerrar";
    const auto anadir = [this](const char* nombre, CCtrlCurva2D datos, int iColumna) {
        auto& grafica = Anadir<efv::ui::Grafica>(nombre, L"");
        grafica.datos = std::move(datos);
        grafica.colocacion.iColumna = iColumna;
        grafica.colocacion.bEstirar = true;
    };
    anadir("grafica", std::move(graficas.corriente), 0);
    anadir("grafica2", std::move(graficas.potencia), 1);
}
