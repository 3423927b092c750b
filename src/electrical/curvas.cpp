#include "electrical/curvas.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <vector>

#include <quorvel/framework/CException.h>

#include "electrical/iteracion_diodo.h"
#include "platform/numero/tolerancia.h"

namespace efv::electrical {

namespace {

// The model's constants; newer or longer values would give other curves.
constexpr double kBoltzmann = 1.3806504e-23;   // J/K
constexpr double kCargaElectron = 1.6021e-19;  // C
constexpr double kCeroCelsius = 273.16;        // K

// The series term makes the equation pass through the maximum-power point.
Diodo DiodoDe(const EntradaCurva& e)
{
    const double dA =
        (e.dT + kCeroCelsius) * (e.dIdealidad * kBoltzmann) / kCargaElectron * e.dNs / std::max(e.dNp, 1.0);
    return {e.dIsc, e.dVoc, dA, (std::log(1.0 - e.dImp / e.dIsc) * dA + e.dVoc - e.dVmp) / e.dImp};
}

bool EsExponencial(double dV, const EntradaCurva& e)
{
    return numero::MayorIgual(dV, 0.0) && numero::MenorIgual(dV, e.dVmp);
}

// From the maximum-power point straight to open circuit.
double CorrienteRecta(double dV, const EntradaCurva& e)
{
    return (dV - e.dVmp) / (e.dVoc - e.dVmp) * (0.0 - e.dImp) + e.dImp;
}

// Appends the point unless its current is negative or not a number.
void Guardar(Curva& curva, double dV, double dI)
{
    if (!numero::MayorIgual(dI, 0.0))
        return;
    curva.adV.push_back(dV);
    curva.adI.push_back(dI);
}

}  // namespace

ValoresTipicos CalcularValoresTipicos(const HojaModulo& hoja, double dG, double dT)
{
    const double g = dG / 1000.0;
    const double dDT = dT - 25.0;
    const double dDI = hoja.dCTIsc * 0.001 * dDT;
    const double dDP = hoja.dCTPmpm * 0.001 * dDT;

    ValoresTipicos v{};
    // The mean of adding the temperature's share whole and of adding it in proportion to the irradiance.
    v.dIsc = 0.5 * ((g * hoja.dIsc + dDI) + (dDI + hoja.dIsc) * g);
    v.dImp = g * hoja.dImpm;
    v.dPmp = 0.5 * ((g * hoja.dPmpm + dDP) + (dDP + hoja.dPmpm) * g);
    v.dVmp = v.dPmp / v.dImp;
    // Open-circuit voltage falls by 5.8 % from 1000 to 200 W/m², in a straight line that goes on both ways.
    v.dVoc = ((100.0 - (1000.0 - dG) * 5.8 / 800.0) / 100.0) * (hoja.dCTVoc * 0.001 * dDT + hoja.dVoc);
    return v;
}

Curva CalcularCurva(const EntradaCurva& e, int iN)
{
    if (iN > kIntervalosMaximos)
        throw CInvalidArgException("Demasiados intervalos en la curva");

    Curva curva;
    // Without intervals the step is infinite or not a number, and so is the only candidate.
    if (iN <= 0)
        return curva;

    const double dPaso = e.dVoc / iN;
    const auto nPuntos = static_cast<std::size_t>(iN) + 1;
    std::vector<double> adV;
    adV.reserve(nPuntos);
    for (int i = 0; i <= iN; ++i)
        if (const double dV = i * dPaso; EsExponencial(dV, e))
            adV.push_back(dV);
    std::vector<double> adI(adV.size());
    IterarCorrientes(DiodoDe(e), iN, adV, adI);

    curva.adV.reserve(nPuntos);
    curva.adI.reserve(nPuntos);
    auto exponencial = adI.begin();
    for (int i = 0; i <= iN; ++i) {
        const double dV = i * dPaso;
        if (EsExponencial(dV, e))
            Guardar(curva, dV, *exponencial++);
        else if (numero::MenorIgual(dV, e.dVoc))
            Guardar(curva, dV, CorrienteRecta(dV, e));
    }
    curva.adP.resize(curva.adV.size());
    std::ranges::transform(curva.adV, curva.adI, curva.adP.begin(), std::multiplies());
    return curva;
}

}  // namespace efv::electrical
