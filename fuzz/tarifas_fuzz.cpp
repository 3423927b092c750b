// Any bytes as a table of periods or of holidays: refused with a reason, or a period for every hour of a year.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <quorvel/tarifas.h>

#include "exigir.h"

namespace {

using namespace efv::economics;

void ComprobarPeriodos(std::string_view bytes)
{
    try {
        Tarifa tarifa;
        tarifa.periodos = LeerPeriodos(bytes, "peninsula");
        for (const int iPeriodo : PeriodosDelAno(tarifa, {DiasDeUnAno(2024)}))
            Exigir(iPeriodo >= 0 && iPeriodo < static_cast<int>(tarifa.periodos.nPeriodos));
    } catch (const ErrorTarifa&) {
        return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const std::string_view bytes(reinterpret_cast<const char*>(datos), tamano);
    ComprobarPeriodos(bytes);
    try {
        for (const Festivo& festivo : LeerFestivos(bytes))
            Exigir(festivo.iMes >= 1 && festivo.iMes <= 12 && festivo.iDia >= 1 && festivo.iDia <= 31);
    } catch (const ErrorTarifa&) {
        return 0;
    }
    return 0;
}
