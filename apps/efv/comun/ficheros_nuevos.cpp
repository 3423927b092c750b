#include "comun/ficheros_nuevos.h"

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongitudMaxima = 100;

bool EsSegura(wchar_t c)
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'-' ||
           c == L'_' || c == L'.';
}

}  // namespace

std::string NombreDeFichero(std::wstring_view texto)
{
    std::string nombre;
    for (const wchar_t c : texto.substr(0, kLongitudMaxima))
        nombre += EsSegura(c) ? static_cast<char>(c) : '_';
    // A leading point hides the file, a leading dash looks like an option.
    if (nombre.empty() || nombre.front() == '.' || nombre.front() == '-')
        nombre.insert(0, 1, '_');
    return nombre;
}

std::vector<fs::path> EscribirFicheros(const fs::path& carpeta, const std::vector<FicheroNuevo>& ficheros)
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    try {
        CrearCarpetas(sistema, carpeta.string());
    } catch (const CFileException&) {
        throw ErrorEjecucion(fmt::format("«{}» no es una carpeta y no se puede crear", carpeta.string()));
    }
    std::vector<fs::path> rutas;
    std::vector<FicheroRetenido> retenidos;
    const auto conCada = [&](auto accion) {
        for (std::size_t i = 0; i < ficheros.size(); ++i) {
            const std::string ruta = (carpeta / ficheros[i].nombre).string();
            try {
                accion(i, ruta);
            } catch (const CFileException& error) {
                throw ErrorEjecucion(
                    fmt::format("no se puede escribir «{}»: {}", ruta, MotivoSinRuta(error, ruta)));
            }
        }
    };
    conCada([&](std::size_t i, const std::string& ruta) {
        retenidos.emplace_back(sistema, ruta).Preparar(ficheros[i].contenido);
    });
    conCada([&](std::size_t i, const std::string& ruta) {
        retenidos[i].Confirmar();
        rutas.emplace_back(ruta);
    });
    return rutas;
}

}  // namespace efv::orden
