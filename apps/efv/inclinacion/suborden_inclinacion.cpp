#include "inclinacion/suborden_inclinacion.h"

#include <cmath>
#include <optional>

#include <fmt/format.h>
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <quorvel/solar.h>
#include <quorvel/solar/inclinacion.h>

#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/salidas.h"
#include "energia/campo.h"
#include "inclinacion/mapa_perdidas.h"
#include "inclinacion/sitio.h"

namespace efv::orden {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kAno = 12;
constexpr int kAnoPerdidas = -1;  // the losses call the year so, the search 12
constexpr const char* kLimitada = "limitado por el método";

Json Numero(double d)
{
    return std::isfinite(d) ? Json(d) : Json();
}

struct Plano {
    double dInclinacion, dOrientacion;
    std::array<double, 13> adPerdidas;  // %, by month and year
};

struct Separacion {
    double dDistanciaFilas, dDistanciaLibre, dAlturaPanel, dAlturaFila;  // m
    const char* regla;
};

struct Resultado {
    SitioPedido sitio;
    std::array<solar::InclinacionOptima, 13> optimas;
    std::optional<Plano> plano;
    std::optional<Separacion> filas;
    std::string svg;  // path that was written
};

std::string NombreFila(std::size_t m)
{
    return m == kAno ? "Año" : NombreMes(m);
}

std::string InformeTexto(const Resultado& r)
{
    std::string texto =
        fmt::format("Inclinación óptima, hacia el {}\n", r.sitio.dLatitud < 0.0 ? "norte" : "sur");
    if (r.sitio.lugar)
        texto += fmt::format("Lugar: {}\n", CadenaUtf8(NombreConProvincia(*r.sitio.lugar)));
    texto += fmt::format("Latitud {}°, {} m; cielo despejado\n\n", Decimal(r.sitio.dLatitud, 2),
                         Decimal(r.sitio.dAltitud, 0));
    using enum report::ColumnasTexto::Lado;
    std::vector<TablaTexto::Lado> lados{izquierda, derecha, derecha};
    std::vector<std::string> titulos{"Mes", "Óptima (º)", "kWh/m²"};
    if (r.plano) {
        lados.push_back(derecha);
        titulos.emplace_back("Pérdidas (%)");
    }
    lados.push_back(izquierda);
    titulos.emplace_back("");
    TablaTexto tabla(std::move(lados));
    tabla.Fila(std::move(titulos));
    tabla.Raya();
    for (std::size_t m = 0; m <= kAno; ++m) {
        if (m == kAno)
            tabla.Raya();
        const solar::InclinacionOptima& o = r.optimas[m];
        std::vector<std::string> fila{NombreFila(m), Decimal(o.dInclinacion, 1),
                                      Decimal(o.dRadiacion / 1000.0, 2)};
        if (r.plano)
            fila.push_back(Decimal(r.plano->adPerdidas[m], 2));
        fila.emplace_back(o.bLimitada ? kLimitada : "");
        tabla.Fila(std::move(fila));
    }
    texto += tabla.Texto();
    if (r.plano) {
        texto += fmt::format(
            "\nPérdidas del plano a {}° de inclinación y {}° de orientación, frente a la óptima "
            "de cada fila.\n",
            DecimalExacto(r.plano->dInclinacion), DecimalExacto(r.plano->dOrientacion));
    }
    if (r.filas) {
        texto += fmt::format(
            "\nFilas, por {}: {} m de pie a pie, {} m libres; altura de la fila {} m, de cada panel "
            "{} m.\n",
            r.filas->regla, Decimal(r.filas->dDistanciaFilas, 3), Decimal(r.filas->dDistanciaLibre, 3),
            Decimal(r.filas->dAlturaFila, 3), Decimal(r.filas->dAlturaPanel, 3));
    }
    texto += Nota(
        "\n· La búsqueda va de 0° a la latitud en pasos de 0,5° (a 10° cerca del ecuador): la óptima nunca la "
        "pasa.\n");
    if (!r.svg.empty())
        texto += Nota(fmt::format("Escrito: {}\n", EnUnaLinea(r.svg)));
    return Prosa(texto);
}

std::string InformeJson(const Resultado& r)
{
    Json meses = Json::array();
    for (std::size_t m = 0; m <= kAno; ++m) {
        Json fila{{"mes", NombreFila(m)},
                  {"inclinacion_grados", r.optimas[m].dInclinacion},
                  {"radiacion_kWh_m2", r.optimas[m].dRadiacion / 1000.0},
                  {"limitada", r.optimas[m].bLimitada}};
        if (r.plano)
            fila["perdidas_pct"] = Numero(r.plano->adPerdidas[m]);
        meses.push_back(std::move(fila));
    }
    Json documento{{"lugar", r.sitio.lugar ? Json(CadenaUtf8(NombreConProvincia(*r.sitio.lugar))) : Json()},
                   {"latitud_grados", r.sitio.dLatitud},
                   {"altitud_m", r.sitio.dAltitud},
                   {"orientacion_grados", r.sitio.OrientacionAlEcuador()},
                   {"meses", std::move(meses)}};
    if (r.plano)
        documento["plano"] = {{"inclinacion_grados", r.plano->dInclinacion},
                              {"orientacion_grados", r.plano->dOrientacion}};
    if (r.filas) {
        documento["filas"] = {{"regla", r.filas->regla},
                              {"distancia_filas_m", Numero(r.filas->dDistanciaFilas)},
                              {"distancia_libre_m", Numero(r.filas->dDistanciaLibre)},
                              {"altura_panel_m", Numero(r.filas->dAlturaPanel)},
                              {"altura_fila_m", Numero(r.filas->dAlturaFila)}};
    }
    if (!r.svg.empty())
        documento["fichero"] = r.svg;
    return documento.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

class SubordenInclinacion final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand(
            "inclinacion", "Inclinación óptima por meses y año, pérdidas de un plano, separación de filas");
        Castellanizar(linea);
        m_sitio.Declarar(linea);
        linea.add_option("--inclinacion", m_inclinacion, "Plano cuyas pérdidas se piden: inclinación (0 a 90)")
            ->type_name("GRADOS");
        linea
            .add_option("--orientacion", m_orientacion,
                        "Su orientación, 0 sur, este negativa (-180 a 180), o su nombre, como SO; si falta, "
                        "hacia el ecuador")
            ->type_name("GRADOS");
        linea
            .add_option("--svg", m_svg, "Escribe un mapa de las pérdidas del año por inclinación y orientación")
            ->type_name("FICHERO");
        linea
            .add_option("--panel", m_panel,
                        "Longitud de un panel en m: da la separación de las filas del plano, por el pliego de "
                        "condiciones técnicas")
            ->type_name("M");
        linea.add_option("--paneles", m_paneles, "Paneles de una fila, uno sobre otro; si falta, 1")
            ->type_name("NUMERO");
        linea.add_option("--pendiente", m_pendiente, "Pendiente del terreno en grados; si falta, 0")
            ->type_name("GRADOS");
        linea
            .add_option("--altura-solar", m_alturaSolar,
                        "Altura del sol hasta la que no hay sombra, en vez de la del pliego")
            ->type_name("GRADOS");
        linea.add_flag("--json", m_bJson, "Escribe JSON")->option_text(" ")->disable_flag_override();
        linea.footer(
            "Ejemplos:\n  efv inclinacion --lugar Madrid\n"
            "  efv inclinacion --lugar Madrid --inclinacion 20 --orientacion=-45 --svg perdidas.svg\n"
            "  efv inclinacion --lat 40,4 --altitud 650 --inclinacion 30 --panel 1,7");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        Salidas salidas({});
        if (m_svg)
            salidas.Anadir("--svg", *m_svg);
        if (m_bJson && salidas.EnLaSalida())
            throw ErrorUso("--json y --svg - se excluyen");
        Resultado r;
        r.sitio = m_sitio.Leer();
        LeerPlano(r);
        LeerFilas(r);
        r.optimas = solar::InclinacionesOptimas(clima::BibliotecaActual(), r.sitio.Cielo(),
                                                r.sitio.OrientacionAlEcuador());
        CalcularPerdidas(r);
        if (m_svg) {
            salidas.Escribir({Mapa(r)}, salida);
            r.svg = *m_svg;
        }
        if (!salidas.EnLaSalida())
            salida << (m_bJson ? InformeJson(r) : InformeTexto(r));
        return 0;
    }

private:
    void LeerPlano(Resultado& r) const
    {
        if (m_orientacion && !m_inclinacion)
            throw ErrorUso("--orientacion necesita --inclinacion");
        if (!m_inclinacion)
            return;
        r.plano = Plano{
            LeerAcotado("--inclinacion", *m_inclinacion, 0, 90),
            m_orientacion ? LeerOrientacion("--orientacion", *m_orientacion) : r.sitio.OrientacionAlEcuador(),
            {}};
    }

