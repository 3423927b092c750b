// Any bytes as a project of the desktop program: refused with a reason, or read, summed up, drawn, and
// written and read again alike.
#include <cstdint>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <vector>

#include "diseno/resumen.h"
#include "esquema/lamina.h"
#include "proyecto/fichero.h"

using namespace efv::estudio;

namespace {

// What follows the loads: kind of entry, preset, power, hourly year, monthly energies, tariff periods, flags,
// offset. Inputs are shorter than a year of hours: they stand for what comes before it.
constexpr std::size_t kCola = 4 + 4 + 8 + (8760 + 12 * 6) * 8 + 24 * 4 + 4 + 4 + 8;

template <class DISENO>
void Dibujarlo(const DISENO& diseno)
{
    ResumenDe(diseno);
    const Lamina dibujo = Dibujar(EsquemaDe(diseno));
    if (dibujo.trazos.size() > 1000 || !(dibujo.dAncho < 5000.0) || !(dibujo.dAlto < 5000.0))
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    std::unique_ptr<CProyectoEstudio> proyecto;
    try {
        auto entero = std::vector<std::uint8_t>(datos, datos + tamano);
        entero.resize(tamano + kCola);
        proyecto = ProyectoDe(std::as_bytes(std::span(entero)));
    } catch (const std::runtime_error&) {
        return 0;
    }
    const auto bytes = BytesDe(*proyecto);
    if (BytesDe(*ProyectoDe(bytes)) != bytes)
        std::abort();
    Dibujarlo(proyecto->aislada);
    Dibujarlo(proyecto->red);
    ResumenDe(proyecto->consumo, AnoDe(proyecto->consumo));
    return 0;
}
