#include "solar/posicion_sol.h"

#include <algorithm>
#include <cmath>

#include "platform/numero/tolerancia.h"
#include "solar/angulos.h"
#include "solar/calendario.h"

namespace efv::solar {

double Declinacion(double dDia)
{
    constexpr double kGradosPorDia = 0.9863013698630136;  // 360/365
    return 23.45 * std::sin((dDia + 284) * kGradosPorDia * kPi / 180);
}

double AnguloHorario(double dHora)
{
    return 180 - 15 * dHora;
}

double Altura(double dLatitud, double dDeclinacion, double dAnguloHorario)
{
    const double fi = ARadianes(dLatitud);
    const double delta = ARadianes(dDeclinacion);
    const double omega = ARadianes(dAnguloHorario);
    return AGrados(
        std::asin(std::cos(delta) * std::cos(fi) * std::cos(omega) + std::sin(delta) * std::sin(fi)));
}

double AlturaEnFecha(double dLatitud, int iMes, int iDia, int iHora)
{
    // Double, so that no day, however absurd, overflows. Months beyond December add no days.
    double dDia = static_cast<double>(iDia) + 1;
    for (int i = 0; i < std::min(iMes, 12); ++i)
        dDia += kDiasMesReferencia[static_cast<std::size_t>(i)];
    return Altura(dLatitud, Declinacion(dDia), AnguloHorario(iHora));
}

double Azimut(double dLatitud, double dDeclinacion, double dAltura, double dAnguloHorario)
{
    const double fi = ARadianes(dLatitud);
    const double delta = ARadianes(dDeclinacion);
    const double alfa = ARadianes(dAltura);
    const double coseno = (std::sin(alfa) * std::sin(fi) - std::sin(delta)) / (std::cos(alfa) * std::cos(fi));
    const double magnitud = AGrados(std::acos(coseno));
    return numero::Mayor(dAnguloHorario, 0.0) ? -magnitud : magnitud;
}

}  // namespace efv::solar
