#include <quorvel/report/texto.h>

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/framework/CString.h>
#include <quorvel/terminal.h>

namespace efv::report {

namespace {

std::string ConComa(std::string texto)
{
    std::ranges::replace(texto, '.', ',');
    return texto;
}

}  // namespace

std::string Decimal(double d, int iDecimales)
{
    if (!std::isfinite(d))
        return "—";
    std::string texto = fmt::format("{:.{}f}", d, iDecimales);
    if (texto.starts_with('-') && texto.find_first_of("123456789") == std::string::npos)
        texto.erase(0, 1);
    return ConComa(std::move(texto));
}

std::string DecimalExacto(double d)
{
    return std::isfinite(d) ? ConComa(fmt::format("{}", d)) : std::string();
}

std::string Con(double d, int iDecimales, std::string_view unidad)
{
    if (!std::isfinite(d))
        return Decimal(d, iDecimales);
    const bool bPegada = unidad.empty() || unidad == "°";
    return fmt::format("{}{}{}", Decimal(d, iDecimales), bPegada ? "" : " ", unidad);
}

std::string EnUnaLinea(std::string_view texto)
{
    CString csLinea = CadenaDesdeUtf8(texto);
    const auto estorba = [](wchar_t c) {
        return c == L'\t' || c == L'\n' || DirigeElTerminal(static_cast<char32_t>(c));
    };
    std::ranges::replace_if(csLinea, estorba, L'?');
    return CadenaUtf8(csLinea);
}

std::size_t Anchura(std::string_view utf8)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

}  // namespace efv::report
