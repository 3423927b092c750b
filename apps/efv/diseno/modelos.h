// The catalogues as the designs reach them: the shipped ones with the person's own over them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/tipos_catalogo.h>

namespace efv::orden {

/// A catalogue of the data folder in memory.
class CatalogoDatos {
public:
    /// @param tipo name of the kind  @param csDatos option --datos
    /// @throws ErrorEjecucion when it is missing or unreadable
    CatalogoDatos(std::string_view tipo, const std::string& csDatos);

    /// The one model of ModelosDeNombre. @throws rpc::ErrorValor with names near, or with the choices when
    /// several families have the name
    const CModelo& Buscar(const std::string& id) const;

    bool Tiene(const std::string& id) const;

    const TipoCatalogo& Tipo() const { return *m_tipo; }

private:
    const TipoCatalogo* m_tipo;
    std::unique_ptr<CBaseXML> m_base;
    std::vector<const CModelo*> m_modelos;
};

}  // namespace efv::orden
