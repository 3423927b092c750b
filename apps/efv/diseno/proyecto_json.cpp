#include "diseno/proyecto_json.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include <quorvel/consumption/receptor_modelo.h>

#include "autoconsumo/estudio_de_texto.h"
#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"
#include "diseno/cableado.h"
#include "diseno/diseno.h"
#include "diseno/modelos.h"
#include "diseno/proyecto.h"
#include "diseno/receptores.h"
#include "rpc/valores.h"

namespace efv::orden {

namespace {

namespace fs = std::filesystem;
using estudio::CProyectoEstudio;

// A member that only one kind of file has tells it, where it doesn't say itself.
struct Senal {
    const char* miembro;
    std::string_view tipo;
};
constexpr auto kSenales = std::to_array<Senal>({{"csAcumulador", "aislada"},
                                                {"receptores", "aislada"},
                                                {"csInversor", "red"},
                                                {"dPotenciaObjetivo", "red"},
                                                {"potencia", "autoconsumo"},
                                                {"precios", "autoconsumo"},
                                                {"dPotenciaGenerador", "venta"},
                                                {"dEnergiaBase", "venta"}});

std::string TipoDe(const JsonLeido& json)
{
    static const std::vector<std::string> kTipos = {"aislada", "red", "venta", "autoconsumo"};
    if (!json.is_object())
        rpc::Esperaba("un objeto", json);
    if (json.contains("tipo") && json["tipo"].is_string()) {
        const auto& tipo = json["tipo"].get_ref<const std::string&>();
        if (std::ranges::find(kTipos, tipo) == kTipos.end())
            throw rpc::ErrorValor(fmt::format("tipo: no hay ningún tipo «{}»{}",
                                              EnUnaLinea(tipo.substr(0, rpc::kCitaMaxima)),
                                              Parecidos(kTipos, tipo)));
        return tipo;
    }
    for (const auto& [miembro, tipo] : kSenales)
        if (json.contains(miembro))
            return std::string(tipo);
    throw rpc::ErrorValor("no es un proyecto: falta «tipo», que es aislada, red, venta o autoconsumo");
}

// A climate record is found from the working folder, as the command does, or else beside the file that names
// it.
void NombrarClimaEntero(JsonLeido& json, const std::string& ruta)
{
    if (!json.contains("clima") || !json["clima"].is_string())
        return;
    const fs::path clima = json["clima"].get<std::string>();
    const fs::path junto = fs::path(ruta).parent_path() / clima;
    std::error_code fallo;
    if (!clima.empty())
        json["clima"] =
            fs::absolute(fs::exists(clima, fallo) || !fs::exists(junto, fallo) ? clima : junto).string();
}

void TomarLugar(const report::LugarDiseno& lugar, CProyectoEstudio& proyecto)
{
    if (lugar.localidad) {
        proyecto.lugar = estudio::LugarDe(*lugar.localidad);
        proyecto.situacion = estudio::SituacionDe(*lugar.localidad);
        return;
    }
    if (!lugar.nombre.empty())
        proyecto.lugar.csNombre = CadenaDesdeUtf8(lugar.nombre);
    proyecto.lugar.dLatitud = lugar.dLatitud;
    proyecto.lugar.iHemisferio = lugar.Hemisferio();
    if (lugar.adRadiacion)
        std::ranges::copy(*lugar.adRadiacion, proyecto.lugar.adRadHorizontal);
}

// What every kind of file says alike. All has been read once, and fits.
void TomarComun(const JsonLeido& json, const std::string& tipo, const std::string& csDatos,
                CProyectoEstudio& proyecto)
{
    Objeto objeto(json);
    std::string titulo;
    LeerCabecera(objeto, tipo, titulo);
    if (!titulo.empty())
        proyecto.csNombre = CadenaDesdeUtf8(titulo);
    const report::DatosPortada portada = LeerPortada(objeto);
    proyecto.portada = {CadenaDesdeUtf8(portada.cliente), CadenaDesdeUtf8(portada.direccion),
                        CadenaDesdeUtf8(portada.autor), CadenaDesdeUtf8(portada.firma),
                        CadenaDesdeUtf8(portada.revision)};
    if (json.contains("lugar") || json.contains("latitud"))
        TomarLugar(LeerLugar(objeto, csDatos, false), proyecto);
    // A guided study keeps its own.
    if (json.contains("clima") && tipo != "autoconsumo")
        proyecto.situacion.csRegistro = CadenaDesdeUtf8(json["clima"].get<std::string>());
}

void TomarCampo(const JsonLeido& json, CProyectoEstudio& proyecto)
{
    Objeto objeto(json);
    const report::TemperaturasCelulas temperaturas = LeerTemperaturas(objeto);
    proyecto.celulas = {temperaturas.Minima(), temperaturas.Maxima()};
    proyecto.planos = LeerPlanos(objeto).planos;
    if (proyecto.planos.size() > estudio::kPlanosMaximo)
        throw rpc::ErrorValor(fmt::format("planos: son {} y en un proyecto caben {}", proyecto.planos.size(),
                                          estudio::kPlanosMaximo));
}

void TomarRegistro(const Diseno& diseno, CObject& registro)
{
    CArchive ar(std::span<const std::byte>(diseno.archivo));
    registro.Serialize(ar);
}

// What the calculation of a design takes besides the record.
void TomarCalculo(const JsonLeido& json, CProyectoEstudio& proyecto)
{
    if (json.contains("cableado"))
        proyecto.calculo.csCableado = CadenaDesdeUtf8(json["cableado"].dump());
    if (json.contains("rendimiento"))
        proyecto.calculo.dRendimiento = json["rendimiento"].get<double>();
}

// ---------------------------------------------------------------------------------------------------
// Kinds
// ---------------------------------------------------------------------------------------------------

// A load that no catalogue has becomes a model of the project.
estudio::ModeloGuardado ModeloDelReceptor(CSFVDataReceptor& receptor)
{
    const TipoCatalogo& tipo = *BuscarTipoCatalogo("receptores");
    CBaseReceptorModelo modelo;
    modelo.csFamilia = kFamiliaPropia;
    modelo.csModelo = receptor.csModelo;
    consumption::PorPares(receptor, modelo,
                          [](const auto& delReceptor, auto& delModelo) { delModelo = delReceptor; });
    receptor.csFabricante = kFamiliaPropia;
    receptor.csModelo = Identificacion(modelo);
    return estudio::Guardado(tipo, modelo);
}

void TomarAislada(const JsonLeido& json, const std::string& csDatos, ProyectoDeJson& leido)
{
    CProyectoEstudio& proyecto = *leido.proyecto;
    Diseno diseno = DisenarAislada(json, csDatos);
    TomarRegistro(diseno, proyecto.aislada);
    const CatalogoDatos catalogo("receptores", csDatos, diseno.modelos);
    for (std::ptrdiff_t i = 0; i < diseno.receptores.GetSize(); ++i) {
        CSFVDataReceptor& receptor = diseno.receptores[i];
        const std::string id = CadenaUtf8(receptor.csModelo);
        if (!catalogo.Tiene(id)) {
            diseno.modelos.push_back(ModeloDelReceptor(receptor));
            proyecto.aislada.acsModelo[i] = receptor.csModelo;
            continue;
        }
        const double dCatalogo = dynamic_cast<const CBaseReceptorModelo&>(catalogo.Buscar(id)).dP;
        if (receptor.dPotencia != dCatalogo) {
            leido.notas.push_back(
                fmt::format("{}: el diseño se hizo con {}; al rehacerlo cuenta la del catálogo, {}.", id,
                            report::Con(receptor.dPotencia, 1, "W"), report::Con(dCatalogo, 1, "W")));
        }
    }
    proyecto.consumo.lReceptores = std::move(diseno.receptores);
    proyecto.consumo.iTipoEntrada = 1;
    proyecto.aceptadaAislada.emplace().modelos = std::move(diseno.modelos);
    TomarCampo(json, proyecto);
    TomarCalculo(json, proyecto);
}

void TomarRed(const JsonLeido& json, const std::string& csDatos, ProyectoDeJson& leido)
{
    Diseno diseno = DisenarRed(json, csDatos);
    TomarRegistro(diseno, leido.proyecto->red);
    leido.proyecto->aceptadaRed.emplace().modelos = std::move(diseno.modelos);
    TomarCampo(json, *leido.proyecto);
    TomarCalculo(json, *leido.proyecto);
}

void TomarVenta(const JsonLeido& json, const std::string& csDatos, ProyectoDeJson& leido)
{
    CProyectoEstudio& proyecto = *leido.proyecto;
    TomarRegistro(EstudiarVenta(json, csDatos), proyecto.economia.venta);
    proyecto.red.dInclinacion = json.contains("dInclinacion") ? json["dInclinacion"].get<double>()
                                                              : report::ProyectoVenta().Inclinacion();
    if (proyecto.economia.venta.dPotenciaGenerador > 0.0)
        proyecto.red.dPotenciaObjetivo = proyecto.economia.venta.dPotenciaGenerador / 1000.0;
}

void TomarAutoconsumo(const std::string& ruta, ProyectoDeJson& leido)
{
    leido.proyecto->economia.csGuiado = CadenaDesdeUtf8(TextoDeEstudio(ruta));
    leido.notas.emplace_back("El estudio está en «Economía → Autoconsumo guiado…».");
}

}  // namespace

report::CriteriosCableado CriteriosDe(const CProyectoEstudio& proyecto)
{
    return CriteriosDeTexto(CadenaUtf8(proyecto.calculo.csCableado));
}

ProyectoDeJson AbrirProyectoJson(const std::string& ruta, const std::string& csDatos)
{
    JsonLeido json = LeerFicheroJson(ruta);
    ProyectoDeJson leido{std::make_unique<CProyectoEstudio>(), {}};
    try {
        const std::string tipo = TipoDe(json);
        if (tipo == "autoconsumo") {
            TomarAutoconsumo(ruta, leido);
        } else {
            NombrarClimaEntero(json, ruta);
            if (tipo == "aislada")
                TomarAislada(json, csDatos, leido);
            else if (tipo == "red")
                TomarRed(json, csDatos, leido);
            else
                TomarVenta(json, csDatos, leido);
        }
        TomarComun(json, tipo, csDatos, *leido.proyecto);
    } catch (const rpc::ErrorValor& error) {
        throw ErrorEjecucion(fmt::format("«{}»: {}", ruta, error.what()));
    }
    return leido;
}

}  // namespace efv::orden
