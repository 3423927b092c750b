#include "tarifa/suborden_tarifa.h"

#include <numeric>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/reloj.h>
#include <quorvel/solar.h>
#include <quorvel/ui/grafica.h>

#include "catalogo/ficha.h"
#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/palabras.h"
#include "comun/salidas.h"
#include "lugares/busqueda.h"
#include "tarifa/pedido.h"

namespace efv::orden {

namespace {

constexpr double kPrecioMaximo = 10.0;  // €/kWh
constexpr int kHorasDia = 24, kHorasSemana = 7 * kHorasDia;
// Days of the year in the weeks that are drawn: 11 January and 11 July, one in each time.
constexpr int kDiaInvierno = 10, kDiaVerano = 191;

/// The hours of the year with what they cost.
struct Precios {
    int iAno = 0;
    bool bSolar = true;
    std::vector<int> aiPeriodo;
    std::vector<double> adConsumo, adExcedente;
    economics::Tarifa tarifa;
};

double Media(const std::vector<double>& ad)
{
    return std::accumulate(ad.begin(), ad.end(), 0.0) / static_cast<double>(ad.size());
}

std::string Texto(const Precios& precios)
{
    TablaTexto tabla({TablaTexto::Lado::izquierda, TablaTexto::Lado::derecha, TablaTexto::Lado::derecha,
                      TablaTexto::Lado::derecha});
    tabla.Fila({"Período", "Horas", "€/kWh", "Con impuestos (€/kWh)"});
    tabla.Raya();
    for (std::size_t p = 0; p < precios.tarifa.periodos.nPeriodos; ++p) {
        const auto nHoras = std::ranges::count(precios.aiPeriodo, static_cast<int>(p));
        const double dPrecio = precios.tarifa.adPrecio[p].value_or(0.0);
        tabla.Fila({fmt::format("P{}", p + 1), std::to_string(nHoras), Decimal(dPrecio, 5),
                    Decimal(dPrecio * precios.tarifa.dImpuestos, 5)});
    }
    tabla.Raya();
    tabla.Fila({"Media", std::to_string(precios.aiPeriodo.size()), "", Decimal(Media(precios.adConsumo), 5)});
    std::string texto = fmt::format("Precios de {} en horas {}\n\n{}", precios.iAno,
                                    precios.bSolar ? "solares" : "oficiales", tabla.Texto());
    return texto + fmt::format("\nExcedentes, media: {} €/kWh\n", Decimal(Media(precios.adExcedente), 5));
}

std::string Csv(const Precios& precios)
{
    std::string texto = "mes;dia;hora;periodo;precio_consumo_eur_kWh;precio_vertido_eur_kWh\n";
    for (int h = 0; h < static_cast<int>(precios.adConsumo.size()); ++h) {
        const auto i = static_cast<std::size_t>(h);
        texto += fmt::format("{};{};{};P{};{};{}\n", phGetMes(h) + 1, phGetDia(h) + 1, phGetHora(h),
                             precios.aiPeriodo[i] + 1, DecimalExacto(precios.adConsumo[i]),
                             DecimalExacto(precios.adExcedente[i]));
    }
    return texto;
}

std::string EnJson(const Precios& precios)
{
    Json periodos = Json::array();
    for (const int iPeriodo : precios.aiPeriodo)
        periodos.push_back(iPeriodo + 1);
    return TextoJson({{"año", precios.iAno},
                      {"horas", precios.bSolar ? "solares" : "oficiales"},
                      {"impuestos", precios.tarifa.dImpuestos},
                      {"precio_medio_eur_kWh", Media(precios.adConsumo)},
                      {"periodo", std::move(periodos)},
                      {"precio_consumo_eur_kWh", precios.adConsumo},
                      {"precio_vertido_eur_kWh", precios.adExcedente}});
}

// A week of winter and one of summer, from Monday, hour by hour.
std::string Svg(const Precios& precios)
{
    CCtrlCurva2D grafica;
    grafica.csTitulo =
        precios.bSolar ? L"Precio de la energía [Hora solar]" : L"Precio de la energía [Hora oficial]";
    grafica.csTituloX = L"Día de la semana";
    grafica.csTituloY = L"Precio (€/kWh)";
    grafica.claseX = ui::ClaseEje::diaSemana;
    const auto semana = [&](const wchar_t* nombre, int iDia, ui::Color color) {
        // From the Monday of that week on.
        iDia -= TipoDeDiaCivil(DiaDeFecha({precios.iAno, 1, 1}) + iDia);
        ui::SerieCurva serie;
        serie.forma = ui::FormaSerie::escalon;
        serie.csNombre = nombre;
        serie.color = color;
        auto precio = precios.adConsumo.begin() + static_cast<std::ptrdiff_t>(iDia) * kHorasDia;
        for (int h = 0; h < kHorasSemana; ++h) {
            serie.adX.push_back(0.5 + static_cast<double>(h) / kHorasDia);
            serie.adY.push_back(*precio++);
        }
        grafica.aSeries.push_back(std::move(serie));
    };
    semana(L"Enero", kDiaInvierno, ui::kAzul);
    semana(L"Julio", kDiaVerano, ui::kRojo);
    return ui::EscribirSvg(grafica);
}

class SubordenTarifa final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("tarifa", "Precio de cada hora del año según una tarifa");
        Castellanizar(linea);
        linea.add_option("--tarifa", m_pedido.tarifa, "2.0TD, plana o un fichero de períodos; si falta, 2.0TD")
            ->type_name("CUAL");
        linea.add_option("--zona", m_pedido.zona, "peninsula o ceuta_melilla; si falta, peninsula")
            ->type_name("ZONA");
        for (std::size_t p = 0; p < m_precios.size(); ++p) {
            linea
                .add_option(fmt::format("--p{}", p + 1), m_precios[p],
                            fmt::format("Precio del período P{}, €/kWh sin impuestos", p + 1))
                ->type_name("PRECIO");
        }
        linea
            .add_option("--excedente", m_excedente,
                        "Precio del kWh vertido, o fichero con sus 8760 valores; si falta, 0")
            ->type_name("PRECIO");
        linea
            .add_option("--impuestos", m_impuestos,
                        "Factor de los impuestos sobre los dos precios; si falta, 1")
            ->type_name("FACTOR");
        linea.add_option("--año", m_ano, "Año de los días y festivos; si falta, el del reloj")
            ->type_name("AÑO");
        // For keyboards without ñ, and scripts that know it so.
        linea.add_option("--ano", m_ano)->group("");
        linea
            .add_option("--festivos", m_pedido.festivos,
                        "Fichero de festivos (mes, dia); si falta, los nacionales")
            ->type_name("FICHERO");
        linea.add_flag("--reloj", m_bReloj, "Horas del reloj oficial, en lugar de horas solares")
            ->option_text(" ")
            ->disable_flag_override();
        linea.add_option("--lugar", m_lugar, "Lugar de «efv lugares», por su longitud y huso")
            ->type_name("LUGAR");
        CLI::Option* json = linea.add_flag("--json", m_bJson, "Escribe JSON con las 8760 horas");
        json->option_text(" ")->disable_flag_override();
        linea.add_flag("--csv", m_bCsv, "Escribe las 8760 horas como CSV con punto y coma y coma decimal")
            ->option_text(" ")
            ->excludes(json)
            ->disable_flag_override();
        linea.add_option("--svg", m_svg, "Dibuja una semana de invierno y otra de verano")
            ->type_name("FICHERO");
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer(
            "Un fichero de períodos es una tabla CSV con las columnas tipo_dia (laborable, festivo, todos), "
            "hora,\n"
            "periodo (P1 a P6) y, si importan, mes y zona: data/ejemplos/tarifa-seis-periodos.csv es uno.\n"
            "Ejemplo:\n"
            "  efv tarifa --p1 0,197 --p2 0,128 --p3 0,093 --excedente 0,06 --impuestos 1,2719 --año 2025");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        std::vector<std::string> entradas;
        for (const std::string& ruta : {m_pedido.tarifa, m_pedido.festivos, m_excedente.value_or("")}) {
            if (!ruta.empty())
                entradas.push_back(ruta);
        }
        Salidas salidas(std::move(entradas));
        if (m_svg)
            salidas.Anadir("--svg", *m_svg);
        if (salidas.EnLaSalida() && (m_bJson || m_bCsv))
            throw ErrorUso("--svg - no se puede dar con --json o --csv");
        LeerPedido();
        const Precios precios = Calcular();
        if (m_svg)
            salidas.Escribir({Svg(precios)}, salida);
        if (!salidas.EnLaSalida())
            salida << (m_bJson ? EnJson(precios) : m_bCsv ? Csv(precios) : Texto(precios));
        if (m_svg && !salidas.EnLaSalida() && !m_bJson && !m_bCsv)
            salida << Nota(fmt::format("Gráfica escrita: {}\n", EnUnaLinea(*m_svg)));
        return 0;
    }

private:
    void LeerPedido()
    {
        for (std::size_t p = 0; p < m_precios.size(); ++p) {
            if (m_precios[p]) {
                m_pedido.adPrecio[p] = LeerAcotado(fmt::format("--p{}", p + 1).c_str(), *m_precios[p],
                                                   -kPrecioMaximo, kPrecioMaximo);
            }
        }
        if (m_excedente) {
            m_pedido.dExcedente = LeerNumero(*m_excedente);
            if (!m_pedido.dExcedente)
                m_pedido.excedentes = *m_excedente;
        }
        m_pedido.dImpuestos = LeerAcotado("--impuestos", m_impuestos, 0.1, 10.0);
        m_pedido.dImpuestosExcedente = m_pedido.dImpuestos;
    }

