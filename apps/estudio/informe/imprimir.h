// Reports on paper: the sheets of the PDF, painted.
#pragma once

#include <QtGlobal>

#include <quorvel/report/hojas.h>

#include "informe/informe.h"

QT_BEGIN_NAMESPACE
class QPagedPaintDevice;
QT_END_NAMESPACE

namespace efv::estudio {

/// The report of a design on sheets. @throws std::runtime_error with a Spanish text
report::Impreso HojasDe(const CProyectoEstudio& proyecto, Diseno diseno);

/// Paints the sheets `nDesde` to `nHasta`, from 0, each on a page of its size.
/// @throws std::runtime_error with a Spanish text
void PintarHojas(const report::Impreso& impreso, QPagedPaintDevice& papel, std::size_t nDesde,
                 std::size_t nHasta);

/// Asks for the printer and prints the sheets. @param titulo of the window @throws std::runtime_error with a
/// Spanish text
void Imprimir(const report::Impreso& impreso, const char* titulo);

/// Shows the sheets as they will be printed. @throws std::runtime_error with a Spanish text
void VerImpreso(const report::Impreso& impreso, const char* titulo);

/// Asks for the printer and prints the report of a design. @throws std::runtime_error with a Spanish text
void ImprimirInforme(const CProyectoEstudio& proyecto, Diseno diseno);
/// Shows it as it will be printed.
void VerInforme(const CProyectoEstudio& proyecto, Diseno diseno);

}  // namespace efv::estudio
