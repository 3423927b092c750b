#include "platform/numero/conversion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include <fmt/format.h>

#include <quorvel/marca_decimal.h>

namespace efv::numero {

namespace {

constexpr bool EsBlanco(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view SinBlancosDelante(std::string_view texto)
{
    while (!texto.empty() && EsBlanco(texto.front()))
        texto.remove_prefix(1);
    return texto;
}

// Narrow form of `texto` for the parsers below; characters beyond ASCII end any number.
std::string Estrechar(std::wstring_view texto)
{
    std::string estrecho(texto.size(), '\0');
    std::ranges::transform(texto, estrecho.begin(),
                           [](wchar_t c) { return c > 0 && c < 128 ? static_cast<char>(c) : '\x01'; });
    return estrecho;
}

struct NumeroLeido {
    double d;
    const char* fin;  // null when no number was found
};

// The plain forms "250" and "-12.345000" of up to fifteen digits and no exponent, which nearly all
// numbers of a file have: digits and power of ten are then exact doubles, and their quotient is the
// correctly rounded value (Clinger, 1990), the one that the general way gives.
constexpr int kCifrasExactas = 15;
constexpr std::array<double, kCifrasExactas + 1> kPotencias = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                               1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

constexpr auto kEsPunto = [](char c) { return c == '.'; };

template <class C>
struct Sencillo {
    double d;
    const C* fin;  // where the number ends; null when the text begins with another form
};

template <class C>
constexpr bool EsExponente(C c)
{
    return c == C('e') || c == C('E');
}

// Where a text ends that has a zero behind it: the zero is no part of a number.
struct EnSuCero {
    template <class C>
    friend constexpr bool operator!=(const C*, EnSuCero)
    {
        return true;
    }
};

template <class C, class FIN, class MARCA>
Sencillo<C> LeerSencillo(const C* p, FIN fin, MARCA esMarca)
{
    const bool negativo = p != fin && *p == C('-');
    p += negativo ? 1 : 0;
    std::uint64_t cifras = 0;
    const C* const inicio = p;
    const auto leerCifras = [&] {
        const C* const desde = p;
        for (; p != fin && *p >= C('0') && *p <= C('9'); ++p)
            cifras = cifras * 10 + static_cast<std::uint64_t>(*p - C('0'));
        return p - desde;
    };
    if (leerCifras() == 0)
        return {0.0, nullptr};
    std::ptrdiff_t nDecimales = 0;
    std::ptrdiff_t nMarcas = 0;
    if (p != fin && esMarca(*p)) {
        ++p;
        nMarcas = 1;
        nDecimales = leerCifras();
    }
    if (p - inicio - nMarcas > kCifrasExactas || (p != fin && EsExponente(*p)))
        return {0.0, nullptr};
    const double d = static_cast<double>(cifras) / kPotencias[static_cast<std::size_t>(nDecimales)];
    return {negativo ? -d : d, p};
}

template <class FIN>
int LeerEnteroHasta(const char* p, FIN fin)
{
    while (p != fin && EsBlanco(*p))
        ++p;
    const bool negativo = p != fin && *p == '-';
    if (negativo || (p != fin && *p == '+'))
        ++p;
    long long n = 0;
    for (; p != fin && EsCifra(*p); ++p)
        n = std::min<long long>(n * 10 + (*p - '0'), 1LL << 40);  // far beyond int, still far from overflow
    n = negativo ? -n : n;
    return static_cast<int>(
        std::clamp<long long>(n, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// What a well-formed number too large or too small for a double reads as: infinite or 0. The wider
// range of long double tells most cases apart, the sign of the exponent the rest.
double FueraDeRango(std::string_view numero)
{
    long double ancho = 0.0L;
    if (std::from_chars(numero.data(), numero.data() + numero.size(), ancho).ec == std::errc{})
        return ancho > 1.0L ? std::numeric_limits<double>::infinity() : 0.0;
    return numero.find("e-") != std::string_view::npos || numero.find("E-") != std::string_view::npos
               ? 0.0
               : std::numeric_limits<double>::infinity();
}

// Decimal number at the very start of `texto`. from_chars takes no '+', and would take "inf" and "nan".
NumeroLeido LeerPrefijo(std::string_view texto)
{
    const bool negativo = texto.starts_with('-');
    if (negativo || texto.starts_with('+'))
        texto.remove_prefix(1);
    const bool hayCifra =
        !texto.empty() && (EsCifra(texto[0]) || (texto[0] == '.' && texto.size() > 1 && EsCifra(texto[1])));
    if (!hayCifra)
        return {0.0, nullptr};
    double d = 0.0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), d);
    if (error == std::errc::result_out_of_range)
        d = FueraDeRango({texto.data(), fin});
    return {negativo ? -d : d, fin};
}

}  // namespace

bool LeerExacto(std::string_view texto, double& d)
{
    const char* const fin = texto.data() + texto.size();
    if (const auto sencillo = LeerSencillo<char>(texto.data(), fin, kEsPunto); sencillo.fin == fin) {
        d = sencillo.d;
        return !texto.empty();
    }
    const auto [hasta, error] = std::from_chars(texto.data(), fin, d);
    return error == std::errc{} && hasta == fin;
}

double LeerDoble(std::string_view texto)
{
    if (const auto sencillo = LeerSencillo<char>(texto.data(), texto.data() + texto.size(), kEsPunto);
        sencillo.fin)
        return sencillo.d;
    return LeerPrefijo(SinBlancosDelante(texto)).d;
}

double LeerDoble(const char* texto)
{
    if (const auto sencillo = LeerSencillo<char>(texto, EnSuCero{}, kEsPunto); sencillo.fin)
        return sencillo.d;
    return LeerPrefijo(SinBlancosDelante(texto)).d;
}

double LeerDoble(std::wstring_view texto)
{
    return LeerDoble(std::string_view(Estrechar(texto)));
}

int LeerEntero(std::string_view texto)
{
    return LeerEnteroHasta(texto.data(), texto.data() + texto.size());
}

int LeerEntero(const char* texto)
{
    return LeerEnteroHasta(texto, EnSuCero{});
}

int Entero(double d)
{
    if (std::isnan(d))
        return 0;
    constexpr double minimo = std::numeric_limits<int>::min();
    constexpr double maximo = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(d, minimo, maximo));
}

CString nuConvertFltToIntlStr(double d, int iDecimales)
{
    if (std::isnan(d))
        return L"nan";  // whatever the sign bit that a division happened to leave
    std::string texto = fmt::format("{:.{}f}", d, std::clamp(iDecimales, 0, 15));
    CString csTexto(texto.begin(), texto.end());
    PonerMarca(csTexto);
    return csTexto;
}

void PonerMarca(CString& csTexto)
{
    std::ranges::replace(csTexto, L'.', MarcaDecimal());
}

bool nuConvertIntlStrToFlt(std::wstring_view texto, double& d)
{
    constexpr auto esMarca = [](wchar_t c) { return c == L',' || c == L'.'; };
    const wchar_t* const final = texto.data() + texto.size();
    if (const auto sencillo = LeerSencillo<wchar_t>(texto.data(), final, esMarca);
        sencillo.fin == final && !texto.empty()) {
        d = sencillo.d;
        return true;
    }
    std::string estrecho = Estrechar(texto);
    std::ranges::replace(estrecho, ',', '.');
    std::string_view resto = SinBlancosDelante(estrecho);
    while (!resto.empty() && EsBlanco(resto.back()))
        resto.remove_suffix(1);
    const auto [valor, fin] = LeerPrefijo(resto);
    if (fin != resto.data() + resto.size() || fin == nullptr || !std::isfinite(valor))
        return false;
    d = valor;
    return true;
}

}  // namespace efv::numero
