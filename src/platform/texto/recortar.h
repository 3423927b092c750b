// Text without the blanks around it.
#pragma once

#include <cstddef>
#include <string_view>

namespace efv::texto {

/// @param blancos the characters that count as blank
template <class C>
constexpr std::basic_string_view<C> Recortar(std::basic_string_view<C> texto, std::basic_string_view<C> blancos)
{
    const std::size_t primero = texto.find_first_not_of(blancos);
    if (primero == std::basic_string_view<C>::npos)
        return {};
    return texto.substr(primero, texto.find_last_not_of(blancos) - primero + 1);
}

}  // namespace efv::texto
