// By what, beside its colour, each series of a chart is told apart: in grey print and for eyes that don't tell
// the colours.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "ui/lienzo.h"

namespace efv::ui {

/// Shapes at the points of a line.
enum class Marca { ninguna, circulo, cuadrado, triangulo, rombo, aspa };
/// Strokes over bars.
enum class Trama { lisa, subida, bajada, cruzada, horizontal };

struct AspectoSerie {
    bool bVisible = false;
    bool bEnLeyenda = false;
    std::size_t iBarra = 0;    ///< which of the bars at a point, from 0
    std::size_t iMarcada = 0;  ///< which of the lines with markers, from 0
    Trama trama = Trama::lisa;
    Marca marca = Marca::ninguna;
};

/// One for each series of the chart.
std::vector<AspectoSerie> AspectosDe(const CCtrlCurva2D& grafica);

bool EsFinito(const SerieCurva& serie, std::size_t i);
std::size_t Puntos(const SerieCurva& serie);
bool EsVisible(const SerieCurva& serie);
bool EsDeBarras(const SerieCurva& serie);
bool EsDePuntos(const SerieCurva& serie);
/// Where the last step ends: its value holds as long as the one before it did. Nothing for other series.
std::optional<double> FinDeEscalones(const SerieCurva& serie);

void DibujarMarca(Lienzo& lienzo, Punto centro, double dRadio, Marca marca, Color color);
/// A bar with its hatch, whose strokes lie `dSeparacion` apart.
void DibujarBarra(Lienzo& lienzo, const Recuadro& recuadro, Color color, Trama trama, double dSeparacion);

}  // namespace efv::ui
