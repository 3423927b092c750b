#include "diseno/proyecto_estudio.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <stdexcept>
#include <utility>

#include <fmt/format.h>

#include "comun/consola.h"
#include "comun/entrada.h"
#include "diseno/cableado.h"
#include "diseno/calculados.h"
#include "diseno/modelos.h"
#include "diseno/salida.h"
#include "proyecto/proyecto.h"

namespace efv::orden {

namespace {

using estudio::CProyectoEstudio;

// A project with thousands of loads stays far below.
constexpr std::size_t kProyectoMaximo = std::size_t{64} << 20;
constexpr std::string_view kMarca = "EFV-PRY\x1A";

template <std::size_t N>
bool Contiene(const std::array<std::string_view, N>& nombres, std::string_view nombre)
{
    return std::ranges::find(nombres, nombre) != nombres.end();
}

std::unique_ptr<CProyectoEstudio> Abrir(std::string_view bytes)
{
    auto proyecto = std::make_unique<CProyectoEstudio>();
    try {
        CArchive ar(std::as_bytes(std::span(bytes)));
        proyecto->Serialize(ar);
    } catch (const CArchiveException&) {
        throw std::runtime_error("El proyecto está cortado: acaba antes de tiempo.");
    }
    return proyecto;
}

// The members of the record that a project file may give; of a sale without its years, which are results.
void PonerRegistro(JsonEscrito& json, const CObject& registro, bool bSinListas)
{
    const JsonEscrito valores = ValoresJson(CamposDeRegistro(registro));
    for (const auto& campo : valores.items()) {
        const bool bCalculado = Contiene(kCalculadosAislada, campo.key()) ||
                                Contiene(kCalculadosRed, campo.key()) ||
                                Contiene(kCalculadosVenta, campo.key());
        if (!bCalculado && !campo.value().is_null() && !(bSinListas && campo.value().is_array()))
            json[campo.key()] = campo.value();
    }
}

bool TieneDiseno(const CProyectoEstudio& proyecto, std::string_view tipo)
{
    if (tipo == "red")
        return !proyecto.red.csPanel.empty() && !proyecto.red.csInversor.empty();
    return !proyecto.aislada.csPanel.empty() && !proyecto.aislada.csAcumulador.empty();
}

// Those of its designs, for who lacks them.
void PonerModelos(JsonEscrito& json, const CProyectoEstudio& proyecto)
{
    const auto poner = [&](const auto& aceptada) {
        if (!aceptada)
            return;
        for (const estudio::ModeloGuardado& modelo : aceptada->modelos)
            if (JsonEscrito suyo = ModeloJson(modelo); !suyo.is_null())
                json["modelos"].push_back(std::move(suyo));
    };
    poner(proyecto.aceptadaAislada);
    poner(proyecto.aceptadaRed);
}

void PonerLugar(JsonEscrito& json, const CProyectoEstudio& proyecto)
{
    json["nombreLugar"] = CadenaUtf8(proyecto.lugar.csNombre);
    json["latitud"] = proyecto.lugar.dLatitud;
    json["hemisferio"] = proyecto.lugar.iHemisferio;
    json["radiacion"] = proyecto.lugar.adRadHorizontal;
}

void PonerCampo(JsonEscrito& json, const CProyectoEstudio& proyecto)
{
    json["temperaturaMinima"] = proyecto.celulas.dMinima;
    json["temperaturaMaxima"] = proyecto.celulas.dMaxima;
    if (!proyecto.situacion.csRegistro.empty())
        json["clima"] = CadenaUtf8(proyecto.situacion.csRegistro);
    for (const solar::PlanoCampo& plano : proyecto.planos) {
        json["planos"].push_back({{"inclinacion", plano.dInclinacion},
                                  {"orientacion", plano.dOrientacion},
                                  {"parte", plano.dParte}});
    }
}

void PonerCalculo(JsonEscrito& json, const CProyectoEstudio& proyecto, std::string_view tipo)
{
    const bool bRed = tipo == "red";
    const std::span<const char* const> tramos =
        bRed ? std::span<const char* const>(report::kTramosRed) : report::kTramosAislada;
    if (!proyecto.calculo.csCableado.empty()) {
        try {
            json["cableado"] = CableadoDe(CadenaUtf8(proyecto.calculo.csCableado), tramos);
        } catch (const rpc::ErrorValor&) {
            throw std::runtime_error("sus datos del cableado están dañados");
        }
    }
    if (bRed && proyecto.calculo.dRendimiento != estudio::Calculo().dRendimiento)
        json["rendimiento"] = proyecto.calculo.dRendimiento;
}

void ExigirDiseno(bool bHay, const char* que)
{
    if (!bHay)
        throw std::runtime_error(fmt::format("el proyecto no tiene {}", que));
}

void PonerVenta(JsonEscrito& json, const CProyectoEstudio& proyecto)
{
    const CSFVCalculoEconomico& venta = proyecto.economia.venta;
    PonerRegistro(json, venta, true);
    json.erase(venta.iTipoCoste == 0 ? "dCosteInstalacion" : "dRepercusion");
    if (venta.iTipoPrima == 1) {
        json.erase("dPrimaFija");
    } else {
        json.erase("dPrimaVariableA");
        json.erase("dPrimaVariableB");
    }
    const bool bEnergia = venta.dEnergiaBase > 0.0;
    // An energy of its own stands without a place, whose months it then has not.
    if (!bEnergia || std::ranges::any_of(proyecto.lugar.adRadHorizontal, [](double d) { return d > 0.0; })) {
        PonerLugar(json, proyecto);
        json["dInclinacion"] = proyecto.red.dInclinacion;
    }
    // Without one the sale takes that of the place and the plane.
    if (!bEnergia) {
        json.erase("dEnergiaBase");
        if (!(venta.dPotenciaGenerador > 0.0))
            json["dPotenciaGenerador"] = proyecto.red.dPotenciaObjetivo * 1000.0;
    }
}

JsonEscrito JsonDe(const CProyectoEstudio& proyecto, std::string_view tipo)
{
    if (tipo == "autoconsumo") {
        ExigirDiseno(!proyecto.economia.csGuiado.empty(), "estudio guiado de autoconsumo");
        try {
            return JsonEscrito::parse(CadenaUtf8(proyecto.economia.csGuiado));
        } catch (const JsonEscrito::exception&) {
            throw std::runtime_error("su estudio guiado está dañado");
        }
    }
    if (tipo == "consumo") {
        JsonEscrito json = {{"receptores", JsonEscrito::array()}};
        for (const auto& receptor : proyecto.consumo.lReceptores)
            json["receptores"].push_back(ValoresJson(CamposDeRegistro(std::as_const(*receptor))));
        PonerModelos(json, proyecto);
        return json;
    }
    JsonEscrito json = {{"tipo", tipo}, {"titulo", CadenaUtf8(proyecto.csNombre)}};
    const estudio::PortadaProyecto& portada = proyecto.portada;
    json["portada"] = {{"cliente", CadenaUtf8(portada.csCliente)},
                       {"direccion", CadenaUtf8(portada.csDireccion)},
                       {"autor", CadenaUtf8(portada.csAutor)},
                       {"firma", CadenaUtf8(portada.csFirma)},
                       {"revision", CadenaUtf8(portada.csRevision)}};
    if (tipo == "venta") {
        ExigirDiseno(
            proyecto.economia.venta.dPotenciaGenerador > 0.0 || proyecto.economia.venta.dEnergiaBase > 0.0,
            "estudio de venta a la red");
        PonerVenta(json, proyecto);
        return json;
    }
    if (tipo == "red") {
        ExigirDiseno(TieneDiseno(proyecto, tipo), "instalación conectada a red");
        PonerRegistro(json, proyecto.red, false);
    } else {
        ExigirDiseno(TieneDiseno(proyecto, tipo), "instalación aislada");
        PonerRegistro(json, proyecto.aislada, false);
    }
    PonerLugar(json, proyecto);
    PonerCampo(json, proyecto);
    PonerCalculo(json, proyecto, tipo);
    PonerModelos(json, proyecto);
    return json;
}

}  // namespace

JsonLeido LeerFicheroProyecto(const std::string& ruta, std::string_view tipo, std::string_view otro)
{
    const std::string bytes = LeerEntrada(ruta, kProyectoMaximo);
    if (!bytes.starts_with(kMarca)) {
        // Hours of use of many loads are long.
        if (bytes.size() > kJsonMaximo && tipo != "consumo")
            throw ErrorEjecucion(
                fmt::format("no se puede leer «{}»: pasa de {} MiB", ruta, kJsonMaximo >> 20U));
        return JsonDelFichero(ruta, bytes);
    }
    try {
        const auto proyecto = Abrir(bytes);
        ExigirDiseno(otro.empty() || TieneDiseno(*proyecto, tipo) || TieneDiseno(*proyecto, otro),
                     "ningún diseño");
        return JsonLeido::parse(
            JsonDe(*proyecto, otro.empty() || TieneDiseno(*proyecto, tipo) ? tipo : otro).dump());
    } catch (const std::runtime_error& error) {
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, error.what()));
    }
}

}  // namespace efv::orden
