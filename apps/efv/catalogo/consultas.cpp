// Orders that read a catalogue.
#include <algorithm>
#include <filesystem>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "catalogo/exportacion.h"
#include "catalogo/ficha.h"
#include "catalogo/grupo_ordenes.h"
#include "catalogo/informes.h"
#include "catalogo/pregunta.h"
#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/salidas.h"

namespace efv::orden {

namespace {

class Consultas final : public GrupoOrdenes {
public:
    void Declarar(CLI::App& linea) override
    {
        CLI::App& listar = Consulta(linea, "listar", "Lista los modelos", &Consultas::Listar);
        AnadirFamilia(listar, "Solo los de la familia");
        CLI::App& buscar =
            Consulta(linea, "buscar", "Lista los modelos por palabras de su familia o nombre y por sus valores",
                     &Consultas::Buscar);
        buscar
            .add_option("TEXTO", m_palabras,
                        "Palabras, en cualquier orden, sin distinguir mayúsculas ni acentos")
            ->option_text(" ");
        for (CLI::App* orden : {&listar, &buscar}) {
            m_pregunta.DeclararCondiciones(*orden);
            m_pregunta.DeclararLista(*orden);
        }
        buscar.footer(
            "Ejemplos:\n"
            "  efv catalogo buscar --donde 'dPmpm>=495' --ordenar=-dPmpm --columnas dPmpm,dVoc,dIsc\n"
            "  efv catalogo buscar --tipo inversores --donde 'dPCANom>=5000' --donde 'dPCANom<=8000'");
        CLI::App& ver = Consulta(linea, "ver", "Muestra la ficha de un modelo", &Consultas::Ver);
        ver.add_option("ID", m_id, "FAMILIA#MODELO, o el modelo solo")->option_text(" ");
        CLI::App& validar =
            Consulta(linea, "validar", "Comprueba todos los modelos; termina con 1 si hay hallazgos",
                     &Consultas::Validar);
        CLI::App& campos = Consulta(linea, "campos", "Lista los campos de un tipo, con su nombre y su unidad",
                                    &Consultas::Campos);
        for (CLI::App* orden : {&listar, &buscar, &ver, &validar, &campos})
            AnadirJson(*orden);
        DeclararExportar(Consulta(linea, "exportar", "Escribe los modelos como CSV para una hoja de cálculo",
                                  &Consultas::Exportar));
    }

private:
    CLI::App& Consulta(CLI::App& linea, const char* nombre, const char* descripcion,
                       int (Consultas::*trabajo)(std::ostream&) const)
    {
        return Orden(linea, nombre, descripcion, TodosLosTipos(),
                     [this, trabajo](std::ostream& salida) { return (this->*trabajo)(salida); });
    }

    void DeclararExportar(CLI::App& exportar)
    {
        AnadirFamilia(exportar, "Solo los de la familia");
        m_pregunta.DeclararCondiciones(exportar);
        exportar.add_flag("--json", m_bJson, "Escribe JSON en vez de CSV")
            ->option_text(" ")
            ->disable_flag_override();
        exportar.add_option("--salida", m_salida, "Fichero que se escribe; sin él, la salida del programa")
            ->type_name("FICHERO");
        exportar
            .add_option("--separador", m_separador,
                        "«;», con coma decimal, o «,», con punto decimal; si falta, «;»")
            ->type_name("SIGNO");
        exportar.footer(
            "UTF-8 con marca de orden de bytes; los campos, por su nombre. A un texto que empieza por\n"
            "= + - o @ se le antepone un apóstrofo, para que ninguna hoja de cálculo lo tome por fórmula.");
    }

    const TipoCatalogo& Tipo() const { return m_catalogo.Tipo(TodosLosTipos()); }
    CatalogoAbierto Abrir() const { return {Tipo(), m_catalogo.Ruta(Tipo())}; }
    // Those of the family that was given, else all, that keep to the conditions.
    Modelos Elegidos(const CatalogoAbierto& catalogo) const
    {
        Modelos modelos =
            m_pregunta.Responder(Tipo(), Familia() ? catalogo.DeFamilia(*Familia()) : catalogo.Todos());
        if (modelos.empty())
            throw ErrorEjecucion("ningún modelo cumple las condiciones");
        return modelos;
    }
    void Escribir(std::ostream& salida, const Modelos& modelos) const
    {
        if (m_bJson)
            EscribirListaJson(salida, Tipo(), modelos, m_pregunta.Campos(Tipo()));
        else
            EscribirListaTexto(salida, modelos, m_pregunta.Columnas(Tipo()));
    }

    int Listar(std::ostream& salida) const
    {
        Escribir(salida, Elegidos(Abrir()));
        return 0;
    }

