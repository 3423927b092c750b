#include "datos.h"

#include <cstdlib>
#include <stdexcept>

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <QuorvelEFV.h>
#include <quorvel/ficheros.h>
#include <quorvel/mundo.h>

namespace efv::estudio {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMaximo = std::size_t{256} << 20U;  // far beyond any shipped file

void CopiarLoQueFalte(const fs::path& desde, const fs::path& hasta)
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    CrearCarpetas(sistema, hasta.string());
    for (const auto& entrada : fs::directory_iterator(desde)) {
        const fs::path copia = hasta / entrada.path().filename();
        if (!entrada.is_regular_file() || fs::exists(copia))
            continue;
        const LecturaFichero lectura = LeerFichero(sistema, entrada.path().string(), kMaximo);
        if (!lectura.bytes)
            throw std::runtime_error("No se puede leer «" + entrada.path().string() + "»: " + lectura.motivo +
                                     '.');
        // Whole or not at all: what a full disk kept out comes with the next start.
        try {
            FicheroRetenido nuevo(sistema, copia.string());
            if (!nuevo.Existe())
                nuevo.Reemplazar(*lectura.bytes);
        } catch (const CFileException& error) {
            // Another start of the program may make the same copy.
            if (error.m_cause != CFileException::violacionComparticion)
                throw;
        }
    }
}

}  // namespace

fs::path CarpetaDistribuida()
{
    const fs::path programa = QCoreApplication::applicationDirPath().toStdString();
    const fs::path instalada = programa / EFV_DATOS_RELATIVA;
    std::error_code fallo;
    return fs::is_directory(instalada, fallo) ? instalada.lexically_normal() : fs::path(EFV_DATOS_FUENTE);
}

fs::path CarpetaDeTrabajo(const std::string& opcion)
{
    fs::path carpeta = opcion;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    if (const char* variable = std::getenv("EFV_DATOS"); carpeta.empty() && variable != nullptr)
        carpeta = variable;
    if (carpeta.empty()) {
        carpeta = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
        CopiarLoQueFalte(CarpetaDistribuida(), carpeta);
    }
    std::error_code fallo;
    if (!fs::is_directory(carpeta, fallo))
        throw std::runtime_error("No existe la carpeta de datos «" + carpeta.string() + "».");
    return fs::absolute(carpeta);
}

std::string CarpetaDeRecuperacion()
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    const char* estados = std::getenv("XDG_STATE_HOME");
    // A relative one counts as none.
    const fs::path carpeta = estados != nullptr && fs::path(estados).is_absolute()
                                 ? fs::path(estados)
                                 : fs::path(QDir::homePath().toStdString()) / ".local" / "state";
    return (carpeta / "efv-estudio" / "recuperacion").string();
}

CString Ruta(const fs::path& carpeta, const char* archivo)
{
    return CadenaDesdeUtf8((carpeta / archivo).string());
}

CStringArray PonerDatos(const fs::path& carpeta)
{
    phSetPathApp(CadenaDesdeUtf8(QCoreApplication::applicationDirPath().toStdString()).c_str());
    phSetPathModHE5(CadenaDesdeUtf8(QCoreApplication::applicationDirPath().toStdString()).c_str());
    // With its separator: file names are joined to it as it stands.
    phSetPathHE5BD(Ruta(carpeta, "").c_str());
    CStringArray fallidas;
    phCargarBasesHE5(fallidas);
    return fallidas;
}

}  // namespace efv::estudio
