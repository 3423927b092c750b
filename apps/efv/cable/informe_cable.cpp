#include "cable/informe_cable.h"

#include <cmath>
#include <optional>
#include <utility>
#include <variant>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <quorvel/cables.h>
#include <quorvel/report/cableado.h>
#include <quorvel/report/documento.h>

#include "comun/csv.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;
using Valor = std::variant<std::monostate, bool, int, double, std::string>;
using Valores = std::vector<std::pair<const char*, Valor>>;

std::string Nombre(const wchar_t* (*nombrar)(int, CString&), int i)
{
    CString csNombre;
    nombrar(i, csNombre);
    return CadenaUtf8(csNombre);
}

// Nothing for what isn't known.
Valor Si(bool bSabido, double d)
{
    return bSabido && std::isfinite(d) ? Valor(d) : Valor();
}

// ---------------------------------------------------------------------------------------------------
// JSON and CSV: the same figures
// ---------------------------------------------------------------------------------------------------

Valores ValoresDe(const TramoEscrito& e)
{
    const auto& t = e.tramo;
    const auto& c = e.calculo;
    const bool bLargo = e.pedido.dLongitud.has_value(), bSeccion = c.dSeccion > 0.0;
    Valores valores;
    if (e.iLinea > 0)
        valores.emplace_back("linea", e.iLinea);
    valores.insert(valores.end(), {{"referencia", e.pedido.referencia},
                                   {"longitud_m", Si(bLargo, t.dLongitud)},
                                   {"corriente_A", t.dCorriente},
                                   {"tension_V", Si(e.pedido.dTension.has_value(), t.dTension)},
                                   {"cosfi", t.dCosFi},
                                   {"trifasico", t.bTrifasico},
                                   {"metodo", Nombre(phGetCsTipoInstalacion, t.iMetodo)},
                                   {"material", Nombre(phGetCsTipoMatCable, t.iMaterial)},
                                   {"aislante", Nombre(phGetCsTipoAislante, t.iAislante)},
                                   {"conductores", t.iConductoresFase},
                                   {"margen_pct", t.dMargen},
                                   {"limite_pct", t.dLimiteCaida},
                                   {"temperatura_C", c.dTemperatura},
                                   {"temperatura_conductor_C", c.dTemperaturaConductor},
                                   {"conductividad_m_ohm_mm2", c.dConductividad},
                                   {"factor_temperatura", c.dFactor},
                                   {"corriente_calculo_A", c.dCorrienteCalculo},
                                   {"seccion_por_corriente_mm2", Si(c.dPorCorriente > 0.0, c.dPorCorriente)},
                                   {"seccion_minima_por_caida_mm2", Si(bLargo, c.dMinimaPorCaida)},
                                   {"seccion_por_caida_mm2", Si(bLargo && c.dPorCaida > 0.0, c.dPorCaida)},
                                   {"seccion_mm2", Si(bSeccion, c.dSeccion)},
                                   {"corriente_admisible_A", Si(c.dAdmisible > 0.0, c.dAdmisible)},
                                   {"corriente_reserva_A", Si(c.dAdmisible > 0.0, c.dReserva)},
                                   {"caida_V", Si(bLargo && bSeccion, c.dCaida)},
                                   {"caida_pct", Si(bLargo && bSeccion, c.dCaidaPct)},
                                   {"cumple", c.Cumple()},
                                   {"motivo", Motivo(e)}});
    return valores;
}

Json ComoJson(const Valores& valores)
{
    Json json = Json::object();
    for (const auto& [nombre, valor] : valores) {
        json[nombre] = std::visit(
            [](const auto& v) {
                if constexpr (std::is_same_v<std::decay_t<decltype(v)>, std::monostate>)
                    return Json();
                else
                    return Json(v);
            },
            valor);
    }
    return json;
}

