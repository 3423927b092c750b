// The viewer of a catalogue of 20,000 modules without a screen: opening it, and each letter of a search.
#include "medidor.h"

namespace {

using namespace efv;

void Visor(benchmark::State& estado)
{
    bench::MedirVisor(
        estado, [](ui::Dialogo&) {},
        [](ui::Dialogo& dialogo, wchar_t letra) {
            auto& buscar = bench::ControlDe<ui::Edicion>(dialogo, "csBuscar");
            dialogo.Teclear(buscar, buscar.csTexto + letra);
        });
}
BENCHMARK(Visor)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
