// The report of a design or study as a file.
#pragma once

#include <string>

#include <quorvel/report/documento.h>

namespace efv::orden {

/// The bytes of a PDF for a path that ends so, whatever its case; else those of an HTML page.
/// @throws ErrorEjecucion
std::string Informe(const report::Documento& documento, const std::string& ruta);

}  // namespace efv::orden
