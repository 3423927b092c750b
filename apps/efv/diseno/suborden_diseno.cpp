#include "diseno/suborden_diseno.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/assistants.h>
#include <quorvel/economics.h>
#include <quorvel/report/informe.h>

#include "comun/datos.h"
#include "comun/linea_ordenes.h"
#include "comun/lote.h"
#include "comun/numeros.h"
#include "comun/salidas.h"
#include "diseno/ayuda_campos.h"
#include "diseno/diseno.h"
#include "diseno/informe.h"
#include "diseno/proyecto.h"
#include "diseno/proyecto_estudio.h"

namespace efv::orden {

namespace {

constexpr int kFaltas = 3;
constexpr const char* kGuardar = "--guardar";

// What tells one command from the other.
struct Clase {
    const char* nombre;
    const char* descripcion;
    const char* pie;
    const char* que;  ///< what --guardar keeps
    Diseno (*disenar)(const JsonLeido& proyecto, const std::string& csDatos);
    const CRuntimeClass& (*registro)();
    bool bCsv = false;  ///< whether it has a table of years; else it has checks
};

constexpr Clase kAislada = {
    "aislada",
    "Diseña una instalación aislada, con acumuladores, a partir de un fichero de proyecto",
    "El proyecto es un objeto JSON:\n"
    "  lugar               nombre de «efv lugares»; o latitud, hemisferio (N, S) y radiacion,\n"
    "                      doce valores en kJ/m²·día\n"
    "  csPanel, csAcumulador   FAMILIA#MODELO, o el modelo solo\n"
    "  receptores          lista de objetos: csModelo, iCantidad, otros campos del receptor y su uso:\n"
    "                      franjas  [[\"08:00\",\"10:00\"], ...] para todos los días, hasta tres\n"
    "                      horario  lista de {\"meses\": [\"junio\"], \"dias\": [\"fin de semana\"],\n"
    "                               \"franjas\": ...}; una regla puede a la anterior\n"
    "                      dHorario los 504 minutos del registro\n"
    "                      con dPotencia (W) no hace falta un modelo del catálogo; iTipoRed 1 es alterna\n"
    "  modelos             los que no están en los catálogos: {\"catalogo\": \"modulos\", \"csModelo\", ...}\n"
    "  temperaturaMinima, temperaturaMaxima   de las células, ºC; si faltan, -10 y 70\n"
    "  cableado            datos de los tramos: limite, metodo, material, aislante, temperatura, margen...,\n"
    "                      y los de uno con su longitud: {\"limite\": 3, \"paneles\": {\"longitud\": 20}};\n"
    "                      tramos: paneles, acumuladores, receptores, inversor, salida\n"
    "  planos              lista de {\"inclinacion\", \"orientacion\", \"parte\"}: hacia dónde miran los "
    "paneles;\n"
    "                      si falta, dInclinacion y dOrientacion\n"
    "  clima               registro climático para la energía por planos; si falta, cielo despejado\n"
    "                      ajustado a las doce radiaciones\n"
    "  titulo              nombre del proyecto en el informe\n"
    "  portada             {\"cliente\", \"direccion\", \"autor\", \"firma\", \"revision\"} de su portada;\n"
    "                      lo que falta no sale\n"
    "y los campos del registro por su nombre: dDiasAutonomia, dTensionSistema, iMesCalculo (0 a 14, o\n"
    "\"Diciembre\", \"Desfavorable\"...), dProfundidadDescarga, dTensionMaxFV, iPanelesSerie... Lo que fija\n"
    "el fichero queda en vigor; lo demás toma la propuesta del programa. Los avisos no son errores.\n"
    "Ejemplo:\n  efv aislada casa-aislada.json --informe casa.html",
    "el diseño",
    &DisenarAislada,
    &CSFVAsistenteAislada::GetThisClass};

constexpr Clase kRed = {
    "red",
    "Diseña una instalación conectada a red a partir de un fichero de proyecto",
    "El proyecto es un objeto JSON:\n"
    "  lugar               nombre de «efv lugares»; o latitud, hemisferio (N, S) y, para la energía\n"
    "                      mensual, radiacion: doce valores en kJ/m²·día\n"
    "  csPanel, csInversor FAMILIA#MODELO, o el modelo solo; los inversores que convienen a unos\n"
    "                      paneles los da «efv inversores»\n"
    "  modelos             los que no están en los catálogos: {\"catalogo\": \"modulos\", \"csModelo\", ...}\n"
    "  temperaturaMinima, temperaturaMaxima   de las células, ºC; si faltan, -10 y 70\n"
    "  rendimiento         de la instalación, fracción; si falta, 0.8\n"
    "  cableado            datos de los tramos L1, L2 y L3: limite (si falta, 1,5 %), metodo, material,\n"
    "                      aislante, temperatura, margen...: {\"margen\": 25, \"L2\": {\"metodo\": \"D1\"}}\n"
    "  planos              lista de {\"inclinacion\", \"orientacion\", \"parte\"}: hacia dónde miran los "
    "paneles;\n"
    "                      si falta, dInclinacion y dOrientacion\n"
    "  clima               registro climático para la energía por planos; si falta, cielo despejado\n"
    "                      ajustado a las doce radiaciones\n"
    "  titulo              nombre del proyecto en el informe\n"
    "  portada             {\"cliente\", \"direccion\", \"autor\", \"firma\", \"revision\"} de su portada;\n"
    "                      lo que falta no sale\n"
    "y los campos del registro por su nombre: dPotenciaObjetivo (kW), iInversores, iPanelesSerie,\n"
    "iPanelesParalelo, dInclinacion, iDisposicion... Lo que fija el fichero queda en vigor; lo demás toma\n"
    "la propuesta del programa. Los avisos no son errores.\n"
    "Ejemplo:\n  efv red cubierta-red.json --informe cubierta.html",
    "el diseño",
    &DisenarRed,
    &CSFVAsistenteRed::GetThisClass};

constexpr Clase kVenta = {
    "venta",
    "Estudia año a año la venta a la red de una instalación a partir de un fichero de estudio",
    "El estudio es un objeto JSON:\n"
    "  lugar               nombre de «efv lugares»; o latitud, hemisferio (N, S) y radiacion,\n"
    "                      doce valores en kJ/m²·día\n"
    "  dInclinacion        de los paneles, hacia el ecuador, 0 a 90; si falta, 30\n"
    "  dPotenciaGenerador  W\n"
    "  dEnergiaBase        kWh de un año antes del performance ratio; sobran entonces lugar y plano\n"
    "  titulo              nombre del estudio en el informe\n"
    "  portada             {\"cliente\", \"direccion\", \"autor\", \"firma\", \"revision\"} de su portada;\n"
    "                      lo que falta no sale\n"
    "y los demás campos del registro por su nombre: dPrimaFija (€/kWh), dCosteInstalacion (€) o dRepercusion\n"
    "(€/Wp), dTipoInteres, dAniosPrestamo, dAniosEstudio, iTipoAmortizacion (0 francés, 1 alemán)... Lo que\n"
    "falta toma el valor de un registro nuevo y se dice. Los avisos no son errores.\n"
    "Ejemplo:\n  efv venta venta-cubierta.json --informe venta.html",
    "el estudio",
    &EstudiarVenta,
    &CSFVCalculoEconomico::GetThisClass,
    true};

class SubordenDiseno final : public Suborden {
public:
    explicit SubordenDiseno(const Clase& clase) : m_clase(clase) {}

    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand(m_clase.nombre, m_clase.descripcion);
        Castellanizar(linea);
        linea
            .add_option("PROYECTO", m_proyectos,
                        "Ficheros de proyecto, JSON o de efv-estudio: de cada uno su resultado")
            ->option_text(" ");
        CLI::Option* json =
            linea.add_flag("--json", m_bJson, "Escribe JSON con todos los valores por su nombre en el código");
        json->option_text(" ")->disable_flag_override();
        if (m_clase.bCsv) {
            linea
                .add_flag("--csv", m_bCsv,
                          "Escribe la tabla de años como CSV con punto y coma y coma decimal, como lo leen las "
                          "hojas de cálculo")
                ->option_text(" ")
                ->excludes(json)
                ->disable_flag_override();
        }
        if (!m_clase.bCsv) {
            linea
                .add_flag("--estricto", m_bEstricto,
                          "Termina con estado 3 si una comprobación no se cumple o algo no alcanza lo pedido")
                ->option_text(" ")
                ->disable_flag_override();
        }
        linea
            .add_option(
                "--guardar", m_guardar,
                fmt::format("Guarda {} como archivo del registro, que otro programa puede abrir", m_clase.que))
            ->type_name("FICHERO");
        m_informe.Declarar(linea);
        linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
        linea.footer(AyudaDeCampos(m_clase.registro()) + "\n\n" + m_clase.pie);
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        if (m_proyectos.empty())
            throw ErrorUso(fmt::format("falta el fichero de proyecto (ayuda: efv {} --help)", m_clase.nombre));
        Lote lote(m_proyectos);
        const FormatoLote formato = m_bJson  ? FormatoLote::json
                                    : m_bCsv ? FormatoLote::csv
                                             : FormatoLote::texto;
        return lote.Ejecutar(salida, formato, m_bEstricto ? kFaltas : 0,
                             [&](const std::string& fichero) { return Calcular(fichero, lote, salida); });
    }

private:
    ResultadoProyecto Calcular(const std::string& fichero, Lote& lote, std::ostream& salida) const
    {
        const JsonLeido proyecto = LeerFicheroProyecto(fichero, m_clase.nombre);
        const Salidas salidas = LeerSalidas(proyecto, fichero, lote);
        Diseno diseno = Disenar(proyecto, fichero);
        std::vector<std::string> contenidos;
        if (m_guardar)
            contenidos.emplace_back(reinterpret_cast<const char*>(diseno.archivo.data()),
                                    diseno.archivo.size());
        if (m_informe.Ruta())
            contenidos.push_back(m_informe.Escribir(diseno.documento));
        const std::vector<std::string> escritos = salidas.Escribir(contenidos, salida);
        ResultadoProyecto resultado{.bCumple = diseno.bCumple};
        if (!salidas.EnLaSalida())
            Contar(diseno, escritos, resultado);
        return resultado;
    }

