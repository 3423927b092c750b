#include "report/marcado.h"

namespace efv::report {

std::string Escapado(const CString& csTexto)
{
    CString limpio;
    for (const wchar_t c : csTexto) {
        switch (c) {
            case L'&':
                limpio += L"&amp;";
                break;
            case L'<':
                limpio += L"&lt;";
                break;
            case L'>':
                limpio += L"&gt;";
                break;
            case L'"':
                limpio += L"&quot;";
                break;
            case L'\'':
                limpio += L"&#39;";
                break;
            default:
                if (c == L'\xFFFE' || c == L'\xFFFF')
                    limpio += L'\xFFFD';
                else
                    limpio += c < L' ' || (c >= 0x7F && c < 0xA0) ? L' ' : c;
        }
    }
    return CadenaUtf8(limpio);
}

std::string Escapado(const std::string& utf8)
{
    return Escapado(CadenaDesdeUtf8(utf8));
}

}  // namespace efv::report
