#include "consumption/tabla_dias.h"

#include "platform/numero/conversion.h"
#include "solar/calendario.h"

namespace efv::consumption {

std::vector<CString> ColumnasDeDias()
{
    std::vector<CString> acsColumnas = {L"Día"};
    for (int iMes = 0; iMes < 12; ++iMes)
        acsColumnas.emplace_back(solar::NombreMesCorto(iMes));
    return acsColumnas;
}

CString TablaDeDias::Celda(int iFila, int iColumna) const
{
    if (iColumna == 0)
        return std::to_wstring(iFila + 1);
    const auto iMes = static_cast<std::size_t>(iColumna - 1);
    if (iMes >= 12 || iFila >= solar::kDiasMesReferencia[iMes])
        return {};
    return numero::nuConvertFltToIntlStr(m_valor(iColumna - 1, iFila), m_iDecimales);
}

}  // namespace efv::consumption
