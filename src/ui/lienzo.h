// What a chart is drawn on: a few strokes that a screen paints and a document writes.
#pragma once

#include <span>
#include <string_view>

#include <quorvel/exportar.h>
#include <quorvel/ui/grafica.h>

namespace efv::ui {

struct Punto {
    double dX, dY;
};

struct Recuadro {
    double dX, dY, dAncho, dAlto;
};

enum class Tinta { texto, eje, cuadricula };
enum class Ancla { inicio, centro, fin };

/// Lengths of the dashes of a line style and of the gaps behind each, in line widths; empty for a solid line.
EFV_API std::span<const double> Guiones(int iEstilo);

/// Lengths in pixels, y downwards.
class EFV_API Lienzo {
public:
    Lienzo() = default;
    virtual ~Lienzo();
    Lienzo(const Lienzo&) = delete;
    Lienzo& operator=(const Lienzo&) = delete;

    virtual double AnchoTexto(std::wstring_view texto, double dCuerpo) const = 0;
    virtual void Linea(Punto desde, Punto hasta, Tinta tinta) = 0;
    /// `base` is the point of the baseline that `ancla` names; a vertical text reads upwards.
    virtual void Texto(Punto base, std::wstring_view texto, double dCuerpo, Ancla ancla, bool bVertical) = 0;
    /// What comes between stays inside the frame.
    virtual void EmpezarSeries(const Recuadro& recuadro) = 0;
    virtual void AcabarSeries() = 0;
    /// The line through the points; a single one is a dot. Takes colour, width and line style from `serie`.
    virtual void Polilinea(std::span<const Punto> puntos, const SerieCurva& serie) = 0;
    /// A filled shape with a thin edge of the background's colour.
    virtual void Poligono(std::span<const Punto> puntos, Color color) = 0;
    virtual void Barra(const Recuadro& recuadro, Color color) = 0;
    /// Strokes of the background's colour over a bar; two points each.
    virtual void Rayado(std::span<const Punto> extremos) = 0;
};

}  // namespace efv::ui
