// Strokes on paper: with Qt's painter, or as an SVG document.
#pragma once

#include <string>

#include <QPainter>

#include "esquema/lamina.h"

namespace efv::estudio {

enum class Tema { claro, oscuro };

QColor ColorDe(Tinta tinta, Tema tema);

/// In the painter's coordinates, without the ground.
void Pintar(QPainter& pintor, const Lamina& lamina, Tema tema);

/// A self-contained document, UTF-8.
std::string EscribirSvg(const Lamina& lamina);

}  // namespace efv::estudio
