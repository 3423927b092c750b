#include "catalogo/suborden_catalogo.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "catalogo/acceso.h"
#include "catalogo/exportacion.h"
#include "catalogo/ficha.h"
#include "catalogo/importacion.h"
#include "catalogo/importacion_cec.h"
#include "catalogo/informes.h"
#include "comun/ficheros.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr int kConHallazgos = 1;

using Tipos = std::span<const std::string_view>;
constexpr auto kModulos = std::to_array<std::string_view>({"modulos"});
constexpr auto kInversores = std::to_array<std::string_view>({"inversores", "microinversores"});

// The number of an option, within its limits.
double LeerOpcion(const char* opcion, const std::string& texto, double dMinimo, double dMaximo)
{
    const std::optional<double> d = LeerNumero(texto);
    if (!d || *d < dMinimo || *d > dMaximo)
        throw ErrorUso(fmt::format("{}: se esperaba un número entre {} y {}, llegó «{}»", opcion,
                                   DecimalExacto(dMinimo), DecimalExacto(dMaximo), texto));
    return *d;
}

class SubordenCatalogo final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea = *raiz.add_subcommand("catalogo", "Consulta, comprueba y amplía los catálogos");
        Castellanizar(linea);
        linea.require_subcommand(0, 1);
        linea.footer(
            "Cada orden tiene su ayuda: efv catalogo ORDEN --help\n"
            "Un modelo se nombra como FAMILIA#MODELO, o con su modelo solo.");
        DeclararConsultas(linea);
        DeclararImportacionDeFicheros(linea);
        DeclararImportacionCec(linea);
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        for (const auto& [orden, trabajo] : m_trabajos)
            if (orden->parsed())
                return (this->*trabajo)(salida);
        throw ErrorUso(
            "falta la orden: listar, buscar, ver, validar, exportar, importar-pan, importar-ond o importar-cec "
            "(ayuda: efv catalogo --help)");
    }

