// The command line's own words in Spanish: the parser knows English only.
#pragma once

#include <memory>
#include <string>

namespace CLI {
class App;
class Formatter;
class ParseError;
}  // namespace CLI

namespace efv::orden {

/// Help pages with Spanish headings; set it on the root before the subcommands are added, which take it
/// over.
std::shared_ptr<CLI::Formatter> FormatoEspanol();

/// Names the help option and the headings of `app` in Spanish.
void Castellanizar(CLI::App& app);

/// What the parser found wrong, as one line without the command's name.
std::string TextoDeError(const CLI::ParseError& error);

}  // namespace efv::orden
