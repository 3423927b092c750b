#include "qt/colores.h"

#include <algorithm>
#include <cmath>

#include <QPalette>

#include <quorvel/qt.h>

namespace efv::qt {

namespace {

// Least contrasts of WCAG 2.1, 1.4.11 and 1.4.3. Colours are chosen for a light background: there a drawing
// keeps them as long as it can be told apart.
constexpr double kContrasteDibujo = 3.0;
constexpr double kContrasteTexto = 4.5;

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

QColor Legible(const QColor& color, const QColor& fondo, Uso uso)
{
    const bool bOscuro = Luminancia(fondo) < 0.18;
    const QColor meta = bOscuro ? Qt::white : Qt::black;
    const double dContraste = bOscuro || uso == Uso::texto ? kContrasteTexto : kContrasteDibujo;
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
    return color == ui::kNegro ? texto : Legible(DeColor(color), fondo, Uso::dibujo);
}

// White on the usual blue of a selection, and the grey of an example, are too faint for many.
void AclararTextos(QPalette& paleta)
{
    const QColor fondo = paleta.color(QPalette::Base);
    paleta.setColor(QPalette::Highlight,
                    Legible(paleta.color(QPalette::Highlight), paleta.color(QPalette::HighlightedText)));
    QColor ejemplo = paleta.color(QPalette::PlaceholderText);
    const float t = ejemplo.alphaF();
    ejemplo = QColor::fromRgbF(fondo.redF() + t * (ejemplo.redF() - fondo.redF()),
                               fondo.greenF() + t * (ejemplo.greenF() - fondo.greenF()),
                               fondo.blueF() + t * (ejemplo.blueF() - fondo.blueF()));
    paleta.setColor(QPalette::PlaceholderText, Legible(ejemplo, fondo));
}

}  // namespace efv::qt
