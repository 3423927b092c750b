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

/// Adds --json and --csv, of which one goes.
void DeclararSalidas(CLI::App& orden, bool& bJson, bool& bCsv);

/// What the parser of `raiz` found wrong, as one line without the command's name; names that a misspelt one may
/// have meant.
std::string TextoDeError(const CLI::App& raiz, const CLI::ParseError& error);

}  // namespace efv::orden
