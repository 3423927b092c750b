// A schematic out of the program: picture, document, clipboard.
#pragma once

#include <QImage>

#include "esquema/pintura.h"

namespace efv::estudio {

QImage ImagenDe(const Lamina& lamina, Tema tema = Tema::claro);

/// Writes it as a ".png" picture. The file is replaced as a whole or not at all.
/// @throws std::runtime_error with a Spanish text.
void GuardarImagen(const Lamina& lamina, const CString& csRuta);

/// As a picture and as SVG.
void CopiarLamina(const Lamina& lamina);

}  // namespace efv::estudio
