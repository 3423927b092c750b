// Numbers and texts as people write and read them: decimal comma out, comma or point in.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/framework/CString.h>
#include <quorvel/marca_decimal.h>
#include <quorvel/report/texto.h>

#include "comun/terminal.h"

namespace efv::orden {

using efv::LeerNumero;

/// What keeps a text from being a number, where that is its unit or its thousands: " (sin la unidad: 5)"; empty
/// for any other. @param unidad that of the number as help names it, when one is known: what is typed in
/// another isn't offered as a figure
std::string ConsejoDeNumero(std::string_view texto, std::string_view unidad = {});

/// The number of an option. @throws ErrorUso when it is none or lies outside
double LeerAcotado(const char* opcion, std::string_view texto, double dMinimo, double dMaximo);

/// An orientation in degrees, 0 south and east negative, as a number or as "suroeste" or "SO".
/// @throws ErrorUso
double LeerOrientacion(const char* opcion, std::string_view texto);
/// What those words are, for a refusal.
inline constexpr const char* kOrientaciones = " (o un rumbo: S, SO, O, NO, N, NE, E, SE)";
/// The same for a word alone; nothing when it names none of the eight.
std::optional<double> OrientacionLlamada(std::string_view texto);
/// " (suroeste)" of 45; empty of what lies between the eight.
std::string NombreDeOrientacion(double dGrados);

/// The values of an interval, "1..15" or "1..6:0,5" with its step; nothing when the text is none. The step is 1
/// if it isn't given. @param leer reads a bound, and throws ErrorUso @throws ErrorUso for a step of 0, bounds
/// in the wrong order or more than `nMaximo` values
std::optional<std::vector<double>> LeerIntervalo(const char* opcion, const std::string& texto,
                                                 std::size_t nMaximo,
                                                 const std::function<double(const std::string&)>& leer);

/// The parts of a list of `cuantos` numbers, separated by blanks, commas or semicolons: a comma is a decimal
/// mark where another separator makes that many.
std::vector<std::string> SepararNumeros(const std::vector<std::string>& palabras, std::size_t cuantos);

/// `d` as tables have it, thousands parted.
std::string Cifra(double d, int iDecimales);

using report::Anchura;
using report::Decimal;
using report::DecimalExacto;
using report::EnUnaLinea;

}  // namespace efv::orden
