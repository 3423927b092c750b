// How a chart is drawn, whatever it is drawn on: axes, room of each part, the series in pixels. What
// paints or writes it is a Lienzo.
//
// Uses the public headers only, so that another library can compile it too.
#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <quorvel/framework/CString.h>
#include <quorvel/ui/grafica.h>

namespace efv::ui {

/// One axis with the places of its marks: multiples of 1, 2 or 5 times a power of ten.
struct Eje {
    double dMin = 0.0, dMax = 1.0;
    double dPaso = 0.1;
    std::vector<double> adMarcas;
};

/// The axis from `dMin` to `dMax` with about `iDivisiones` divisions, 1 to 50. With `bAmpliar` it reaches to
/// the marks around its ends; without, it ends where told and the marks lie inside. Ends in the wrong order
/// are exchanged, what isn't a number counts as 0, and equal ends are put apart by at least 1.
Eje CalcularEje(double dMin, double dMax, int iDivisiones, bool bAmpliar);

/// A mark's label, with a decimal comma and as many decimals as the step needs.
CString RotuloMarca(const Eje& eje, double d);

/// Lengths of the dashes of a line style and of the gaps behind each, in line widths; empty for a solid line.
std::span<const double> Guiones(int iEstilo);

/// A value in six significant digits.
CString RotuloValor(double d);

struct Punto {
    double dX, dY;
};

struct Recuadro {
    double dX, dY, dAncho, dAlto;
};

enum class Tinta { texto, eje, cuadricula };
enum class Ancla { inicio, centro, fin };

/// What a chart is drawn on. Lengths in pixels, y downwards.
class Lienzo {
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
    virtual void Barra(const Recuadro& recuadro, Color color) = 0;
};

/// A chart laid out: where its frame stands and how values turn into pixels.
class Trazado {
public:
    /// Lays the chart out on `dAncho` by `dAlto` pixels with letters of `dCuerpo` pixels. The axes hold all
    /// finite points and 0, the last step's end and the whole of each bar. The horizontal one ends with them,
    /// the vertical one at the next mark; once a series of width 0 fixes the scale, it ends with them too.
    Trazado(const CCtrlCurva2D& grafica, double dAncho, double dAlto, double dCuerpo, const Lienzo& medidor);

    void Dibujar(Lienzo& lienzo) const;

    struct Cercano {
        std::size_t iSerie;
        double dX, dY;  ///< values
        Punto enPantalla;
    };
    /// The point of a visible series nearest to `punto`, not farther than `dRadio` pixels.
    std::optional<Cercano> PuntoCercano(Punto punto, double dRadio) const;

    const Recuadro& Marco() const { return m_marco; }
    const Eje& EjeX() const { return m_ejeX; }
    const Eje& EjeY() const { return m_ejeY; }
    Punto APantalla(double dX, double dY) const;

private:
    struct Linea {
        CString csTexto;
        double dBase;
    };

    void DibujarEjes(Lienzo& lienzo) const;
    void DibujarLinea(Lienzo& lienzo, const SerieCurva& serie) const;
    void DibujarBarras(Lienzo& lienzo, const SerieCurva& serie, std::size_t iBarras) const;

    const CCtrlCurva2D& m_grafica;
    double m_dAncho, m_dAlto;
    double m_dCuerpo;
    Eje m_ejeX, m_ejeY;
    Recuadro m_marco{};
    std::vector<Linea> m_titulo;
    CString m_csTituloX, m_csTituloY;
    double m_dHuecoBarras = 0.0;  ///< distance between neighbouring bars, in values
    std::size_t m_nBarras = 0;    ///< series of bars
};

}  // namespace efv::ui
