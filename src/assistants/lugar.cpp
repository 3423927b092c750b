#include "assistants/lugar.h"

#include <algorithm>
#include <string_view>

namespace efv::assistants {

TextoLugar PartirLugar(const CString& csTexto)
{
    constexpr std::wstring_view kMarca = L"~#SFV#~";
    const std::size_t posicion = csTexto.find(kMarca);
    if (posicion == 0)
        return {csTexto, {}};
    if (posicion == CString::npos)
        return {{}, csTexto.substr(std::min(csTexto.size(), kMarca.size() - 1))};
    return {csTexto.substr(0, posicion), csTexto.substr(posicion + kMarca.size())};
}

}  // namespace efv::assistants
