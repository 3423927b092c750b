#include "catalogo/pregunta.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <CLI/CLI.hpp>

#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"

namespace efv::orden {

namespace {

constexpr const char* kFamilia = "familia";

[[noreturn]] void FallarPorCampo(const TipoCatalogo& tipo, const char* opcion, const std::string& nombre)
{
    std::vector<NombreBuscable> nombres;
    for (const std::string& suNombre : NombresDeCampos(tipo)) {
        NombreBuscable& buscable = nombres.emplace_back();
        buscable.csNombre = CadenaDesdeUtf8(suNombre);
        buscable.acsAlias.emplace_back(SinClase(buscable.csNombre));
    }
    std::string parecidos = Parecidos(nombres, nombre);
    if (parecidos.empty())
        parecidos = Parecidos(nombres, CadenaUtf8(SinClase(CadenaDesdeUtf8(nombre))));
    throw ErrorUso(
        fmt::format("{}: el catálogo de {} no tiene ningún campo «{}»{} (todos: efv catalogo campos --tipo {})",
                    opcion, NombreEscrito(tipo), EnUnaLinea(nombre), parecidos, tipo.Nombre()));
}

std::size_t Campo(const TipoCatalogo& tipo, const char* opcion, const std::string& nombre)
{
    const auto iCampo = CampoLlamado(tipo, CadenaDesdeUtf8(nombre));
    if (!iCampo)
        FallarPorCampo(tipo, opcion, nombre);
    return *iCampo;
}

// "a, b" without blanks.
std::vector<std::string> Partes(const std::string& lista)
{
    std::vector<std::string> partes = CLI::detail::split(lista, ',');
    for (std::string& parte : partes)
        CLI::detail::trim(parte);
    return partes;
}

}  // namespace

std::vector<std::string> NombresDeCampos(const TipoCatalogo& tipo)
{
    std::vector<std::string> nombres{kFamilia};
    for (const CampoCatalogo& campo : tipo.Campos())
        nombres.emplace_back(campo.nombre);
    return nombres;
}

void PreguntaCatalogo::DeclararCondiciones(CLI::App& orden, const char* ejemplos)
{
    orden
        .add_option(
            "--donde", m_condiciones,
            fmt::format(
                "Solo los que cumplen la condición, como {}: campo, operador (= != < <= > >=, o ~ para "
                "«contiene») y valor; se repite por cada condición. Lo que el catálogo no dice no cumple "
                "ninguna",
                ejemplos))
        ->type_name("CONDICION")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void PreguntaCatalogo::DeclararLista(CLI::App& orden)
{
    orden
        .add_option("--ordenar", m_orden,
                    "Los ordena por un campo, o por varios separados por comas; con un guion delante "
                    "(--ordenar=-dPmpm), "
                    "de mayor a menor")
        ->type_name("CAMPOS");
    orden.add_flag("--descendente", m_bDescendente, "Con --ordenar, de mayor a menor")
        ->option_text(" ")
        ->disable_flag_override();
    orden
        .add_option("--columnas", m_columnas,
                    "Los campos que se escriben, separados por comas: dPmpm,dVoc; sus nombres los da «efv "
                    "catalogo campos»")
        ->type_name("CAMPOS");
}

Modelos PreguntaCatalogo::Responder(const TipoCatalogo& tipo, const Modelos& modelos) const
{
    std::vector<CondicionCatalogo> condiciones;
    for (const std::string& texto : m_condiciones) {
        try {
            for (CondicionCatalogo& condicion : LeerCondiciones(tipo, CadenaDesdeUtf8(texto)))
                condiciones.push_back(std::move(condicion));
        } catch (const ErrorCondicion& error) {
            if (!error.csCampo.empty())
                FallarPorCampo(tipo, "--donde", CadenaUtf8(error.csCampo));
            throw ErrorUso(fmt::format("--donde: {}", error.what()));
        }
    }
    Modelos elegidos;
    std::ranges::copy_if(modelos, std::back_inserter(elegidos), [&](const CModelo* modelo) {
        return std::ranges::all_of(condiciones,
                                   [&](const auto& condicion) { return condicion.Cumple(*modelo); });
    });
    if (m_bDescendente && !m_orden)
        throw ErrorUso("--descendente necesita --ordenar");
    std::vector<std::string> claves = Partes(m_orden.value_or(""));
    if (!m_orden)
        claves.clear();
    // The last key first: equal models stay as they stood.
    std::ranges::reverse(claves);
    for (const std::string& clave : claves) {
        const bool bGuion = clave.starts_with('-');
        OrdenarModelos(tipo, elegidos, Campo(tipo, "--ordenar", clave.substr(bGuion ? 1 : 0)),
                       bGuion != m_bDescendente ? Orden::descendente : Orden::ascendente);
    }
    return elegidos;
}

std::vector<std::size_t> PreguntaCatalogo::NumerosDeCampo(const TipoCatalogo& tipo) const
{
    std::vector<std::size_t> numeros;
    for (const std::string& nombre : Partes(*m_columnas))
        numeros.push_back(Campo(tipo, "--columnas", nombre));
    return numeros;
}

Modelos PreguntaCatalogo::Buscar(const CatalogoAbierto& catalogo,
                                 const std::vector<std::string>& palabras) const
{
    const std::string texto = fmt::format("{}", fmt::join(palabras, " "));
    const PalabrasBuscadas buscadas(CadenaDesdeUtf8(texto));
    Modelos hallados;
    std::ranges::copy_if(catalogo.Todos(), std::back_inserter(hallados),
                         [&](const auto* modelo) { return buscadas.Estan(*modelo); });
    if (hallados.empty())
        throw ErrorEjecucion(
            fmt::format("ningún modelo contiene «{}»{}", EnUnaLinea(texto), catalogo.Parecidos(texto)));
    hallados = Responder(catalogo.Tipo(), hallados);
    if (hallados.empty())
        throw ErrorEjecucion("ningún modelo cumple las condiciones");
    return hallados;
}

std::vector<ColumnaCatalogo> PreguntaCatalogo::Columnas(const TipoCatalogo& tipo) const
{
    return m_columnas ? ColumnasDe(tipo, NumerosDeCampo(tipo)) : ColumnasPrincipales(tipo);
}

std::optional<std::vector<std::string>> PreguntaCatalogo::Campos(const TipoCatalogo& tipo) const
{
    if (!m_columnas)
        return std::nullopt;
    std::vector<std::string> nombres;
    for (const std::size_t iCampo : NumerosDeCampo(tipo))
        nombres.emplace_back(iCampo == kCampoFamilia ? "csFamilia" : tipo.Campos()[iCampo].nombre);
    return nombres;
}

}  // namespace efv::orden