std::string Texto(const Json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

// As spreadsheets read it: a text that looks like a formula is kept from being one.
std::string CeldaCsv(const Valor& valor)
{
    struct Escritor {
        std::string operator()(std::monostate) const { return {}; }
        std::string operator()(bool b) const { return b ? "sí" : "no"; }
        std::string operator()(int i) const { return std::to_string(i); }
        std::string operator()(double d) const { return DecimalExacto(d); }
        std::string operator()(const std::string& texto) const { return EntreComillasCsv(texto); }
    };
    return std::visit(Escritor{}, valor);
}

std::string LineaCsv(const Valores& valores, bool bNombres)
{
    std::string linea;
    for (const auto& [nombre, valor] : valores) {
        if (!linea.empty())
            linea += ';';
        linea += bNombres ? std::string(nombre) : CeldaCsv(valor);
    }
    return linea + "\r\n";
}

// ---------------------------------------------------------------------------------------------------
// Text
// ---------------------------------------------------------------------------------------------------

std::string Grados(double d)
{
    return report::Con(d, d == std::trunc(d) ? 0 : 1, "ºC");
}

std::string Amperios(double d)
{
    return report::Con(d, 2, "A");
}

std::string Caida(const TramoEscrito& e)
{
    if (!e.pedido.dLongitud || e.calculo.dSeccion <= 0.0)
        return "—";
    return fmt::format("{} ({})", report::Con(e.calculo.dCaida, 2, "V"),
                       report::Con(e.calculo.dCaidaPct, 2, "%"));
}

std::string DeTabla(const electrical::TramoCable& t)
{
    return fmt::format("{} · {} · {} · {} conductores cargados", Nombre(phGetCsTipoInstalacion, t.iMetodo),
                       Nombre(phGetCsTipoMatCable, t.iMaterial), Nombre(phGetCsTipoAislante, t.iAislante),
                       t.bTrifasico ? 3 : 2);
}

std::string TramoTexto(const TramoEscrito& e)
{
    const auto& t = e.tramo;
    const auto& c = e.calculo;
    const bool bLargo = e.pedido.dLongitud.has_value();
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({izquierda, izquierda});
    const auto fila = [&](const char* rotulo, std::string valor) { tabla.Fila({rotulo, std::move(valor)}); };
    fila("Instalación", DeTabla(t));
    fila("Temperatura", fmt::format("{} (factor {})", Grados(c.dTemperatura), Decimal(c.dFactor, 3)));
    fila("Conductividad", fmt::format("{} m/(Ω·mm²), conductor a {}", Decimal(c.dConductividad, 2),
                                      Grados(c.dTemperaturaConductor)));
    fila("Tramo",
         fmt::format("{}, {}, cos φ {}", bLargo ? report::Con(t.dLongitud, 2, "m") : "longitud —",
                     e.pedido.dTension ? report::Con(t.dTension, 1, "V") : "tensión —", Decimal(t.dCosFi, 2)));
    fila("Corriente", Amperios(t.dCorriente));
    fila("Corriente de cálculo",
         fmt::format("{} por conductor (margen {}, {} por fase)", Amperios(c.dCorrienteCalculo),
                     report::Con(t.dMargen, 1, "%"), t.iConductoresFase));
    tabla.Raya();
    fila("Sección por calentamiento", report::TextoSeccion(c.dPorCorriente, t.iConductoresFase));
    fila("Sección por caída",
         bLargo
             ? fmt::format("{} (mínima {}, límite {})", report::TextoSeccion(c.dPorCaida, t.iConductoresFase),
                           report::Con(c.dMinimaPorCaida, 2, "mm²"), report::Con(t.dLimiteCaida, 2, "%"))
             : "—");
    fila(t.dSeccion ? "Sección que se comprueba" : "Sección en vigor",
         report::TextoSeccion(c.dSeccion, t.iConductoresFase));
    fila("Caída de tensión", Caida(e));
    fila("Corriente admisible", c.dAdmisible > 0.0 ? Amperios(c.dAdmisible) : "—");
    fila("Corriente de reserva", c.dAdmisible > 0.0 ? Amperios(c.dReserva) : "—");
    std::string texto = tabla.Texto();
    if (const std::string motivo = Motivo(e); !motivo.empty())
        texto += report::EnRojo(Prosa(fmt::format("\n{}: {}.\n", report::kNoCumple, motivo)), Forma().bColor);
    return Prosa(texto);
}

std::string ListaTexto(const std::vector<TramoEscrito>& tramos)
{
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({derecha, izquierda, derecha, derecha, derecha, derecha, derecha, derecha, izquierda});
    // Without lines of a file they are the same stretch of several materials.
    const bool bFichero = tramos.empty() || tramos.front().iLinea > 0;
    tabla.Fila({bFichero ? "Línea" : "", bFichero ? "Referencia" : "Material", "I (A)", "Por I (mm²)",
                "Por caída (mm²)", "Sección (mm²)", "Caída (V, %)", "Reserva (A)", ""});
    tabla.Raya();
    for (const TramoEscrito& e : tramos) {
        const std::string linea = bFichero ? std::to_string(e.iLinea) : "",
                          referencia = EnUnaLinea(e.pedido.referencia);
        const auto& c = e.calculo;
        const int n = e.tramo.iConductoresFase;
        if (!e.error.empty()) {
            tabla.Fila({linea, referencia, "—", "—", "—", "—", "—", "—", "ERROR: " + EnUnaLinea(e.error)},
                       true);
        } else {
            tabla.Fila(
                {linea, referencia, Decimal(e.tramo.dCorriente, 2), report::TextoSeccion(c.dPorCorriente, n),
                 e.pedido.dLongitud ? report::TextoSeccion(c.dPorCaida, n) : "—",
                 report::TextoSeccion(c.dSeccion, n), Caida(e),
                 c.dAdmisible > 0.0 ? Decimal(c.dReserva, 2) : "—",
                 c.Cumple() ? "" : fmt::format("{}: {}", report::kNoCumple, Motivo(e))},
                !c.Cumple());
        }
    }
    return tabla.Texto();
}

std::string ListaJson(const std::vector<TramoEscrito>& tramos)
{
    Json buenos = Json::array(), errores = Json::array();
    for (const TramoEscrito& e : tramos) {
        if (e.error.empty())
            buenos.push_back(ComoJson(ValoresDe(e)));
        else
            errores.push_back({{"linea", e.iLinea}, {"referencia", e.pedido.referencia}, {"motivo", e.error}});
    }
    return Texto({{"tramos", std::move(buenos)}, {"errores", std::move(errores)}});
}

std::string ListaCsv(const std::vector<TramoEscrito>& tramos)
{
    std::string csv = LineaCsv(ValoresDe({.iLinea = tramos.empty() ? 1 : tramos.front().iLinea}), true);
    for (const TramoEscrito& e : tramos) {
        Valores valores = ValoresDe(e);
        if (!e.error.empty()) {
            for (auto& [nombre, valor] : valores)
                if (std::string_view(nombre) != "linea" && std::string_view(nombre) != "referencia")
                    valor = {};
            valores.back().second = e.error;
        }
        csv += LineaCsv(valores, false);
    }
    return csv;
}

}  // namespace

