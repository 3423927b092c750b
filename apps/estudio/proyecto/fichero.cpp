#include "proyecto/fichero.h"

#include <cerrno>
#include <stdexcept>
#include <string_view>

#include <quorvel/mundo.h>

#include "efv/diseno/proyecto_json.h"
#include "guardar.h"

namespace efv::estudio {

namespace {

// A project with thousands of loads stays far below.
constexpr std::size_t kTamanoMaximo = std::size_t{64} << 20U;

[[noreturn]] void FallarAlAbrir(const CString& csRuta, const std::string& motivo)
{
    FallarConFichero("No se puede abrir", csRuta, motivo);
}

std::string Contenido(const CString& csRuta)
{
    try {
        LecturaFichero lectura = LeerFichero(*ElMundo().ficheros, CadenaUtf8(csRuta), kTamanoMaximo);
        if (lectura.bytes)
            return std::move(*lectura.bytes);
        FallarAlAbrir(csRuta, lectura.motivo);
    } catch (const CFileException& error) {
        FallarAlAbrir(csRuta, MotivoSinRuta(error, CadenaUtf8(csRuta)));
    }
}

std::string_view Vista(std::span<const std::byte> bytes)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): files take bytes as char
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

std::vector<std::byte> BytesDe(CProyectoEstudio& proyecto)
{
    std::vector<std::byte> bytes;
    CArchive ar(bytes);
    proyecto.Serialize(ar);
    return bytes;
}

std::unique_ptr<CProyectoEstudio> ProyectoDe(std::span<const std::byte> bytes)
{
    auto proyecto = std::make_unique<CProyectoEstudio>();
    try {
        CArchive ar(bytes);
        proyecto->Serialize(ar);
    } catch (const CArchiveException&) {
        throw std::runtime_error("El proyecto está cortado: acaba antes de tiempo.");
    }
    try {
        orden::CriteriosDe(*proyecto);
    } catch (const std::exception& fallo) {
        throw std::runtime_error(std::string("El proyecto está dañado: cableado: ") + fallo.what());
    }
    return proyecto;
}

ProyectoLeido LeerProyecto(const CString& csRuta)
{
    const std::string bytes = Contenido(csRuta);
    try {
        const auto vista = std::as_bytes(std::span(bytes));
        return {ProyectoDe(vista), HuellaDe(vista)};
    } catch (const std::runtime_error& fallo) {
        FallarAlAbrir(csRuta, fallo.what());
    }
}

bool EsJson(const CString& csRuta)
{
    constexpr std::wstring_view kSufijo = L".json";
    if (PlegarTexto(csRuta).ends_with(kSufijo))
        return true;
    const std::string bytes = Contenido(csRuta);
    const std::size_t nPrimera = bytes.find_first_not_of(" \t\r\n");
    return nPrimera != std::string::npos && bytes[nPrimera] == '{';
}

std::optional<EstadoProyecto> MirarProyecto(const CString& csRuta)
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    const std::string ruta = CadenaUtf8(csRuta);
    DatosFichero datos;
    if (sistema.Estado(ruta, datos) == -ENOENT)
        return EstadoProyecto{};
    try {
        const LecturaFichero lectura = LeerFichero(sistema, ruta, kTamanoMaximo);
        if (lectura.bytes)
            return EstadoProyecto{efv::HuellaDe(*lectura.bytes)};
    } catch (const CFileException&) {
        // Another program holds it: the next look tells.
        return std::nullopt;
    }
    return std::nullopt;
}

Huella HuellaDe(std::span<const std::byte> bytes)
{
    return efv::HuellaDe(Vista(bytes));
}

void EscribirProyecto(std::span<const std::byte> bytes, const CString& csRuta)
{
    GuardarFichero(csRuta, Vista(bytes));
}

bool ActualizarProyecto(std::span<const std::byte> bytes, const CString& csRuta,
                        std::optional<Huella>& conocida)
{
    const std::string ruta = CadenaUtf8(csRuta);
    try {
        return ReemplazarSiSigue(*ElMundo().ficheros, ruta, Vista(bytes), conocida, kTamanoMaximo);
    } catch (const CFileException& error) {
        FallarConFichero("No se puede guardar", csRuta, MotivoSinRuta(error, ruta));
    }
}

}  // namespace efv::estudio
