// Degrees and radians, in the two forms whose last digits differ: the sun position multiplies by π and
// divides by 180, the radiation kernel uses one constant.
#pragma once

namespace efv::solar {

inline constexpr double kPi = 3.141592653589793;

constexpr double ARadianes(double dGrados)
{
    return dGrados * kPi / 180;
}
constexpr double AGrados(double dRadianes)
{
    return dRadianes * 180 / kPi;
}

/// Radians of one degree, as the radiation kernel takes them.
inline constexpr double kRadianesPorGrado = 0.017453292519943295;

}  // namespace efv::solar
