// The dialogs of a schematic's elements, on the open project.
#pragma once

#include "esquema/esquema.h"
#include "informe/informe.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

/// What a schematic shows and can be edited: an element of one of the designs.
struct ElementoDeDiseno {
    Diseno diseno;
    Elemento::Clase clase;
};

/// Opens the element's dialog. What the person accepts changes the project, in the design what the design says:
/// models, counts, tilt, voltages. The loads open the consumption.
void EditarElemento(Sesion& sesion, const ElementoDeDiseno& elemento);

/// Class of the element's dialog, by which its labels are known; empty for one without labels.
std::wstring_view ClaseDeDialogo(const CProyectoEstudio& proyecto, const ElementoDeDiseno& elemento);

/// What the element has besides its design; null for one that has nothing.
const DatosElemento* DatosDe(const Elementos& elementos, const ElementoDeDiseno& elemento);
DatosElemento* DatosDe(Elementos& elementos, const ElementoDeDiseno& elemento);

/// Lets the person choose what is written beside the element.
void RotularElemento(Sesion& sesion, const ElementoDeDiseno& elemento);

}  // namespace efv::estudio
