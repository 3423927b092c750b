// What the project files of both kinds of installation have in common: title, place, fields of the record.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/framework/CObject.h>
#include <quorvel/report/disenos.h>

#include "catalogo/acceso.h"
#include "diseno/lectura.h"
#include "diseno/modelos.h"
#include "energia/campo.h"

namespace efv::orden {

/// `lugar`, or else `latitud`, `hemisferio` (by the latitude's sign when it is missing) and `radiacion`.
/// @throws rpc::ErrorValor, ErrorEjecucion for a place that isn't known
report::LugarDiseno LeerLugar(Objeto& proyecto, const std::string& csDatos, bool bExigirRadiacion);

/// `planos`, a list of {"inclinacion", "orientacion", "parte"} whose parts add up to 1, and `clima`, a climate
/// record's file, which is loaded. @throws rpc::ErrorValor
report::PlanosDiseno LeerPlanos(Objeto& proyecto);

/// Files that a project names and a run reads.
std::vector<std::string> FicherosLeidos(const JsonLeido& proyecto);

/// A number that the project may give.
std::optional<double> LeerOpcional(Objeto& proyecto, const char* nombre, Rango rango);

/// `temperaturaMinima` and `temperaturaMaxima` of the cells. @throws rpc::ErrorValor, of two that don't follow
/// each other too
report::TemperaturasCelulas LeerTemperaturas(Objeto& proyecto);

/// Values that a field may have within the record's own limits.
struct RangoCampo {
    std::string_view nombre;
    Rango rango;
};

/// Reads the record's numbers and texts that the object has, each by its name.
/// @return the names of those that were there @throws rpc::ErrorValor
std::set<std::string> LeerCampos(Objeto& objeto, CObject& registro, std::span<const RangoCampo> rangos);

/// What every project has: `titulo`, and `tipo`, which must be that of the command when it is there.
void LeerCabecera(Objeto& proyecto, std::string_view tipo, std::string& titulo);

/// `portada`, {"cliente", "direccion", "autor", "firma", "revision"} of the report's cover, each one optional.
/// @throws rpc::ErrorValor
report::DatosPortada LeerPortada(Objeto& proyecto);

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
