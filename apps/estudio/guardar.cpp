#include "guardar.h"

#include <cctype>
#include <stdexcept>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

namespace efv::estudio {

void GuardarFichero(const CString& csRuta, std::string_view bytes)
{
    const std::string ruta = CadenaUtf8(csRuta);
    try {
        ReemplazarFichero(*ElMundo().ficheros, ruta, bytes);
    } catch (const CFileException& error) {
        FallarConFichero("No se puede guardar", csRuta, MotivoSinRuta(error, ruta));
    }
}

void FallarConFichero(const char* que, const CString& csRuta, std::string motivo)
{
    motivo.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(motivo.front())));
    if (!motivo.ends_with('.'))
        motivo += '.';
    throw std::runtime_error(std::string(que) + " «" + CadenaUtf8(csRuta) + "».\n" + motivo);
}

}  // namespace efv::estudio
