// The public CEC libraries, from their text.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <quorvel/importacion_catalogo.h>

namespace efv::catalogues {

/// The bytes of a library's file. @throws CFileException when it can't be read
std::string BytesCec(const CString& csFichero);
/// Their text as UTF-8.
std::string TextoCec(std::string bytes);

/// @param tipos the kinds of component, all of them
/// @return nothing when the first line is the header of neither library
std::optional<BibliotecaCec> LeerCecDe(std::string_view utf8, const OpcionesCec& opciones,
                                       std::span<const TipoCatalogo* const> tipos);

/// Highest efficiency of an inverter at its nominal voltage, %, after the model of King, Gonzalez, Galbraith
/// and Boyson (SAND2007-5036): AC power is a parabola over the DC power above the self-consumption.
/// @param dPaco nominal AC power, W @param dPdco DC power at which that is reached, W
/// @param dPso DC power at which the inverter starts, W @param dC0 curvature, 1/W
double RendimientoMaximo(double dPaco, double dPdco, double dPso, double dC0);

}  // namespace efv::catalogues
