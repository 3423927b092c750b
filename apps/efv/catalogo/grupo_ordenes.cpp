#include "catalogo/grupo_ordenes.h"

#include <CLI/CLI.hpp>

#include "comun/consola.h"
#include "comun/linea_ordenes.h"

namespace efv::orden {

std::optional<int> GrupoOrdenes::Ejecutar(std::ostream& salida)
{
    for (const auto& [orden, trabajo] : m_trabajos)
        if (orden->parsed())
            return trabajo(salida);
    return std::nullopt;
}

CLI::App& GrupoOrdenes::Orden(CLI::App& linea, const char* nombre, const char* descripcion, Tipos tipos,
                              Trabajo trabajo, const char* ayudaTipo)
{
    CLI::App& orden = *linea.add_subcommand(nombre, descripcion);
    Castellanizar(orden);
    if (tipos.size() > 1)
        m_catalogo.DeclararTipo(orden, tipos, ayudaTipo);
    m_catalogo.Declarar(orden, "Catálogo; si falta, el de su tipo en la carpeta de los datos");
    m_trabajos.emplace_back(&orden, std::move(trabajo));
    return orden;
}

void GrupoOrdenes::AnadirJson(CLI::App& orden)
{
    orden.add_flag("--json", m_bJson, "Escribe JSON")->option_text(" ")->disable_flag_override();
}

void GrupoOrdenes::AnadirFamilia(CLI::App& orden, const char* ayuda)
{
    orden.add_option("--familia", m_familia, ayuda)->type_name("FAMILIA");
}

const std::optional<std::string>& GrupoOrdenes::Familia() const
{
    if (m_familia && m_familia->empty())
        throw ErrorUso("--familia: el nombre está vacío");
    return m_familia;
}

}  // namespace efv::orden
