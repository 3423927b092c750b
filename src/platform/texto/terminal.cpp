#include <quorvel/terminal.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include <fmt/format.h>

namespace efv {

namespace {

struct Caracter {
    std::uint32_t uPunto = 0;
    std::size_t nBytes = 1;
    bool bMalo = false;        // its one byte begins no character
    bool bIncompleto = false;  // the text ends before it does
};

struct Forma {
    std::uint32_t uMascara, uCabeza, uMinimo;  // of the first byte; least character of that length
};

constexpr auto kFormas = std::to_array<Forma>({
    {0x80, 0x00, 0x00},
    {0xE0, 0xC0, 0x80},
    {0xF0, 0xE0, 0x800},
    {0xF8, 0xF0, 0x10000},
});

bool Existe(std::uint32_t u, std::uint32_t uMinimo)
{
    return u >= uMinimo && u <= 0x10FFFF && (u < 0xD800 || u > 0xDFFF);
}

// The first character of a text that isn't empty.
Caracter PrimerCaracter(std::string_view utf8)
{
    const Caracter malo{0, 1, true, false};
    const auto byte = [&](std::size_t i) { return std::uint32_t{static_cast<unsigned char>(utf8[i])}; };
    for (std::size_t i = 0; i < kFormas.size(); ++i) {
        const Forma& forma = kFormas[i];
        if ((byte(0) & forma.uMascara) != forma.uCabeza)
            continue;
        std::uint32_t u = byte(0) & ~forma.uMascara;
        const std::size_t nBytes = i + 1;
        for (std::size_t j = 1; j < std::min(nBytes, utf8.size()); ++j) {
            if ((byte(j) & 0xC0U) != 0x80U)
                return malo;
            u = (u << 6U) | (byte(j) & 0x3FU);
        }
        if (utf8.size() < nBytes)
            return {0, utf8.size(), false, true};
        return Existe(u, forma.uMinimo) ? Caracter{u, nBytes, false, false} : malo;
    }
    return malo;
}

}  // namespace

bool DirigeElTerminal(char32_t u)
{
    const auto entre = [u](char32_t uDesde, char32_t uHasta) { return u >= uDesde && u <= uHasta; };
    if (u == '\t' || u == '\n')
        return false;
    return u < 0x20 || entre(0x7F, 0x9F) || u == 0x61C || entre(0x200E, 0x200F) || entre(0x2028, 0x202E) ||
           entre(0x2066, 0x2069);
}

void Depurador::Pasar(std::string_view texto, std::string& salida)
{
    m_pendiente += texto;
    std::string_view resto = m_pendiente;
    while (!resto.empty()) {
        const Caracter c = PrimerCaracter(resto);
        const bool bFinDeLinea = resto.starts_with("\r\n");
        if (c.bIncompleto || resto == "\r")
            break;
        if (c.bMalo)
            salida += "\xEF\xBF\xBD";
        else if (bFinDeLinea || !DirigeElTerminal(c.uPunto))
            salida += resto.substr(0, c.nBytes);
        else
            salida += fmt::format("\\u{:04x}", c.uPunto);
        resto.remove_prefix(c.nBytes);
    }
    m_pendiente.erase(0, m_pendiente.size() - resto.size());
}

void Depurador::Terminar(std::string& salida)
{
    if (m_pendiente == "\r")
        salida += "\\u000d";
    else if (!m_pendiente.empty())
        salida += "\xEF\xBF\xBD";
    m_pendiente.clear();
}

}  // namespace efv
