#include "catalogo/suborden_catalogo.h"

#include <array>

#include <CLI/CLI.hpp>

#include "catalogo/grupo_ordenes.h"
#include "comun/linea_ordenes.h"

namespace efv::orden {

namespace {

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
        for (const auto& grupo : m_grupos)
            grupo->Declarar(linea);
        return linea;
    }

    int Ejecutar(std::ostream& salida) override
    {
        for (const auto& grupo : m_grupos)
            if (const std::optional<int> iEstado = grupo->Ejecutar(salida))
                return *iEstado;
        throw ErrorUso(
            "falta la orden: listar, buscar, ver, validar, campos, exportar, importar-pan, importar-ond, "
            "importar-cec "
            "o restaurar "
            "(ayuda: efv catalogo --help)");
    }

private:
    std::array<std::unique_ptr<GrupoOrdenes>, 3> m_grupos = {CrearConsultas(), CrearImportaciones(),
                                                             CrearRestauracion()};
};

}  // namespace

std::unique_ptr<Suborden> CrearSubordenCatalogo()
{
    return std::make_unique<SubordenCatalogo>();
}

}  // namespace efv::orden
