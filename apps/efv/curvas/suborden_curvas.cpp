#include "curvas/suborden_curvas.h"

#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/catalogues.h>
#include <quorvel/electrical.h>

#include "catalogo/acceso.h"
#include "catalogo/ficha.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/salidas.h"

namespace efv::orden {

namespace {

struct Condicion {
    double dG;  // W/m²
    double dT;  // ºC
};

// In the order of the curves in their charts.
constexpr auto kATemperaturaConstante =
    std::to_array<Condicion>({{1000, 25}, {800, 25}, {600, 25}, {400, 25}, {200, 25}});
constexpr auto kAIrradiacionConstante =
    std::to_array<Condicion>({{1000, 0}, {1000, 50}, {1000, 75}, {1000, 25}});
// The same in the order of reading.
constexpr auto kTemperaturas = std::to_array<Condicion>({{1000, 0}, {1000, 25}, {1000, 50}, {1000, 75}});

struct Valores {
    double dIsc, dVoc, dImp, dVmp, dPmp;
};

Valores Calcular(const CBasePanelFotoModelo& m, Condicion c)
{
    Valores v{};
    phCalcValoresTipicos(m.dIsc, m.dVoc, m.dImpm, m.dVmpm, m.dPmpm, c.dG, c.dT, m.dCTVoc, m.dCTIsc, m.dCTPmpm,
                         &v.dIsc, &v.dVoc, &v.dImp, &v.dVmp, &v.dPmp);
    return v;
}

void AnadirFilas(TablaTexto& tabla, const CBasePanelFotoModelo& modelo, std::span<const Condicion> condiciones)
{
    for (const Condicion& c : condiciones) {
        const Valores v = Calcular(modelo, c);
        tabla.Fila({Decimal(c.dG, 0), Decimal(c.dT, 0), Decimal(v.dIsc, 3), Decimal(v.dVoc, 2),
                    Decimal(v.dImp, 3), Decimal(v.dVmp, 2), Decimal(v.dPmp, 2)});
    }
}

std::string ValoresTexto(const CBasePanelFotoModelo& modelo)
{
    using enum report::ColumnasTexto::Lado;
    TablaTexto tabla({derecha, derecha, derecha, derecha, derecha, derecha, derecha});
    tabla.Fila({"G (W/m²)", "T (ºC)", "Isc (A)", "Voc (V)", "Imp (A)", "Vmp (V)", "Pmp (W)"});
    tabla.Raya();
    AnadirFilas(tabla, modelo, kATemperaturaConstante);
    tabla.Raya();
    AnadirFilas(tabla, modelo, kTemperaturas);
    return fmt::format("{}\n\n{}", EnTerminal(Identificacion(modelo)), tabla.Texto());
}

Json Numero(double d)
{
    return std::isfinite(d) ? Json(d) : Json();
}

Json ValoresJson(const CBasePanelFotoModelo& modelo, std::span<const Condicion> condiciones)
{
    Json lista = Json::array();
    for (const Condicion& c : condiciones) {
        const Valores v = Calcular(modelo, c);
        lista.push_back({{"irradiancia_W_m2", c.dG},
                         {"temperatura_C", c.dT},
                         {"isc_A", Numero(v.dIsc)},
                         {"voc_V", Numero(v.dVoc)},
                         {"imp_A", Numero(v.dImp)},
                         {"vmp_V", Numero(v.dVmp)},
                         {"pmp_W", Numero(v.dPmp)}});
    }
    return lista;
}

Json Puntos(const std::vector<double>& valores)
{
    Json lista = Json::array();
    for (const double d : valores)
        lista.push_back(Numero(d));
    return lista;
}

// The curves of a family: the current chart has voltage and current, the other one current and power.
Json CurvasJson(const GraficasPanel& graficas, std::span<const Condicion> condiciones)
{
    Json lista = Json::array();
    for (std::size_t i = 0, nivel = 0; i < graficas.corriente.aSeries.size(); ++i) {
        const ui::SerieCurva& corriente = graficas.corriente.aSeries[i];
        if (corriente.iAncho == 0 || nivel >= condiciones.size())
            continue;
        lista.push_back({{"irradiancia_W_m2", condiciones[nivel].dG},
                         {"temperatura_C", condiciones[nivel].dT},
                         {"tension_V", Puntos(corriente.adX)},
                         {"corriente_A", Puntos(corriente.adY)},
                         {"potencia_W", Puntos(graficas.potencia.aSeries.at(i).adY)}});
        ++nivel;
    }
    return lista;
}

struct Familias {
    GraficasPanel temperatura;  // constant temperature
    GraficasPanel irradiacion;  // constant irradiance
};

constexpr std::array kSufijos = {"_T_constante_IV.svg", "_T_constante_PI.svg", "_G_constante_IV.svg",
                                 "_G_constante_PI.svg"};

// In the order of kSufijos.
std::vector<std::string> Svg(const Familias& familias)
{
    return {ui::EscribirSvg(familias.temperatura.corriente), ui::EscribirSvg(familias.temperatura.potencia),
            ui::EscribirSvg(familias.irradiacion.corriente), ui::EscribirSvg(familias.irradiacion.potencia)};
}

class SubordenCurvas final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("curvas", "Valores típicos y curvas I-V y P-I de un módulo");
        Castellanizar(linea);
        linea.add_option("ID", m_id, "FAMILIA#MODELO, o el modelo solo")->option_text(" ");
        linea.add_option("--salida", m_carpeta, "Carpeta de las cuatro gráficas SVG; sin ella, la actual")
            ->type_name("CARPETA");
        linea
            .add_flag("--json", m_bJson,
                      "Escribe los valores y las curvas como JSON; las gráficas, solo con --salida")
            ->option_text(" ")
            ->disable_flag_override();
        m_catalogo.Declarar(linea,
                            "Catálogo de módulos; si falta, ZqModFotoHE5.xml de la carpeta de los datos");
        linea.footer("Ejemplo:\n  efv curvas 'Astronergy#CHSM6612P-295' --salida graficas");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (m_id.empty())
            throw ErrorUso("falta el modelo, FAMILIA#MODELO (ayuda: efv curvas --help)");
        if (m_carpeta && m_carpeta->empty())
            throw ErrorUso("--salida: el nombre está vacío");
        const TipoCatalogo& modulos = *BuscarTipoCatalogo("modulos");
        const CatalogoAbierto catalogo(modulos, m_catalogo.Ruta(modulos));
        const auto& modelo = static_cast<const CBasePanelFotoModelo&>(catalogo.Buscar(m_id));
        const Familias familias{GraficasATemperaturaConstante(modelo), GraficasAIrradiacionConstante(modelo)};
        std::vector<std::string> escritos;
        if (!m_bJson || m_carpeta) {
            const auto base = std::filesystem::path(m_carpeta.value_or(".")) /
                              NombreDeFichero(modelo.csFamilia + L'_' + modelo.csModelo);
            Salidas salidas({catalogo.Ruta()});
            for (const char* sufijo : kSufijos)
                salidas.Anadir("--salida", base.lexically_normal().string() + sufijo);
            escritos = salidas.Escribir(Svg(familias), salida);
        }
        if (m_bJson)
            salida << InformeJson(modelo, familias, escritos);
        else
            salida << InformeTexto(modelo, escritos);
        return 0;
    }

private:
    static std::string InformeTexto(const CBasePanelFotoModelo& modelo,
                                    const std::vector<std::string>& escritos)
    {
        std::string texto = ValoresTexto(modelo) + Nota("\nGráficas escritas:\n");
        for (const auto& ruta : escritos)
            texto += Nota(fmt::format("  {}\n", EnUnaLinea(ruta)));
        return texto;
    }

    static std::string InformeJson(const CBasePanelFotoModelo& modelo, const Familias& familias,
                                   const std::vector<std::string>& escritos)
    {
        return TextoJson(
            {{"id", CadenaUtf8(Identificacion(modelo))},
             {"valores",
              {{"temperatura_constante", ValoresJson(modelo, kATemperaturaConstante)},
               {"irradiacion_constante", ValoresJson(modelo, kTemperaturas)}}},
             {"curvas",
              {{"temperatura_constante", CurvasJson(familias.temperatura, kATemperaturaConstante)},
               {"irradiacion_constante", CurvasJson(familias.irradiacion, kAIrradiacionConstante)}}},
             {"ficheros", escritos}});
    }

    OpcionesCatalogo m_catalogo;
    std::string m_id;
    std::optional<std::string> m_carpeta;
    bool m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenCurvas()
{
    return std::make_unique<SubordenCurvas>();
}

}  // namespace efv::orden
