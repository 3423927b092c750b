// A schematic as strokes on a plane: whoever paints them knows nothing of photovoltaics.
#pragma once

#include <variant>
#include <vector>

#include "esquema/esquema.h"

namespace efv::estudio {

/// Meaning of a colour; each theme has its own for it.
enum class Tinta { fondo, texto, tenue, linea, alterna, tarjeta, panel, acumulador, aparato, aviso, ninguna };

struct Punto {
    double x, y;
    bool operator==(const Punto&) const = default;
};

namespace trazo {
struct Linea {
    std::vector<Punto> puntos;
    Tinta tinta;
    double dAncho = 1.5;
    bool operator==(const Linea&) const = default;
};
struct Caja {
    Punto esquina;
    double dAncho, dAlto;
    Tinta borde, relleno = Tinta::ninguna;
    double dRadio = 0.0;  ///< of its corners
    bool operator==(const Caja&) const = default;
};
struct Circulo {
    Punto centro;
    double dRadio;
    Tinta borde, relleno = Tinta::ninguna;
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
    bool operator==(const Texto&) const = default;
};
}  // namespace trazo

using Trazo = std::variant<trazo::Linea, trazo::Caja, trazo::Circulo, trazo::Texto>;

struct Lamina {
    double dAncho = 0.0, dAlto = 0.0;
    std::vector<Trazo> trazos;
    bool operator==(const Lamina&) const = default;
};

/// Pieces of a row of `n` that are drawn, by number from 1; 0 stands for those left out.
std::vector<int> PiezasDibujadas(int n, int nMaximo);

/// Lays the elements out. Its size and the number of strokes are bounded whatever the counts of the design.
Lamina Dibujar(const Esquema& esquema);

}  // namespace efv::estudio
