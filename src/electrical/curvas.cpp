#include "electrical/curvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>

#include <quorvel/framework/CException.h>

#include "platform/numero/tolerancia.h"

namespace efv::electrical {

namespace {

// The model's constants; newer or longer values would give other curves.
constexpr double kBoltzmann = 1.3806504e-23;   // J/K
constexpr double kCargaElectron = 1.6021e-19;  // C
constexpr double kCeroCelsius = 273.16;        // K
// The series term uses the natural logarithm, of which a power of this base isn't the exact inverse.
constexpr double kBase = 2.718281828;

constexpr double kNoNumero = std::numeric_limits<double>::quiet_NaN();

// I = Isc · (1 − B^((V + Rs·I − Voc)/a)), as far as it is the same for all points of a curve.
struct Diodo {
    double dIsc, dVoc;
    double dA;   // scale voltage, V
    double dRs;  // makes the equation pass through the maximum-power point, ohm

    explicit Diodo(const EntradaCurva& e)
        : dIsc(e.dIsc),
          dVoc(e.dVoc),
          dA((e.dT + kCeroCelsius) * (e.dIdealidad * kBoltzmann) / kCargaElectron * e.dNs /
             std::max(e.dNp, 1.0)),
          dRs((std::log(1.0 - e.dImp / e.dIsc) * dA + e.dVoc - e.dVmp) / e.dImp)
    {
    }

    double Exponente(double dV, double dI) const { return (dV + dRs * dI - dVoc) / dA; }
    double Corriente(double dExponente) const { return dIsc * (1.0 - std::pow(kBase, dExponente)); }
};

// A point on its way: the current of the last iteration, and the exponents that gave it and the one before.
struct Iteracion {
    double dV;
    double dI = 0.0;
    double dExponente = kNoNumero, dExponenteAnterior = kNoNumero;
    bool bAcabada = false;
};

// Carries one point an iteration further, `iQuedan` being those still to do with this one.
//
// The number of iterations is part of the model, convergence or not, but most end early with the same
// bits. A current follows from its exponent alone, so an exponent that comes again repeats all that came
// after it: the last one fixes the current, and the last but one makes two currents alternate, the present
// one being the final one when an even number is left (when it is odd, the next turn finds it). Nothing is
// approximated: the comparisons are exact (the two zeros, which they take as one, both have the power 1)
// and no other property is relied upon. Longer cycles aren't looked for: the equation is monotone in I,
// which leaves none, and one that rounding made would only run to its end. After not-a-number nothing
// else can come.
void Iterar(Iteracion& p, const Diodo& diodo, int iQuedan)
{
    const double x = diodo.Exponente(p.dV, p.dI);
    if (x == p.dExponente || (x == p.dExponenteAnterior && iQuedan % 2 == 0)) {
        p.bAcabada = true;
        return;
    }
    p.dExponenteAnterior = p.dExponente;
    p.dExponente = x;
    p.dI = diodo.Corriente(x);
    p.bAcabada = std::isnan(x);
}

// Points are independent but each iteration waits for the one before, so that a few points in turn keep
// the processor busy where a single one would leave it idle.
constexpr std::size_t kPuntosAlaVez = 8;

void IterarJuntos(std::span<Iteracion> puntos, const Diodo& diodo, int iN)
{
    std::size_t pendientes = puntos.size();
    for (int iQuedan = iN; iQuedan > 0 && pendientes > 0; --iQuedan) {
        for (Iteracion& p : puntos) {
            if (p.bAcabada)
                continue;
            Iterar(p, diodo, iQuedan);
            if (p.bAcabada)
                --pendientes;
        }
    }
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
    curva.adP.push_back(dV * dI);
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
    const Diodo diodo(e);
    std::array<Iteracion, kPuntosAlaVez> lote;
    for (int iPrimero = 0; iPrimero <= iN; iPrimero += static_cast<int>(kPuntosAlaVez)) {
        const int iFin = std::min(iN + 1, iPrimero + static_cast<int>(kPuntosAlaVez));
        std::size_t exponenciales = 0;
        for (int i = iPrimero; i < iFin; ++i) {
            const double dV = i * dPaso;
            if (EsExponencial(dV, e))
                lote[exponenciales++] = {.dV = dV};
        }
        IterarJuntos(std::span(lote).first(exponenciales), diodo, iN);

        const Iteracion* exponencial = lote.data();
        for (int i = iPrimero; i < iFin; ++i) {
            const double dV = i * dPaso;
            if (EsExponencial(dV, e))
                Guardar(curva, dV, (exponencial++)->dI);
            else if (numero::MenorIgual(dV, e.dVoc))
                Guardar(curva, dV, CorrienteRecta(dV, e));
        }
    }
    return curva;
}

}  // namespace efv::electrical
