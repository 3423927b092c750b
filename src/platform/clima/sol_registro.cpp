#include "platform/clima/sol_registro.h"

#include <array>
#include <cmath>
#include <numbers>

#include "platform/numero/tolerancia.h"

namespace efv::clima {

namespace {

constexpr double kRadianes = std::numbers::pi / 180.0;
constexpr double kGrados = 57.29577951308232;
constexpr std::array<int, 12> kDiasAntes = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

double AnguloDe(double dCoseno)
{
    if (dCoseno > 1.0)
        return 0.0;
    return dCoseno < -1.0 ? std::numbers::pi : std::acos(dCoseno);
}

}  // namespace

SolRegistro SolDelRegistro(double dLatitud, int iMes, int iDia, double dHora)
{
    const int n = kDiasAntes[static_cast<std::size_t>(iMes - 1)] + iDia;
    const double dDeclinacion = 23.45 * std::sin((n + 284) * 360 / 365.25 * kRadianes) * kRadianes;
    const double f = dLatitud * kRadianes;
    SolRegistro sol{};
    sol.dSenoDeclinacion = std::sin(dDeclinacion);
    sol.dCosenoDeclinacion = std::cos(dDeclinacion);
    sol.dAnguloHora = (dHora - 12.0) * 15.0;
    const double dCosHora = std::cos(sol.dAnguloHora * kRadianes);
    sol.dAltura =
        std::asin(sol.dCosenoDeclinacion * std::cos(f) * dCosHora + sol.dSenoDeclinacion * std::sin(f));
    const double dSigno =
        numero::Igual(sol.dAnguloHora, 0.0) ? 1.0 : sol.dAnguloHora / std::abs(sol.dAnguloHora);
    const double c = (sol.dCosenoDeclinacion * std::sin(f) * dCosHora - std::cos(f) * sol.dSenoDeclinacion) /
                     std::cos(sol.dAltura);
    sol.dAcimut = AnguloDe(c) * dSigno * kGrados;
    sol.dCenit = 90.0 - sol.dAltura * kGrados;
    return sol;
}

}  // namespace efv::clima
