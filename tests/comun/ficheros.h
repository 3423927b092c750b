// Temporary files and golden data of the tests.
#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/framework/CString.h>
#include <unistd.h>

namespace efv::pruebas {

/// A folder of its own for one test, removed with all it holds.
class CarpetaTemporal {
public:
    CarpetaTemporal()
    {
        std::string plantilla = (std::filesystem::temp_directory_path() / "efv-XXXXXX").string();
        if (::mkdtemp(plantilla.data()) == nullptr)
            throw std::runtime_error(plantilla);
        m_ruta = plantilla;
    }
    ~CarpetaTemporal()
    {
        std::error_code error;
        std::filesystem::remove_all(m_ruta, error);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    const std::filesystem::path& Ruta() const { return m_ruta; }

    /// Writes a file into the folder; returns its path as a command takes it.
    std::string Crear(const std::string& nombre, std::string_view bytes) const
    {
        const std::filesystem::path ruta = m_ruta / nombre;
        std::ofstream(ruta, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return ruta.string();
    }

    /// The same; the path as the library takes it.
    CString Escribir(const std::string& nombre, std::string_view bytes) const
    {
        return CadenaDesdeUtf8(Crear(nombre, bytes));
    }

private:
    std::filesystem::path m_ruta;
};

/// Lines of a file of the source tree's tests/, split at commas.
inline std::vector<std::vector<std::string>> LeerCsv(const std::string& rutaDesdeTests)
{
    std::ifstream fichero(std::filesystem::path(EFV_CARPETA_PRUEBAS) / rutaDesdeTests);
    std::vector<std::vector<std::string>> filas;
    for (std::string linea; std::getline(fichero, linea);) {
        std::vector<std::string>& fila = filas.emplace_back();
        std::size_t inicio = 0;
        for (std::size_t coma = 0; coma != linea.npos; inicio = coma + 1) {
            coma = linea.find(',', inicio);
            fila.push_back(linea.substr(inicio, coma == linea.npos ? coma : coma - inicio));
        }
    }
    return filas;
}

}  // namespace efv::pruebas