    void LeerFilas(Resultado& r) const
    {
        if (!m_panel) {
            if (m_pendiente || m_alturaSolar)
                throw ErrorUso("--pendiente y --altura-solar necesitan --panel");
            return;
        }
        if (!r.plano)
            throw ErrorUso("--panel necesita --inclinacion");
        if (m_pendiente && m_alturaSolar)
            throw ErrorUso("--pendiente y --altura-solar se excluyen");
        const double dPanel = LeerAcotado("--panel", *m_panel, 0.001, 100);
        const int iPaneles = static_cast<int>(LeerAcotado("--paneles", m_paneles, 1, 1000));
        Separacion& f = r.filas.emplace();
        if (m_alturaSolar) {
            f.regla = "la altura del sol";
            phGetDistanciaMinimaGEN(iPaneles, dPanel, r.plano->dInclinacion,
                                    LeerAcotado("--altura-solar", *m_alturaSolar, 0.1, 90), f.dDistanciaFilas,
                                    f.dDistanciaLibre, f.dAlturaPanel, f.dAlturaFila);
            return;
        }
        // The rule takes the shadow of the shortest day; from 61 degrees on the sun doesn't rise high enough.
        if (std::abs(r.sitio.dLatitud) >= 61.0)
            throw ErrorEjecucion("el pliego no llega a 61° de latitud: indique --altura-solar");
        f.regla = "el pliego de condiciones técnicas";
        phGetDistanciaMinimaPCT(iPaneles, dPanel, r.plano->dInclinacion,
                                m_pendiente ? LeerAcotado("--pendiente", *m_pendiente, -45, 45) : 0.0,
                                std::abs(r.sitio.dLatitud), f.dDistanciaFilas, f.dDistanciaLibre,
                                f.dAlturaPanel, f.dAlturaFila);
    }

