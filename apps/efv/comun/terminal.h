// How the command writes for people: the terminal's width and colours, and whether notes are wanted.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include <quorvel/report/texto.h>

namespace efv::orden {

/// The form of what the run that is going on writes. One run at a time.
report::FormaTexto& Forma();

/// What an output takes: of a terminal its width and, unless NO_COLOR is set or TERM is "dumb", colours;
/// COLUMNS says another width for any output. @param iDescriptor of the output
report::FormaTexto FormaDeSalida(int iDescriptor);

/// Lines of a text that are wider than the terminal, broken at blanks; tables fit already.
std::string Prosa(std::string_view texto);

/// `texto` unless only the result is wanted.
inline std::string Nota(std::string texto)
{
    return Forma().bSoloResultado ? std::string() : std::move(texto);
}

/// A table in the form of the run.
class TablaTexto : public report::TablaTexto {
public:
    using report::TablaTexto::TablaTexto;

    std::string Texto() const { return report::TablaTexto::Texto(Forma()); }
};

}  // namespace efv::orden
