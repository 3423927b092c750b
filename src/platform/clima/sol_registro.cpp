#include "platform/clima/sol_registro.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "platform/numero/tolerancia.h"

namespace efv::clima {

namespace {

constexpr double kRadianes = std::numbers::pi / 180.0;
constexpr double kGrados = 57.29577951308232;
// Of the reference year; what comes before a month that doesn't exist is nothing or all of it.
constexpr std::array<int, 13> kDiasAntes = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};

double AnguloDe(double dCoseno)
{
    if (dCoseno > 1.0)
        return 0.0;
    return dCoseno < -1.0 ? std::numbers::pi : std::acos(dCoseno);
}

}  // namespace

SolesRegistro::SolesRegistro(double dLatitud)
    : m_dSeno(std::sin(dLatitud * kRadianes)), m_dCoseno(std::cos(dLatitud * kRadianes))
{
}

SolRegistro SolesRegistro::En(int iMes, int iDia, double dHora)
{
    const int n = kDiasAntes[static_cast<std::size_t>(std::clamp(iMes, 1, 13) - 1)] + iDia;
    if (!m_bDia || n != m_iDiaAno) {
        const double dDeclinacion = 23.45 * std::sin((n + 284) * 360 / 365.25 * kRadianes) * kRadianes;
        m_dSenoDeclinacion = std::sin(dDeclinacion);
        m_dCosenoDeclinacion = std::cos(dDeclinacion);
        m_iDiaAno = n;
        m_bDia = true;
    }
    SolRegistro sol{};
    sol.dSenoDeclinacion = m_dSenoDeclinacion;
    sol.dCosenoDeclinacion = m_dCosenoDeclinacion;
    sol.dAnguloHora = (dHora - 12.0) * 15.0;
    const double dCosHora = std::cos(sol.dAnguloHora * kRadianes);
    sol.dAltura = std::asin(sol.dCosenoDeclinacion * m_dCoseno * dCosHora + sol.dSenoDeclinacion * m_dSeno);
    const double dSigno =
        numero::Igual(sol.dAnguloHora, 0.0) ? 1.0 : sol.dAnguloHora / std::abs(sol.dAnguloHora);
    const double c = (sol.dCosenoDeclinacion * m_dSeno * dCosHora - m_dCoseno * sol.dSenoDeclinacion) /
                     std::cos(sol.dAltura);
    sol.dAcimut = AnguloDe(c) * dSigno * kGrados;
    sol.dCenit = 90.0 - sol.dAltura * kGrados;
    return sol;
}

}  // namespace efv::clima
