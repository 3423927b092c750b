// Reports on paper: the sheets of the PDF, painted.
#pragma once

#include <functional>
#include <vector>

#include <QtGlobal>

#include <quorvel/report/hojas.h>

#include "informe/informe.h"

QT_BEGIN_NAMESPACE
class QPagedPaintDevice;
QT_END_NAMESPACE

namespace efv::estudio {

/// A report on the sheets that the person has set up. @throws std::runtime_error with a Spanish text
report::Impreso HojasDe(const report::Documento& documento);

/// Paints sheets, numbered from 0, a page each of the paper that the device has; on one of another size they
/// are fitted. @throws std::runtime_error with a Spanish text
void PintarHojas(const report::Impreso& impreso, QPagedPaintDevice& papel,
                 const std::vector<std::size_t>& paginas);

/// Asks for the printer and prints the sheets. @param titulo of the window @throws std::runtime_error with a
/// Spanish text
void Imprimir(const report::Impreso& impreso, const char* titulo);

/// A preview.
struct VistaImpresa {
    const char* titulo;  ///< of the window
    std::function<report::Impreso()> componer;
    std::function<void()> configurar;  ///< asks for the page set-up; empty: there is none
};

/// Shows the sheets as they will be printed. @throws std::runtime_error with a Spanish text
void VerImpreso(const VistaImpresa& vista);

/// Asks for the printer and prints a report. @throws std::runtime_error with a Spanish text
void ImprimirInforme(const report::Documento& documento);
/// Shows it as it will be printed.
void VerInforme(const report::Documento& documento);

}  // namespace efv::estudio
