// Comparisons of doubles: two are equal when one lies within 0.000001 of the other, limits included,
// so that a value this near to a bound counts as on the bound. Not-a-number is equal to nothing and
// neither greater nor less.
#pragma once

namespace efv::numero {

inline constexpr double kTolerancia = 0.000001;

constexpr bool Igual(double a, double b)
{
    return a >= b - kTolerancia && a <= b + kTolerancia;
}
constexpr bool Mayor(double a, double b)
{
    return a > b + kTolerancia;
}
constexpr bool Menor(double a, double b)
{
    return a < b - kTolerancia;
}
constexpr bool MayorIgual(double a, double b)
{
    return a >= b - kTolerancia;
}
constexpr bool MenorIgual(double a, double b)
{
    return a <= b + kTolerancia;
}

}  // namespace efv::numero
