#include "platform/fichero/motivos.h"

#include <array>
#include <cerrno>

#include <fmt/format.h>

namespace efv::fichero {

namespace {

struct Fila {
    int iError;
    CFileException::Causa causa;
    const char* motivo;
};

using enum CFileException::Causa;

constexpr auto kMotivos = std::to_array<Fila>({
    {ENOENT, noEncontrado, "no existe"},
    {EACCES, accesoDenegado, "no hay permiso"},
    {EPERM, accesoDenegado, "no hay permiso"},
    {EROFS, accesoDenegado, "el disco es de solo lectura"},
    {ENOSPC, discoLleno, "el disco está lleno"},
    {EDQUOT, discoLleno, "se ha agotado la cuota de disco"},
    {EFBIG, discoLleno, "pasa del tamaño que el sistema deja a un fichero"},
    {EBUSY, violacionComparticion, "lo ocupa otro proceso"},
    {ETXTBSY, violacionComparticion, "lo ocupa otro proceso"},
    {EWOULDBLOCK, violacionComparticion, "lo ocupa otro proceso"},
    {ENOTDIR, noEncontrado, "una parte de la ruta no es una carpeta"},
    {EISDIR, accesoDenegado, "es una carpeta"},
    {EEXIST, generica, "ya existe"},
    {ENAMETOOLONG, noEncontrado, "el nombre es demasiado largo"},
    {ELOOP, generica, "los enlaces no llevan a ninguna parte"},
    {EIO, generica, "el disco falla"},
    {ENOMEM, generica, "memoria insuficiente"},
    {EMFILE, generica, "hay demasiados ficheros abiertos"},
    {ENFILE, generica, "hay demasiados ficheros abiertos"},
});

const Fila* Buscar(int iError)
{
    for (const Fila& fila : kMotivos)
        if (fila.iError == iError)
            return &fila;
    return nullptr;
}

}  // namespace

std::string Motivo(int iError)
{
    const Fila* fila = Buscar(iError);
    return fila != nullptr ? fila->motivo : fmt::format("el sistema da el error {}", iError);
}

CFileException::Causa Causa(int iError)
{
    const Fila* fila = Buscar(iError);
    return fila != nullptr ? fila->causa : generica;
}

std::string MotivoTamano(std::size_t maximo)
{
    return fmt::format("pasa de {} MiB", maximo >> 20);
}

}  // namespace efv::fichero
