#include <quorvel/ui/filas.h>

#include <algorithm>

namespace efv::ui {

namespace {

void AnadirCelda(CString& csTexto, CString csCelda, bool bUltima)
{
    std::ranges::replace_if(
        csCelda, [](wchar_t c) { return c == L'\t' || c == L'\n' || c == L'\r'; }, L' ');
    csTexto += csCelda;
    csTexto += bUltima ? L'\n' : L'\t';
}

}  // namespace

CString TextoDeFilas(const Lista& lista, std::span<const int> filas, Cabeceras cabeceras)
{
    CString csTexto;
    const auto nColumnas = std::max<std::size_t>(1, lista.acsColumnas.size());
    if (cabeceras == Cabeceras::con)
        for (std::size_t i = 0; i < lista.acsColumnas.size(); ++i)
            AnadirCelda(csTexto, lista.acsColumnas[i], i + 1 == nColumnas);
    for (const int iFila : filas)
        for (std::size_t i = 0; i < nColumnas; ++i)
            AnadirCelda(csTexto, lista.modelo->Celda(iFila, static_cast<int>(i)), i + 1 == nColumnas);
    return csTexto;
}

}  // namespace efv::ui
