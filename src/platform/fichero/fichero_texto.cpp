#include "platform/fichero/fichero_texto.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/fichero/fichero.h"
#include "platform/texto/texto.h"

namespace efv::fichero {

namespace {

CString ConFinesDeLinea(const CString& csTexto)
{
    CString csLineas;
    csLineas.reserve(csTexto.size() + csTexto.size() / 16 + 2);
    for (std::size_t i = 0; i < csTexto.size(); ++i) {
        if (csTexto[i] != L'\r' && csTexto[i] != L'\n') {
            csLineas += csTexto[i];
            continue;
        }
        if (csTexto[i] == L'\r' && i + 1 < csTexto.size() && csTexto[i + 1] == L'\n')
            ++i;
        csLineas += L"\r\n";
    }
    if (!csLineas.empty() && !csLineas.ends_with(L"\r\n"))
        csLineas += L"\r\n";
    return csLineas;
}

// UTF-16 text whose unit `i` has its low byte at 2·i + `iBajo`.
CString DesdeUtf16(std::string_view bytes, std::size_t iBajo)
{
    std::u16string unidades(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < unidades.size(); ++i) {
        const auto bajo = static_cast<unsigned char>(bytes[2 * i + iBajo]);
        const auto alto = static_cast<unsigned char>(bytes[2 * i + 1 - iBajo]);
        unidades[i] = static_cast<char16_t>(alto * 256 + bajo);
    }
    return texto::DeUtf16(unidades);
}

CString Decodificar(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE"))
        return DesdeUtf16(bytes.substr(2), 0);
    if (bytes.starts_with("\xFE\xFF"))
        return DesdeUtf16(bytes.substr(2), 1);
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    return texto::EsUtf8(bytes) ? CadenaDesdeUtf8(bytes) : texto::DeWindows1252(bytes);
}

}  // namespace

std::optional<CString> LeerTexto(const CString& csRuta)
{
    const std::optional<std::string> bytes = LeerFichero(csRuta, kMaximoTexto);
    return bytes ? TextoDeBytes(*bytes) : std::nullopt;
}

std::optional<CString> TextoDeBytes(std::string_view bytes)
{
    const CString csTexto = Decodificar(bytes);
    if (csTexto.find(L'\0') != CString::npos)
        return std::nullopt;
    return ConFinesDeLinea(csTexto);
}

}  // namespace efv::fichero
