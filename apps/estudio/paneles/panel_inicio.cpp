#include "paneles/panel_inicio.h"

#include <utility>

namespace efv::estudio {

PanelInicio::PanelInicio(std::vector<Paso> pasos) : Dialogo("PanelInicio", L"Primeros pasos")
{
    bAceptarVisible = false;
    for (Paso& paso : pasos) {
        ui::Boton* primero = nullptr;
        for (Accion& accion : paso.acciones) {
            auto& boton = Anadir<ui::Boton>(accion.nombre, accion.csRotulo);
            boton.colocacion.grupo = paso.csTitulo;
            if (primero != nullptr)
                boton.colocacion.junto = primero;
            else
                primero = &boton;
            boton.alPulsar = std::move(accion.hacer);
        }
        if (!paso.hecho)
            continue;
        auto& texto = Anadir<ui::TextoFijo>("", L"");
        texto.colocacion.grupo = paso.csTitulo;
        m_marcas.push_back({&texto, std::move(paso.hecho)});
    }
    Actualizar();
}

void PanelInicio::Actualizar()
{
    for (const Marca& marca : m_marcas) {
        const CString csHecho = marca.hecho();
        marca.texto->csTexto = csHecho.empty() ? CString(L"– Por hacer") : L"✓ " + csHecho;
    }
}

}  // namespace efv::estudio
