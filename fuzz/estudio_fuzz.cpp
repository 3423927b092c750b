// Any bytes as a project of the desktop program: refused with a reason, or read, summed up, drawn, and
// written and read again alike.
#include <cstdint>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <vector>

#include "diseno/comprobaciones.h"
#include "diseno/resumen.h"
#include "elementos/rotulos.h"
#include "esquema/lamina.h"
#include "proyecto/fichero.h"
#include "proyecto/vigencia.h"

using namespace efv::estudio;

namespace {

// What follows the loads: kind of entry, preset, power, hourly year, monthly energies, tariff periods, flags,
// offset. Inputs are shorter than a year of hours: they stand for what comes before it.
constexpr std::size_t kCola = 4 + 4 + 8 + (8760 + 12 * 6) * 8 + 24 * 4 + 4 + 4 + 8;

void Mostrarlo(const CProyectoEstudio& proyecto, Diseno diseno)
{
    const auto calculado = CalcularDiseno(proyecto, diseno);
    ResumenDe(proyecto, diseno, calculado);
    AvisoDeDesfase(proyecto, diseno);
    const Lamina dibujo = Dibujar(EsquemaDe(proyecto, diseno, calculado));
    if (dibujo.trazos.size() > 1000 || !(dibujo.dAncho < 5000.0) || !(dibujo.dAlto < 5000.0))
        std::abort();
}

void Recorrer(std::span<const std::uint8_t> entero)
{
    std::unique_ptr<CProyectoEstudio> proyecto;
    try {
        proyecto = ProyectoDe(std::as_bytes(entero));
    } catch (const std::runtime_error&) {
        return;
    }
    const auto bytes = BytesDe(*proyecto);
    if (BytesDe(*ProyectoDe(bytes)) != bytes)
        std::abort();
    Mostrarlo(*proyecto, Diseno::aislada);
    Mostrarlo(*proyecto, Diseno::red);
    ResumenDe(proyecto->consumo, AnoDe(proyecto->consumo));
}

}  // namespace

// As it comes, for the files of sections, and before a year of hours.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    auto entero = std::vector<std::uint8_t>(datos, datos + tamano);
    Recorrer(entero);
    entero.resize(tamano + kCola);
    Recorrer(entero);
    return 0;
}
