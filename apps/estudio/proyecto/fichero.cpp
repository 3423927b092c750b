#include "proyecto/fichero.h"

#include <stdexcept>

#include <QFile>
#include <QSaveFile>

namespace efv::estudio {

namespace {

// A project with thousands of loads stays far below.
constexpr qint64 kTamanoMaximo = 64LL << 20;

[[noreturn]] void Fallar(const char* que, const CString& csRuta, const std::string& motivo)
{
    throw std::runtime_error(std::string(que) + " «" + CadenaUtf8(csRuta) + "».\n" + motivo);
}

[[noreturn]] void FallarAlAbrir(const CString& csRuta, const std::string& motivo)
{
    Fallar("No se puede abrir", csRuta, motivo);
}

QByteArray Contenido(const CString& csRuta)
{
    QFile fichero(QString::fromStdWString(csRuta));
    if (!fichero.open(QIODevice::ReadOnly))
        FallarAlAbrir(csRuta, fichero.errorString().toStdString());
    // One byte more tells a file that is too large, also one that has no size, such as a device.
    QByteArray bytes = fichero.read(kTamanoMaximo + 1);
    if (fichero.error() != QFileDevice::NoError)
        FallarAlAbrir(csRuta, fichero.errorString().toStdString());
    if (bytes.size() > kTamanoMaximo)
        FallarAlAbrir(csRuta, "Es demasiado grande para ser un proyecto.");
    return bytes;
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
    return proyecto;
}

std::unique_ptr<CProyectoEstudio> LeerProyecto(const CString& csRuta)
{
    const QByteArray bytes = Contenido(csRuta);
    try {
        return ProyectoDe(std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size()))));
    } catch (const std::runtime_error& fallo) {
        FallarAlAbrir(csRuta, fallo.what());
    }
}

void EscribirProyecto(std::span<const std::byte> bytes, const CString& csRuta)
{
    // Writes beside it, flushes to the disk and renames at the end.
    QSaveFile fichero(QString::fromStdWString(csRuta));
    const auto nBytes = static_cast<qint64>(bytes.size());
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): Qt takes bytes as char
    const auto* datos = reinterpret_cast<const char*>(bytes.data());
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(datos, nBytes) != nBytes || !fichero.commit())
        Fallar("No se puede guardar", csRuta, fichero.errorString().toStdString());
}

}  // namespace efv::estudio
