#include "comun/numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include <quorvel/marca_decimal.h>

namespace efv::estudio {

CString Decimal(double d, int iDecimales)
{
    if (!std::isfinite(d))
        return L"–";
    std::array<char, 400> tampon;
    const auto fin =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), d, std::chars_format::fixed, iDecimales)
            .ptr;
    CString texto(tampon.data(), fin);
    std::ranges::replace(texto, L'.', MarcaDecimal());
    return texto;
}

double AlUsuario(std::wstring_view magnitud, double d)
{
    const Unidad& unidad = UnidadActual(magnitud);
    return d * unidad.dFactor + unidad.dOrigen;
}

// A unit a thousand times as large has three decimals more for the same figure.
int DecimalesEn(std::wstring_view magnitud, int iDecimales)
{
    const double dFactor = UnidadActual(magnitud).dFactor;
    return dFactor < 1.0 ? iDecimales + static_cast<int>(std::ceil(-std::log10(dFactor))) : iDecimales;
}

CString SoloCifra(std::wstring_view magnitud, double d, int iDecimales)
{
    return Decimal(AlUsuario(magnitud, d), DecimalesEn(magnitud, iDecimales));
}

CString EnUnidad(std::wstring_view magnitud, double d, int iDecimales)
{
    return SoloCifra(magnitud, d, iDecimales) + L" " + SimboloDe(magnitud);
}

CString SimboloDe(std::wstring_view magnitud)
{
    return CString(UnidadActual(magnitud).simbolo);
}

namespace {

bool EsCifra(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

// "1.234" or "12.345.678": one to three digits that don't begin with 0, then groups of three.
bool TieneMillares(std::wstring_view entero)
{
    const std::size_t nPrimero = entero.find(L'.');
    if (nPrimero == std::wstring_view::npos || nPrimero == 0 || nPrimero > 3 || entero[0] == L'0')
        return false;
    constexpr std::size_t kGrupo = 4;  // its point and three digits
    if ((entero.size() - nPrimero) % kGrupo != 0)
        return false;
    for (std::size_t i = 0; i < entero.size(); ++i) {
        const bool bPunto = i >= nPrimero && (i - nPrimero) % kGrupo == 0;
        if (bPunto ? entero[i] != L'.' : !EsCifra(entero[i]))
            return false;
    }
    return true;
}

bool Cabe(const CString& csNumero, const ui::Intervalo& limites)
{
    double d = 0.0;
    const std::string texto(csNumero.begin(), csNumero.end());
    std::from_chars(texto.data(), texto.data() + texto.size(), d);
    return d >= limites.dMinimo && d <= limites.dMaximo;
}

}  // namespace

std::optional<CString> SinMillares(const CString& csEscrito, const std::optional<ui::Intervalo>& limites)
{
    // Whoever reads points as decimal marks writes them as such.
    if (MarcaDecimal() == L'.')
        return csEscrito;
    const std::size_t nComa = csEscrito.find(L',');
    const std::size_t nSigno = csEscrito.starts_with(L'-') ? 1 : 0;
    const std::wstring_view entero =
        std::wstring_view(csEscrito).substr(nSigno, nComa == CString::npos ? nComa : nComa - nSigno);
    if ((nComa != CString::npos && nComa < nSigno) || !TieneMillares(entero))
        return csEscrito;
    CString csSin = csEscrito;
    std::erase(csSin, L'.');
    const bool bUnPunto = csEscrito.size() - csSin.size() == 1;
    if (nComa != CString::npos || !bUnPunto)
        return csSin;
    if (!limites)
        return std::nullopt;
    const bool bMillares = Cabe(csSin, *limites), bDecimal = Cabe(csEscrito, *limites);
    if (bMillares && bDecimal)
        return std::nullopt;
    return bMillares ? csSin : csEscrito;
}

}  // namespace efv::estudio
