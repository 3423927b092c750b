// Options that take one of a few words, or a whole number.
#pragma once

#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include <quorvel/hora_oficial.h>

#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"

namespace efv::orden {

template <class T, std::size_t N>
using Palabras = std::array<std::pair<const char*, T>, N>;

/// "Wh|kWh", as the help and the completion of an option give its words.
template <class T, std::size_t N>
std::string TipoDe(const Palabras<T, N>& palabras)
{
    std::string tipo;
    for (const auto& [palabra, valor] : palabras)
        tipo += fmt::format("{}{}", tipo.empty() ? "" : "|", palabra);
    return tipo;
}

/// What the word of an option stands for. @throws ErrorUso
template <class T, std::size_t N>
T Elegir(const char* opcion, const std::string& texto, const Palabras<T, N>& palabras)
{
    std::string lista;
    std::vector<std::string> nombres;
    for (const auto& [palabra, valor] : palabras) {
        if (texto == palabra)
            return valor;
        lista += fmt::format("{}{}", lista.empty() ? "" : ", ", palabra);
        nombres.emplace_back(palabra);
    }
    throw ErrorUso(fmt::format("{}: se esperaba una de {}, llegó «{}»{}", opcion, lista, EnUnaLinea(texto),
                               Parecidos(nombres, texto)));
}

/// @throws ErrorUso
inline int LeerEntero(const char* opcion, const std::string& texto, int iMinimo, int iMaximo)
{
    const double d = LeerAcotado(opcion, texto, iMinimo, iMaximo);
    if (d != std::trunc(d))
        throw ErrorUso(fmt::format("{}: se esperaba un número entero, llegó «{}»", opcion, texto));
    return static_cast<int>(d);
}

inline constexpr Palabras<HusoOficial, 2> kHusos = {
    {{"peninsula", HusoOficial::peninsula}, {"canarias", HusoOficial::canarias}}};

}  // namespace efv::orden
