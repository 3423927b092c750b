// Text for a terminal, without anything that would steer it.
#pragma once

#include <string>
#include <string_view>

#include <quorvel/exportar.h>

namespace efv {

/// True for what does something to a terminal beyond standing in its place: controls of both sets, tab and
/// line feed excepted, marks that change the direction of text, separators of lines and paragraphs.
EFV_API bool DirigeElTerminal(char32_t c);

/// Takes UTF-8 piece by piece. What steers a terminal comes out as its JSON escape, which is read back as the
/// same; what is no UTF-8 as U+FFFD. A line may end with CR LF.
class EFV_API Depurador {
public:
    /// Adds to `salida`; the beginning of a character or line end whose rest is still to come is kept.
    void Pasar(std::string_view texto, std::string& salida);
    /// Adds what was kept.
    void Terminar(std::string& salida);

private:
    std::string m_pendiente;
};

}  // namespace efv
