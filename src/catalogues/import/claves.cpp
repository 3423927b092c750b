#include "catalogues/import/claves.h"

#include <algorithm>
#include <cwctype>

#include "platform/numero/conversion.h"
#include "platform/texto/recortar.h"

namespace efv::catalogues {

namespace {

constexpr std::wstring_view kBlancos = L" \t\r\n";

std::wstring_view Recortar(std::wstring_view valor)
{
    return texto::Recortar(valor, kBlancos);
}

CString Minusculas(std::wstring_view texto)
{
    CString minusculas(texto);
    std::ranges::transform(minusculas, minusculas.begin(), [](wchar_t c) {
        return c < 0x80 ? static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c))) : c;
    });
    return minusculas;
}

}  // namespace

Claves::Claves(std::wstring_view texto)
{
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find(L'\n'), texto.size());
        const std::wstring_view linea = texto.substr(0, fin);
        if (const std::size_t igual = linea.find(L'='); igual != std::wstring_view::npos)
            m_valores.try_emplace(Minusculas(Recortar(linea.substr(0, igual))),
                                  Recortar(linea.substr(igual + 1)));
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
}

std::wstring_view Claves::Texto(std::wstring_view clave) const
{
    const auto hallada = m_valores.find(Minusculas(clave));
    return hallada != m_valores.end() ? hallada->second : std::wstring_view();
}

double Claves::Numero(std::wstring_view clave) const
{
    return numero::LeerDoble(Texto(clave));
}

}  // namespace efv::catalogues
