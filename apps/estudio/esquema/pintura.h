// Strokes on paper, with Qt's painter.
#pragma once

#include <QPainter>

#include "esquema/lamina.h"

namespace efv::estudio {

enum class Tema { claro, oscuro };

QColor ColorDe(Tinta tinta, Tema tema);

/// In the painter's coordinates, without the ground.
void Pintar(QPainter& pintor, const Lamina& lamina, Tema tema);

}  // namespace efv::estudio
