#include "rpc/json.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace efv::rpc {

namespace {

bool SinEscapes(std::string_view texto)
{
    return std::ranges::all_of(texto, [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

}  // namespace

void EscribirEntero(std::string& salida, int n)
{
    std::array<char, 16> bufer;
    const auto fin = std::to_chars(bufer.data(), bufer.data() + bufer.size(), n).ptr;
    salida.append(bufer.data(), fin);
}

void EscribirDoble(std::string& salida, double d)
{
    if (!std::isfinite(d)) {
        salida += std::isnan(d) ? "\"NaN\"" : d > 0.0 ? "\"Infinity\"" : "\"-Infinity\"";
        return;
    }
    std::array<char, 32> bufer;
    const auto fin = std::to_chars(bufer.data(), bufer.data() + bufer.size(), d).ptr;
    const std::string_view texto(bufer.data(), fin);
    salida += texto;
    if (texto.find_first_of(".e") == std::string_view::npos)
        salida += ".0";
}

void EscribirTexto(std::string& salida, std::string_view utf8)
{
    if (SinEscapes(utf8)) {
        salida += '"';
        salida += utf8;
        salida += '"';
        return;
    }
    salida += Json(utf8).dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace efv::rpc
