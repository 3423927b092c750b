#include "comun/csv.h"

namespace efv::orden {

namespace {

bool PareceFormula(std::string_view texto)
{
    return !texto.empty() && std::string_view("=+-@").find(texto.front()) != std::string_view::npos;
}

}  // namespace

std::string EntreComillasCsv(std::string_view texto)
{
    std::string celda = "\"";
    if (PareceFormula(texto))
        celda += '\'';
    for (const char c : texto) {
        if (c == '"')
            celda += c;
        celda += c;
    }
    celda += '"';
    return celda;
}

std::string TextoCsv(std::string_view texto)
{
    return PareceFormula(texto) || texto.find_first_of(";\"\r\n") != std::string_view::npos
               ? EntreComillasCsv(texto)
               : std::string(texto);
}

}  // namespace efv::orden
