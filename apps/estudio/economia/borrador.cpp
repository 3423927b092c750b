#include "economia/borrador.h"

#include <algorithm>
#include <array>
#include <iterator>

#include <quorvel/clima.h>

#include "clima/estudios.h"
#include "economia/horas.h"
#include "efv/autoconsumo/estudio_de_texto.h"
#include "informe/informe.h"

namespace efv::estudio {

namespace {

using rpc::Json;

constexpr double kCiento = 100.0, kMil = 1000.0;
constexpr auto kMiembrosDelLugar = std::to_array<const char*>(
    {"lugar", "latitud", "hemisferio", "radiacion", "longitud", "altitud", "huso", "planos", "clima"});

Json Nuevo()
{
    constexpr double kPrecio = Economia::kPrecioConsumo;
    return {{"tipo", "autoconsumo"},
            {"potencia", 4.0},
            {"rendimiento", kPerformanceRatio},
            {"consumo", Json::object()},
            {"precios",
             {{"tarifa", "2.0TD"},
              {"p1", kPrecio},
              {"p2", kPrecio},
              {"p3", kPrecio},
              {"excedente", Economia::kPrecioVertido}}},
            {"coste", {{"porKWp", kMil}}}};
}

/// A study loads its own climate record; afterwards the project's is there again.
class RegistroDelProyecto {
public:
    RegistroDelProyecto() = default;
    ~RegistroDelProyecto() { RecargarRegistro(); }
    RegistroDelProyecto(const RegistroDelProyecto&) = delete;
    RegistroDelProyecto& operator=(const RegistroDelProyecto&) = delete;
};

void PonerLugar(Json& json, const CProyectoEstudio& proyecto)
{
    const Lugar& lugar = proyecto.lugar;
    json["latitud"] = lugar.dLatitud;
    json["hemisferio"] = lugar.iHemisferio == 1 ? "N" : "S";
    json["radiacion"] = std::vector<double>(std::begin(lugar.adRadHorizontal), std::end(lugar.adRadHorizontal));
    json["longitud"] = proyecto.situacion.dLongitud;
    json["altitud"] = proyecto.situacion.dAltitud;
    if (clima::RegistroCargado())
        json["clima"] = CadenaUtf8(proyecto.situacion.csRegistro);
    if (proyecto.planos.empty())
        return;
    json.erase("inclinacion");
    json.erase("orientacion");
    Json& planos = json["planos"] = Json::array();
    for (const auto& plano : proyecto.planos) {
        planos.push_back({{"inclinacion", plano.dInclinacion},
                          {"orientacion", plano.dOrientacion},
                          {"parte", plano.dParte}});
    }
}

// The name that the years of the study had before.
void ActualizarNombres(Json& json)
{
    if (json.is_object() && json.contains("anos") && !json.contains("años")) {
        json["años"] = json["anos"];
        json.erase("anos");
    }
}

// The members that the pages write into are objects.
bool TieneForma(const Json& json)
{
    const auto esObjeto = [&json](const char* nombre) {
        return json.contains(nombre) && json[nombre].is_object();
    };
    return json.is_object() && esObjeto("consumo") && esObjeto("precios") && esObjeto("coste") &&
           (!json.contains("bateria") || esObjeto("bateria")) &&
           (!json.contains("prestamo") || esObjeto("prestamo"));
}

bool TieneOrigen(const Json& consumo)
{
    return std::ranges::any_of(std::to_array<const char*>({"fichero", "patron", "receptores", "horas"}),
                               [&](const char* nombre) { return consumo.contains(nombre); });
}

Json Completar(Json json, const CProyectoEstudio& proyecto)
{
    if (!json.contains("lugar") && !json.contains("latitud"))
        PonerLugar(json, proyecto);
    if (Json& consumo = json["consumo"]; !TieneOrigen(consumo)) {
        std::vector<double> adHoras = economics::AnoDeBloque(economics::BloqueHorario(ConsumoDe(proyecto)));
        for (double& d : adHoras)
            d *= kMil;
        consumo["horas"] = std::move(adHoras);
    }
    if (!json.contains("titulo"))
        json["titulo"] = CadenaUtf8(proyecto.csNombre);
    return json;
}

}  // namespace

BorradorAutoconsumo::BorradorAutoconsumo(const std::string& texto) : m_json(Json::parse(texto, nullptr, false))
{
    ActualizarNombres(m_json);
    if (!TieneForma(m_json))
        m_json = Nuevo();
}

bool BorradorAutoconsumo::Entiende(const std::string& texto)
{
    return texto.empty() || TieneForma(Json::parse(texto, nullptr, false));
}

double BorradorAutoconsumo::Numero(const std::string& ruta, double dSinEl) const
{
    const Json::json_pointer lugar(ruta);
    return m_json.contains(lugar) && m_json[lugar].is_number() ? m_json[lugar].get<double>() : dSinEl;
}

std::string BorradorAutoconsumo::Palabra(const std::string& ruta, const std::string& sinElla) const
{
    const Json::json_pointer lugar(ruta);
    return m_json.contains(lugar) && m_json[lugar].is_string() ? m_json[lugar].get<std::string>() : sinElla;
}

void BorradorAutoconsumo::Quitar(const std::string& objeto, const std::string& miembro)
{
    const Json::json_pointer lugar(objeto);
    if (m_json.contains(lugar) && m_json[lugar].is_object())
        m_json[lugar].erase(miembro);
}

void BorradorAutoconsumo::Usar(const char* miembro, bool bUsar)
{
    if (m_json.contains(miembro) == bUsar)
        return;
    Json& de = bUsar ? m_apartado : m_json;
    Json& a = bUsar ? m_json : m_apartado;
    a[miembro] = de.contains(miembro) ? de[miembro] : Json::object();
    de.erase(miembro);
}

void BorradorAutoconsumo::Abrir(const std::string& ruta)
{
    const RegistroDelProyecto despues;
    m_json = Json::parse(orden::TextoDeEstudio(ruta));
    ActualizarNombres(m_json);
    m_apartado = Json::object();
}

double BorradorAutoconsumo::Rendimiento() const
{
    if (!m_json.contains("perdidas"))
        return Numero("/rendimiento", kPerformanceRatio);
    double d = 1.0;
    for (const Json& perdida : m_json["perdidas"])
        d *= 1.0 - (perdida.is_number() ? perdida.get<double>() : 0.0) / kCiento;
    return d;
}

void BorradorAutoconsumo::TomarLugarDelProyecto()
{
    for (const char* miembro : kMiembrosDelLugar)
        m_json.erase(miembro);
}

std::string BorradorAutoconsumo::Completo(const CProyectoEstudio& proyecto) const
{
    return Completar(m_json, proyecto).dump(2);
}

ResultadoAutoconsumo BorradorAutoconsumo::Calcular(const CProyectoEstudio& proyecto,
                                                   std::span<const double> adPotencias) const
{
    const RegistroDelProyecto despues;
    ResultadoAutoconsumo r;
    r.proyecto = orden::ProyectoDeTexto(Completo(proyecto), {});
    r.estudio = report::Calcular(r.proyecto);
    r.avisos = report::Avisos(r.proyecto, r.estudio);
    if (!adPotencias.empty())
        r.barrido = report::Barrer(r.proyecto, adPotencias, {});
    return r;
}

report::Documento BorradorAutoconsumo::Documento(const CProyectoEstudio& proyecto,
                                                 std::span<const double> adPotencias) const
{
    const ResultadoAutoconsumo r = Calcular(proyecto, adPotencias);
    report::Documento documento = report::EscribirDocumento(r.proyecto, r.estudio, r.avisos, r.barrido);
    documento.portada = PortadaDe(proyecto).datos;
    return documento;
}

std::vector<std::string> BorradorAutoconsumo::LeerConsumo(const CProyectoEstudio& proyecto) const
{
    const RegistroDelProyecto despues;
    Json json = Nuevo();
    json["consumo"] = m_json.at("consumo");
    for (const char* miembro : kMiembrosDelLugar) {
        if (m_json.contains(miembro))
            json[miembro] = m_json[miembro];
    }
    const auto leido = orden::ProyectoDeTexto(Completar(std::move(json), proyecto).dump(), {});
    std::vector<std::string> lineas;
    for (const report::Dato& dato : leido.entradas) {
        // Without the member that says it, which no page shows.
        if (dato.rotulo == "Consumo")
            lineas.push_back(dato.valor.substr(0, dato.valor.rfind(" (")));
    }
    if (!TieneOrigen(m_json["consumo"]))
        lineas.insert(lineas.begin(), "Del proyecto, con los consumos que tiene ahora:");
    lineas.insert(lineas.end(), leido.notas.begin(), leido.notas.end());
    return lineas;
}

}  // namespace efv::estudio