std::string Motivo(const TramoEscrito& tramo)
{
    return tramo.error.empty() ? report::MotivoDe(tramo.tramo, tramo.calculo) : std::string();
}

nlohmann::ordered_json TramoJson(const TramoEscrito& tramo)
{
    return ComoJson(ValoresDe(tramo));
}

std::string EscribirTramo(const TramoEscrito& tramo, FormatoCable formato)
{
    if (formato == FormatoCable::texto)
        return TramoTexto(tramo);
    const Valores valores = ValoresDe(tramo);
    return formato == FormatoCable::json ? Texto(ComoJson(valores))
                                         : LineaCsv(valores, true) + LineaCsv(valores, false);
}

std::string EscribirLista(const std::vector<TramoEscrito>& tramos, FormatoCable formato)
{
    return formato == FormatoCable::texto  ? ListaTexto(tramos)
           : formato == FormatoCable::json ? ListaJson(tramos)
                                           : ListaCsv(tramos);
}

std::string EscribirTabla(const electrical::TramoCable& tramo, FormatoCable formato)
{
    const auto filas = electrical::CorrientesPorSeccion(tramo);
    const electrical::TramoCalculado calculo = electrical::Dimensionar(tramo);
    Json json = Json::array();
    std::string csv;
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({derecha, derecha, derecha});
    tabla.Fila({"Sección (mm²)", "Tabla (A)", "Corregida (A)"});
    tabla.Raya();
    for (const auto& fila : filas) {
        const bool bHay = fila.dTabla > 0.0, bCorregida = bHay && fila.dCorregida > 0.0;
        const Valores valores = {{"seccion_mm2", fila.dSeccion},
                                 {"corriente_tabla_A", Si(bHay, fila.dTabla)},
                                 {"corriente_corregida_A", Si(bCorregida, fila.dCorregida)}};
        json.push_back(ComoJson(valores));
        csv += (csv.empty() ? LineaCsv(valores, true) : "") + LineaCsv(valores, false);
        tabla.Fila({DecimalExacto(fila.dSeccion), bHay ? Decimal(fila.dTabla, 1) : "—",
                    bCorregida ? Decimal(fila.dCorregida, 2) : "—"});
    }
    if (formato == FormatoCable::csv)
        return csv;
    if (formato == FormatoCable::json) {
        return Texto({{"metodo", Nombre(phGetCsTipoInstalacion, tramo.iMetodo)},
                      {"material", Nombre(phGetCsTipoMatCable, tramo.iMaterial)},
                      {"aislante", Nombre(phGetCsTipoAislante, tramo.iAislante)},
                      {"trifasico", tramo.bTrifasico},
                      {"temperatura_C", calculo.dTemperatura},
                      {"factor_temperatura", calculo.dFactor},
                      {"corrientes", std::move(json)}});
    }
    return Prosa(fmt::format("{}\n{} (factor {}); la tabla es para 30 ºC de aire y 20 ºC de suelo.\n\n{}",
                             DeTabla(tramo), Grados(calculo.dTemperatura), Decimal(calculo.dFactor, 3),
                             tabla.Texto()));
}

}  // namespace efv::orden
