#include "comun/tabla_k.h"

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/solar.h>
#include <quorvel/ui.h>

#include "comun/consola.h"
#include "comun/datos.h"

namespace efv::orden {

namespace {

// Shows nothing: what the library says goes into the command's own error.
class PresentadorPrestado {
public:
    PresentadorPrestado() : m_antes(ui::PresentadorActual()) { ui::InstalarPresentador(&m_presentador); }
    ~PresentadorPrestado() { ui::InstalarPresentador(&m_antes); }
    PresentadorPrestado(const PresentadorPrestado&) = delete;
    PresentadorPrestado& operator=(const PresentadorPrestado&) = delete;

    std::string PrimerTexto() const
    {
        return m_presentador.mostrados.empty() ? std::string()
                                               : CadenaUtf8(m_presentador.mostrados.front().mensaje.csTexto);
    }

private:
    ui::Presentador& m_antes;
    ui::PresentadorGuionizado m_presentador;
};

// The first two lines of a text, in one.
std::string EnBreve(const std::string& texto)
{
    const std::size_t primera = texto.find('\n');
    if (primera == std::string::npos)
        return texto;
    const std::size_t segunda = texto.find('\n', primera + 1);
    return texto.substr(0, primera) + " " + texto.substr(primera + 1, segunda - primera - 1);
}

}  // namespace

void CargarTablaK(const std::string& csDatos)
{
    const CString csArchivo = RutaDatos(csDatos, "ZqFactorKHE5.xml");
    const PresentadorPrestado presentador;
    if (phCargarBaseFactorK(csArchivo) != 0)
        return;
    if (const std::string incoherencia = presentador.PrimerTexto(); !incoherencia.empty())
        throw ErrorEjecucion(fmt::format("tabla de factores K incompleta, «{}»: {}", CadenaUtf8(csArchivo),
                                         EnBreve(incoherencia)));
    throw ErrorEjecucion(fmt::format("no se puede leer la tabla de factores K «{}»: {}", CadenaUtf8(csArchivo),
                                     MotivoDocumentoIlegible(csArchivo)));
}

}  // namespace efv::orden