    Precios Calcular() const
    {
        Precios precios;
        const auto ahora = LeerReloj();
        precios.iAno = m_ano ? LeerEntero("--año", *m_ano, 1990, 2100) : ahora ? ahora->iAno : 2025;
        precios.bSolar = !m_bReloj;
        economics::CalendarioTarifa calendario{economics::DiasDeUnAno(precios.iAno), precios.bSolar};
        if (m_lugar)
            calendario.dLongitud = BuscarLugar(*m_lugar, m_datos).dLongitud;
        calendario.huso = HusoDeLongitud(calendario.dLongitud);
        precios.tarifa = HacerTarifa(m_pedido, m_datos);
        precios.aiPeriodo = economics::PeriodosDelAno(precios.tarifa, calendario);
        try {
            precios.adConsumo = economics::PreciosDelAno(precios.tarifa, calendario);
        } catch (const economics::ErrorTarifa& error) {
            throw ErrorUso(fmt::format("{} (--p1 a --p6)", error.what()));
        }
        precios.adExcedente = PreciosDeExcedente(m_pedido);
        return precios;
    }

    PedidoTarifa m_pedido;
    std::array<std::optional<std::string>, economics::kMaximoPeriodos> m_precios;
    std::optional<std::string> m_excedente, m_ano, m_lugar, m_svg;
    std::string m_impuestos = "1", m_datos;
    bool m_bReloj = false, m_bJson = false, m_bCsv = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenTarifa()
{
    return std::make_unique<SubordenTarifa>();
}

}  // namespace efv::orden
