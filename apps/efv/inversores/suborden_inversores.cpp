#include "inversores/suborden_inversores.h"

#include <algorithm>
#include <optional>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <CLI/CLI.hpp>

#include "catalogo/ficha.h"
#include "catalogo/pregunta.h"
#include "comun/csv.h"
#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/palabras.h"
#include "diseno/salida.h"
#include "inversores/busqueda.h"

namespace efv::orden {

namespace {

constexpr std::size_t kEnTabla = 20;  // rows unless another number is asked for

constexpr const char* kPie =
    "Vale el inversor de conexión a red en que los paneles, repartidos en ramales iguales, cumplen a las\n"
    "temperaturas extremas cada límite que dan los catálogos (los de la comprobación de «efv red») y cuya\n"
    "potencia está en la relación pedida. Primero los que menos inversores piden; de ellos, los que cargan "
    "por\n"
    "igual sus seguidores, y de estos los de potencia más cercana a la de los paneles.\n"
    "Ejemplos:\n"
    "  efv inversores --panel ET-M660285WW --paneles 12\n"
    "  efv inversores --panel ET-M660285WW --paneles 30 --inversores 2 --donde iTipoSalida=1\n"
    "  efv inversores --panel ET-M660285WW --paneles 12 --todos SMA";

struct Resultado {
    PanelesPedidos pedido;
    std::vector<InversorEnsayado> valen, noValen;
};

std::string Id(const CModelo& modelo)
{
    return CadenaUtf8(Identificacion(modelo));
}

std::string PorSeguidor(const InversorEnsayado& e, const char* separador)
{
    return fmt::format("{}", fmt::join(e.aiPorSeguidor, separador));
}

// ---------------------------------------------------------------------------------------------------
// Text
// ---------------------------------------------------------------------------------------------------

std::string Cabecera(const PanelesPedidos& p)
{
    const auto temperatura = [](double d, const std::optional<double>& dada) {
        return fmt::format("{} ºC{}", DecimalExacto(d), dada ? "" : " (valor por defecto)");
    };
    return fmt::format(
        "Inversores para {} paneles {}, {} kWp\n"
        "Temperatura de las células: mínima {}, máxima {}\n"
        "Potencia de los paneles / nominal de los inversores (CC/CA): {} a {}; hasta {} inversores iguales\n\n",
        p.iPaneles, EnTerminal(Identificacion(*p.panel)), Decimal(p.Potencia() / 1000.0, 3),
        temperatura(p.temperaturas.Minima(), p.temperaturas.dMinima),
        temperatura(p.temperaturas.Maxima(), p.temperaturas.dMaxima), Decimal(p.dRatioMinimo, 2),
        Decimal(p.dRatioMaximo, 2), p.iInversoresMaximos);
}

std::string TablaDeValidos(const std::vector<InversorEnsayado>& valen, std::size_t nFilas)
{
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({izquierda, derecha, izquierda, derecha, derecha, derecha, derecha, derecha});
    tabla.Fila({"Inversor", "Nominal (kW)", "Salida", "Inversores", "Paneles en serie", "Ramales",
                "Por seguidor", "CC/CA"});
    tabla.Raya();
    for (std::size_t i = 0; i < nFilas; ++i) {
        const InversorEnsayado& e = valen[i];
        tabla.Fila({EnTerminal(Identificacion(*e.inversor)), Decimal(e.inversor->dPCANom / 1000.0, 2),
                    e.inversor->iTipoSalida == 0 ? "monofásica" : "trifásica",
                    std::to_string(e.reparto.iInversores), std::to_string(e.reparto.iPanelesSerie),
                    std::to_string(e.reparto.iRamales), PorSeguidor(e, " + "),
                    Decimal(e.reparto.comprobacion.dRatioCCCA, 2)});
    }
    return tabla.Texto();
}

std::string TablaDeRechazados(const std::vector<InversorEnsayado>& noValen)
{
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({izquierda, izquierda});
    tabla.Fila({"Inversor que no vale", "Por qué"});
    tabla.Raya();
    for (const InversorEnsayado& e : noValen)
        tabla.Fila({EnTerminal(Identificacion(*e.inversor)), e.motivo});
    return tabla.Texto();
}

std::string InformeTexto(const Resultado& r, std::size_t nMaximo, bool bTodos)
{
    const std::size_t nFilas = std::min(r.valen.size(), nMaximo);
    const std::size_t nTodos = r.valen.size() + r.noValen.size();
    std::string texto = Cabecera(r.pedido);
    if (!r.valen.empty())
        texto += TablaDeValidos(r.valen, nFilas) + '\n';
    texto += fmt::format("Valen {} de {}{}.\n", r.valen.size(), nTodos,
                         nFilas < r.valen.size()
                             ? fmt::format("; se ven los {} primeros (--maximo {})", nFilas, r.valen.size())
                             : "");
    if (bTodos && !r.noValen.empty())
        texto += '\n' + TablaDeRechazados(r.noValen);
    else if (!r.noValen.empty())
        texto += Nota("· Por qué no valen los demás: --todos.\n");
    if (!r.valen.empty()) {
        const InversorEnsayado& e = r.valen.front();
        texto += Nota(fmt::format(
            "· Para diseñar con el primero («efv red»): \"csInversor\": \"{}\", \"iInversores\": {}, "
            "\"iPanelesSerie\": {}, \"iPanelesParalelo\": {}.\n",
            EnTerminal(Identificacion(*e.inversor)), e.reparto.iInversores, e.reparto.iPanelesSerie,
            e.reparto.iRamales));
        texto += Nota(
            "· Serie y ramales son de cada inversor. Un límite que el catálogo no da queda sin comprobar; «efv "
            "red» los da todos.\n");
    }
    return Prosa(texto);
}

// ---------------------------------------------------------------------------------------------------
// JSON and CSV
// ---------------------------------------------------------------------------------------------------

int Fases(const CBaseInversorModelo& inversor)
{
    return inversor.iTipoSalida == 0 ? 1 : 3;
}

std::string InformeJson(const Resultado& r, bool bTodos)
{
    const PanelesPedidos& p = r.pedido;
    JsonEscrito valen = JsonEscrito::array();
    for (const InversorEnsayado& e : r.valen) {
        valen.push_back({{"csInversor", Id(*e.inversor)},
                         {"potencia_nominal_W", e.inversor->dPCANom},
                         {"fases", Fases(*e.inversor)},
                         {"inversores", e.reparto.iInversores},
                         {"paneles_serie", e.reparto.iPanelesSerie},
                         {"ramales", e.reparto.iRamales},
                         {"ramales_por_seguidor", e.aiPorSeguidor},
                         {"comprobacion", ConRatio(p.temperaturas, e.reparto.comprobacion)}});
    }
    JsonEscrito json = {{"csPanel", Id(*p.panel)},
                        {"paneles", p.iPaneles},
                        {"potencia_kWp", p.Potencia() / 1000.0},
                        {"ratio_cc_ca_minimo", p.dRatioMinimo},
                        {"ratio_cc_ca_maximo", p.dRatioMaximo},
                        {"inversores_maximos", p.iInversoresMaximos},
                        {"valen", std::move(valen)}};
    if (bTodos) {
        JsonEscrito& noValen = json["no_valen"] = JsonEscrito::array();
        for (const InversorEnsayado& e : r.noValen)
            noValen.push_back({{"csInversor", Id(*e.inversor)}, {"motivo", e.motivo}});
    }
    return json.dump(2, ' ', false, JsonEscrito::error_handler_t::replace) + '\n';
}

std::string InformeCsv(const Resultado& r, bool bTodos)
{
    std::string texto =
        "csInversor;potencia_nominal_W;fases;inversores;paneles_serie;ramales;ramales_por_seguidor;"
        "ratio_cc_ca;motivo\n";
    for (const InversorEnsayado& e : r.valen) {
        texto += fmt::format("{};{};{};{};{};{};{};{};\n", TextoCsv(Id(*e.inversor)),
                             DecimalExacto(e.inversor->dPCANom), Fases(*e.inversor), e.reparto.iInversores,
                             e.reparto.iPanelesSerie, e.reparto.iRamales, PorSeguidor(e, " + "),
                             DecimalExacto(e.reparto.comprobacion.dRatioCCCA));
    }
    if (bTodos) {
        for (const InversorEnsayado& e : r.noValen)
            texto += fmt::format("{};{};{};;;;;;{}\n", TextoCsv(Id(*e.inversor)),
                                 DecimalExacto(e.inversor->dPCANom), Fases(*e.inversor), TextoCsv(e.motivo));
    }
    return texto;
}

class SubordenInversores final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand(
            "inversores", "Inversores del catálogo que convienen a unos paneles, y cómo van los ramales");
        Castellanizar(linea);
        linea.add_option("TEXTO", m_palabras, "Solo los inversores con estas palabras en su familia o modelo")
            ->option_text(" ");
        linea.add_option("--panel", m_panel, "Módulo: FAMILIA#MODELO, o el modelo solo")->type_name("ID");
        linea.add_option("--paneles", m_paneles, "Cuántos paneles")->type_name("NUMERO");
        linea
            .add_option("--inversores", m_inversores,
                        "Cuántos inversores iguales como mucho, entre los que se reparten; si falta, 3")
            ->type_name("NUMERO");
        linea
            .add_option("--ratio", m_ratio,
                        "Potencia de los paneles entre la nominal de los inversores; si falta, 0,8..1,35")
            ->type_name("MIN..MAX");
        linea
            .add_option("--temperatura-minima", m_minima,
                        "De las células, ºC, para las tensiones en frío; si falta, -10")
            ->type_name("GRADOS");
        linea.add_option("--temperatura-maxima", m_maxima, "De las células, ºC, en calor; si falta, 70")
            ->type_name("GRADOS");
        m_pregunta.DeclararCondiciones(linea, "'dPCANom<=5000' o 'iTipoSalida=1'");
        linea.add_option("--maximo", m_maximo, "Filas de la tabla; si falta, 20")->type_name("NUMERO");
        linea.add_flag("--todos", m_bTodos, "También los que no valen, y por qué")
            ->option_text(" ")
            ->disable_flag_override();
        DeclararSalidas(linea, m_bJson, m_bCsv);
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer(kPie);
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (!m_panel || !m_paneles)
            throw ErrorUso(fmt::format("falta {} (ayuda: efv inversores --help)",
                                       m_panel ? "--paneles NUMERO" : "--panel MODELO"));
        const std::size_t nMaximo =
            m_maximo ? static_cast<std::size_t>(LeerEntero("--maximo", *m_maximo, 1, 1000000)) : kEnTabla;
        Resultado r;
        LeerPedido(r.pedido);
        const CatalogoAbierto paneles = AbrirCatalogo("modulos", m_datos);
        const CatalogoAbierto inversores = AbrirCatalogo("inversores", m_datos);
        r.pedido.panel = &dynamic_cast<const CBasePanelFotoModelo&>(paneles.Buscar(*m_panel));
        for (InversorEnsayado& e : EnsayarInversores(r.pedido, m_pregunta.Buscar(inversores, m_palabras)))
            (e.Vale() ? r.valen : r.noValen).push_back(std::move(e));
        salida << (m_bJson  ? InformeJson(r, m_bTodos)
                   : m_bCsv ? InformeCsv(r, m_bTodos)
                            : InformeTexto(r, nMaximo, m_bTodos))
               << std::flush;
        if (r.valen.empty()) {
            throw ErrorEjecucion(fmt::format(
                "ningún inversor vale para {} paneles en ramales iguales{}: pruebe otro número, --ratio o "
                "--inversores",
                r.pedido.iPaneles, m_bTodos ? "" : " (por qué: --todos)"));
        }
        return 0;
    }

private:
    void LeerPedido(PanelesPedidos& pedido) const
    {
        pedido.iPaneles = LeerEntero("--paneles", *m_paneles, 1, 100000);
        pedido.iInversoresMaximos = LeerEntero("--inversores", m_inversores, 1, 1000);
        if (m_minima)
            pedido.temperaturas.dMinima = LeerAcotado("--temperatura-minima", *m_minima, -100, 100);
        if (m_maxima)
            pedido.temperaturas.dMaxima = LeerAcotado("--temperatura-maxima", *m_maxima, -100, 150);
        if (pedido.temperaturas.Minima() >= pedido.temperaturas.Maxima())
            throw ErrorUso("--temperatura-minima debe ser menor que --temperatura-maxima");
        if (!m_ratio)
            return;
        const std::size_t iHasta = m_ratio->find("..");
        if (iHasta == std::string::npos) {
            throw ErrorUso(
                fmt::format("--ratio: se esperaba MIN..MAX, como 0,8..1,35, llegó «{}»", EnUnaLinea(*m_ratio)));
        }
        pedido.dRatioMinimo = LeerAcotado("--ratio", m_ratio->substr(0, iHasta), 0, 100);
        pedido.dRatioMaximo = LeerAcotado("--ratio", m_ratio->substr(iHasta + 2), 0, 100);
        if (pedido.dRatioMinimo > pedido.dRatioMaximo)
            throw ErrorUso(fmt::format("--ratio: «{}» va de mayor a menor", EnUnaLinea(*m_ratio)));
    }

    PreguntaCatalogo m_pregunta;
    std::vector<std::string> m_palabras;
    std::optional<std::string> m_panel, m_paneles, m_ratio, m_minima, m_maxima, m_maximo;
    std::string m_inversores = "3", m_datos;
    bool m_bTodos = false, m_bJson = false, m_bCsv = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenInversores()
{
    return std::make_unique<SubordenInversores>();
}

}  // namespace efv::orden
