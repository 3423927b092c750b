#include "frame/recursos.h"

#include <algorithm>

namespace efv::frame {

static_assert(std::ranges::is_sorted(recursos::kCadenas, {}, &recursos::Cadena::id));

ManejadorRecursos& RecursosActuales()
{
    static ManejadorRecursos actuales;
    return actuales;
}

const recursos::Cadena* BuscarCadena(int iId)
{
    const ManejadorRecursos recursos = RecursosActuales();
    const auto hallada = std::ranges::lower_bound(recursos, iId, {}, &recursos::Cadena::id);
    return hallada != recursos.end() && hallada->id == iId ? &*hallada : nullptr;
}

CString FormatearCadena(int iId, std::wstring_view csDato)
{
    const recursos::Cadena* cadena = BuscarCadena(iId);
    if (cadena == nullptr)
        return {};
    constexpr std::wstring_view marca = L"%1";
    CString texto;
    std::wstring_view resto = cadena->texto;
    for (std::size_t i = resto.find(marca); i != std::wstring_view::npos; i = resto.find(marca)) {
        texto.append(resto.substr(0, i)).append(csDato);
        resto.remove_prefix(i + marca.size());
    }
    return texto.append(resto);
}

}  // namespace efv::frame
