#include "consumption/consumo_dia_dialogo.h"

namespace {

efv::consumption::AspectoHoras Aspecto()
{
    efv::consumption::AspectoHoras aspecto;
    aspecto.iDecimales = 0;
    aspecto.grafica = efv::GraficaDiaDeHoras(std::array<double, 24>{});
    return aspecto;
}

}  // namespace

CDlgDatosConsumoDia::CDlgDatosConsumoDia(int iMes, int iDia, std::span<double, efv::kHorasDelAno> adHoras)
    : DialogoDia("CDlgDatosConsumoDia", L"Datos de consumo diario", Aspecto(), iMes, iDia,
                 [adHoras](int iMesDestino, int iDiaDestino) {
                     const auto iInicio = efv::HorasDeDia(iMesDestino, iDiaDestino).iInicio;
                     return std::span<double, 24>(adHoras.data() + iInicio, 24);
                 })
{
}
