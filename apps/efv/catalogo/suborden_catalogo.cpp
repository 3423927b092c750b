#include "catalogo/suborden_catalogo.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "catalogo/acceso.h"
#include "catalogo/ficha.h"
#include "catalogo/importacion.h"
#include "comun/linea_ordenes.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr int kConHallazgos = 1;

std::string LineaDe(const HallazgoModelo& hallazgo)
{
    return fmt::format("{}#{}: {}\n", EnTerminal(hallazgo.csFamilia), EnTerminal(hallazgo.csModelo),
                       EnTerminal(hallazgo.csTexto));
}

Json HallazgosJson(const std::vector<HallazgoModelo>& hallazgos)
{
    Json lista = Json::array();
    for (const HallazgoModelo& h : hallazgos)
        lista.push_back({{"familia", CadenaUtf8(h.csFamilia)},
                         {"modelo", CadenaUtf8(h.csModelo)},
                         {"texto", CadenaUtf8(h.csTexto)}});
    return lista;
}

std::string ImportacionTexto(const Importacion& importacion, const std::string& catalogo)
{
    std::string texto;
    for (const auto& [fichero, importado, hallazgos] : importacion.modulos) {
        texto += fmt::format("{}: {}\n", EnUnaLinea(fichero), EnTerminal(Identificacion(importado.modelo)));
        for (const CString& csAviso : importado.acsAvisos)
            texto += fmt::format("  aviso: {}\n", EnTerminal(csAviso));
        for (const HallazgoModelo& hallazgo : hallazgos)
            texto += LineaDe(hallazgo);
    }
    const std::size_t n = importacion.modulos.size();
    if (importacion.Hallazgos() > 0)
        return texto + "no se ha añadido ningún modelo\n";
    return texto + fmt::format("{} a {}\n", n == 1 ? "1 modelo añadido" : fmt::format("{} modelos añadidos", n),
                               EnUnaLinea(catalogo));
}

Json ImportacionJson(const Importacion& importacion, const std::string& catalogo)
{
    const bool bAnadidos = importacion.Hallazgos() == 0;
    Json modulos = Json::array();
    for (const auto& [fichero, importado, hallazgos] : importacion.modulos) {
        Json avisos = Json::array();
        for (const CString& csAviso : importado.acsAvisos)
            avisos.push_back(CadenaUtf8(csAviso));
        modulos.push_back({{"fichero", fichero},
                           {"ficha", FichaJson(importado.modelo)},
                           {"avisos", avisos},
                           {"hallazgos", HallazgosJson(hallazgos)}});
    }
    return {
        {"catalogo", catalogo}, {"anadidos", bAnadidos ? importacion.modulos.size() : 0}, {"modulos", modulos}};
}

class SubordenCatalogo final : public Suborden {
public:
    CLI::App& Declarar(CLI::App& raiz) override
    {
        CLI::App& linea =
            *raiz.add_subcommand("catalogo", "Consulta, comprueba y amplía el catálogo de módulos");
        Castellanizar(linea);
        linea.require_subcommand(0, 1);
        linea.footer(
            "Cada orden tiene su ayuda: efv catalogo ORDEN --help\n"
            "Un modelo se nombra como FAMILIA#MODELO, o con su modelo solo.");

        Orden(linea, "listar", "Lista los modelos", &SubordenCatalogo::Listar)
            .add_option("--familia", m_familia, "Solo los de la familia")
            ->type_name("NOMBRE");
        Orden(linea, "buscar", "Lista los modelos cuya familia o modelo contiene un texto",
              &SubordenCatalogo::Buscar)
            .add_option("TEXTO", m_palabras, "Texto, sin distinguir mayúsculas ni acentos")
            ->option_text(" ");
        Orden(linea, "ver", "Muestra la ficha de un modelo", &SubordenCatalogo::Ver)
            .add_option("ID", m_id, "FAMILIA#MODELO, o el modelo solo")
            ->option_text(" ");
        Orden(linea, "validar", "Comprueba todos los modelos; termina con 1 si hay hallazgos",
              &SubordenCatalogo::Validar);
        CLI::App& importar = Orden(linea, "importar-pan", "Añade los modelos de archivos PAN, todos o ninguno",
                                   &SubordenCatalogo::ImportarPan);
        importar.add_option("FICHERO", m_palabras, "Archivos PAN")->option_text(" ");
        importar
            .add_option("--familia", m_familia, "Familia a la que se añaden; si falta, el fabricante que dicen")
            ->type_name("NOMBRE");
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        for (const auto& [orden, trabajo] : m_trabajos)
            if (orden->parsed())
                return (this->*trabajo)(salida);
        throw ErrorUso(
            "falta la orden: listar, buscar, ver, validar o importar-pan "
            "(ayuda: efv catalogo --help)");
    }

private:
    using Trabajo = int (SubordenCatalogo::*)(std::ostream&);

