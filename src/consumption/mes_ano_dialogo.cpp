#include "consumption/mes_ano_dialogo.h"

#include <quorvel/ui/como.h>

#include "solar/calendario.h"

CDlgMesAno::CDlgMesAno(int iMesActual) : Dialogo("CDlgMesAno", L"Meses del año")
{
    for (int iMes = 0; iMes < 12; ++iMes) {
        auto& casilla = Anadir<efv::ui::Casilla>("", efv::solar::NombreMes(iMes));
        casilla.destino = &abMeses.at(static_cast<std::size_t>(iMes));
        casilla.bMarcada = iMes == iMesActual;
        casilla.bHabilitado = iMes != iMesActual;
    }
    auto& todos = Anadir<efv::ui::Boton>("MarcarTodos", L"Marcar &todos");
    todos.alPulsar = [this] {
        for (efv::ui::Control* control : Controles())
            if (auto* casilla = efv::ui::Como<efv::ui::Casilla>(*control))
                casilla->bMarcada = true;
    };
}
