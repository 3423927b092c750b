#include "autoconsumo/suborden_autoconsumo.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/report/informe.h>

#include "autoconsumo/lectura_estudio.h"
#include "autoconsumo/salida_estudio.h"
#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/lote.h"
#include "comun/numeros.h"
#include "comun/palabras.h"
#include "comun/salidas.h"
#include "diseno/informe.h"
#include "diseno/proyecto_estudio.h"

namespace efv::orden {

namespace {

constexpr std::size_t kMaximoPuntos = 10'000;
constexpr const char *kGuardar = "--guardar", *kSvg = "--svg";

// "1..15", "1..15:0,5", "2;3,5;6".
std::vector<double> LeerBarrido(const char* opcion, const std::string& texto, double dMinimo)
{
    const auto leer = [&](const std::string& parte) { return LeerAcotado(opcion, parte, dMinimo, 1e6); };
    if (auto intervalo = LeerIntervalo(opcion, texto, kMaximoPuntos, leer))
        return std::move(*intervalo);
    std::vector<double> valores;
    for (const std::string& parte : SepararNumeros({texto}, 0))
        valores.push_back(leer(parte));
    if (valores.empty())
        throw ErrorUso(fmt::format("{}: no hay ningún valor en «{}»", opcion, EnUnaLinea(texto)));
    return valores;
}

constexpr const char* kPie =
    "El estudio es un objeto JSON; los ficheros que nombra están junto a él:\n"
    "  lugar               nombre de «efv lugares»; o latitud, hemisferio, radiacion (doce, kJ/m²·día),\n"
    "                      longitud y altitud (m)\n"
    "  potencia            kWp; inversor, kW que no se pasan; rendimiento o perdidas ({\"polvo\": 3, ...}, "
    "%);\n"
    "                      edad de los paneles, años\n"
    "  inclinacion, orientacion, o planos como en «efv red»; clima, registro climático\n"
    "  consumo             {\"fichero\": \"contador.csv\", \"cups\": ...}, {\"patron\": 2, \"potencia\": "
    "4600}\n"
    "                      (W; los patrones: efv consumo patron --help),\n"
    "                      {\"receptores\": \"lista.json\"} o {\"horas\": 8760 Wh}; energia, kWh al año a los\n"
    "                      que se escala (un patrón, entonces, sin potencia)\n"
    "  precios             {\"tarifa\": \"2.0TD\", \"p1\": 0.197, \"p2\": 0.128, \"p3\": 0.093, \"excedente\": "
    "0.06,\n"
    "                      \"impuestos\": 1.2719}; tarifa plana o fichero de períodos, zona, festivos;\n"
    "                      pago: compensacion o venta\n"
    "  coste               € de todo, o {\"fijo\", \"porKWp\", \"porKWhBateria\"}; subvencion, €\n"
    "  prestamo            {\"capitalInicial\": € que se ponen, \"interes\": %, \"meses\"}: el resto del "
    "coste\n"
    "                      se financia; si falta, se paga al contado\n"
    "  envejecimiento, variacionPrecio (% al año), mantenimiento (€ al año), años del estudio (25)\n"
    "  bateria             {\"capacidad\": 5, \"potencia\": 2.5, \"rendimiento\": 0.9, \"regla\": "
    "\"autoconsumo\" o\n"
    "                      \"arbitraje\", \"costeDegradacion\": 0}\n"
    "  titulo              nombre del estudio en el informe\n"
    "  portada             {\"cliente\", \"direccion\", \"autor\", \"firma\"} de su portada; lo que falta no "
    "sale\n"
    "Ejemplos:\n"
    "  efv autoconsumo casa-autoconsumo.json --informe casa.html\n"
    "  efv autoconsumo casa-autoconsumo.json --barrido 1..15 --svg barrido.svg";

class SubordenAutoconsumo final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand(
            "autoconsumo",
            "Estudia hora a hora una instalación de autoconsumo, del contador a la recuperación");
        Castellanizar(linea);
        linea
            .add_option("ESTUDIO", m_estudios,
                        "Ficheros de estudio, JSON o de efv-estudio: de cada uno su resultado")
            ->option_text(" ");
        CLI::Option* json = linea.add_flag("--json", m_bJson, "Escribe JSON con todos los valores");
        json->option_text(" ")->disable_flag_override();
        linea.add_flag("--csv", m_bCsv, "Escribe las 8760 horas como CSV con punto y coma y coma decimal")
            ->option_text(" ")
            ->excludes(json)
            ->disable_flag_override();
        const auto texto = [&](const char* nombre, std::optional<std::string>& valor, const char* ayuda,
                               const char* tipo) { linea.add_option(nombre, valor, ayuda)->type_name(tipo); };
        texto("--barrido", m_barrido, "Lo mismo con otras potencias, kWp: 1..15, 1..6:0,5 o 2;3;4", "kWp");
        texto("--baterias", m_baterias, "Y con otras capacidades de batería, kWh; 0, sin ella", "kWh");
        m_informe.Declarar(linea);
        texto("--svg", m_svg, "Dibuja el barrido", "FICHERO");
        texto("--guardar", m_guardar,
              "Guarda el registro del estudio como archivo, que los diálogos y otro programa pueden abrir",
              "FICHERO");
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer(kPie);
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (m_estudios.empty())
            throw ErrorUso("falta el fichero de estudio (ayuda: efv autoconsumo --help)");
        if (m_svg && !m_barrido && !m_baterias)
            throw ErrorUso("--svg necesita --barrido o --baterias");
        Lote lote(m_estudios);
        const FormatoLote formato = m_bJson  ? FormatoLote::json
                                    : m_bCsv ? FormatoLote::csv
                                             : FormatoLote::texto;
        return lote.Ejecutar(salida, formato, 0, [&](const std::string& fichero) {
            const JsonLeido json = LeerFicheroProyecto(fichero, "autoconsumo");
            const Salidas salidas = LeerSalidas(json, fichero, lote);
            try {
                return Estudiar(json, fichero, salidas, salida);
            } catch (const rpc::ErrorValor& error) {
                throw ErrorEjecucion(fmt::format("«{}»: {}", fichero, error.what()));
            }
        });
    }

private:
    Salidas LeerSalidas(const JsonLeido& json, const std::string& fichero, Lote& lote) const
    {
        std::vector<std::string> entradas = FicherosDelEstudio(json, fichero);
        entradas.insert(entradas.end(), m_estudios.begin(), m_estudios.end());
        Salidas salidas(std::move(entradas));
        if (m_guardar)
            salidas.Anadir(kGuardar, lote.Ruta(kGuardar, *m_guardar, fichero), Salidas::Contenido::bytes);
        m_informe.Anadir(salidas, lote, fichero);
        if (m_svg)
            salidas.Anadir(kSvg, lote.Ruta(kSvg, *m_svg, fichero));
        if (salidas.EnLaSalida() && (m_bJson || m_bCsv))
            throw ErrorUso(fmt::format("{} y un fichero «-» se excluyen", m_bJson ? "--json" : "--csv"));
        return salidas;
    }

