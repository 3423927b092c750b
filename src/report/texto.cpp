#include <quorvel/report/texto.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/framework/CString.h>
#include <quorvel/marca_decimal.h>
#include <quorvel/terminal.h>
#include <quorvel/unidades.h>

namespace efv::report {

namespace {

std::string ConMarca(std::string texto)
{
    std::ranges::replace(texto, '.', static_cast<char>(MarcaDecimal()));
    return texto;
}

}  // namespace

std::string Decimal(double d, int iDecimales)
{
    if (!std::isfinite(d))
        return "—";
    std::string texto = fmt::format("{:.{}f}", d, iDecimales);
    if (texto.starts_with('-') && texto.find_first_of("123456789") == std::string::npos)
        texto.erase(0, 1);
    return ConMarca(std::move(texto));
}

std::string DecimalExacto(double d)
{
    return std::isfinite(d) ? ConMarca(fmt::format("{}", d)) : std::string();
}

namespace {

/// A unit of reports: `dGuardadas` stored units of its magnitude, then a text that stays.
struct UnidadDeInforme {
    std::string_view unidad;
    std::wstring_view magnitud;
    double dGuardadas;
    std::string_view resto;
};
constexpr double kKilojulios = 3600.0;  // of a kWh
constexpr auto kUnidades = std::to_array<UnidadDeInforme>({
    {"kWh", L"Energía", 1.0, ""},
    {"kWh/año", L"Energía", 1.0, "/año"},
    {"kWh/m²·día", L"Radiación solar", kKilojulios, "/m²·día"},
    {"m²", L"Superficie", 1.0, ""},
    {"m", L"Longitud", 1.0, ""},
    {"mm", L"Dimensiones", 1.0, ""},
    {"kg", L"Masa", 1.0, ""},
    {"ºC", L"Temperatura", 1.0, ""},
});

}  // namespace

Medida MedidaDe(std::string_view unidad)
{
    Medida medida;
    medida.unidad = unidad;
    const auto* suya = std::ranges::find(kUnidades, unidad, &UnidadDeInforme::unidad);
    if (suya == kUnidades.end() || !HayUnidadElegida(suya->magnitud))
        return medida;
    const Unidad& elegida = UnidadActual(suya->magnitud);
    medida.unidad = CadenaUtf8(CString(elegida.simbolo));
    medida.unidad += suya->resto;
    if (medida.unidad == unidad)
        return medida;
    medida.dFactor = elegida.dFactor * suya->dGuardadas;
    medida.dOrigen = elegida.dOrigen;
    medida.iMasDecimales = static_cast<int>(std::ceil(-std::log10(medida.dFactor)));
    return medida;
}

namespace {

std::string DecimalEn(double d, int iDecimales, const Medida& medida)
{
    return Decimal(medida.En(d), std::max(0, iDecimales + medida.iMasDecimales));
}

}  // namespace

std::string DecimalEn(double d, int iDecimales, std::string_view unidad)
{
    return DecimalEn(d, iDecimales, MedidaDe(unidad));
}

std::string Con(double d, int iDecimales, std::string_view unidad)
{
    if (!std::isfinite(d))
        return Decimal(d, iDecimales);
    const Medida medida = MedidaDe(unidad);
    const bool bPegada = medida.unidad.empty() || medida.unidad == "°";
    return fmt::format("{}{}{}", DecimalEn(d, iDecimales, medida), bPegada ? "" : " ", medida.unidad);
}

std::string TituloEn(std::string_view titulo)
{
    std::string cambiado;
    for (std::size_t desde = 0; desde < titulo.size();) {
        const std::size_t abre = std::min(titulo.find('(', desde), titulo.size());
        const std::size_t cierra = std::min(titulo.find(')', abre), titulo.size());
        cambiado += titulo.substr(desde, abre - desde);
        if (abre < titulo.size()) {
            cambiado += '(';
            cambiado += MedidaDe(titulo.substr(abre + 1, cierra - abre - 1)).unidad;
        }
        desde = abre < titulo.size() ? cierra : abre;
        if (desde < titulo.size() && titulo[desde] == ')') {
            cambiado += ')';
            ++desde;
        }
    }
    return cambiado;
}

std::string EnUnaLinea(std::string_view texto)
{
    CString csLinea = CadenaDesdeUtf8(texto);
    const auto estorba = [](wchar_t c) {
        return c == L'\t' || c == L'\n' || DirigeElTerminal(static_cast<char32_t>(c));
    };
    std::ranges::replace_if(csLinea, estorba, L'?');
    return CadenaUtf8(csLinea);
}

std::size_t Anchura(std::string_view utf8)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string EnRojo(std::string texto, bool bColor)
{
    if (!bColor)
        return texto;
    std::string rojo;
    std::size_t i = 0;
    while (i < texto.size()) {
        const std::size_t fin = std::min(texto.find('\n', i), texto.size());
        const std::string_view linea = std::string_view(texto).substr(i, fin - i);
        rojo += linea.empty() ? linea : kColorRojo;
        rojo += linea;
        rojo += linea.empty() ? linea : kColorPropio;
        rojo += fin < texto.size() ? "\n" : "";
        i = fin + 1;
    }
    return rojo;
}

namespace {

// Bytes of the first `n` characters.
std::size_t Bytes(std::string_view utf8, std::size_t n)
{
    std::size_t i = 0;
    while (i < utf8.size() && Anchura(utf8.substr(0, i + 1)) <= n)
        ++i;
    return i;
}

}  // namespace

std::vector<std::string> EnLineas(std::string_view texto, std::size_t nAnchura, bool bPartirPalabras)
{
    const std::size_t nSangria = std::min(texto.find_first_not_of(' '), texto.size());
    // Where the blanks leave no room they don't count.
    const std::string sangria(nSangria < nAnchura / 2 ? nSangria : 0, ' ');
    texto.remove_prefix(nSangria);
    const std::size_t nHueco = std::max<std::size_t>(nAnchura, sangria.size() + 1) - sangria.size();
    std::vector<std::string> lineas;
    std::string linea;
    const auto cerrar = [&] {
        lineas.push_back(sangria + linea);
        linea.clear();
    };
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find(' '), texto.size());
        std::string_view palabra = texto.substr(0, fin);
        if (!linea.empty() && Anchura(linea) + 1 + Anchura(palabra) > nHueco)
            cerrar();
        for (; bPartirPalabras && Anchura(palabra) > nHueco; palabra.remove_prefix(Bytes(palabra, nHueco))) {
            linea = palabra.substr(0, Bytes(palabra, nHueco));
            cerrar();
        }
        linea += linea.empty() ? "" : " ";
        linea += palabra;
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
    if (!linea.empty() || lineas.empty())
        cerrar();
    return lineas;
}

}  // namespace efv::report
