#include "qt/colores.h"

#include <algorithm>
#include <cmath>

namespace efv::qt {

namespace {

// Least contrasts of WCAG 2.1, 1.4.3 and 1.4.11. Colours are chosen for a light background: there they
// change only when even a drawing couldn't be told apart.
constexpr double kContrasteClaro = 3.0;
constexpr double kContrasteOscuro = 4.5;

// Relative luminance of WCAG 2.1.
double Luminancia(const QColor& color)
{
    const auto lineal = [](double d) { return d <= 0.04045 ? d / 12.92 : std::pow((d + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineal(color.redF()) + 0.7152 * lineal(color.greenF()) + 0.0722 * lineal(color.blueF());
}

double Contraste(const QColor& a, const QColor& b)
{
    const double dA = Luminancia(a);
    const double dB = Luminancia(b);
    return (std::max(dA, dB) + 0.05) / (std::min(dA, dB) + 0.05);
}

}  // namespace

QColor DeColor(ui::Color color)
{
    return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8U & 0xFFU),
            static_cast<int>(color >> 16U & 0xFFU)};
}

QColor Legible(const QColor& color, const QColor& fondo)
{
    const bool bOscuro = Luminancia(fondo) < 0.18;
    const QColor meta = bOscuro ? Qt::white : Qt::black;
    const double dContraste = bOscuro ? kContrasteOscuro : kContrasteClaro;
    QColor legible = color;
    constexpr float kPasos = 20.0F;
    for (float f = 1.0F; f <= kPasos && Contraste(legible, fondo) < dContraste; ++f) {
        const float t = f / kPasos;
        legible = QColor::fromRgbF(color.redF() + t * (meta.redF() - color.redF()),
                                   color.greenF() + t * (meta.greenF() - color.greenF()),
                                   color.blueF() + t * (meta.blueF() - color.blueF()));
    }
    return legible;
}

QColor ColorDeTexto(ui::Color color, const QColor& texto, const QColor& fondo)
{
    return color == ui::kNegro ? texto : Legible(DeColor(color), fondo);
}

}  // namespace efv::qt
