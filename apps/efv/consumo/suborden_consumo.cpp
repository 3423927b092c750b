#include "consumo/suborden_consumo.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"
#include "comun/palabras.h"
#include "comun/salidas.h"
#include "consumo/ano.h"
#include "consumo/importacion.h"
#include "consumo/informes.h"
#include "consumo/vistas.h"

namespace efv::orden {

namespace {

constexpr double kPotenciaMaxima = 1e10;  // W
constexpr double kEnergiaMaxima = 1e7;    // kWh a month and period

constexpr Palabras<Vista, 3> kVistas = {{{"dia", Vista::dia}, {"semana", Vista::semana}, {"año", Vista::ano}}};

std::string PiePatrones()
{
    std::string texto = "Patrones:\n";
    int i = 0;
    for (const PatronConsumo& patron : PatronesConsumo())
        texto += fmt::format("  {}  {}\n", ++i, CadenaUtf8(patron.csTitulo));
    return texto + "Ejemplo:\n  efv consumo patron 1 --potencia 3500 --svg casa.svg";
}

class SubordenConsumo final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("consumo", "Consumo de cada hora del año");
        Castellanizar(linea);
        linea.require_subcommand(0, 1);
        linea.footer(
            "Cada orden tiene su ayuda: efv consumo ORDEN --help\n"
            "Las horas son solares, de un año de 365 días que empieza en lunes; la energía, en Wh.");
        DeclararPatron(linea);
        DeclararImportar(linea);
        DeclararMensual(linea);
        DeclararReceptores(linea);
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        for (const auto& [orden, calcular] : m_ordenes) {
            if (!orden->parsed())
                continue;
            const Salida como = LeerSalida();
            Emitir((this->*calcular)(), como, salida);
            return 0;
        }
        throw ErrorUso("falta la orden: patron, importar, mensual o receptores (ayuda: efv consumo --help)");
    }

private:
    using Calculo = AnoConsumo (SubordenConsumo::*)() const;

    // How the year goes out, as asked for.
    struct Salida {
        Salidas ficheros;
        Vista vista = Vista::ano;
        int iMes = 0, iDia = 0;
    };

    CLI::App& Orden(CLI::App& linea, const char* nombre, const char* descripcion, Calculo calculo)
    {
        CLI::App& orden = *linea.add_subcommand(nombre, descripcion);
        Castellanizar(orden);
        orden
            .add_flag("--json", m_bJson,
                      "Escribe JSON con las sumas y las 8760 horas; si falta, CSV con punto y "
                      "coma y coma decimal")
            ->option_text(" ")
            ->disable_flag_override();
        orden.add_option("--svg", m_svg, "Dibuja el consumo en el fichero, en lugar de escribirlo")
            ->type_name("FICHERO");
        orden.add_option("--vista", m_vista, "Lo que se dibuja: dia, semana o año; si falta, año")
            ->type_name(TipoDe(kVistas));
        orden.add_option("--mes", m_mes, "Mes del día, o del primero de la semana, 1 a 12; si falta, enero")
            ->type_name("MES");
        orden.add_option("--dia", m_dia, "Día del mes, desde 1; si falta, el primero")->type_name("DIA");
        m_ordenes.emplace_back(&orden, calculo);
        return orden;
    }

    void DeclararPatron(CLI::App& linea)
    {
        CLI::App& orden = Orden(linea, "patron", "Un patrón semanal a una potencia", &SubordenConsumo::Patron);
        orden.add_option("N", m_palabra, "Patrón, 1 a 9")->option_text(" ");
        orden.add_option("--potencia", m_potencia, "Potencia del factor 1, en W (0,01 a 1e10)")->type_name("W");
        orden.footer(PiePatrones());
    }

