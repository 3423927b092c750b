// What the declared command line knows of itself: orders and options by name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Option;
class ParseError;
}  // namespace CLI

namespace efv::orden {

/// Orders of `linea` in the order of its help.
std::vector<const CLI::App*> Ordenes(const CLI::App& linea);

/// The order of that name; null without one.
const CLI::App* Orden(const CLI::App& linea, std::string_view nombre);

/// Options of `linea` that its help shows, and what it takes without a name.
std::vector<const CLI::Option*> Opciones(const CLI::App& linea);
std::vector<const CLI::Option*> Argumentos(const CLI::App& linea);

/// Whether a value follows the option.
bool LlevaValor(const CLI::Option& opcion);

/// The words of a value that is one of a few, as help names it: "Wh|kWh"; empty for any other.
std::vector<std::string> PalabrasDelValor(const std::string& tipo);

/// "; parecidos: a, b" among the orders of `linea`.
std::string OrdenesParecidas(const CLI::App& linea, std::string_view nombre);

/// What the parser met and did not expect, with the names that it may have meant.
std::string TextoInesperado(const CLI::App& raiz);

}  // namespace efv::orden
