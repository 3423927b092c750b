#include "report/hoja_texto.h"

#include <algorithm>

namespace efv::report {

namespace {

std::vector<CString> Palabras(const CString& csTexto)
{
    std::vector<CString> palabras;
    for (std::size_t i = 0; i < csTexto.size();) {
        const std::size_t fin = std::min(csTexto.find(L' ', i), csTexto.size());
        if (fin > i)
            palabras.push_back(csTexto.substr(i, fin - i));
        i = fin + 1;
    }
    return palabras;
}

// The most letters of a word that a line holds, at least one.
std::size_t LetrasQueCaben(const CString& csPalabra, Letra letra, double dAncho, const MedidorLetra& medidor)
{
    std::size_t n = 1;
    while (n < csPalabra.size() &&
           medidor.Ancho(csPalabra.substr(0, n + 1), letra.dCuerpo, letra.bNegrita) <= dAncho)
        ++n;
    return n;
}

}  // namespace

CString EnHoja(const std::string& utf8)
{
    CString cs = CadenaDesdeUtf8(utf8);
    std::ranges::replace_if(
        cs, [](wchar_t c) { return c < L' ' || (c >= 0x7F && c < 0xA0); }, L' ');
    return cs;
}

std::vector<CString> EnLineas(const CString& csTexto, Letra letra, double dAncho, const MedidorLetra& medidor)
{
    std::vector<CString> lineas;
    CString csLinea;
    for (CString csPalabra : Palabras(csTexto)) {
        CString csCon = csLinea.empty() ? csPalabra : csLinea + L' ' + csPalabra;
        if (medidor.Ancho(csCon, letra.dCuerpo, letra.bNegrita) <= dAncho) {
            csLinea = std::move(csCon);
            continue;
        }
        if (!csLinea.empty())
            lineas.push_back(std::move(csLinea));
        while (medidor.Ancho(csPalabra, letra.dCuerpo, letra.bNegrita) > dAncho && csPalabra.size() > 1) {
            const std::size_t n = LetrasQueCaben(csPalabra, letra, dAncho, medidor);
            lineas.push_back(csPalabra.substr(0, n));
            csPalabra.erase(0, n);
        }
        csLinea = std::move(csPalabra);
    }
    if (!csLinea.empty() || lineas.empty())
        lineas.push_back(std::move(csLinea));
    return lineas;
}

double AnchoDePalabra(const CString& csTexto, Letra letra, const MedidorLetra& medidor)
{
    double dAncho = 0.0;
    for (const CString& csPalabra : Palabras(csTexto))
        dAncho = std::max(dAncho, medidor.Ancho(csPalabra, letra.dCuerpo, letra.bNegrita));
    return dAncho;
}

}  // namespace efv::report