    void DeclararImportar(CLI::App& linea)
    {
        CLI::App& orden =
            Orden(linea, "importar", "Los valores de un fichero de texto", &SubordenConsumo::Importar);
        orden
            .add_option("FICHERO", m_palabra,
                        "Fichero de un contador, o valores separados por líneas, tabuladores, blancos o punto "
                        "y coma")
            ->option_text(" ");
        orden
            .add_flag("--csv", m_bCsv,
                      "Escribe las 8760 horas como CSV: lo que sale sin más de una lista de valores")
            ->option_text(" ")
            ->disable_flag_override();
        orden
            .add_flag(
                "--valores", m_bValores,
                "Escribe solo las 8760 horas, en Wh, una por línea: como las toman los diálogos de consumo")
            ->option_text(" ")
            ->disable_flag_override();
        m_importacion.Declarar(orden);
    }

    void DeclararMensual(CLI::App& linea)
    {
        CLI::App& orden = Orden(linea, "mensual", "Las energías de cada mes, repartidas según un patrón",
                                &SubordenConsumo::Mensual);
        static constexpr std::array<const char*, 3> kOpciones = {"--p1", "--p2", "--p3"};
        static constexpr std::array<const char*, 3> kPeriodos = {"punta", "llano", "valle"};
        for (std::size_t p = 0; p < kOpciones.size(); ++p) {
            orden
                .add_option(kOpciones[p], m_energias[p],
                            fmt::format("kWh de enero a diciembre en las horas {}", kPeriodos[p]))
                ->type_name("VALORES")
                ->expected(1, 12);
        }
        orden
            .add_option("--horas", m_horas,
                        "Período de cada hora del día: 24 cifras 1, 2 o 3; si falta, todas 1")
            ->type_name("CIFRAS");
        orden
            .add_option("--patron", m_patron,
                        "Patrón del reparto, 1 a 9 (efv consumo patron --help); si falta, 1")
            ->type_name("N");
        orden.footer(
            "Ejemplo:\n  efv consumo mensual --patron 2 --horas 333333332211112222111122 \\\n"
            "      --p1 90 80 75 70 68 66 72 74 70 72 80 88 --p2 60 55 52 50 48 47 50 51 50 52 56 60 \\\n"
            "      --p3 110 99 95 90 85 80 84 86 85 92 100 108");
    }

    void DeclararReceptores(CLI::App& linea)
    {
        CLI::App& orden = Orden(linea, "receptores", "Los receptores de una lista, con sus franjas de uso",
                                &SubordenConsumo::Receptores);
        orden
            .add_option(
                "FICHERO", m_palabra,
                "Lista JSON de receptores, o un proyecto de «efv aislada» o de efv-estudio que los tenga")
            ->option_text(" ");
        orden.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        orden.footer(
            "Los receptores se escriben como en «efv aislada --help»: csModelo, iCantidad, franjas, horario o\n"
            "dHorario; aquí bNoCalcular deja uno fuera.\n"
            "Ejemplo:\n  efv consumo receptores casa-aislada.json --svg casa.svg");
    }

    const std::string& Palabra(const char* que) const
    {
        if (m_palabra.empty())
            throw ErrorUso(fmt::format("falta {} (ayuda: efv consumo --help)", que));
        return m_palabra;
    }

    AnoConsumo Patron() const
    {
        const int iPatron =
            LeerEntero("N", Palabra("el patrón"), 1, static_cast<int>(PatronesConsumo().size()));
        if (!m_potencia)
            throw ErrorUso("falta --potencia, en W");
        return AnoDePatron(iPatron, LeerAcotado("--potencia", *m_potencia, 0.01, kPotenciaMaxima));
    }

    AnoConsumo Importar() const { return m_importacion.Leer(Palabra("el fichero")); }

