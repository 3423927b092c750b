#include "qt/texto.h"

#include <QtGui/qtextdocument.h>

namespace efv::qt {

QString ConMnemonico(std::wstring_view rotulo)
{
    CString texto;
    for (std::size_t i = 0; i < rotulo.size(); ++i) {
        texto += rotulo[i];
        if (rotulo[i] != L'&')
            continue;
        if (i + 1 == rotulo.size() || rotulo[i + 1] == L' ')
            texto += L'&';
        else if (rotulo[i + 1] == L'&')
            texto += rotulo[++i];
    }
    return AQt(texto);
}

QString SinMnemonico(std::wstring_view rotulo)
{
    CString texto;
    for (std::size_t i = 0; i < rotulo.size(); ++i) {
        const bool bMarca = rotulo[i] == L'&' && i + 1 < rotulo.size() && rotulo[i + 1] != L' ';
        if (bMarca)
            ++i;
        texto += rotulo[i];
    }
    return AQt(texto);
}

QString Indicacion(std::wstring_view texto)
{
    const QString simple = AQt(texto);
    return Qt::mightBeRichText(simple) ? Qt::convertFromPlainText(simple) : simple;
}

}  // namespace efv::qt
