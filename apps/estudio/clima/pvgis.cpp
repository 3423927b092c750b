#include "clima/pvgis.h"

#include <algorithm>
#include <cmath>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>
#include <quorvel/solar/pvgis.h>
#include <quorvel/ui/presentador.h>

namespace efv::estudio {

namespace {

// Of an answer that doesn't say how long it is: a typical year has about 600 KiB.
constexpr double kBytesHabituales = 600'000.0;

void Avisar(const std::string& texto)
{
    ui::MostrarAviso(CadenaDesdeUtf8(texto), ui::Icono::advertencia);
}

std::optional<std::string> Consultar(solar::ConsultaPVGIS consulta, const wchar_t* csTexto, double dLatitud,
                                     double dLongitud)
{
    std::variant<RespuestaRed, FalloRed> hecho;
    {
        const auto trabajo = ui::PresentadorActual().EmpezarTrabajo(csTexto, true);
        hecho = solar::ConsultarPVGIS(
            consulta, dLatitud, dLongitud, [&](std::uint64_t uRecibidos, std::optional<std::uint64_t> uTotal) {
                const double dTotal = uTotal ? static_cast<double>(*uTotal) : kBytesHabituales;
                return trabajo->Avanzar(std::min(static_cast<double>(uRecibidos) / dTotal, 1.0));
            });
    }
    if (const auto* fallo = std::get_if<FalloRed>(&hecho)) {
        if (fallo->causa != FalloRed::Causa::cancelada)
            Avisar(fallo->texto);
        return std::nullopt;
    }
    auto& respuesta = std::get<RespuestaRed>(hecho);
    if (respuesta.iEstado == 200)
        return std::move(respuesta.cuerpo);
    const std::string motivo = solar::MotivoPVGIS(respuesta);
    Avisar("PVGIS ha contestado con el estado " + std::to_string(respuesta.iEstado) +
           (motivo.empty() ? "." : ":\n" + motivo));
    return std::nullopt;
}

}  // namespace

std::optional<solar::DoceMeses> PedirRadiacion(double dLatitud, double dLongitud)
{
    const auto respuesta =
        Consultar(solar::ConsultaPVGIS::radiacionMensual, L"Radiación de PVGIS", dLatitud, dLongitud);
    if (!respuesta)
        return std::nullopt;
    const auto radiacion = solar::RadiacionMensual(*respuesta);
    if (radiacion && std::ranges::all_of(*radiacion, [](double d) { return std::isfinite(d); }))
        return radiacion;
    Avisar(radiacion ? "La respuesta de PVGIS no llega a un año."
                     : "Ubicación fuera de la cobertura espacial de PVGIS.");
    return std::nullopt;
}

bool DescargarAno(const CString& csRuta, const CString& csNombre, double dLatitud, double dLongitud)
{
    const std::string ruta = CadenaUtf8(csRuta);
    const bool bEpw = ruta.ends_with("epw");
    auto respuesta = Consultar(bEpw ? solar::ConsultaPVGIS::anoTipicoEpw : solar::ConsultaPVGIS::anoTipico,
                               L"Año típico de PVGIS", dLatitud, dLongitud);
    if (!respuesta)
        return false;
    if (!bEpw) {
        auto registro = solar::ConvertirAnoTipico(*respuesta, CadenaUtf8(csNombre), dLatitud, 0.0);
        if (registro.iFilas != solar::kFilasAnoTipico) {
            Avisar("La respuesta de PVGIS no es un año completo.");
            return false;
        }
        respuesta = std::move(registro.texto);
    }
    try {
        ReemplazarFichero(*ElMundo().ficheros, ruta, *respuesta);
    } catch (const CFileException& error) {
        Avisar(error.what());
        return false;
    }
    if (!bEpw && std::abs(dLongitud) >= solar::kLongitudSinDesfase) {
        ui::MostrarAviso(
            L"El registro toma las horas UTC por solares: desde 7,5° de longitud el sol no concuerda con "
            L"la radiación. El fichero EPW del servicio tampoco lleva hora solar.",
            ui::Icono::informacion);
    }
    return true;
}

}  // namespace efv::estudio
