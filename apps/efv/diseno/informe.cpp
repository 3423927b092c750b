#include "diseno/informe.h"

#include <filesystem>
#include <stdexcept>

#include <fmt/format.h>

#include <quorvel/report/informe.h>

#include "comun/consola.h"
#include "pdf/pdf.h"

namespace efv::orden {

namespace {

// A name that asks for another format would hide a page. Devices and pipes have none.
void ExigirFormato(const std::string& ruta)
{
    const std::string final = std::filesystem::path(ruta).extension().string();
    const auto es = [&](const char* otro) {
        return PlegarTexto(CadenaDesdeUtf8(final)) == CadenaDesdeUtf8(otro);
    };
    if (!final.empty() && !es(".pdf") && !es(".html") && !es(".htm"))
        throw ErrorUso(fmt::format("--informe «{}»: se escribe un PDF o una página; use .pdf o .html", ruta));
}

}  // namespace

std::string Informe(const report::Documento& documento, const std::string& ruta)
{
    ExigirFormato(ruta);
    const std::string fecha = report::FechaDeHoy();
    if (!pdf::EsPdf(ruta))
        return report::DocumentoHtml(documento, fecha);
    try {
        return pdf::InformePdf(documento, fecha);
    } catch (const std::runtime_error& error) {
        throw ErrorEjecucion(error.what());
    }
}

}  // namespace efv::orden
