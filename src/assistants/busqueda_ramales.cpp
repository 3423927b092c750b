#include "assistants/busqueda_ramales.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/numero/tolerancia.h"

namespace efv::assistants {

namespace {

// Whole numbers from `desde` to `hasta`; none when it ends before it begins.
struct Tramo {
    int desde, hasta;

    Tramo operator&(const Tramo& otro) const
    {
        return {std::max(desde, otro.desde), std::min(hasta, otro.hasta)};
    }
    bool Vacio() const { return desde > hasta; }
};

// Where in 1 to n `cumple` holds, for one that changes its answer at most once.
template <class CUMPLE>
Tramo TramoQueCumple(int n, CUMPLE cumple)
{
    const bool bPrimero = n >= 1 && cumple(1);
    if (n < 1 || cumple(n) == bPrimero)
        return bPrimero ? Tramo{1, n} : Tramo{1, 0};
    int igual = 1, distinto = n;  // answers as at 1, and otherwise
    while (distinto - igual > 1) {
        const int medio = igual + (distinto - igual) / 2;
        (cumple(medio) == bPrimero ? igual : distinto) = medio;
    }
    return bPrimero ? Tramo{1, igual} : Tramo{distinto, n};
}

// Every limit is on a multiple of one value, so each allows one stretch, the same for any other count.
Tramo SeriesPosibles(const CampoBuscado& c)
{
    const int n = c.iSerieMaxima;
    return TramoQueCumple(n, [&](int s) { return numero::MenorIgual(s * c.dVmpm, c.dVMPPMax); }) &
           TramoQueCumple(n, [&](int s) { return numero::Mayor(s * c.dVmpm, c.dVMPPMin); }) &
           TramoQueCumple(n, [&](int s) { return numero::MenorIgual(s * c.dVoc, c.dVCCMax); });
}

Tramo ParalelosPosibles(const CampoBuscado& c)
{
    return TramoQueCumple(kRamalesMaximos,
                          [&](int p) { return numero::MenorIgual(p * c.dImpm, c.dIMaxEntrada); });
}

// From how many panels a branch down a row of the loop can hold a pair nearer than `dMejor`: more panels
// end beyond power + dMejor. Two more are walked than the quotient says, so that its rounding, and that
// of the loop's products, can't leave a pair out.
int PrimeraSerie(double dPotencia, double dMejor, double dPotenciaFila, int iMaxima)
{
    const double d = (dPotencia + dMejor) / dPotenciaFila + 2;
    return d < iMaxima ? static_cast<int>(std::max(d, 0.0)) : iMaxima;
}

}  // namespace

std::optional<Ramales> BuscarRamales(const CampoBuscado& campo)
{
    // Only the distance counts, so a negative panel is a positive one with the power's sign changed.
    const double dPmpm = std::abs(campo.dPmpm);
    const double dPotencia = std::signbit(campo.dPmpm) ? -campo.dPotencia : campo.dPotencia;
    if (!std::isfinite(dPmpm) || !std::isfinite(dPotencia))
        return std::nullopt;
    const Tramo series = SeriesPosibles(campo);
    const Tramo paralelos = ParalelosPosibles(campo);
    std::optional<Ramales> mejor;
    double dMejor = std::numeric_limits<double>::max();
    if (series.Vacio())
        return mejor;
    // No distance can be below a best one within the tolerance of 0.
    for (int p = paralelos.desde; p <= paralelos.hasta && dMejor > numero::kTolerancia; ++p) {
        const int iPrimera = PrimeraSerie(dPotencia, dMejor, p * dPmpm, series.hasta);
        if (iPrimera < series.desde)
            break;  // this row lies beyond, and the following ones farther still
        for (int s = iPrimera; s >= series.desde; --s) {
            const double dCampo = static_cast<double>(s) * p * dPmpm;
            const double dDistancia = std::abs(dPotencia - dCampo);
            if (numero::Menor(dDistancia, dMejor)) {
                dMejor = dDistancia;
                mejor = {s, p};
            }
            if (dCampo <= dPotencia)
                break;  // fewer panels are only farther away
        }
    }
    return mejor;
}

}  // namespace efv::assistants
