#include "catalogues/kinds/corrientes.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"
#include "platform/texto/recortar.h"

namespace efv::catalogues {

namespace {

constexpr std::wstring_view kBlancos = L" \t\r\n\v\f";

std::wstring_view Recortar(std::wstring_view valor)
{
    return texto::Recortar(valor, kBlancos);
}

// What is wrong with the trimmed value of tracker `i`; nothing when it reads as `d`.
std::optional<CString> Fallo(std::wstring_view valor, int i, double& d)
{
    if (valor.empty())
        return fmt::format(L"el valor I{} está vacío", i);
    int nCifras = 0;
    int nSeparadores = 0;
    for (const wchar_t c : valor) {
        if (c >= L'0' && c <= L'9')
            ++nCifras;
        else if (c == L',' || c == L'.')
            ++nSeparadores;
        else
            return fmt::format(L"I{} contiene caracteres no válidos", i);
    }
    if (nCifras == 0 || nSeparadores > 1 || !numero::nuConvertIntlStrToFlt(valor, d))
        return fmt::format(L"I{} no es un valor numérico válido", i);
    return std::nullopt;
}

double Positivo(double d)
{
    return numero::Mayor(d, 0.0) ? d : 0.0;
}

}  // namespace

int ParseCorrientes(const CString& csTexto, int iNumMPPT, CString& csNormal, double& dPrimero, CString& csError)
{
    std::wstring_view resto = Recortar(csTexto);
    csNormal.clear();
    csError.clear();
    dPrimero = 0.0;
    const int n = std::max(iNumMPPT, 1);
    const auto nIndicados = std::ranges::count(resto, L'/') + 1;
    if (nIndicados != n) {
        csError = fmt::format(L"se esperaban {} valores y se han indicado {}", n, nIndicados);
        return 0;
    }
    for (int i = 1; i <= n; ++i) {
        const std::size_t barra = std::min(resto.find(L'/'), resto.size());
        const std::wstring_view valor = Recortar(resto.substr(0, barra));
        double d = 0.0;
        if (auto csFallo = Fallo(valor, i, d)) {
            csError = std::move(*csFallo);
            return 0;
        }
        if (i == 1)
            dPrimero = d;
        else
            csNormal += L'/';
        csNormal += valor;
        resto.remove_prefix(std::min(barra + 1, resto.size()));
    }
    return 1;
}

CString RepetirCorriente(double dValor, int iNumMPPT)
{
    const CString csValor = numero::nuConvertFltToIntlStr(Positivo(dValor), 2);
    CString csLista = csValor;
    for (int i = 1; i < iNumMPPT; ++i)
        csLista += L'/' + csValor;
    return csLista;
}

CString NormalizarCorrientes(const CString& csTexto, double dValor, int iNumMPPT)
{
    CString csNormal, csError;
    double dPrimero = 0.0;
    if (!csTexto.empty() && ParseCorrientes(csTexto, iNumMPPT, csNormal, dPrimero, csError) != 0)
        return csNormal;
    return RepetirCorriente(dValor, iNumMPPT);
}

void ListaCorrientes(const CString& csTexto, double dValor, int iNumMPPT, CArray<double, double&>& aValores)
{
    aValores.RemoveAll();
    const CString csLista = NormalizarCorrientes(csTexto, dValor, iNumMPPT);
    std::wstring_view resto = csLista;
    for (int i = 0; i < std::max(iNumMPPT, 1); ++i) {
        const std::size_t barra = std::min(resto.find(L'/'), resto.size());
        double d = Positivo(dValor);
        numero::nuConvertIntlStrToFlt(resto.substr(0, barra), d);
        aValores.Add(d);
        resto.remove_prefix(std::min(barra + 1, resto.size()));
    }
}

}  // namespace efv::catalogues
