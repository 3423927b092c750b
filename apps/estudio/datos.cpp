#include "datos.h"

#include <cstdlib>
#include <stdexcept>

#include <fmt/format.h>
#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <QuorvelEFV.h>
#include <quorvel/catalogos_propios.h>
#include <quorvel/framework/CException.h>
#include <quorvel/tipos_catalogo.h>

namespace efv::estudio {

namespace fs = std::filesystem;

fs::path CarpetaDistribuida()
{
    const fs::path programa = QCoreApplication::applicationDirPath().toStdString();
    const fs::path instalada = programa / EFV_DATOS_RELATIVA;
    std::error_code fallo;
    return fs::is_directory(instalada, fallo) ? instalada.lexically_normal() : fs::path(EFV_DATOS_FUENTE);
}

fs::path CarpetaDeAyuda()
{
    const fs::path datos = CarpetaDistribuida();
    std::error_code fallo;
    // Installed they stand among the data, in the source tree beside them.
    return fs::is_directory(datos / "docs", fallo) ? datos / "docs" : datos.parent_path() / "docs";
}

Carpetas CarpetasDeTrabajo(const std::string& opcion)
{
    fs::path carpeta = opcion;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    if (const char* variable = std::getenv("EFV_DATOS"); carpeta.empty() && variable != nullptr)
        carpeta = variable;
    if (carpeta.empty()) {
        const QString propia = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        return {CarpetaDistribuida(), propia.toStdString()};
    }
    std::error_code fallo;
    if (!fs::is_directory(carpeta, fallo))
        throw std::runtime_error("No existe la carpeta de datos «" + carpeta.string() + "».");
    return {fs::absolute(carpeta), fs::absolute(carpeta)};
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

namespace {

// A catalogue of another kind is none, whatever it is called.
void RechazarOtrasClases(const fs::path& carpeta, CStringArray& fallidas)
{
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        const CString csRuta = Ruta(carpeta, CadenaUtf8(tipo->Fichero()).c_str());
        for (const CString& csFichero : {csRuta, FicheroPropioDe(csRuta)}) {
            const TipoCatalogo* suyo = csFichero.empty() ? nullptr : TipoDelCatalogo(csFichero);
            if (suyo != nullptr && suyo != tipo)
                fallidas.Add(csFichero + L" (es un catálogo de " +
                             CadenaDesdeUtf8(std::string(suyo->Nombre())) + L")");
        }
    }
}

// Whole copies that earlier programs made of the shipped catalogues, with what the person changed in them.
void AdoptarCopias(const Carpetas& carpetas, DatosPuestos& puestos)
{
    if (carpetas.datos == carpetas.propios)
        return;
    for (const TipoCatalogo* tipo : TiposDeCatalogo()) {
        const std::string fichero = CadenaUtf8(tipo->Fichero());
        const CString csCopia = Ruta(carpetas.propios, fichero.c_str());
        try {
            if (const std::size_t n = AdoptarCopia(Ruta(carpetas.datos, fichero.c_str()), csCopia); n > 0)
                puestos.adoptadas.push_back(CadenaDesdeUtf8(
                    fmt::format("{}: {} {}", tipo->Nombre(), n, n == 1 ? "modelo" : "modelos")));
        } catch (const CFileException&) {
            puestos.fallidas.Add(csCopia);
        }
    }
}

}  // namespace

DatosPuestos PonerDatos(const Carpetas& carpetas)
{
    phSetPathApp(CadenaDesdeUtf8(QCoreApplication::applicationDirPath().toStdString()).c_str());
    phSetPathModHE5(CadenaDesdeUtf8(QCoreApplication::applicationDirPath().toStdString()).c_str());
    // With its separator: file names are joined to it as it stands.
    const CString csDatos = Ruta(carpetas.datos, "");
    SuperponerCatalogos(csDatos, Ruta(carpetas.propios, "") + CString(kCarpetaCatalogosPropios));
    phSetPathHE5BD(csDatos.c_str());
    DatosPuestos puestos;
    AdoptarCopias(carpetas, puestos);
    phCargarBasesHE5(puestos.fallidas);
    RechazarOtrasClases(carpetas.datos, puestos.fallidas);
    return puestos;
}

}  // namespace efv::estudio