    static void CalcularPerdidas(Resultado& r)
    {
        if (!r.plano)
            return;
        double adTemperaturas[12][31];
        for (std::size_t m = 0; m < 12; ++m)
            for (std::size_t d = 0; d < 31; ++d)
                adTemperaturas[m][d] = r.sitio.adTemperaturas[m][d];
        for (std::size_t m = 0; m <= kAno; ++m) {
            // Without an optimum the function would search again, for the year under a number that finds
            // nothing.
            const double dOptima = r.optimas[m].dRadiacion;
            r.plano->adPerdidas[m] = dOptima > 0.0
                                         ? phCalcularPerdidasOrientacionInclinacion(
                                               m == kAno ? kAnoPerdidas : static_cast<int>(m), r.sitio.dAltitud,
                                               r.sitio.dLatitud, r.sitio.dHumedad, adTemperaturas,
                                               r.plano->dInclinacion, r.plano->dOrientacion, dOptima)
                                         : std::nan("");
        }
    }

    static std::string Mapa(const Resultado& r)
    {
        std::string titulo = fmt::format("Pérdidas del año por inclinación y orientación, latitud {}º",
                                         Decimal(r.sitio.dLatitud, 2));
        if (r.sitio.lugar)
            titulo += fmt::format(" ({})", CadenaUtf8(r.sitio.lugar->csNombre));
        return MapaDePerdidas(r.sitio, r.optimas[kAno].dRadiacion, titulo);
    }

    OpcionesSitio m_sitio;
    std::optional<std::string> m_inclinacion, m_orientacion, m_svg, m_panel, m_pendiente, m_alturaSolar;
    std::string m_paneles = "1";
    bool m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenInclinacion()
{
    return std::make_unique<SubordenInclinacion>();
}

}  // namespace efv::orden
