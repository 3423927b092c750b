// Places by name, as every command finds them.
#pragma once

#include <string>
#include <vector>

#include <quorvel/localidades.h>

namespace efv::orden {

/// What is said wherever a climate zone is printed.
inline constexpr const char* kReservaZonas =
    "Las zonas siguen al clima de referencia del lugar; la zona legal puede ser otra.";

/// One's own places, those of the data folder, the municipalities. @param csDatos option --datos
std::vector<Localidad> LeerLugares(const std::string& csDatos);

/// The same without the municipalities.
std::vector<Localidad> LeerLugaresMayores(const std::string& csDatos);

/// The place of that name. One's own come first, then those of the file of places; a municipality's name that
/// stands twice takes its province, "Moya (Cuenca)". @throws ErrorEjecucion with the choices or the nearest
/// names
Localidad BuscarLugar(const std::string& nombre, const std::string& csDatos);

/// "D3", "III" and the caveat, for the heading of a report; empty outside Spain.
std::string TextoZonas(const Localidad& lugar);

}  // namespace efv::orden
