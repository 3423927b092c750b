#include "economics/detalle_horas_dialogo.h"

#include <algorithm>

#include <fmt/format.h>
#include <fmt/xchar.h>

CDlgDetalleHoras::CDlgDetalleHoras(std::span<const int, 24> inicial) : Dialogo("CDlgDetalleHoras", L"Horas")
{
    std::ranges::copy(inicial, aiHoras.begin());
    for (std::size_t h = 0; h < m_casillas.size(); ++h) {
        m_casillas[h] = &Anadir<efv::ui::Casilla>("", fmt::format(L"{:02} H", h));
        m_casillas[h]->destino = &aiHoras[h];
        m_casillas[h]->colocacion.iColumna = static_cast<int>(h / 6);
    }
    AnadirBoton(L"Marcar todo", true);
    AnadirBoton(L"Desmarcar todo", false);
    Volcar();
}

void CDlgDetalleHoras::AnadirBoton(std::wstring_view rotulo, bool bMarcar)
{
    Anadir<efv::ui::Boton>("", rotulo).alPulsar = [this, bMarcar] {
        for (efv::ui::Casilla* casilla : m_casillas)
            casilla->bMarcada = bMarcar;
    };
}