    int Buscar(std::ostream& salida) const
    {
        if (PalabrasBuscadas(CadenaDesdeUtf8(fmt::format("{}", fmt::join(m_palabras, " ")))).Vacias() &&
            !m_pregunta.ConCondiciones())
            throw ErrorUso("falta el texto que se busca, o --donde (ayuda: efv catalogo buscar --help)");
        Escribir(salida, m_pregunta.Buscar(Abrir(), m_palabras));
        return 0;
    }

    int Campos(std::ostream& salida) const
    {
        std::vector<std::size_t> numeros{kCampoFamilia};
        for (std::size_t i = 0; i < Tipo().Campos().size(); ++i)
            numeros.push_back(i);
        const std::vector<std::string> nombres = NombresDeCampos(Tipo());
        using enum report::ColumnasTexto::Lado;
        TablaTexto tabla({izquierda, izquierda, izquierda});
        tabla.Fila({"Campo", "Qué es", "Valor"});
        tabla.Raya();
        Json json = Json::array();
        for (const ColumnaCatalogo& columna : ColumnasDe(Tipo(), numeros)) {
            const std::string& nombre = nombres[json.size()];
            const std::string titulo = EnTerminal(columna.Rotulo()),
                              clase = columna.EsTexto() ? "texto" : "número";
            tabla.Fila({nombre, titulo, clase});
            json.push_back({{"campo", nombre}, {"titulo", titulo}, {"clase", clase}});
        }
        salida << (m_bJson ? TextoJson(json) : tabla.Texto());
        return 0;
    }

    int Ver(std::ostream& salida) const
    {
        if (m_id.empty())
            throw ErrorUso("falta el modelo, FAMILIA#MODELO (ayuda: efv catalogo ver --help)");
        const CatalogoAbierto catalogo = Abrir();
        if (ModelosDeNombre(catalogo.Todos(), CadenaDesdeUtf8(m_id)).empty())
            FallarSiEsDeOtro();
        const CModelo& modelo = catalogo.Buscar(m_id);
        salida << (m_bJson ? TextoJson(FichaJson(Tipo(), modelo, catalogo.Todos()))
                           : FichaTexto(Tipo(), modelo, catalogo.Todos()));
        return 0;
    }

    // A model of another kind is named with its kind.
    void FallarSiEsDeOtro() const
    {
        if (m_catalogo.ConFichero())
            return;
        for (const TipoCatalogo* otro : TiposDeCatalogo()) {
            const auto base = otro->CrearBase();
            if (otro == &Tipo() || base->Cargar(m_catalogo.Ruta(*otro)) == 0)
                continue;
            const Modelos hallados = ModelosDeNombre(otro->Modelos(*base), CadenaDesdeUtf8(m_id));
            if (!hallados.empty()) {
                throw ErrorEjecucion(
                    fmt::format("«{}» no está en {}, está en {}: efv catalogo ver --tipo {} '{}'",
                                EnUnaLinea(m_id), NombreEscrito(Tipo()), NombreEscrito(*otro), otro->Nombre(),
                                EnTerminal(Identificacion(*hallados.front()))));
            }
        }
    }

    int Validar(std::ostream& salida) const
    {
        const CatalogoAbierto catalogo = Abrir();
        const auto validar = m_bJson ? EscribirValidacionJson : EscribirValidacionTexto;
        return validar(salida, Tipo(), catalogo.Todos()) ? kConHallazgos : 0;
    }

    int Exportar(std::ostream& salida) const
    {
        if (m_separador != ";" && m_separador != ",")
            throw ErrorUso(fmt::format("--separador: se esperaba «;» o «,», llegó «{}»", m_separador));
        const CatalogoAbierto catalogo = Abrir();
        Salidas salidas({catalogo.Ruta()});
        if (m_salida)
            salidas.Anadir("--salida", *m_salida);
        const auto exportar = [&, modelos = Elegidos(catalogo)](std::ostream& csv) {
            if (m_bJson)
                EscribirListaJson(csv, Tipo(), modelos, std::nullopt);
            else
                EscribirModelosCsv(csv, Tipo(), modelos, m_separador.front());
        };
        if (!m_salida || salidas.EnLaSalida())
            exportar(salida);
        else
            salidas.EscribirPorPartes({exportar}, salida);
        return 0;
    }

    PreguntaCatalogo m_pregunta;
    std::string m_id;
    std::optional<std::string> m_salida;
    std::string m_separador = ";";
};

}  // namespace

std::unique_ptr<GrupoOrdenes> CrearConsultas()
{
    return std::make_unique<Consultas>();
}

}  // namespace efv::orden
