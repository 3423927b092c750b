#include "comun/ficheros_nuevos.h"

#include <fstream>
#include <utility>

#include <fmt/format.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongitudMaxima = 100;
constexpr const char* kParcial = ".parcial";

bool EsSegura(wchar_t c)
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'-' ||
           c == L'_' || c == L'.';
}

// Files under provisional names; those that didn't get their own are removed.
class Provisionales {
public:
    Provisionales() = default;
    Provisionales(const Provisionales&) = delete;
    Provisionales& operator=(const Provisionales&) = delete;
    ~Provisionales()
    {
        std::error_code fallo;
        for (const fs::path& destino : m_destinos)
            fs::remove(Provisional(destino), fallo);
    }

    void Escribir(const fs::path& destino, const std::string& contenido)
    {
        m_destinos.push_back(destino);
        std::ofstream fichero(Provisional(destino), std::ios::binary);
        fichero << contenido;
        fichero.close();
        if (!fichero)
            throw ErrorEjecucion(fmt::format("no se puede escribir «{}»", destino.string()));
    }

    std::vector<fs::path> Nombrar()
    {
        for (const fs::path& destino : m_destinos) {
            std::error_code fallo;
            fs::rename(Provisional(destino), destino, fallo);
            if (fallo)
                throw ErrorEjecucion(fmt::format("no se puede escribir «{}»", destino.string()));
        }
        return std::exchange(m_destinos, {});
    }

private:
    static fs::path Provisional(const fs::path& destino) { return destino.string() + kParcial; }

    std::vector<fs::path> m_destinos;
};

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
    std::error_code fallo;
    fs::create_directories(carpeta, fallo);
    if (!fs::is_directory(carpeta, fallo))
        throw ErrorEjecucion(fmt::format("«{}» no es una carpeta y no se puede crear", carpeta.string()));
    Provisionales provisionales;
    for (const FicheroNuevo& fichero : ficheros)
        provisionales.Escribir(carpeta / fichero.nombre, fichero.contenido);
    return provisionales.Nombrar();
}

}  // namespace efv::orden