    std::vector<report::PuntoBarrido> Barrer(EstudioLeido& leido) const
    {
        if (!m_barrido && !m_baterias)
            return {};
        report::ProyectoAutoconsumo& proyecto = leido.proyecto;
        const std::vector<double> potencias =
            m_barrido ? LeerBarrido("--barrido", *m_barrido, 0.01) : std::vector{proyecto.dPotencia};
        std::vector<double> baterias;
        if (m_baterias)
            baterias = LeerBarrido("--baterias", *m_baterias, 0.0);
        if (m_baterias && !proyecto.bateria) {
            throw ErrorUso(
                "--baterias: el estudio no tiene «bateria» de la que tomar potencia, rendimiento y regla");
        }
        if (potencias.size() * std::max<std::size_t>(baterias.size(), 1) > kMaximoPuntos)
            throw ErrorUso(fmt::format("--barrido y --baterias dan más de {} casos", kMaximoPuntos));
        if (leido.bCostePorPotencia) {
            proyecto.notas.emplace_back(
                "El coste es una sola cifra: en los otros tamaños crece con la potencia y la batería no lo "
                "cambia.");
        }
        return report::Barrer(proyecto, potencias, baterias);
    }

    ResultadoProyecto Estudiar(const JsonLeido& json, const std::string& fichero, const Salidas& salidas,
                               std::ostream& salida) const
    {
        EstudioLeido leido = LeerEstudio(json, fichero, m_datos);
        const std::vector<report::PuntoBarrido> barrido = Barrer(leido);
        report::EstudioAutoconsumo estudio = report::Calcular(leido.proyecto);
        const std::vector<report::Aviso> avisos = report::Avisos(leido.proyecto, estudio);
        const report::Documento documento = report::EscribirDocumento(leido.proyecto, estudio, avisos, barrido);
        std::vector<std::string> contenidos;
        if (m_guardar) {
            const std::vector<std::byte> bytes = Archivar(estudio.registro);
            contenidos.emplace_back(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        }
        if (m_informe.Ruta())
            contenidos.push_back(m_informe.Escribir(documento));
        if (m_svg)
            contenidos.push_back(ui::EscribirSvg(report::GraficaBarrido(barrido)));
        const std::vector<std::string> escritos = salidas.Escribir(contenidos, salida);
        ResultadoProyecto resultado;
        resultado.bCumple = std::ranges::none_of(avisos, &report::Aviso::bFalta);
        if (salidas.EnLaSalida())
            return resultado;
        if (m_bJson) {
            resultado.valores = EstudioJson(leido.proyecto, estudio, avisos, barrido);
            resultado.valores["ficheros"] = escritos;
        } else if (m_bCsv) {
            resultado.texto = HorasCsv(estudio);
        } else {
            resultado.texto = report::DocumentoTexto(documento, Forma()) + Escritos(escritos);
        }
        return resultado;
    }

    std::vector<std::string> m_estudios;
    std::string m_datos;
    std::optional<std::string> m_barrido, m_baterias, m_svg, m_guardar;
    OpcionesInforme m_informe;
    bool m_bJson = false, m_bCsv = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenAutoconsumo()
{
    return std::make_unique<SubordenAutoconsumo>();
}

}  // namespace efv::orden
