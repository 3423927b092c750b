#include "comun/numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace efv::estudio {

CString Decimal(double d, int iDecimales)
{
    if (!std::isfinite(d))
        return L"–";
    std::array<char, 400> tampon;
    const auto fin =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), d, std::chars_format::fixed, iDecimales)
            .ptr;
    CString texto(tampon.data(), fin);
    std::ranges::replace(texto, L'.', L',');
    return texto;
}

}  // namespace efv::estudio
