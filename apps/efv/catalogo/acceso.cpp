#include "catalogo/acceso.h"

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <quorvel/catalogos_propios.h>
#include <quorvel/ficheros.h>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"

namespace efv::orden {

namespace {

template <class Condicion>
Modelos Filtrar(const Modelos& modelos, Condicion condicion)
{
    Modelos filtrados;
    std::ranges::copy_if(modelos, std::back_inserter(filtrados), [&](const auto* m) { return condicion(*m); });
    return filtrados;
}

// "a, b o c"
std::string Enumerar(std::span<const std::string_view> nombres)
{
    const auto ultimo = nombres.size() - 1;
    return fmt::format("{}{}{}", fmt::join(nombres.first(ultimo), ", "), ultimo > 0 ? " o " : "",
                       nombres[ultimo]);
}

}  // namespace

std::span<const std::string_view> TodosLosTipos()
{
    static const std::vector<std::string_view> kNombres = [] {
        std::vector<std::string_view> nombres;
        for (const TipoCatalogo* tipo : TiposDeCatalogo())
            nombres.push_back(tipo->Nombre());
        return nombres;
    }();
    return kNombres;
}

std::string_view NombreEscrito(const TipoCatalogo& tipo)
{
    return tipo.Nombre() == "modulos" ? "módulos" : tipo.Nombre();
}

void OpcionesCatalogo::Declarar(CLI::App& linea, const std::string& ayudaFichero)
{
    linea.add_option("--fichero", m_fichero, ayudaFichero)->type_name("FICHERO");
    linea.add_option("--datos", m_datos, kAyudaDatos)->type_name("CARPETA");
}

void OpcionesCatalogo::DeclararTipo(CLI::App& linea, std::span<const std::string_view> tipos, const char* ayuda)
{
    linea
        .add_option("--tipo", m_tipo, fmt::format("{}{}; si falta, {}", ayuda, Enumerar(tipos), tipos.front()))
        ->type_name("TIPO");
}

const TipoCatalogo& OpcionesCatalogo::Tipo(std::span<const std::string_view> tipos) const
{
    std::string_view nombre = m_tipo ? std::string_view(*m_tipo) : tipos.front();
    if (nombre == "módulos")  // as a sentence writes it
        nombre = "modulos";
    if (std::ranges::find(tipos, nombre) == tipos.end())
        throw ErrorUso(fmt::format("--tipo: se esperaba {}, llegó «{}»{}", Enumerar(tipos), EnUnaLinea(nombre),
                                   Parecidos(std::vector<std::string>(tipos.begin(), tipos.end()), nombre)));
    return *BuscarTipoCatalogo(nombre);
}

CString OpcionesCatalogo::Ruta(const TipoCatalogo& tipo) const
{
    if (m_fichero.empty())
        return RutaCatalogo(m_datos, CadenaUtf8(tipo.Fichero()).c_str());
    SuperponerCatalogos({}, {});
    return CadenaDesdeUtf8(m_fichero);
}

CString OpcionesCatalogo::RutaQueCrece(const TipoCatalogo& tipo) const
{
    CString csRuta = Ruta(tipo);
    if (m_fichero.empty() && FicheroPropioDe(csRuta).empty())
        throw ErrorEjecucion("no hay carpeta personal para los catálogos propios: indique uno con --fichero");
    return csRuta;
}

void ExigirTipo(const TipoCatalogo& tipo, const CString& csRuta)
{
    for (const CString& csFichero : {csRuta, FicheroPropioDe(csRuta)}) {
        const TipoCatalogo* otro = csFichero.empty() ? nullptr : TipoDelCatalogo(csFichero);
        if (otro != nullptr && otro != &tipo)
            throw ErrorEjecucion(fmt::format("«{}» es un catálogo de {}, no de {}", CadenaUtf8(csFichero),
                                             NombreEscrito(*otro), NombreEscrito(tipo)));
    }
}

std::string TextoIlegible(const CString& csRuta)
{
    // Of the shipped file and the person's own, the one that is at fault.
    const CString csPropio = FicheroPropioDe(csRuta);
    std::error_code fallo;
    const bool bPropio = !csPropio.empty() && std::filesystem::exists(CadenaUtf8(csPropio), fallo) &&
                         TipoDelCatalogo(csPropio) == nullptr && TipoDelCatalogo(csRuta) != nullptr;
    const CString& csMalo = bPropio ? csPropio : csRuta;
    return fmt::format("el catálogo «{}» no se puede leer: {}", CadenaUtf8(csMalo),
                       MotivoDocumentoIlegible(csMalo));
}

CString DondeSeAnade(const CString& csRuta)
{
    CString csPropio = FicheroPropioDe(csRuta);
    return csPropio.empty() ? csRuta : csPropio;
}

CatalogoAbierto::CatalogoAbierto(const TipoCatalogo& tipo, const CString& csRuta)
    : m_tipo(tipo), m_ruta(CadenaUtf8(csRuta)), m_base(tipo.CrearBase())
{
    std::error_code fallo;
    if (!std::filesystem::exists(m_ruta, fallo) &&
        !std::filesystem::exists(CadenaUtf8(DondeSeAnade(csRuta)), fallo))
        throw ErrorEjecucion(fmt::format("no existe el catálogo «{}»", m_ruta));
    // Before the models are in memory: the look takes as much.
    ExigirTipo(tipo, csRuta);
    if (m_base->Cargar(csRuta) == 0)
        throw ErrorEjecucion(TextoIlegible(csRuta));
    m_modelos = tipo.Modelos(*m_base);
    if (m_modelos.empty())
        throw ErrorEjecucion(fmt::format("el catálogo «{}» no tiene ningún modelo", m_ruta));
}

std::string CatalogoAbierto::Ayuda(std::span<const NombreBuscable> nombres, const CString& csBuscado) const
{
    const bool bPrimero = m_tipo.Nombre() == TodosLosTipos().front();
    return fmt::format("{} (todos: efv catalogo listar{}{})", orden::Parecidos(nombres, CadenaUtf8(csBuscado)),
                       bPrimero ? "" : " --tipo ", bPrimero ? "" : m_tipo.Nombre());
}

std::vector<NombreBuscable> CatalogoAbierto::Nombres() const
{
    std::vector<NombreBuscable> nombres;
    nombres.reserve(m_modelos.size());
    for (const CModelo* m : m_modelos)
        nombres.push_back({Identificacion(*m), {m->csModelo}});
    return nombres;
}

std::string CatalogoAbierto::Parecidos(const std::string& nombre) const
{
    return orden::Parecidos(Nombres(), nombre);
}

const CModelo& CatalogoAbierto::Buscar(const std::string& id) const
{
    const CString csId = CadenaDesdeUtf8(id);
    const Modelos hallados = ModelosDeNombre(m_modelos, csId);
    if (hallados.empty())
        throw ErrorEjecucion(fmt::format("no hay ningún modelo «{}»{}", id, Ayuda(Nombres(), csId)));
    if (hallados.size() > 1)
        throw ErrorEjecucion(fmt::format("«{}» puede ser {}", id, Enumerar(hallados)));
    return *hallados.front();
}

Modelos CatalogoAbierto::DeFamilia(const std::string& nombre) const
{
    const CString csPlegado = PlegarTexto(CadenaDesdeUtf8(nombre));
    Modelos hallados =
        Filtrar(m_modelos, [&](const CModelo& m) { return PlegarTexto(m.csFamilia) == csPlegado; });
    if (hallados.empty()) {
        std::vector<NombreBuscable> nombres;
        for (const CModelo* m : m_modelos)
            if (nombres.empty() || nombres.back().csNombre != m->csFamilia)
                nombres.push_back({m->csFamilia, {}});
        throw ErrorEjecucion(
            fmt::format("no hay ninguna familia «{}»{}", nombre, Ayuda(nombres, CadenaDesdeUtf8(nombre))));
    }
    return hallados;
}

CatalogoAbierto AbrirCatalogo(std::string_view tipo, const std::string& csDatos)
{
    const TipoCatalogo& suyo = *BuscarTipoCatalogo(tipo);
    return {suyo, RutaCatalogo(csDatos, CadenaUtf8(suyo.Fichero()).c_str())};
}

CString Identificacion(const CModelo& modelo)
{
    return modelo.csFamilia + L'#' + modelo.csModelo;
}

Modelos ModelosDeNombre(const Modelos& modelos, const CString& csId)
{
    Modelos hallados =
        Filtrar(modelos, [&](const CModelo& m) { return m.csModelo == csId || Identificacion(m) == csId; });
    if (hallados.empty()) {
        const CString csPlegado = PlegarTexto(csId);
        hallados = Filtrar(modelos, [&](const CModelo& m) {
            return PlegarTexto(m.csModelo) == csPlegado || PlegarTexto(Identificacion(m)) == csPlegado;
        });
    }
    Modelos distintos;
    for (const CModelo* modelo : hallados)
        if (std::ranges::find(distintos, Identificacion(*modelo), [](auto* m) { return Identificacion(*m); }) ==
            distintos.end())
            distintos.push_back(modelo);
    return distintos;
}

std::string Enumerar(const Modelos& modelos)
{
    std::string texto;
    for (const CModelo* modelo : modelos)
        texto += (texto.empty() ? "" : ", ") + CadenaUtf8(Identificacion(*modelo));
    return texto;
}

}  // namespace efv::orden
