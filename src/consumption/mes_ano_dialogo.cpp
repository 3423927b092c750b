#include "consumption/mes_ano_dialogo.h"

#include "solar/calendario.h"

CDlgMesAno::CDlgMesAno(int iMesActual) : Dialogo("CDlgMesAno", L"Meses del año")
{
    for (int iMes = 0; iMes < 12; ++iMes) {
        auto& casilla = Anadir<efv::ui::Casilla>("", efv::solar::NombreMes(iMes));
        casilla.destino = &abMeses.at(static_cast<std::size_t>(iMes));
        casilla.bMarcada = iMes == iMesActual;
        casilla.bHabilitado = iMes != iMesActual;
    }
}
