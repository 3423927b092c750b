#include "ui/lienzo.h"

#include <array>

namespace efv::ui {

Lienzo::~Lienzo() = default;

std::span<const double> Guiones(int iEstilo)
{
    static constexpr std::array<double, 2> kRayas{6, 3};
    static constexpr std::array<double, 2> kPuntos{1.5, 2.5};
    static constexpr std::array<double, 4> kRayaPunto{6, 3, 1.5, 3};
    static constexpr std::array<double, 6> kRayaDosPuntos{6, 3, 1.5, 3, 1.5, 3};
    switch (iEstilo) {
        case 2:
            return kRayas;
        case 3:
            return kPuntos;
        case 4:
            return kRayaPunto;
        case 5:
            return kRayaDosPuntos;
        default:
            return {};
    }
}

}  // namespace efv::ui
