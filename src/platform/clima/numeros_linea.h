// Numbers of a line of a climate file, decimal point, separators around them.
#pragma once

#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace efv::clima {

/// The finite number that `texto` is as a whole, blanks around it ignored; nothing else.
inline std::optional<double> NumeroFinito(std::string_view texto)
{
    const std::size_t iPrimero = texto.find_first_not_of(" \t\r");
    if (iPrimero == texto.npos)
        return std::nullopt;
    texto = texto.substr(iPrimero, texto.find_last_not_of(" \t\r") - iPrimero + 1);
    if (texto.front() == '+')
        texto.remove_prefix(1);
    double d = 0.0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), d);
    if (error != std::errc{} || fin != texto.data() + texto.size() || !std::isfinite(d))
        return std::nullopt;
    return d;
}

/// The fields of a line between separators of one kind; two together hold an empty one.
inline std::vector<std::string_view> Campos(std::string_view linea, char separador)
{
    std::vector<std::string_view> campos;
    for (std::size_t iInicio = 0; iInicio != linea.npos;) {
        const std::size_t iFin = linea.find(separador, iInicio);
        campos.push_back(linea.substr(iInicio, iFin == linea.npos ? iFin : iFin - iInicio));
        iInicio = iFin == linea.npos ? iFin : iFin + 1;
    }
    return campos;
}

/// The words of a line, any of `separadores` between them.
inline std::vector<std::string_view> Palabras(std::string_view linea, std::string_view separadores)
{
    std::vector<std::string_view> palabras;
    for (std::size_t i = linea.find_first_not_of(separadores); i != linea.npos;) {
        const std::size_t iFin = linea.find_first_of(separadores, i);
        palabras.push_back(linea.substr(i, iFin == linea.npos ? iFin : iFin - i));
        i = linea.find_first_not_of(separadores, iFin);
    }
    return palabras;
}

/// Takes the next line off `texto`, without its end; nothing when none is left.
inline std::optional<std::string_view> SiguienteLinea(std::string_view& texto)
{
    if (texto.empty())
        return std::nullopt;
    const std::size_t iFin = texto.find('\n');
    std::string_view linea = texto.substr(0, iFin);
    texto.remove_prefix(iFin == texto.npos ? texto.size() : iFin + 1);
    if (linea.ends_with('\r'))
        linea.remove_suffix(1);
    return linea;
}

}  // namespace efv::clima
