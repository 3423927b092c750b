// The PVGIS service over the network in use.
#include <quorvel/solar/pvgis.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include <fmt/format.h>

#include <quorvel/mundo.h>

namespace efv::solar {

namespace {

constexpr std::size_t kMotivoMaximo = 200;

ServicioPVGIS& EnUso()
{
    static ServicioPVGIS servicio;
    return servicio;
}

std::string RutaDe(ConsultaPVGIS consulta, double dLatitud, double dLongitud)
{
    switch (consulta) {
        case ConsultaPVGIS::anoTipico:
            return fmt::format("/api/v5_3/tmy?lat={:.6f}&lon={:.6f}", dLatitud, dLongitud);
        case ConsultaPVGIS::anoTipicoEpw:
            return fmt::format("/api/v5_3/tmy?lat={:.6f}&lon={:.6f}&outputformat=epw", dLatitud, dLongitud);
        case ConsultaPVGIS::radiacionMensual:
            return fmt::format("/api/v5_3/MRcalc?lat={:.6f}&lon={:.6f}&horirrad=1", dLatitud, dLongitud);
    }
    return {};
}

const char* Variable(const char* nombre)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    const char* valor = std::getenv(nombre);
    return valor != nullptr && *valor != '\0' ? valor : nullptr;
}

}  // namespace

const ServicioPVGIS& ElServicioPVGIS()
{
    return EnUso();
}

void PonerServicioPVGIS(ServicioPVGIS servicio)
{
    EnUso() = std::move(servicio);
}

void PonerServicioPVGISDelEntorno()
{
    if (const char* url = Variable("EFV_PVGIS_URL")) {
        std::string direccion = url;
        while (direccion.ends_with('/'))
            direccion.pop_back();
        if (!direccion.starts_with("http://") && !direccion.starts_with("https://"))
            throw std::invalid_argument(
                fmt::format("EFV_PVGIS_URL: se esperaba una dirección de http o https, llegó «{}»", url));
        EnUso().url = std::move(direccion);
    }
    if (const char* autoridades = Variable("EFV_PVGIS_CA"))
        EnUso().autoridades = autoridades;
}

std::variant<RespuestaRed, FalloRed> ConsultarPVGIS(ConsultaPVGIS consulta, double dLatitud, double dLongitud,
                                                    const AvanceRed& avance)
{
    const ServicioPVGIS& servicio = EnUso();
    OpcionesDescarga opciones;
    opciones.espera = servicio.espera;
    opciones.autoridades = servicio.autoridades;
    // Names of the sessions that the service sees, and no answer out of a store on the way.
    opciones.cabeceras = {
        {"User-Agent", consulta == ConsultaPVGIS::radiacionMensual ? "QuorvelClima2" : "QuorvelClima1"},
        {"Cache-Control", "no-cache"},
        {"Pragma", "no-cache"}};
    return ElMundo().red->Obtener(servicio.url + RutaDe(consulta, dLatitud, dLongitud), opciones, avance);
}

std::string MotivoPVGIS(const RespuestaRed& respuesta)
{
    // {"message":"Location over the sea. ...", "status":400}
    constexpr std::string_view kMarca = "\"message\"";
    std::string_view texto = respuesta.cuerpo;
    if (const std::size_t i = texto.find(kMarca); i != texto.npos) {
        texto.remove_prefix(std::min(texto.find('"', i + kMarca.size()), texto.size() - 1) + 1);
        texto = texto.substr(0, texto.find('"'));
    } else if (texto.find('<') != texto.npos) {
        return {};  // a page for browsers
    }
    std::string motivo;
    for (const char c : texto.substr(0, kMotivoMaximo))
        motivo += std::iscntrl(static_cast<unsigned char>(c)) != 0 ? ' ' : c;
    return motivo;
}

}  // namespace efv::solar
