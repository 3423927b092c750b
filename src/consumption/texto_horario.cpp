// Hourly years as text, out and in.
#include <algorithm>

#include <quorvel/consumption.h>

#include "platform/fichero/fichero_texto.h"
#include "platform/numero/conversion.h"

namespace efv {

namespace {

constexpr auto kSeparadores = std::to_array<wchar_t>({L';', L'\t', L' '});
constexpr std::wstring_view kMarca = L"~#~";
constexpr double kWhPorKWh = 1000.0;

std::size_t ValoresPorHora(const FormatoValores& formato)
{
    return formato.bCuartosDeHora ? 4 : 1;
}

// Characters at the start of `texto` that become one blank; 0 when there are none.
std::size_t Hueco(std::wstring_view texto)
{
    if (texto.starts_with(L"\r\n"))
        return 2;
    if (texto.starts_with(kMarca))
        return kMarca.size();
    return texto[0] == L'\t' || texto[0] == L';' || texto[0] == L' ' ? 1 : 0;
}

}  // namespace

wchar_t CaracterSeparador(int iSeparador)
{
    ComprobarIndice(iSeparador, kSeparadores.size());
    return kSeparadores[static_cast<std::size_t>(iSeparador)];
}

CString TextoDeHoras(AnoHorarioVista ano, double dEscala, TramoHoras tramo, wchar_t separador)
{
    CString texto;
    for (int h = tramo.iInicio; h < tramo.iFin; ++h) {
        texto += numero::nuConvertFltToIntlStr(ano[static_cast<std::size_t>(h)] * dEscala, 2);
        texto += separador;
    }
    return texto;
}

std::optional<CString> LeerFicheroDeValores(const CString& csRuta)
{
    return fichero::LeerTexto(csRuta);
}

std::optional<CString> TextoDeValores(std::string_view bytes)
{
    return fichero::TextoDeBytes(bytes);
}

CString NormalizarValores(std::wstring_view texto, wchar_t separador)
{
    CString normal;
    normal.reserve(texto.size());
    bool bEnHueco = false;
    while (!texto.empty()) {
        const std::size_t nHueco = Hueco(texto);
        if (nHueco == 0)
            normal += texto[0] == L'.' ? L',' : texto[0];
        else if (!bEnHueco)
            normal += separador;
        bEnHueco = nHueco > 0;
        texto.remove_prefix(std::max<std::size_t>(nHueco, 1));
    }
    return normal;
}

int ValoresEsperados(const FormatoValores& formato)
{
    const int nHoras = HorasDePeriodo(formato.iPeriodo).Horas();
    return formato.iPeriodo >= 12 ? nHoras * static_cast<int>(ValoresPorHora(formato)) : nHoras;
}

std::vector<double> LeerValores(std::wstring_view texto, wchar_t separador, int iMaximo)
{
    std::vector<double> adValores;
    const auto nMaximo = static_cast<std::size_t>(std::max(iMaximo, 0));
    while (adValores.size() < nMaximo) {
        const std::size_t fin = texto.find(separador);
        if (fin == std::wstring_view::npos)
            break;
        double d = 0.0;
        numero::nuConvertIntlStrToFlt(texto.substr(0, fin), d);
        adValores.push_back(d);
        texto.remove_prefix(fin + 1);
    }
    return adValores;
}

void AsignarValores(std::span<const double> adValores, const FormatoValores& formato,
                    std::span<double, kHorasDelAno> adHoras)
{
    const TramoHoras tramo = HorasDePeriodo(formato.iPeriodo);
    const double dFactor = formato.bKWh ? kWhPorKWh : 1.0;
    const std::size_t nPorHora = ValoresPorHora(formato);
    for (int h = tramo.iInicio; h < tramo.iFin; ++h) {
        const std::size_t n = std::min(nPorHora, adValores.size());
        double dSuma = 0.0;
        for (const double d : adValores.first(n))
            dSuma += d;
        adHoras[static_cast<std::size_t>(h)] = dSuma * dFactor;
        adValores = adValores.subspan(n);
    }
}

}  // namespace efv
