#include "solar/descarga_pvgis.h"

#include <algorithm>
#include <cerrno>
#include <random>

#include <fmt/format.h>

#include <quorvel/ficheros.h>
#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>
#include <quorvel/solar/pvgis.h>
#include <quorvel/ui/presentador.h>

#include "platform/fichero/carpeta_temporal.h"

namespace efv::solar {

namespace {

constexpr std::size_t kErrorMaximo = 255;
constexpr std::string_view kTemporal = ".tmp";
constexpr std::wstring_view kSinRadiacion = L"Error en la descarga de datos de radiación desde PVGIS";
constexpr std::wstring_view kSinCobertura = L"Ubicación fuera de la cobertura espacial de PVGIS";

void PonerError(CString& csError, const std::string& texto)
{
    csError = CadenaDesdeUtf8(texto).substr(0, kErrorMaximo);
}

// The path with the extension of its last component changed to ".tmp".
std::string RutaTemporal(const std::string& ruta)
{
    const std::size_t iPunto = ruta.rfind('.');
    const std::size_t iBarra = ruta.rfind('/');
    const bool bExtension = iPunto != ruta.npos && (iBarra == ruta.npos || iPunto > iBarra);
    return (bExtension ? ruta.substr(0, iPunto) : ruta) + std::string(kTemporal);
}

/// Sets the answer aside and writes the record. @return whether it is complete
bool Convertir(const std::string& ruta, std::string_view respuesta, const CString& csNombre, double dLatitud,
               double dValorCabecera)
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    const std::string temporal = RutaTemporal(ruta);
    if (sistema.Renombrar(ruta, temporal, false) < 0)
        return false;
    const RegistroConvertido registro =
        ConvertirAnoTipico(respuesta, CadenaUtf8(csNombre), dLatitud, dValorCabecera);
    ReemplazarFichero(sistema, ruta, registro.texto);
    return registro.iFilas == kFilasAnoTipico && sistema.Borrar(temporal) >= 0;
}

/// A new file of the temporary folder with the content.
std::string EscribirTemporal(std::string_view bytes)
{
    SistemaFicheros& sistema = *ElMundo().ficheros;
    std::random_device azar;
    for (int iIntento = 0; iIntento < 100; ++iIntento) {
        std::string ruta = fmt::format("{}/zqr{:08x}.tmp", fichero::CarpetaTemporal(), azar());
        const int iFichero = sistema.Crear(ruta, 0600);
        if (iFichero == -EEXIST)
            continue;
        std::int64_t nEscritos = iFichero;
        for (; iFichero >= 0 && !bytes.empty(); bytes.remove_prefix(static_cast<std::size_t>(nEscritos)))
            if ((nEscritos = sistema.Escribir(iFichero, bytes)) <= 0)
                break;
        if (iFichero >= 0)
            sistema.Cerrar(iFichero);
        if (iFichero < 0 || nEscritos < 0)
            break;
        return ruta;
    }
    throw CFileException(CFileException::generica, "no se puede escribir un fichero temporal");
}

}  // namespace

bool DescargarAnoTipico(const CString& csArchivo, const CString& csNombre, double dLatitud, double dLongitud,
                        double dValorCabecera, CString& csError)
{
    const std::string ruta = CadenaUtf8(csArchivo);
    // Setting the answer aside would be writing over it.
    if (ruta == RutaTemporal(ruta))
        return false;
    const bool bEpw = ruta.ends_with("epw");
    const ui::Espera espera;
    try {
        auto hecho = ConsultarPVGIS(bEpw ? ConsultaPVGIS::anoTipicoEpw : ConsultaPVGIS::anoTipico, dLatitud,
                                    dLongitud, {});
        if (const auto* fallo = std::get_if<FalloRed>(&hecho)) {
            PonerError(csError, fallo->texto);
            return false;
        }
        const std::string& respuesta = std::get<RespuestaRed>(hecho).cuerpo;
        ReemplazarFichero(*ElMundo().ficheros, ruta, respuesta);
        return bEpw || Convertir(ruta, respuesta, csNombre, dLatitud, dValorCabecera);
    } catch (const CFileException& error) {
        PonerError(csError, error.what());
        return false;
    }
}

bool DescargarRadiacionMensual(double dLatitud, double dLongitud, double (&adRadiacion)[12], CString& csError,
                               bool bAvisarSinDatos)
{
    std::string respuesta;
    std::string temporal;
    try {
        const ui::Espera espera;
        auto hecho = ConsultarPVGIS(ConsultaPVGIS::radiacionMensual, dLatitud, dLongitud, {});
        if (std::holds_alternative<FalloRed>(hecho)) {
            csError = kSinRadiacion;
            return false;
        }
        respuesta = std::move(std::get<RespuestaRed>(hecho).cuerpo);
        temporal = EscribirTemporal(respuesta);
    } catch (const CFileException&) {
        csError = kSinRadiacion;
        return false;
    }
    const auto radiacion = RadiacionMensual(respuesta);
    if (!radiacion && bAvisarSinDatos) {
        csError = kSinCobertura;
        return false;
    }
    if (radiacion)
        std::ranges::copy(*radiacion, adRadiacion);
    return ElMundo().ficheros->Borrar(temporal) >= 0;
}

}  // namespace efv::solar