    void Contar(Diseno& diseno, const std::vector<std::string>& escritos, ResultadoProyecto& resultado) const
    {
        if (m_bJson) {
            diseno.valores["ficheros"] = escritos;
            resultado.valores = std::move(diseno.valores);
        } else if (m_bCsv) {
            resultado.texto = std::move(diseno.csv);
        } else {
            resultado.texto = report::DocumentoTexto(diseno.documento, Forma()) + Escritos(escritos);
        }
    }

    // What the run reads may not be what it writes: the project, and the climate record that it names.
    Salidas LeerSalidas(const JsonLeido& proyecto, const std::string& fichero, Lote& lote) const
    {
        std::vector<std::string> entradas = m_proyectos;
        std::ranges::copy(FicherosLeidos(proyecto), std::back_inserter(entradas));
        Salidas salidas(std::move(entradas));
        if (m_guardar)
            salidas.Anadir(kGuardar, lote.Ruta(kGuardar, *m_guardar, fichero), Salidas::Contenido::bytes);
        m_informe.Anadir(salidas, lote, fichero);
        if (salidas.EnLaSalida() && (m_bJson || m_bCsv))
            throw ErrorUso(fmt::format("{} y un fichero «-» se excluyen", m_bJson ? "--json" : "--csv"));
        return salidas;
    }

    Diseno Disenar(const JsonLeido& proyecto, const std::string& fichero) const
    {
        try {
            return m_clase.disenar(proyecto, m_datos);
        } catch (const rpc::ErrorValor& error) {
            throw ErrorEjecucion(fmt::format("«{}»: {}", fichero, error.what()));
        }
    }

    const Clase& m_clase;
    std::vector<std::string> m_proyectos;
    std::string m_datos;
    std::optional<std::string> m_guardar;
    OpcionesInforme m_informe;
    bool m_bJson = false, m_bCsv = false, m_bEstricto = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenAislada()
{
    return std::make_unique<SubordenDiseno>(kAislada);
}

std::unique_ptr<Suborden> CrearSubordenRed()
{
    return std::make_unique<SubordenDiseno>(kRed);
}

std::unique_ptr<Suborden> CrearSubordenVenta()
{
    return std::make_unique<SubordenDiseno>(kVenta);
}

}  // namespace efv::orden
