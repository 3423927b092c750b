#include <quorvel/ui/color.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <quorvel/ui/presentador.h>

#include "frame/recursos.h"

namespace efv::ui {

namespace {

// Texts of the menu, in its order.
constexpr int kPrimerTexto = 4900;
constexpr int kTextoPorCapa = 4910;
constexpr int kTextoPorBloque = 4911;

// Codes 1 to 9, as 0xBBGGRR.
constexpr auto kConNombre = std::to_array<Color>(
    {0x0000FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF, 0x000000, 0x808080, 0xC0C0C0});

CString Texto(int iId)
{
    return CString(std::ranges::find(frame::hInstanciaModulo, iId, &recursos::Cadena::id)->texto);
}

Color DeComponentes(double dRojo, double dVerde, double dAzul)
{
    const auto byte = [](double d) { return static_cast<Color>(std::lround(d * 255.0)); };
    return byte(dRojo) | byte(dVerde) << 8U | byte(dAzul) << 16U;
}

// Codes 10 to 249: 24 hues in steps of 15 degrees, each from bright to dark in five steps, every other one
// washed out by half.
Color DeTono(int iColor)
{
    constexpr auto kBrillos = std::to_array<double>({1.0, 0.65, 0.5, 0.3, 0.15});
    const int iTono = (iColor - 10) / 10;
    const double dTono = iTono * 15.0 / 60.0;
    const double dBrillo = kBrillos[static_cast<std::size_t>(iColor % 10 / 2)];
    const double dBlanco = iColor % 2 == 1 ? 0.5 : 0.0;
    const auto componente = [&](double dCentro) {
        const double dLejos = std::abs(dTono - dCentro);
        const double dPuro = std::clamp(2.0 - std::min(dLejos, 6.0 - dLejos), 0.0, 1.0);
        return dBrillo * (dBlanco + (1.0 - dBlanco) * dPuro);
    };
    return DeComponentes(componente(0.0), componente(2.0), componente(4.0));
}

}  // namespace

CString NombreDeColor(int iColor)
{
    if (iColor >= 1 && iColor <= static_cast<int>(kConNombre.size()))
        return Texto(kPrimerTexto + iColor - 1);
    if (iColor == kColorPorCapa)
        return Texto(kTextoPorCapa);
    if (iColor == kColorPorBloque)
        return Texto(kTextoPorBloque);
    return std::to_wstring(iColor);
}

std::optional<Color> ColorDePaleta(int iColor)
{
    if (iColor < 1 || iColor > 255)
        return std::nullopt;
    if (iColor <= static_cast<int>(kConNombre.size()))
        return kConNombre[static_cast<std::size_t>(iColor - 1)];
    if (iColor < 250)
        return DeTono(iColor);
    const double dGris = 0.2 + (iColor - 250) * 0.8 / 5.0;
    return DeComponentes(dGris, dGris, dGris);
}

std::vector<CString> MenuDeColores(bool bDelDibujo)
{
    std::vector<CString> entradas;
    for (int iId = kPrimerTexto; iId <= (bDelDibujo ? kTextoPorBloque : kPrimerTexto + kEntradaOtroColor);
         ++iId)
        entradas.push_back(Texto(iId));
    return entradas;
}

std::optional<int> ColorDeEntrada(int iEntrada, int iActual)
{
    if (iEntrada < kEntradaOtroColor)
        return iEntrada + 1;
    if (iEntrada == kEntradaOtroColor)
        return PresentadorActual().ElegirColor(iActual);
    return iEntrada == kEntradaOtroColor + 1 ? kColorPorCapa : kColorPorBloque;
}

}  // namespace efv::ui
