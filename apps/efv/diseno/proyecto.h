// What the project files of both kinds of installation have in common: title, place, fields of the record.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include <quorvel/framework/CObject.h>
#include <quorvel/localidades.h>

#include "catalogo/acceso.h"
#include "diseno/lectura.h"
#include "diseno/modelos.h"
#include "energia/campo.h"

namespace efv::orden {

/// Where the installation stands.
struct LugarProyecto {
    std::optional<Localidad> localidad;  ///< none when it was given by its figures
    double dLatitud = 0.0;               ///< degrees
    bool bNorte = true;
    std::optional<std::array<double, kMeses>> adRadiacion;  ///< on the horizontal, kJ/m²·day

    int Hemisferio() const { return bNorte ? 1 : 0; }
};

/// `lugar`, or else `latitud`, `hemisferio` (by the latitude's sign when it is missing) and `radiacion`.
/// @throws rpc::ErrorValor, ErrorEjecucion for a place that isn't known
LugarProyecto LeerLugar(Objeto& proyecto, const std::string& csDatos, bool bExigirRadiacion);

/// Values that a field may have within the record's own limits.
struct RangoCampo {
    std::string_view nombre;
    Rango rango;
};

/// Reads the record's numbers and texts that the object has, each by its name.
/// @return the names of those that were there @throws rpc::ErrorValor
std::set<std::string> LeerCampos(Objeto& objeto, CObject& registro, std::span<const RangoCampo> rangos);

/// Writes the named fields of `origen` into `destino`, a record of the same class.
void CopiarCampos(CObject& origen, CObject& destino, const std::set<std::string>& nombres);

/// What every project has: `titulo`, and `tipo`, which must be that of the command when it is there.
void LeerCabecera(Objeto& proyecto, std::string_view tipo, std::string& titulo);

/// The model that the project names, its full identification written into `csId`.
template <class M>
const M& ElegirModelo(Objeto& proyecto, std::string_view campo, const CatalogoDatos& catalogo, CString& csId)
{
    const M* modelo = nullptr;
    const JsonLeido& j = proyecto.Exigir(campo);
    rpc::NombrarLugar([&] { return std::string(campo); },
                      [&] { modelo = &dynamic_cast<const M&>(catalogo.Buscar(LeerTexto(j))); });
    csId = Identificacion(*modelo);
    return *modelo;
}

inline constexpr int kMesDesfavorable = 14;

/// A month index 0 to 14 as a number, or as a name or its three letters, case and accents ignored.
int LeerMes(const JsonLeido& j, int iUltimo);

}  // namespace efv::orden
