// A schematic as strokes on a plane: whoever paints them knows nothing of photovoltaics.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <quorvel/report/esquema.h>

namespace efv::report {

/// Meaning of a colour; each theme has its own for it.
enum class Tinta { fondo, texto, tenue, linea, alterna, tarjeta, panel, acumulador, aparato, aviso, ninguna };

/// What a stroke belongs to; drawings have a layer for each.
enum class Capa { equipos, cablesCC, cablesCA, protecciones, textos, marco, cajetin };

struct Punto {
    double x, y;
    bool operator==(const Punto&) const = default;
};

namespace trazo {
struct Linea {
    std::vector<Punto> puntos;
    Tinta tinta;
    double dAncho = 1.5;
    std::optional<ui::Color> color = {};  ///< of the host's palette, in the ink's place
    Capa capa = Capa::equipos;
    bool operator==(const Linea&) const = default;
};
struct Caja {
    Punto esquina;
    double dAncho, dAlto;
    Tinta borde, relleno = Tinta::ninguna;
    double dRadio = 0.0;                  ///< of its corners
    std::optional<ui::Color> color = {};  ///< of the host's palette, in the border's place
    Capa capa = Capa::equipos;
    bool operator==(const Caja&) const = default;
};
struct Circulo {
    Punto centro;
    double dRadio;
    Tinta borde, relleno = Tinta::ninguna;
    Capa capa = Capa::equipos;
    bool operator==(const Circulo&) const = default;
};
struct Texto {
    enum class Lado { izquierda, centro };
    Punto base;  ///< on the line that the letters stand on
    CString cs;
    double dTamano;
    Tinta tinta;
    Lado lado = Lado::izquierda;
    bool bNegrita = false;
    Capa capa = Capa::textos;
    bool operator==(const Texto&) const = default;
};
}  // namespace trazo

using Trazo = std::variant<trazo::Linea, trazo::Caja, trazo::Circulo, trazo::Texto>;

/// Where an element stands, and how it is called.
struct Zona {
    Elemento::Clase clase;
    CString csTitulo;
    double x, y, dAncho, dAlto;
    CString csIndicacion = {};  ///< what is to be said of it, such as the checks that it fails; several lines

    bool Contiene(Punto p) const { return p.x >= x && p.x < x + dAncho && p.y >= y && p.y < y + dAlto; }
    bool operator==(const Zona&) const = default;
};

struct EFV_API Lamina {
    double dAncho = 0.0, dAlto = 0.0;
    double dContorno = 1.3;  ///< width of the lines of boxes and circles
    std::vector<Trazo> trazos;
    std::vector<Zona> zonas;  ///< in the order of the schematic's elements

    /// The element at a point; null beside all of them.
    const Zona* En(Punto p) const;
    bool operator==(const Lamina&) const = default;
};

/// Pieces of a row of `n` that are drawn, by number from 1; 0 stands for those left out.
EFV_API std::vector<int> PiezasDibujadas(int n, int nMaximo);

/// Lays the elements out. Its size and the number of strokes are bounded whatever the counts of the design.
EFV_API Lamina Dibujar(const Esquema& esquema);

/// What an ink is on white paper; nothing for none.
EFV_API std::optional<ui::Color> ColorEnPapel(Tinta tinta);

/// A self-contained SVG document on white paper, UTF-8.
EFV_API std::string EscribirSvg(const Lamina& lamina);

}  // namespace efv::report
