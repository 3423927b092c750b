// Any bytes as the settings of the desktop program: the recent files read of them are written and read again
// alike.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

#include <QSettings>

#include "exigir.h"
#include "proyecto/recientes.h"

namespace {

namespace fs = std::filesystem;

// A folder of this run's own, gone at its end.
class Carpeta {
public:
    Carpeta() : m_ruta(fs::temp_directory_path() / ("efv-ajustes-" + std::to_string(std::random_device()())))
    {
        fs::create_directories(m_ruta / "QuorvelEFV");
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(m_ruta.string()));
    }
    ~Carpeta()
    {
        std::error_code fallo;
        fs::remove_all(m_ruta, fallo);
    }
    Carpeta(const Carpeta&) = delete;
    Carpeta& operator=(const Carpeta&) = delete;
    fs::path Ajustes() const { return m_ruta / "QuorvelEFV" / "efv-estudio.ini"; }

private:
    fs::path m_ruta;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    // Values in Qt's own binary form are read by Qt alone, and it makes whatever size they ask for.
    if (std::string_view(reinterpret_cast<const char*>(datos), tamano).find('@') != std::string_view::npos)
        return 0;
    static const Carpeta carpeta;
    fs::remove(carpeta.Ajustes());
    std::ofstream(carpeta.Ajustes(), std::ios::binary)
        .write(reinterpret_cast<const char*>(datos), static_cast<std::streamsize>(tamano));
    const auto almacen = efv::estudio::RecientesDeLaPersona();
    const auto recientes = almacen.leer();
    almacen.escribir(recientes);
    Exigir(almacen.leer() == recientes);
    return 0;
}
