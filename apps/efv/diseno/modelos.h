// The catalogues as the designs reach them: the shipped ones with the person's own over them, and what only a
// project has.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/tipos_catalogo.h>

#include "diseno/lectura.h"
#include "proyecto/aceptacion.h"

namespace efv::orden {

/// A catalogue of the data folder in memory.
class CatalogoDatos {
public:
    /// @param tipo name of the kind  @param csDatos option --datos
    /// @throws ErrorEjecucion when it is missing or unreadable
    /// @param propios of a project; those of the kind count where the catalogue lacks them
    CatalogoDatos(std::string_view tipo, const std::string& csDatos,
                  const std::vector<estudio::ModeloGuardado>& propios = {});

    /// The one model of ModelosDeNombre. @throws rpc::ErrorValor with names near, or with the choices when
    /// several families have the name
    const CModelo& Buscar(const std::string& id) const;

    bool Tiene(const std::string& id) const;

    const TipoCatalogo& Tipo() const { return *m_tipo; }

private:
    const TipoCatalogo* m_tipo;
    std::unique_ptr<CBaseXML> m_base;
    std::vector<const CModelo*> m_modelos;
    std::vector<std::unique_ptr<const CModelo>> m_propios;
};

/// Family of a project's model that names none.
inline constexpr const wchar_t* kFamiliaPropia = L"Del proyecto";

/// `modelos` of a project, {"catalogo", "csFamilia", "csModelo", other fields}: a field that isn't there counts
/// as unknown. @throws rpc::ErrorValor
std::vector<estudio::ModeloGuardado> LeerModelos(Objeto& proyecto);
/// The same of a project that isn't asked for anything yet; none of what is no object.
std::vector<estudio::ModeloGuardado> ModelosDelProyecto(const JsonLeido& proyecto);
/// A member of such a list.
nlohmann::ordered_json ModeloJson(const estudio::ModeloGuardado& modelo);

}  // namespace efv::orden
