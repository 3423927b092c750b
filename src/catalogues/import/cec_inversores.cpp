#include <cmath>

#include <quorvel/catalogues.h>

#include "catalogues/import/biblioteca_cec.h"
#include "catalogues/import/cec_fila.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/inversores_comun.h"
#include "catalogues/kinds/micro_inversor.h"

namespace efv::catalogues {

namespace {

constexpr auto kColumnasInversor = std::to_array<ColumnaNumerica<DatosInversor>>({
    {"Pdco", &DatosInversor::dPCCMax},
    {"Mppt_high", &DatosInversor::dVMPPMax},
    {"Mppt_low", &DatosInversor::dVMPPMin},
    {"Vdcmax", &DatosInversor::dVCCMax},
    {"Idcmax", &DatosInversor::dICCMax},
    {"Paco", &DatosInversor::dPCANom},
    {"Paco", &DatosInversor::dPCAMax},
    {"Vac", &DatosInversor::dVCANom},
});

// The library doesn't tell the phases: from these on an inverter is taken as three-phase.
constexpr double kPotenciaTrifasica = 15000.0;
constexpr double kTensionTrifasica = 380.0;

template <class M>
std::unique_ptr<CModelo> Leer(const FilaLeida& fila)
{
    auto inversor = std::make_unique<M>();
    Copiar<DatosInversor>(fila, kColumnasInversor, *inversor);
    inversor->dRendMax =
        RendimientoMaximo(inversor->dPCANom, inversor->dPCCMax, fila.Numero("Pso"), fila.Numero("C0"));
    inversor->dFP = 1.0;
    inversor->iTipoSalida =
        inversor->dPCANom > kPotenciaTrifasica || inversor->dVCANom >= kTensionTrifasica ? 1 : 0;
    SanearContadores(*inversor);
    RehacerListas(*inversor);
    return inversor;
}

}  // namespace

// With x the DC power above the start, AC power is k·x + C0·x² and the efficiency that over x + Pso; its
// slope is 0 where C0·x² + 2·C0·Pso·x + k·Pso = 0.
double RendimientoMaximo(double dPaco, double dPdco, double dPso, double dC0)
{
    const double dTotal = dPdco - dPso;
    const double dK = dPaco / dTotal - dC0 * dTotal;
    double x = dTotal;
    if (dC0 < 0.0 && dPso > 0.0)
        x = std::min(x, std::sqrt(dPso * dPso - dK * dPso / dC0) - dPso);
    return (dK * x + dC0 * x * x) / (x + dPso) * 100;
}

NombresModelo NombresDeInversor(const FilaLeida& fila)
{
    const std::string_view nombre = fila.Texto("Name");
    const std::size_t dosPuntos = nombre.find(':');
    if (dosPuntos == std::string_view::npos)
        return {{}, nombre};
    return {Recortar(nombre.substr(0, dosPuntos)), Recortar(nombre.substr(dosPuntos + 1))};
}

std::unique_ptr<CModelo> LeerInversor(const FilaLeida& fila, const OpcionesCec& opciones)
{
    return opciones.bMicro ? Leer<CBaseMicroInversorModelo>(fila) : Leer<CBaseInversorModelo>(fila);
}

}  // namespace efv::catalogues
