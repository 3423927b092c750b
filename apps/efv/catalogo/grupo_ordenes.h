// Orders of `efv catalogo` that share their options.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogo/acceso.h"

namespace CLI {
class App;
}

namespace efv::orden {

class GrupoOrdenes {
public:
    GrupoOrdenes() = default;
    GrupoOrdenes(const GrupoOrdenes&) = delete;
    GrupoOrdenes& operator=(const GrupoOrdenes&) = delete;
    virtual ~GrupoOrdenes() = default;

    /// Adds its orders to the command line; their options are read into this object.
    virtual void Declarar(CLI::App& linea) = 0;
    /// Runs the order that was given. @return exit status; nothing when none of the group was
    std::optional<int> Ejecutar(std::ostream& salida);

protected:
    using Tipos = std::span<const std::string_view>;
    using Trabajo = std::function<int(std::ostream&)>;

    /// An order over catalogues of those kinds. @param ayudaTipo stands before the kinds in its help
    CLI::App& Orden(CLI::App& linea, const char* nombre, const char* descripcion, Tipos tipos, Trabajo trabajo,
                    const char* ayudaTipo = "");
    /// Adds "--json".
    void AnadirJson(CLI::App& orden);
    void AnadirFamilia(CLI::App& orden, const char* ayuda);

    /// @throws ErrorUso for an empty name
    const std::optional<std::string>& Familia() const;

    OpcionesCatalogo m_catalogo;
    std::vector<std::string> m_palabras;
    bool m_bJson = false;

private:
    std::optional<std::string> m_familia;
    std::vector<std::pair<CLI::App*, Trabajo>> m_trabajos;
};

/// listar, buscar, ver, validar, exportar
std::unique_ptr<GrupoOrdenes> CrearConsultas();
/// importar-pan, importar-ond, importar-cec
std::unique_ptr<GrupoOrdenes> CrearImportaciones();
/// restaurar
std::unique_ptr<GrupoOrdenes> CrearRestauracion();

}  // namespace efv::orden