    CLI::App& Orden(CLI::App& linea, const char* nombre, const char* descripcion, Trabajo trabajo)
    {
        CLI::App& orden = *linea.add_subcommand(nombre, descripcion);
        Castellanizar(orden);
        m_catalogo.Declarar(orden);
        orden.add_flag("--json", m_bJson, "Escribe JSON")->option_text(" ")->disable_flag_override();
        m_trabajos.emplace_back(&orden, trabajo);
        return orden;
    }

    int Listar(std::ostream& salida)
    {
        const CatalogoModulos catalogo(m_catalogo.Ruta());
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
        const CatalogoModulos catalogo(m_catalogo.Ruta());
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
        const CatalogoModulos catalogo(m_catalogo.Ruta());
        const CBasePanelFotoModelo& modelo = catalogo.Buscar(m_id);
        salida << (m_bJson ? TextoJson(FichaJson(modelo)) : FichaTexto(modelo));
        return 0;
    }

    int Validar(std::ostream& salida)
    {
        const CatalogoModulos catalogo(m_catalogo.Ruta());
        const std::vector<HallazgoModelo> hallazgos = ValidarCatalogo(catalogo.Base());
        const std::size_t n = catalogo.Todos().size();
        if (m_bJson)
            salida << TextoJson({{"modelos", n}, {"hallazgos", HallazgosJson(hallazgos)}});
        else if (hallazgos.empty())
            salida << fmt::format("{} modelo{}, sin hallazgos\n", n, n == 1 ? "" : "s");
        else
            for (const HallazgoModelo& hallazgo : hallazgos)
                salida << LineaDe(hallazgo);
        return hallazgos.empty() ? 0 : kConHallazgos;
    }

    int ImportarPan(std::ostream& salida)
    {
        if (m_palabras.empty())
            throw ErrorUso("faltan los archivos PAN (ayuda: efv catalogo importar-pan --help)");
        if (m_familia && m_familia->empty())
            throw ErrorUso("--familia: el nombre está vacío");
        const CString csCatalogo = m_catalogo.Ruta();
        const Importacion importacion = LeerModulos(m_palabras, m_familia);
        if (importacion.Hallazgos() == 0)
            Anadir(importacion, csCatalogo);
        salida << (m_bJson ? TextoJson(ImportacionJson(importacion, CadenaUtf8(csCatalogo)))
                           : ImportacionTexto(importacion, CadenaUtf8(csCatalogo)));
        return importacion.Hallazgos() == 0 ? 0 : kConHallazgos;
    }

    void Escribir(std::ostream& salida, const Modelos& modelos) const
    {
        salida << (m_bJson ? TextoJson(ListaJson(modelos)) : ListaTexto(modelos));
    }

    OpcionesCatalogo m_catalogo;
    std::vector<std::pair<CLI::App*, Trabajo>> m_trabajos;
    std::vector<std::string> m_palabras;
    std::optional<std::string> m_familia;
    std::string m_id;
    bool m_bJson = false;
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenCatalogo()
{
    return std::make_unique<SubordenCatalogo>();
}

}  // namespace efv::orden