private:
    using Trabajo = int (SubordenCatalogo::*)(std::ostream&);

    CLI::App& Orden(
        CLI::App& linea, const char* nombre, const char* descripcion, Trabajo trabajo, Tipos tipos,
        const std::string& ayudaFichero = "Catálogo; si falta, el de su tipo en la carpeta de los datos")
    {
        CLI::App& orden = *linea.add_subcommand(nombre, descripcion);
        Castellanizar(orden);
        if (tipos.size() > 1)
            m_catalogo.DeclararTipo(orden, tipos);
        m_catalogo.Declarar(orden, ayudaFichero);
        m_trabajos.emplace_back(&orden, trabajo);
        return orden;
    }

    CLI::App& OrdenConJson(CLI::App& linea, const char* nombre, const char* descripcion, Trabajo trabajo,
                           Tipos tipos)
    {
        CLI::App& orden = Orden(linea, nombre, descripcion, trabajo, tipos);
        orden.add_flag("--json", m_bJson, "Escribe JSON")->option_text(" ")->disable_flag_override();
        return orden;
    }

    void DeclararConsultas(CLI::App& linea)
    {
        const Tipos todos = TodosLosTipos();
        OrdenConJson(linea, "listar", "Lista los modelos", &SubordenCatalogo::Listar, todos)
            .add_option("--familia", m_familia, "Solo los de la familia")
            ->type_name("NOMBRE");
        OrdenConJson(linea, "buscar", "Lista los modelos cuya familia o modelo contiene un texto",
                     &SubordenCatalogo::Buscar, todos)
            .add_option("TEXTO", m_palabras, "Texto, sin distinguir mayúsculas ni acentos")
            ->option_text(" ");
        OrdenConJson(linea, "ver", "Muestra la ficha de un modelo", &SubordenCatalogo::Ver, todos)
            .add_option("ID", m_id, "FAMILIA#MODELO, o el modelo solo")
            ->option_text(" ");
        OrdenConJson(linea, "validar", "Comprueba todos los modelos; termina con 1 si hay hallazgos",
                     &SubordenCatalogo::Validar, todos);
        CLI::App& exportar = Orden(linea, "exportar", "Escribe los modelos como CSV para una hoja de cálculo",
                                   &SubordenCatalogo::Exportar, todos);
        exportar.add_option("--familia", m_familia, "Solo los de la familia")->type_name("NOMBRE");
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

    void DeclararImportacionDeFicheros(CLI::App& linea)
    {
        constexpr const char* ayudaFamilia = "Familia a la que se añaden; si falta, el fabricante que dicen";
        CLI::App& pan =
            OrdenConJson(linea, "importar-pan", "Añade los modelos de archivos PAN, todos o ninguno",
                         &SubordenCatalogo::ImportarPan, kModulos);
        pan.add_option("FICHERO", m_palabras, "Archivos PAN")->option_text(" ");
        pan.add_option("--familia", m_familia, ayudaFamilia)->type_name("NOMBRE");
        CLI::App& ond =
            OrdenConJson(linea, "importar-ond", "Añade los modelos de archivos OND, todos o ninguno",
                         &SubordenCatalogo::ImportarOnd, kInversores);
        ond.add_option("FICHERO", m_palabras, "Archivos OND")->option_text(" ");
        ond.add_option("--familia", m_familia, ayudaFamilia)->type_name("NOMBRE");
        ond.add_flag("--como-dialogo", m_bComoDialogo,
                     "Toma lo mismo que el botón de importar de la ficha, sin corregir unidades, corrientes, "
                     "factor de potencia ni dimensiones")
            ->option_text(" ")
            ->disable_flag_override();
    }

    void DeclararImportacionCec(CLI::App& linea)
    {
        CLI::App& cec = OrdenConJson(linea, "importar-cec",
                                     "Añade los modelos de una biblioteca CEC de módulos o de inversores (CSV)",
                                     &SubordenCatalogo::ImportarCec, kInversores);
        cec.add_option("FICHERO", m_palabras, "Biblioteca CSV; su cabecera dice si es de módulos")
            ->option_text(" ");
        cec.add_option("--familia", m_familia, "Familia a la que se añaden; si falta, su fabricante")
            ->type_name("NOMBRE");
        cec.add_option("--solo", m_solo,
                       "Solo las filas cuyo nombre lo contiene, sin distinguir mayúsculas ni acentos")
            ->type_name("TEXTO");
        cec.add_option("--canto", m_canto, "Canto de los módulos en mm, que la biblioteca no da; si falta, 40")
            ->type_name("MM");
        cec.add_option("--proporcion", m_proporcion,
                       "Largo entre ancho, con el que la superficie da las medidas de los módulos que no las "
                       "tienen; sin ella esas filas no sirven")
            ->type_name("NUMERO");
        cec.footer(
            "El catálogo se crea si falta. Las filas que no sirven se dicen con su línea y su motivo, y\n"
            "no detienen a las demás; los modelos que ya están en su familia se dejan como están.");
    }

    const TipoCatalogo& Tipo(Tipos tipos = TodosLosTipos()) const { return m_catalogo.Tipo(tipos); }
    Catalogo Abrir() const { return {Tipo(), m_catalogo.Ruta(Tipo())}; }

    int Listar(std::ostream& salida)
    {
        const Catalogo catalogo = Abrir();
        Escribir(salida, m_familia ? catalogo.DeFamilia(*m_familia) : catalogo.Todos());
        return 0;
    }

    int Buscar(std::ostream& salida)
    {
        const std::string texto = fmt::format("{}", fmt::join(m_palabras, " "));
        if (texto.empty())
            throw ErrorUso("falta el texto que se busca (ayuda: efv catalogo buscar --help)");
        const CString csPlegado = Plegar(CadenaDesdeUtf8(texto));
        const auto contiene = [&](const CString& cs) { return Plegar(cs).find(csPlegado) != CString::npos; };
        const Catalogo catalogo = Abrir();
        Modelos hallados;
        std::ranges::copy_if(catalogo.Todos(), std::back_inserter(hallados), [&](const auto* modelo) {
            return contiene(modelo->csFamilia) || contiene(modelo->csModelo);
        });
        if (hallados.empty())
            throw ErrorEjecucion(fmt::format("ningún modelo contiene «{}»", texto));
        Escribir(salida, hallados);
        return 0;
    }

    int Ver(std::ostream& salida)
    {
        if (m_id.empty())
            throw ErrorUso("falta el modelo, FAMILIA#MODELO (ayuda: efv catalogo ver --help)");
        const Catalogo catalogo = Abrir();
        const CModelo& modelo = catalogo.Buscar(m_id);
        salida << (m_bJson ? TextoJson(FichaJson(Tipo(), modelo)) : FichaTexto(Tipo(), modelo));
        return 0;
    }

    int Validar(std::ostream& salida)
    {
        const Catalogo catalogo = Abrir();
        const std::vector<HallazgoModelo> hallazgos = ValidarModelos(Tipo(), catalogo.Todos());
        const std::size_t n = catalogo.Todos().size();
        if (m_bJson)
            salida << TextoJson({{"modelos", n}, {"hallazgos", HallazgosJson(hallazgos)}});
        else if (hallazgos.empty())
            salida << fmt::format("{} modelo{}, sin hallazgos\n", n, n == 1 ? "" : "s");
        else
            salida << HallazgosTexto(hallazgos);
        return hallazgos.empty() ? 0 : kConHallazgos;
    }

    int Exportar(std::ostream& salida)
    {
        if (m_separador != ";" && m_separador != ",")
            throw ErrorUso(fmt::format("--separador: se esperaba «;» o «,», llegó «{}»", m_separador));
        if (m_salida && m_salida->empty())
            throw ErrorUso("--salida: el nombre está vacío");
        const Catalogo catalogo = Abrir();
        const std::string csv = ModelosCsv(
            Tipo(), m_familia ? catalogo.DeFamilia(*m_familia) : catalogo.Todos(), m_separador.front());
        if (!m_salida) {
            salida << csv;
            return 0;
        }
        const std::filesystem::path ruta = std::filesystem::absolute(*m_salida);
        EscribirFicheros(ruta.parent_path(), {{ruta.filename().string(), csv}});
        return 0;
    }

    int ImportarPan(std::ostream& salida)
    {
        if (m_palabras.empty())
            throw ErrorUso("faltan los archivos PAN (ayuda: efv catalogo importar-pan --help)");
        return Importar(salida, Tipo(kModulos), LeerPan);
    }

    int ImportarOnd(std::ostream& salida)
    {
        if (m_palabras.empty())
            throw ErrorUso("faltan los archivos OND (ayuda: efv catalogo importar-ond --help)");
        const TipoCatalogo& tipo = Tipo(kInversores);
        const ModoOnd modo = m_bComoDialogo ? ModoOnd::comoDialogo : ModoOnd::corregido;
        return Importar(salida, tipo, [&](const CString& csFichero) { return LeerOnd(csFichero, tipo, modo); });
    }

    int Importar(std::ostream& salida, const TipoCatalogo& tipo, const LectorModelo& leer) const
    {
        ComprobarFamilia();
        const CString csCatalogo = m_catalogo.Ruta(tipo);
        const Importacion importacion = LeerModelos(tipo, m_palabras, leer, m_familia);
        if (importacion.Hallazgos() == 0)
            Anadir(tipo, importacion, csCatalogo);
        salida << (m_bJson ? TextoJson(ImportacionJson(tipo, importacion, CadenaUtf8(csCatalogo)))
                           : ImportacionTexto(importacion, CadenaUtf8(csCatalogo)));
        return importacion.Hallazgos() == 0 ? 0 : kConHallazgos;
    }

    int ImportarCec(std::ostream& salida)
    {
        if (m_palabras.size() != 1)
            throw ErrorUso("se espera una biblioteca CSV (ayuda: efv catalogo importar-cec --help)");
        const OpcionesCec opciones = LeerOpcionesCec();
        const BibliotecaCec biblioteca = LeerCec(CadenaDesdeUtf8(m_palabras.front()), opciones);
        if (m_catalogo.ConTipo() && biblioteca.tipo != &Tipo(kInversores))
            throw ErrorEjecucion("la biblioteca es de módulos, y --tipo dice otra cosa");
        if (biblioteca.filas.empty())
            throw ErrorEjecucion(m_solo.empty() ? "la biblioteca no tiene ninguna fila"
                                                : fmt::format("ninguna fila contiene «{}»", m_solo));
        const CString csCatalogo = m_catalogo.Ruta(*biblioteca.tipo);
        const ResultadoCec resultado = Anadir(biblioteca, csCatalogo);
        salida << (m_bJson ? TextoJson(CecJson(resultado, opciones, CadenaUtf8(csCatalogo)))
                           : CecTexto(resultado, opciones, CadenaUtf8(csCatalogo)));
        return resultado.sinModelo.size() < biblioteca.filas.size() ? 0 : kConHallazgos;
    }

    OpcionesCec LeerOpcionesCec() const
    {
        ComprobarFamilia();
        OpcionesCec opciones;
        if (m_familia) {
            opciones.csFamilia = CadenaDesdeUtf8(*m_familia);
            ComprobarNombre(opciones.csFamilia, "la familia");
        }
        opciones.csSolo = CadenaDesdeUtf8(m_solo);
        opciones.bMicro = &Tipo(kInversores) == BuscarTipoCatalogo("microinversores");
        if (m_canto)
            opciones.dCanto = LeerOpcion("--canto", *m_canto, 1, 1000);
        if (m_proporcion)
            opciones.dProporcion = LeerOpcion("--proporcion", *m_proporcion, 1, 10);
        return opciones;
    }

    void ComprobarFamilia() const
    {
        if (m_familia && m_familia->empty())
            throw ErrorUso("--familia: el nombre está vacío");
    }

    void Escribir(std::ostream& salida, const Modelos& modelos) const
    {
        salida << (m_bJson ? TextoJson(ListaJson(Tipo(), modelos)) : ListaTexto(Tipo(), modelos));
    }

    OpcionesCatalogo m_catalogo;
    std::vector<std::pair<CLI::App*, Trabajo>> m_trabajos;
    std::vector<std::string> m_palabras;
    std::optional<std::string> m_familia;
    std::string m_id;
    std::optional<std::string> m_salida;
    std::string m_separador = ";";
    std::string m_solo;
    std::optional<std::string> m_canto;
    std::optional<std::string> m_proporcion;
    bool m_bComoDialogo = false;
    bool m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenCatalogo()
{
    return std::make_unique<SubordenCatalogo>();
}

}  // namespace efv::orden
