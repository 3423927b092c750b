#include "ui/ejes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "platform/numero/conversion.h"
#include "ui/ejes_calendario.h"

namespace efv::ui {

namespace {

// Beyond these an axis isn't told apart from its neighbours; they also keep differences finite.
constexpr double kMayor = 1e300;
constexpr double kMenor = 1e-300;
constexpr int kDivisionesMax = 50;
// A value this near to a mark, in steps, stands on it.
constexpr double kHolgura = 1e-9;
// From here on plain digits are no longer readable.
constexpr double kMayorLlano = 1e7;
constexpr double kPasoLlano = 1e-5;

// 1, 2 or 5 times a power of ten, the nearest to `dBruto`; the limits are the geometric means.
double PasoRedondo(double dBruto)
{
    const double dPotencia = std::pow(10.0, std::floor(std::log10(dBruto)));
    const double dMantisa = dBruto / dPotencia;
    if (dMantisa < std::sqrt(2.0))
        return dPotencia;
    if (dMantisa < std::sqrt(10.0))
        return 2.0 * dPotencia;
    if (dMantisa < std::sqrt(50.0))
        return 5.0 * dPotencia;
    return 10.0 * dPotencia;
}

CString ConMarca(std::string_view texto)
{
    CString ancho(texto.begin(), texto.end());
    numero::PonerMarca(ancho);
    return ancho;
}

template <class... Formato>
std::string Cifras(double d, Formato... formato)
{
    std::array<char, 400> tampon;
    const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), d, formato...).ptr;
    return {tampon.data(), fin};
}

CString RotuloNumero(const Eje& eje, double d)
{
    const double dMayor = std::max(std::abs(eje.dMin), std::abs(eje.dMax));
    if (dMayor >= kMayorLlano || eje.dPaso < kPasoLlano)
        return RotuloValor(std::abs(d) < kHolgura * eje.dPaso ? 0.0 : d);
    const int iDecimales = std::max(0, -static_cast<int>(std::floor(std::log10(eje.dPaso) + kHolgura)));
    return ConMarca(Cifras(d, std::chars_format::fixed, iDecimales));
}

}  // namespace

double Acotado(double d)
{
    return std::isfinite(d) ? std::clamp(d, -kMayor, kMayor) : 0.0;
}

Eje CalcularEje(double dMin, double dMax, int iDivisiones, bool bAmpliar)
{
    Eje eje;
    eje.dMin = Acotado(std::min(dMin, dMax));
    eje.dMax = Acotado(std::max(dMin, dMax));
    if (eje.dMax - eje.dMin < std::max(kMenor, kHolgura * std::abs(eje.dMax)))
        eje.dMax = eje.dMin + std::max(1.0, std::abs(eje.dMin));
    eje.dPaso = PasoRedondo((eje.dMax - eje.dMin) / std::clamp(iDivisiones, 1, kDivisionesMax));
    const double dPrimera = eje.dMin / eje.dPaso;
    const double dUltima = eje.dMax / eje.dPaso;
    if (bAmpliar) {
        eje.dMin = std::floor(dPrimera + kHolgura) * eje.dPaso;
        eje.dMax = std::ceil(dUltima - kHolgura) * eje.dPaso;
    }
    const double dDesde = bAmpliar ? std::floor(dPrimera + kHolgura) : std::ceil(dPrimera - kHolgura);
    const double dHasta = bAmpliar ? std::ceil(dUltima - kHolgura) : std::floor(dUltima + kHolgura);
    const int nMarcas = static_cast<int>(std::min(dHasta - dDesde, 4.0 * kDivisionesMax)) + 1;
    for (int i = 0; i < nMarcas; ++i)
        // The sum takes the sign from a zero.
        eje.adMarcas.push_back((dDesde + i) * eje.dPaso + 0.0);
    return eje;
}

CString RotuloValor(double d)
{
    return ConMarca(Cifras(d, std::chars_format::general, 6));
}

Eje CalcularEje(ClaseEje clase, double dMin, double dMax, int iDivisiones)
{
    if (auto eje = EjeDeCalendario(clase, dMin, dMax, std::clamp(iDivisiones, 1, kDivisionesMax)))
        return std::move(*eje);
    return CalcularEje(dMin, dMax, iDivisiones, false);
}

CString RotuloMarca(const Eje& eje, double d, bool bLargo)
{
    return eje.clase == ClaseEje::numero ? RotuloNumero(eje, d) : RotuloDeCalendario(eje, d, bLargo);
}

CString RotuloLectura(const Eje& eje, double d, bool bConHora)
{
    return eje.clase == ClaseEje::numero ? RotuloValor(d) : LecturaDeCalendario(eje, d, bConHora);
}

}  // namespace efv::ui
