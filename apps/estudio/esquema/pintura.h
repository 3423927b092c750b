// Strokes on paper: with Qt's painter, or as an SVG document.
#pragma once

#include <string>

#include <QPainter>

#include "esquema/dibujo.h"

namespace efv::estudio {

enum class Tema { claro, oscuro };

QColor ColorDe(Tinta tinta, Tema tema);

/// In the painter's coordinates, without the ground.
void Pintar(QPainter& pintor, const Dibujo& dibujo, Tema tema);

/// A self-contained document, UTF-8.
std::string EscribirSvg(const Dibujo& dibujo);

}  // namespace efv::estudio
