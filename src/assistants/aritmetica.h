// The few operations of the sizings whose outcome for odd operands matters.
#pragma once

#include <algorithm>
#include <climits>
#include <cmath>

#include "platform/numero/conversion.h"

namespace efv::assistants {

// The second operand where a comparison with not-a-number decides, so that "at least 1" is 1 for a
// quotient of 0 by 0.
constexpr double ElMayor(double a, double b)
{
    return a > b ? a : b;
}
constexpr double ElMenor(double a, double b)
{
    return a < b ? a : b;
}

/// `d` as a count. One that can't be said, a quotient by 0 of a model that is missing, is 1: its field then
/// stays inside its limits and the person can go on.
inline int Cuenta(double d)
{
    return std::isfinite(d) ? numero::Entero(d) : 1;
}

/// `d` rounded up, as a count.
inline int Techo(double d)
{
    return Cuenta(std::ceil(d));
}

/// `d` rounded down, at least 1.
inline int SueloDesdeUno(double d)
{
    return Cuenta(ElMayor(std::floor(d), 1.0));
}

/// Product of two counts; saturates.
constexpr int Producto(int a, int b)
{
    return static_cast<int>(std::clamp<long long>(static_cast<long long>(a) * b, INT_MIN, INT_MAX));
}

}  // namespace efv::assistants
