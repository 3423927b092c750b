#include "platform/fichero/fichero.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "platform/fichero/lectura.h"
#include "platform/fichero/motivos.h"

namespace efv {

namespace fichero {

namespace {

// One byte more tells a file that is too large, also one that grows while it is read.
constexpr std::size_t kTrozo = std::size_t{64} * 1024;

// For what a reader puts behind the bytes.
constexpr std::size_t kSitioDetras = 64;

}  // namespace

int LeerTodo(SistemaFicheros& sistema, int iFichero, std::size_t maximo, std::string& bytes)
{
    DatosFichero datos;
    if (const int iError = sistema.Estado(iFichero, datos); iError < 0)
        return iError;
    if (datos.uTamano > maximo)
        return -EFBIG;
    bytes.reserve(datos.uTamano + 1 + kSitioDetras);
    bytes.resize(datos.uTamano + 1);
    std::size_t nLeidos = 0;
    for (;;) {
        const std::int64_t n = sistema.Leer(iFichero, std::span(bytes).subspan(nLeidos));
        if (n < 0)
            return static_cast<int>(n);
        nLeidos += static_cast<std::size_t>(n);
        if (nLeidos > maximo)
            return -EFBIG;
        if (n == 0)
            break;
        if (nLeidos == bytes.size())
            bytes.resize(std::min(maximo + 1, bytes.size() + kTrozo));
    }
    bytes.resize(nLeidos);
    return 0;
}

std::optional<std::string> LeerFichero(const CString& csRuta, std::size_t maximo)
{
    return efv::LeerFichero(*ElMundo().ficheros, CadenaUtf8(csRuta), maximo).bytes;
}

void ReemplazarFichero(const CString& csRuta, std::string_view bytes)
{
    efv::ReemplazarFichero(*ElMundo().ficheros, CadenaUtf8(csRuta), bytes);
}

}  // namespace fichero

LecturaFichero LeerFichero(SistemaFicheros& sistema, const std::string& ruta, std::size_t maximo)
{
    if (ruta.empty() || ruta.find('\0') != std::string::npos)
        return {std::nullopt, "el nombre no es válido"};
    const int iFichero = sistema.Abrir(ruta, Apertura::lectura);
    if (iFichero < 0) {
        if (fichero::Causa(-iFichero) == CFileException::violacionComparticion)
            throw CFileException(CFileException::violacionComparticion,
                                 "Otro proceso ocupa el fichero " + ruta);
        return {std::nullopt, fichero::Motivo(-iFichero)};
    }
    struct Cierre {
        SistemaFicheros& sistema;
        int iFichero;
        ~Cierre() { sistema.Cerrar(iFichero); }
    } const cierre{sistema, iFichero};

    DatosFichero datos;
    int iError = sistema.Estado(iFichero, datos);
    if (iError >= 0 && datos.clase == DatosFichero::Clase::carpeta)
        iError = -EISDIR;
    if (iError >= 0 && datos.clase != DatosFichero::Clase::normal)
        return {std::nullopt, "no es un fichero normal"};
    std::string bytes;
    if (iError >= 0)
        iError = fichero::LeerTodo(sistema, iFichero, maximo, bytes);
    if (iError == -EFBIG)
        return {std::nullopt, fichero::MotivoTamano(maximo)};
    if (iError == -EISDIR)
        return {std::nullopt, fichero::Motivo(EISDIR)};
    if (iError < 0)
        throw CFileException(fichero::Causa(-iError), ruta + ": " + fichero::Motivo(-iError));
    return {std::move(bytes), {}};
}

}  // namespace efv
