#include "comun/salidas.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "comun/consola.h"
#include "comun/entrada.h"
#include "comun/salida_limpia.h"

namespace efv::orden {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongitudMaxima = 100;

constexpr std::string_view kSalida = "-";

// Whether both lead to one file, by whatever name. Two openings of a device are no danger to each other.
bool SonElMismo(const std::string& una, const std::string& otra)
{
    if (una == otra)
        return true;
    std::error_code error;
    if (EsFlujo(una))
        return false;
    if (fs::equivalent(una, otra, error))
        return true;
    const fs::path completa = fs::weakly_canonical(fs::absolute(una), error);
    return !error && completa == fs::weakly_canonical(fs::absolute(otra), error) && !error;
}

void EscribirFlujo(const std::string& ruta, std::string_view contenido)
{
    std::ofstream flujo(ruta, std::ios::binary);
    flujo.write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
    if (!flujo.flush())
        throw ErrorEjecucion(fmt::format("no se puede escribir «{}»", ruta));
}

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

void Salidas::Anadir(std::string_view opcion, const std::string& ruta)
{
    if (ruta != kSalida && !fs::path(ruta).has_filename())
        throw ErrorUso(fmt::format("{}: falta el nombre del fichero", opcion));
    const auto esElMismo = [&](const std::string& otra) { return SonElMismo(ruta, otra); };
    if (ruta != kSalida && std::ranges::any_of(m_entradas, esElMismo))
        throw ErrorUso(fmt::format("{}: «{}» es un fichero que se lee", opcion, ruta));
    if (std::ranges::any_of(m_rutas, esElMismo))
        throw ErrorUso(fmt::format("{}: «{}» es ya otra salida", opcion, ruta));
    m_rutas.push_back(ruta);
}

bool Salidas::EnLaSalida() const
{
    return std::ranges::find(m_rutas, kSalida) != m_rutas.end();
}

std::vector<std::string> Salidas::Escribir(const std::vector<std::string>& contenidos,
                                           std::ostream& salida) const
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    std::vector<std::optional<FicheroRetenido>> retenidos(m_rutas.size());
    const auto conCada = [&](auto accion) {
        for (std::size_t i = 0; i < m_rutas.size(); ++i) {
            try {
                accion(i);
            } catch (const CFileException& error) {
                // To make a new file, only its folder can be missing.
                const std::string motivo = error.m_cause == CFileException::noEncontrado
                                               ? "no existe la carpeta"
                                               : MotivoSinRuta(error, m_rutas[i]);
                throw ErrorEjecucion(fmt::format("no se puede escribir «{}»: {}", m_rutas[i], motivo));
            }
        }
    };
    conCada([&](std::size_t i) {
        if (m_rutas[i] != kSalida && !EsFlujo(m_rutas[i]))
            retenidos[i].emplace(sistema, m_rutas[i]).Preparar(contenidos[i]);
    });
    conCada([&](std::size_t i) {
        if (retenidos[i])
            retenidos[i]->Confirmar();
        else if (m_rutas[i] == kSalida)
            EscribirSinFiltro(salida, contenidos[i]);
        else
            EscribirFlujo(m_rutas[i], contenidos[i]);
    });
    return m_rutas;
}

}  // namespace efv::orden
