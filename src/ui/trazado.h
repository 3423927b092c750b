// How a chart is drawn, whatever it is drawn on: room of each part, the series in pixels.
#pragma once

#include <optional>
#include <vector>

#include "ui/aspecto_series.h"
#include "ui/ejes.h"
#include "ui/lienzo.h"

namespace efv::ui {

/// A chart laid out: where its frame stands and how values turn into pixels.
class EFV_API Trazado {
public:
    /// Lays the chart out on `dAncho` by `dAlto` pixels with letters of `dCuerpo` pixels. The axes hold all
    /// finite points and 0 (where the axis has one), the last step's end and the whole of each bar. The
    /// horizontal one ends with them, the vertical one at the next mark; once a series of width 0 fixes the
    /// scale, it ends with them too.
    Trazado(const CCtrlCurva2D& grafica, double dAncho, double dAlto, double dCuerpo, const Lienzo& medidor);

    void Dibujar(Lienzo& lienzo) const;

    struct Cercano {
        std::size_t iSerie;
        double dX, dY;  ///< values
        Punto enPantalla;
    };
    /// The value of a visible series drawn nearest to `punto`, not farther than `dRadio` pixels: a point of a
    /// line, the stretch of a step, a bar.
    std::optional<Cercano> PuntoCercano(Punto punto, double dRadio) const;

    /// Point `i` of a series; nothing when it isn't drawn.
    std::optional<Cercano> PuntoDe(std::size_t iSerie, std::size_t i) const;

    /// What a value reads as: the series' name, if it has one, and what stands along both axes, in lines.
    CString Lectura(const Cercano& cercano) const;

    const Recuadro& Marco() const { return m_marco; }
    const Eje& EjeX() const { return m_ejeX; }
    const Eje& EjeY() const { return m_ejeY; }
    Punto APantalla(double dX, double dY) const;

private:
    struct Linea {
        CString csTexto;
        double dBase;
    };
    struct Entrada {
        std::size_t iSerie;
        CString csTexto;
        Punto inicio;  // left end of its baseline
    };

    void CalcularEjes();
    double ColocarTitulo(const Lienzo& medidor);
    double ColocarLeyenda(double dArriba, const Lienzo& medidor);
    void ColocarMarco(double dArriba, const Lienzo& medidor);
    void ProporcionarMarco();
    void DibujarEjeX(Lienzo& lienzo) const;
    void DibujarEjeY(Lienzo& lienzo) const;
    void DibujarCeros(Lienzo& lienzo) const;
    void DibujarTextos(Lienzo& lienzo) const;
    void DibujarLeyenda(Lienzo& lienzo) const;
    void DibujarLinea(Lienzo& lienzo, const SerieCurva& serie) const;
    void DibujarPuntos(Lienzo& lienzo, const SerieCurva& serie) const;
    void DibujarMarcas(Lienzo& lienzo, const SerieCurva& serie, const AspectoSerie& aspecto) const;
    void DibujarBarras(Lienzo& lienzo, const SerieCurva& serie, const AspectoSerie& aspecto) const;
    Recuadro BarraDe(const SerieCurva& serie, const AspectoSerie& aspecto, std::size_t i) const;
    double Distancia(std::size_t iSerie, std::size_t i, Punto punto) const;

    const CCtrlCurva2D& m_grafica;
    double m_dAncho, m_dAlto;
    double m_dCuerpo;
    std::vector<AspectoSerie> m_aspectos;
    std::size_t m_nBarras = 0;    ///< series of bars
    double m_dHuecoBarras = 0.0;  ///< distance between neighbouring bars, in values
    Eje m_ejeX, m_ejeY;
    Recuadro m_marco{};
    std::vector<Linea> m_titulo;
    std::vector<Entrada> m_leyenda;
    CString m_csTituloX, m_csTituloY;
};

}  // namespace efv::ui
