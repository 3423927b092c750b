#include "proyecto/recuperacion.h"

#include <algorithm>
#include <cerrno>
#include <random>
#include <stdexcept>
#include <utility>

#include <fmt/format.h>

#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>
#include <quorvel/reloj.h>

#include "proyecto/fichero.h"

namespace efv::estudio {

namespace {

constexpr std::string_view kCopia = ".efvp", kCerrojo = ".bloqueo";
constexpr std::wstring_view kSeccion = L"recuperacion";
constexpr int kSchema = 1;
constexpr unsigned kSoloDeLaPersona = 0600;

SistemaFicheros& Sistema()
{
    return *ElMundo().ficheros;
}

// The order of the dates is that of the texts.
CString Ahora()
{
    const auto ahora = LeerReloj();
    if (!ahora)
        return {};
    return CadenaDesdeUtf8(fmt::format("{:04}-{:02}-{:02} {:02}:{:02}", ahora->iAno, ahora->iMes, ahora->iDia,
                                       ahora->iHora, ahora->iMinuto));
}

std::vector<std::byte> Membrete(const CString& csProyecto, const std::optional<Huella>& huella)
{
    std::vector<std::byte> bytes;
    CArchive ar(bytes);
    ar << csProyecto;
    ar << (huella ? 1 : 0);
    for (const std::uint64_t u : {huella.value_or(Huella{}).uTamano, huella.value_or(Huella{}).uResumen}) {
        ar << static_cast<std::uint32_t>(u >> 32U);
        ar << static_cast<std::uint32_t>(u);
    }
    ar << Ahora();
    return bytes;
}

void LeerMembrete(const std::vector<std::byte>& bytes, CopiaHallada& copia)
{
    CArchive ar{std::span<const std::byte>(bytes)};
    const auto largo = [&ar] {
        std::uint32_t uAlto = 0, uBajo = 0;
        ar >> uAlto;
        ar >> uBajo;
        return std::uint64_t{uAlto} << 32U | uBajo;
    };
    int bHuella = 0;
    ar >> copia.csProyecto;
    ar >> bHuella;
    Huella huella;
    huella.uTamano = largo();
    huella.uResumen = largo();
    if (bHuella != 0)
        copia.huella = huella;
    ar >> copia.csFecha;
}

bool Leer(CopiaHallada& copia)
{
    try {
        copia.proyecto = LeerProyecto(CadenaDesdeUtf8(copia.ruta)).proyecto;
        auto& ajenas = copia.proyecto->ajenas;
        const auto membrete = std::ranges::find(ajenas, CString(kSeccion), &SeccionAjena::csNombre);
        if (membrete == ajenas.end())
            return false;
        LeerMembrete(membrete->bytes, copia);
        ajenas.erase(membrete);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

CString TextoDe(const CopiaHallada& copia)
{
    CString csTexto = L"El programa se cerró sin guardar el proyecto «" + copia.proyecto->csNombre + L"»";
    csTexto +=
        copia.csProyecto.empty() ? CString(L", que no tenía archivo.") : L" (" + copia.csProyecto + L").";
    if (!copia.csFecha.empty())
        csTexto += L"\nHay una copia de sus cambios del " + copia.csFecha + L".";
    return csTexto;
}

}  // namespace

// ---------------------------------------------------------------------------------------------------
// The lock
// ---------------------------------------------------------------------------------------------------

Cerrojo::Cerrojo(SistemaFicheros& sistema, std::string ruta, int iFichero)
    : m_sistema(&sistema), m_ruta(std::move(ruta)), m_iFichero(iFichero)
{
}

Cerrojo::Cerrojo(Cerrojo&& otro) noexcept
    : m_sistema(otro.m_sistema), m_ruta(std::move(otro.m_ruta)), m_iFichero(std::exchange(otro.m_iFichero, -1))
{
}

Cerrojo& Cerrojo::operator=(Cerrojo&& otro) noexcept
{
    std::swap(m_sistema, otro.m_sistema);
    std::swap(m_ruta, otro.m_ruta);
    std::swap(m_iFichero, otro.m_iFichero);
    return *this;
}

Cerrojo::~Cerrojo()
{
    if (m_iFichero >= 0)
        m_sistema->Cerrar(m_iFichero);
}

std::optional<Cerrojo> Cerrojo::Tomar(SistemaFicheros& sistema, std::string ruta)
{
    int iFichero = sistema.Abrir(ruta, Apertura::escritura);
    if (iFichero == -ENOENT)
        iFichero = sistema.Crear(ruta, kSoloDeLaPersona);
    if (iFichero < 0)
        return std::nullopt;
    Cerrojo cerrojo(sistema, std::move(ruta), iFichero);
    DatosFichero abierto, enSuSitio;
    // Whoever held it a moment ago may have removed it in the meantime.
    if (sistema.Bloquear(iFichero) < 0 || sistema.Estado(iFichero, abierto) < 0 ||
        sistema.Estado(cerrojo.m_ruta, enSuSitio) < 0 || !abierto.EsElMismo(enSuSitio))
        return std::nullopt;
    return cerrojo;
}

void Cerrojo::Borrar()
{
    m_sistema->Borrar(m_ruta);
}

void CopiaHallada::Borrar()
{
    Sistema().Borrar(ruta);
    cerrojo.Borrar();
}

// ---------------------------------------------------------------------------------------------------
// The copies
// ---------------------------------------------------------------------------------------------------

Recuperacion::Recuperacion(std::string carpeta) : m_carpeta(std::move(carpeta)) {}

// A name that no other process has.
void Recuperacion::Reservar()
{
    if (m_cerrojo)
        return;
    CrearCarpetas(Sistema(), m_carpeta);
    std::random_device azar;
    m_base = fmt::format("{}/{:08x}{:08x}", m_carpeta, azar(), azar());
    m_cerrojo = Cerrojo::Tomar(Sistema(), m_base + std::string(kCerrojo));
    if (!m_cerrojo)
        throw std::runtime_error("No se puede escribir en «" + m_carpeta + "».");
}

void Recuperacion::Seguir(const Sesion& sesion)
{
    if (!sesion.Modificado())
        return Retirar();
    const Huella huella = HuellaDe(sesion.Bytes());
    if (m_escrita == huella)
        return;
    try {
        Reservar();
        const auto copia = ProyectoDe(sesion.Bytes());
        copia->ajenas.push_back(
            {CString(kSeccion), kSchema, Membrete(sesion.Ruta(), sesion.HuellaDelFichero())});
        EscribirProyecto(BytesDe(*copia), CadenaDesdeUtf8(Copia()));
    } catch (const CFileException& error) {
        throw std::runtime_error(error.what());
    }
    m_escrita = huella;
}

void Recuperacion::Retirar()
{
    if (!m_cerrojo)
        return;
    Sistema().Borrar(Copia());
    m_cerrojo->Borrar();
    m_cerrojo.reset();
    m_escrita.reset();
}

std::vector<CopiaHallada> Recuperacion::Halladas() const
{
    std::vector<CopiaHallada> halladas;
    std::vector<std::string> nombres;
    if (Sistema().Listar(m_carpeta, nombres) < 0)
        return halladas;
    for (const std::string& nombre : nombres) {
        if (!nombre.ends_with(kCerrojo))
            continue;
        const std::string base = m_carpeta + "/" + nombre.substr(0, nombre.size() - kCerrojo.size());
        auto cerrojo = Cerrojo::Tomar(Sistema(), base + std::string(kCerrojo));
        if (!cerrojo)
            continue;
        CopiaHallada copia{std::move(*cerrojo), base + std::string(kCopia), {}, {}, {}, {}};
        // Its process died before it wrote anything.
        if (DatosFichero datos; Sistema().Estado(copia.ruta, datos) == -ENOENT) {
            copia.cerrojo.Borrar();
            continue;
        }
        if (Leer(copia))
            halladas.push_back(std::move(copia));
    }
    std::ranges::sort(halladas, std::ranges::greater(), &CopiaHallada::csFecha);
    return halladas;
}

bool Recuperacion::Ofrecer(Sesion& sesion)
{
    auto halladas = Halladas();
    for (CopiaHallada& copia : halladas) {
        switch (ui::PresentadorActual().MostrarMensaje({L"Recuperación", TextoDe(copia), ui::Icono::pregunta,
                                                        ui::Botones::siNoCancelar, L"&Recuperar", L"&Descartar",
                                                        L"&Más tarde"})) {
            case ui::Respuesta::si:
                if (!sesion.PuedeCerrarse())
                    return true;
                sesion.Recuperar(std::move(copia.proyecto), copia.csProyecto, copia.huella);
                // The found one goes once this process has its own.
                Seguir(sesion);
                copia.Borrar();
                return true;
            case ui::Respuesta::no:
                copia.Borrar();
                break;
            default:
                break;
        }
    }
    return !halladas.empty();
}

}  // namespace efv::estudio
