#include "diseno/informe.h"

#include <stdexcept>

#include <quorvel/report/informe.h>

#include "comun/consola.h"
#include "pdf/pdf.h"

namespace efv::orden {

std::string Informe(const report::Documento& documento, const std::string& ruta)
{
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
