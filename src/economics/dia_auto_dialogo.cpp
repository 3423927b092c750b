#include "economics/dia_auto_dialogo.h"

#include "economics/horas_bloque.h"

namespace {

efv::consumption::AspectoHoras Aspecto(const efv::economics::AspectoDia& aspecto)
{
    efv::consumption::AspectoHoras horas;
    horas.iDecimales = aspecto.iDecimales;
    horas.grafica = aspecto.grafica;
    horas.csSerie = aspecto.csSerie;
    return horas;
}

}  // namespace

CDlgCalculoEconomicoAutoDia::CDlgCalculoEconomicoAutoDia(int iMes, int iDia,
                                                         std::span<double, efv::economics::kHorasBloque> bloque,
                                                         const efv::economics::AspectoDia& aspecto)
    : DialogoDia("CDlgCalculoEconomicoAutoDia", L"Datos del día", Aspecto(aspecto), iMes, iDia,
                 [bloque](int iMesDestino, int iDiaDestino) {
                     const std::size_t i = efv::economics::PrimeraHora(iMesDestino, iDiaDestino);
                     return std::span<double, 24>(bloque.data() + i, 24);
                 })
{
    if (aspecto.bSoloConsulta)
        SoloConsultar();
}

int efv::economics::EditarDia(int iMes, int iDia, std::span<double, kHorasBloque> bloque,
                              const AspectoDia& aspecto)
{
    if (!ExisteDia(iMes, iDia))
        return 0;
    return CDlgCalculoEconomicoAutoDia(iMes, iDia, bloque, aspecto).Mostrar() == ui::Dialogo::ok ? 1 : 0;
}
