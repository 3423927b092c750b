// Internal rate of return by bisection on the rate itself, not on a bracket: the steps sum to 100.
#include <cmath>

#include <quorvel/economics_calculo.h>

#include "platform/numero/tolerancia.h"

namespace efv::economics {

namespace {

constexpr int kMaximoRondas = 10000;
constexpr double kBuscado = 0.01;  // present value at which the search ends, €
constexpr double kAceptado = 0.1;  // and up to which its rate counts as found

double ValorActual(double dDesembolso, std::span<const double> flujos, double dTasa)
{
    const double dBase = dTasa / 100.0 + 1.0;
    double dValor = -dDesembolso;
    double k = 1.0;
    for (const double dFlujo : flujos) {
        dValor += dFlujo / std::pow(dBase, k);
        k += 1.0;
    }
    return dValor;
}

double Movida(double dTasa, double dPaso, double dValor)
{
    if (numero::Mayor(dValor, 0.0))
        return dTasa + dPaso;
    return numero::Menor(dValor, 0.0) ? dTasa - dPaso : dTasa;
}

}  // namespace

Tasa TasaInternaRetorno(double dDesembolso, std::span<const double> flujos)
{
    double dTasa = 50.0;
    double dPaso = 50.0;
    double dMagnitud = 0.0;
    for (int iRonda = 0; iRonda < kMaximoRondas; ++iRonda) {
        const double dValor = ValorActual(dDesembolso, flujos, dTasa);
        dMagnitud = std::abs(dValor);
        if (numero::MenorIgual(dMagnitud, kBuscado))
            break;
        const double dSiguiente = Movida(dTasa, dPaso, dValor);
        // A step too small to move the rate is followed by smaller ones: no later round changes anything.
        if (dSiguiente == dTasa)
            break;
        dTasa = dSiguiente;
        dPaso *= 0.5;
    }
    if (numero::Menor(dMagnitud, kAceptado))
        return {true, dTasa};
    return {};
}

}  // namespace efv::economics
