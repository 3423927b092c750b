#include "ayuda/linea.h"

#include <algorithm>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "comun/numeros.h"
#include "comun/parecidos.h"

namespace efv::orden {

namespace {

std::string SinGuiones(std::string_view opcion)
{
    return std::string(opcion.substr(std::min(opcion.find_first_not_of('-'), opcion.size())));
}

// Long names: those that begin like `buscada` or that it begins with come before those that merely resemble it.
std::string OpcionesParecidas(const CLI::App& linea, std::string_view opcion)
{
    const std::string buscada = SinGuiones(opcion.substr(0, opcion.find('=')));
    std::vector<CString> comienzos;
    std::vector<NombreBuscable> todas;
    for (const CLI::Option* una : Opciones(linea)) {
        for (const std::string& nombre : una->get_lnames()) {
            const CString csOpcion = CadenaDesdeUtf8("--" + nombre);
            todas.push_back({csOpcion, {CadenaDesdeUtf8(nombre)}});
            if (buscada.size() > 1 && (nombre.starts_with(buscada) || buscada.starts_with(nombre)))
                comienzos.push_back(csOpcion);
        }
    }
    if (comienzos.empty())
        return Parecidos(todas, buscada);
    comienzos.resize(std::min(comienzos.size(), kParecidos));
    return Parecidos(comienzos);
}

}  // namespace

std::vector<const CLI::App*> Ordenes(const CLI::App& linea)
{
    return linea.get_subcommands([](const CLI::App*) { return true; });
}

const CLI::App* Orden(const CLI::App& linea, std::string_view nombre)
{
    for (const CLI::App* orden : Ordenes(linea))
        if (orden->get_name() == nombre)
            return orden;
    return nullptr;
}

std::vector<const CLI::Option*> Opciones(const CLI::App& linea)
{
    return linea.get_options(
        [](const CLI::Option* opcion) { return !opcion->get_positional() && !opcion->get_group().empty(); });
}

std::vector<const CLI::Option*> Argumentos(const CLI::App& linea)
{
    return linea.get_options([](const CLI::Option* opcion) { return opcion->get_positional(); });
}

bool LlevaValor(const CLI::Option& opcion)
{
    return opcion.get_items_expected_max() > 0;
}

std::vector<std::string> PalabrasDelValor(const std::string& tipo)
{
    return tipo.find('|') == std::string::npos ? std::vector<std::string>() : CLI::detail::split(tipo, '|');
}

std::string OrdenesParecidas(const CLI::App& linea, std::string_view nombre)
{
    std::vector<std::string> nombres;
    for (const CLI::App* orden : Ordenes(linea))
        nombres.push_back(orden->get_name());
    return Parecidos(nombres, nombre);
}

std::string TextoInesperado(const CLI::App& raiz)
{
    // Words that nothing took stand with the order that met them.
    const CLI::App* linea = &raiz;
    while (!linea->get_subcommands().empty())
        linea = linea->get_subcommands().front();
    while (linea->remaining().empty() && linea->get_parent() != nullptr)
        linea = linea->get_parent();
    const std::vector<std::string> sobrantes = linea->remaining();
    if (sobrantes.empty())
        return "argumentos no válidos";
    const std::string& palabra = sobrantes.front();
    std::string parecidos;
    if (palabra.starts_with('-'))
        parecidos = OpcionesParecidas(*linea, palabra);
    else if (linea->get_subcommands().empty())
        parecidos = OrdenesParecidas(*linea, palabra);
    return fmt::format("argumento inesperado: {}{}", palabra, parecidos);
}

}  // namespace efv::orden
