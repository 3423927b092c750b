// Any bytes as a meter's file: refused with a reason, or hours in order that their days have, and a finite
// year.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <quorvel/contador.h>

#include "exigir.h"

namespace {

using namespace efv;

void ComprobarHoras(const MedidasContador& medidas)
{
    Exigir(!medidas.horas.empty());
    const HoraMedida* anterior = nullptr;
    for (const HoraMedida& hora : medidas.horas) {
        Exigir(hora.iOrden >= 0 && hora.iOrden < HorasDelDiaOficial(hora.iDia));
        Exigir(std::isfinite(hora.dConsumo) && hora.dConsumo >= 0.0);
        if (anterior != nullptr)
            Exigir(anterior->iDia < hora.iDia ||
                   (anterior->iDia == hora.iDia && anterior->iOrden < hora.iOrden));
        anterior = &hora;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const std::string_view bytes(reinterpret_cast<const char*>(datos), tamano);
    PareceContador(bytes);
    try {
        const MedidasContador medidas =
            LeerContador(bytes, {.etiqueta = static_cast<EtiquetaHora>(tamano % 3)});
        ComprobarHoras(medidas);
        const AnoMedido ano = AnoDeContador(medidas, {.bSolar = tamano % 2 == 0});
        for (const double d : *ano.adHoras)
            Exigir(!std::isnan(d) && d >= 0.0);
    } catch (const ErrorContador&) {
        return 0;
    }
    return 0;
}
