#include "catalogo/acceso.h"

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>

#include <quorvel/localidades.h>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr std::size_t kParecidos = 3;

// A name that a search may have meant, with its shorter forms.
struct Nombre {
    CString csNombre;
    std::vector<CString> acsAlias;
};

// "; parecidos: a, b", empty without any.
std::string Parecidos(const std::vector<Nombre>& nombres, const CString& csBuscado)
{
    // The nearness of names is the same for places and for models.
    std::vector<Localidad> candidatos;
    for (const Nombre& nombre : nombres) {
        Localidad& candidato = candidatos.emplace_back();
        candidato.csNombre = nombre.csNombre;
        candidato.acsAlias = nombre.acsAlias;
    }
    std::string texto;
    for (const CString& csParecido : NombresParecidos(candidatos, csBuscado, kParecidos))
        texto += fmt::format("{}{}", texto.empty() ? "; parecidos: " : ", ", CadenaUtf8(csParecido));
    return texto;
}

template <class Condicion>
Modelos Filtrar(const Modelos& modelos, Condicion condicion)
{
    Modelos filtrados;
    std::ranges::copy_if(modelos, std::back_inserter(filtrados), [&](const auto* m) { return condicion(*m); });
    return filtrados;
}

}  // namespace

void OpcionesCatalogo::Declarar(CLI::App& linea)
{
    linea
        .add_option("--fichero", m_fichero,
                    "Catálogo de módulos; si falta, ZqModFotoHE5.xml de la carpeta de los datos")
        ->type_name("FICHERO");
    linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
}

CString OpcionesCatalogo::Ruta() const
{
    return m_fichero.empty() ? RutaDatos(m_datos, "ZqModFotoHE5.xml") : CadenaDesdeUtf8(m_fichero);
}

CatalogoModulos::CatalogoModulos(const CString& csRuta)
{
    const std::string ruta = CadenaUtf8(csRuta);
    std::error_code fallo;
    if (!std::filesystem::exists(ruta, fallo))
        throw ErrorEjecucion(fmt::format("no existe el catálogo «{}»", ruta));
    if (m_base.Cargar(csRuta) == 0)
        throw ErrorEjecucion(fmt::format("el catálogo «{}» no se puede leer o no es XML bien formado", ruta));
    for (const auto& familia : m_base.aFamilias)
        for (const auto& modelo : static_cast<const CBasePanelFotoFamilia&>(*familia).aModelos)
            m_modelos.push_back(modelo.get());
    if (m_modelos.empty())
        throw ErrorEjecucion(fmt::format("el catálogo «{}» no tiene ningún modelo", ruta));
}

const CBasePanelFotoModelo& CatalogoModulos::Buscar(const std::string& id) const
{
    const CString csId = CadenaDesdeUtf8(id);
    Modelos hallados = Filtrar(m_modelos, [&](const CBasePanelFotoModelo& m) {
        return m.csModelo == csId || Identificacion(m) == csId;
    });
    if (hallados.empty()) {
        const CString csPlegado = Plegar(csId);
        hallados = Filtrar(m_modelos, [&](const CBasePanelFotoModelo& m) {
            return Plegar(m.csModelo) == csPlegado || Plegar(Identificacion(m)) == csPlegado;
        });
    }
    if (hallados.empty()) {
        std::vector<Nombre> nombres;
        for (const CBasePanelFotoModelo* m : m_modelos)
            nombres.push_back({Identificacion(*m), {m->csModelo}});
        throw ErrorEjecucion(fmt::format("no hay ningún modelo «{}»{} (todos: efv catalogo listar)", id,
                                         Parecidos(nombres, csId)));
    }
    // One identification twice in a file counts as its first model.
    const CString csPrimera = Identificacion(*hallados.front());
    std::string varios;
    for (const CBasePanelFotoModelo* m : hallados)
        if (Identificacion(*m) != csPrimera)
            varios += ", " + CadenaUtf8(Identificacion(*m));
    if (!varios.empty())
        throw ErrorEjecucion(fmt::format("«{}» puede ser {}{}", id, CadenaUtf8(csPrimera), varios));
    return *hallados.front();
}

Modelos CatalogoModulos::DeFamilia(const std::string& nombre) const
{
    const CString csPlegado = Plegar(CadenaDesdeUtf8(nombre));
    Modelos hallados =
        Filtrar(m_modelos, [&](const CBasePanelFotoModelo& m) { return Plegar(m.csFamilia) == csPlegado; });
    if (hallados.empty()) {
        std::vector<Nombre> nombres;
        for (const CBasePanelFotoModelo* m : m_modelos)
            if (nombres.empty() || nombres.back().csNombre != m->csFamilia)
                nombres.push_back({m->csFamilia, {}});
        throw ErrorEjecucion(fmt::format("no hay ninguna familia «{}»{} (todas: efv catalogo listar)", nombre,
                                         Parecidos(nombres, CadenaDesdeUtf8(nombre))));
    }
    return hallados;
}

CString Identificacion(const CBasePanelFotoModelo& modelo)
{
    return modelo.csFamilia + L'#' + modelo.csModelo;
}

}  // namespace efv::orden
