#include "catalogues/importacion.h"

namespace efv::catalogues {

CString ValorDeClave(std::wstring_view texto, std::wstring_view clave)
{
    const std::size_t inicio = texto.find(CString(clave) + L"=");
    if (inicio == std::wstring_view::npos)
        return {};
    const std::size_t fin = texto.find(L"\r\n", inicio);
    if (fin == std::wstring_view::npos)
        return {};
    const std::size_t valor = inicio + clave.size() + 1;
    return CString(texto.substr(valor, fin - valor));
}

}  // namespace efv::catalogues