    AnoConsumo Mensual() const
    {
        EnergiasMensuales datos;
        bool bAlguna = false;
        for (std::size_t p = 0; p < m_energias.size(); ++p) {
            if (m_energias[p].empty())
                continue;
            bAlguna = true;
            const std::string opcion = fmt::format("--p{}", p + 1);
            const std::vector<std::string> partes = SepararNumeros(m_energias[p], 12);
            if (partes.size() != 12)
                throw ErrorUso(fmt::format("{}: se esperaban 12 valores, llegaron {}", opcion, partes.size()));
            for (std::size_t m = 0; m < 12; ++m)
                datos.adMes[p][m] = LeerAcotado(opcion.c_str(), partes[m], 0, kEnergiaMaxima);
        }
        if (!bAlguna)
            throw ErrorUso("faltan las energías: --p1, --p2 o --p3");
        if (m_horas.size() != datos.aiPeriodo.size() || m_horas.find_first_not_of("123") != std::string::npos)
            throw ErrorUso(fmt::format("--horas: se esperaban 24 cifras 1, 2 o 3, llegó «{}»", m_horas));
        for (std::size_t h = 0; h < datos.aiPeriodo.size(); ++h)
            datos.aiPeriodo[h] = m_horas[h] - '0';
        datos.iPatron = LeerEntero("--patron", m_patron, 1, static_cast<int>(PatronesConsumo().size()));
        return AnoDeMeses(datos);
    }

    AnoConsumo Receptores() const { return AnoDeListaDeReceptores(Palabra("el fichero"), m_datos); }

    Salida LeerSalida() const
    {
        if (!m_svg && (m_vista || m_mes || m_dia))
            throw ErrorUso("--vista, --mes y --dia necesitan --svg");
        const std::array formas = {m_bJson, m_bCsv, m_bValores, m_svg.has_value()};
        if (std::ranges::count(formas, true) > 1)
            throw ErrorUso(m_bCsv || m_bValores ? "--json, --csv, --valores y --svg se excluyen"
                                                : "--svg y --json se excluyen");
        Salida como{Salidas({m_palabra})};
        if (m_svg)
            como.ficheros.Anadir("--svg", *m_svg);
        // "ano" for keyboards without ñ.
        como.vista = m_vista == "ano" ? Vista::ano : Elegir("--vista", m_vista.value_or("año"), kVistas);
        como.iMes = LeerEntero("--mes", m_mes.value_or("1"), 1, 12) - 1;
        como.iDia = LeerEntero("--dia", m_dia.value_or("1"), 1, HorasDePeriodo(como.iMes).Horas() / 24) - 1;
        return como;
    }

    std::string Escribir(const AnoConsumo& ano) const
    {
        if (m_bJson)
            return InformeJson(ano);
        if (m_bValores)
            return InformeValores(ano);
        return ano.contador && !m_bCsv ? InformeTexto(ano) : InformeCsv(ano);
    }

    void Emitir(const AnoConsumo& ano, const Salida& como, std::ostream& salida) const
    {
        if (!m_svg) {
            salida << Escribir(ano);
            return;
        }
        como.ficheros.Escribir({DibujarAno(ano, como.vista, como.iMes, como.iDia)}, salida);
        if (!como.ficheros.EnLaSalida())
            salida << Prosa(fmt::format("{}\nEnergía del año: {} kWh\n", EnUnaLinea(ano.origen),
                                        Cifra(SumaDeHoras(*ano.horas, HorasDePeriodo(12)) / 1000.0, 2)) +
                            Nota(fmt::format("Gráfica escrita: {}\n", EnUnaLinea(*m_svg))));
    }

    std::vector<std::pair<CLI::App*, Calculo>> m_ordenes;
    std::string m_palabra, m_datos;
    std::optional<std::string> m_potencia, m_svg, m_vista, m_mes, m_dia;
    ImportacionConsumo m_importacion;
    std::string m_patron = "1", m_horas = std::string(24, '1');
    std::array<std::vector<std::string>, 3> m_energias;
    bool m_bJson = false, m_bCsv = false, m_bValores = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenConsumo()
{
    return std::make_unique<SubordenConsumo>();
}

}  // namespace efv::orden
