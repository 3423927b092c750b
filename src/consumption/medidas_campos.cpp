#include "consumption/medidas_campos.h"

#include <algorithm>
#include <array>
#include <charconv>

#include <quorvel/hora_oficial.h>
#include <quorvel/marca_decimal.h>

#include "platform/texto/texto.h"

namespace efv::contador {

namespace {

constexpr int kMinutosDia = 24 * 60;
/// No meter was read by the hour before.
constexpr int kPrimerAno = 1990;
constexpr std::string_view kNoSeparable = "\xC2\xA0";

bool EsCifra(char c)
{
    return c >= '0' && c <= '9';
}

// Takes the whole number at the start of `texto` away from it.
std::optional<int> TomarEntero(std::string_view& texto, std::size_t nMaximo)
{
    std::size_t n = 0;
    while (n < texto.size() && n <= nMaximo && EsCifra(texto[n]))
        ++n;
    if (n == 0 || n > nMaximo)
        return std::nullopt;
    int i = 0;
    std::from_chars(texto.data(), texto.data() + n, i);
    texto.remove_prefix(n);
    return i;
}

bool Tomar(std::string_view& texto, std::string_view admitidos)
{
    if (texto.empty() || admitidos.find(texto.front()) == std::string_view::npos)
        return false;
    texto.remove_prefix(1);
    return true;
}

std::optional<FechaLeida> Fecha(int iAno, int iMes, int iDia, std::string_view resto)
{
    const FechaCivil fecha{iAno < 100 ? 2000 + iAno : iAno, iMes, iDia};
    // What follows a date is a time, apart by a blank or a T.
    if (!EsFechaCivil(fecha) || fecha.iAno < kPrimerAno || (!resto.empty() && !Tomar(resto, " T")))
        return std::nullopt;
    return FechaLeida{DiaDeFecha(fecha), Recortar(resto)};
}

// "13:00", "13:00:00"; seconds and what follows them don't count.
std::optional<int> Minutos(std::string_view& texto)
{
    const auto iHora = TomarEntero(texto, 2);
    if (!iHora || !Tomar(texto, ":"))
        return std::nullopt;
    const auto iMinuto = TomarEntero(texto, 2);
    if (!iMinuto || *iMinuto > 59)
        return std::nullopt;
    if (Tomar(texto, ":") && !TomarEntero(texto, 2))
        return std::nullopt;
    const int iMinutos = *iHora * 60 + *iMinuto;
    return iMinutos <= kMinutosDia ? std::optional(iMinutos) : std::nullopt;
}

}  // namespace

std::string_view Recortar(std::string_view campo)
{
    const auto quitar = [&](auto empieza, auto acortar) {
        for (;;) {
            if (empieza(kNoSeparable))
                acortar(kNoSeparable.size());
            else if (empieza(" ") || empieza("\t"))
                acortar(std::size_t{1});
            else
                return;
        }
    };
    quitar([&](std::string_view c) { return campo.starts_with(c); },
           [&](std::size_t n) { campo.remove_prefix(n); });
    quitar([&](std::string_view c) { return campo.ends_with(c); },
           [&](std::size_t n) { campo.remove_suffix(n); });
    return campo;
}

std::string Clave(std::string_view campo)
{
    std::string clave;
    for (const wchar_t c : texto::Plegar(CadenaDesdeUtf8(campo)))
        if ((c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9'))
            clave += static_cast<char>(c);
    return clave;
}

std::optional<double> LeerCantidad(std::string_view campo)
{
    campo = Recortar(campo);
    const std::size_t iDecimal = campo.find_last_of(",.");
    std::array<char, 48> cifras{};
    if (campo.size() > cifras.size())
        return std::nullopt;
    // Other marks before the decimal one part thousands.
    std::size_t n = 0;
    for (std::size_t i = 0; i < campo.size(); ++i) {
        const bool bMarca = campo[i] == ',' || campo[i] == '.';
        if (bMarca && i != iDecimal && campo[i] == campo[iDecimal])
            return std::nullopt;
        if (!bMarca || i == iDecimal)
            cifras[n++] = bMarca ? '.' : campo[i];
    }
    return LeerNumero({cifras.data(), n});
}

std::optional<FechaLeida> LeerFecha(std::string_view campo)
{
    campo = Recortar(campo);
    constexpr std::string_view kSeparadores = "/-.";
    std::string_view resto = campo;
    const auto iPrimero = TomarEntero(resto, 8);
    if (!iPrimero)
        return std::nullopt;
    const std::size_t nCifras = campo.size() - resto.size();
    if (nCifras == 8)
        return Fecha(*iPrimero / 10000, *iPrimero / 100 % 100, *iPrimero % 100, resto);
    if (nCifras == 3 || nCifras > 4 || !Tomar(resto, kSeparadores))
        return std::nullopt;
    const auto iMes = TomarEntero(resto, 2);
    if (!iMes || !Tomar(resto, kSeparadores))
        return std::nullopt;
    const std::size_t nAntes = resto.size();
    const auto iTercero = TomarEntero(resto, 4);
    if (!iTercero)
        return std::nullopt;
    if (nCifras == 4)
        return Fecha(*iPrimero, *iMes, *iTercero, resto);
    const std::size_t nAno = nAntes - resto.size();
    return nAno == 2 || nAno == 4 ? Fecha(*iTercero, *iMes, *iPrimero, resto) : std::nullopt;
}

std::optional<HoraLeida> LeerHora(std::string_view campo)
{
    campo = Recortar(campo);
    if (campo.find(':') == std::string_view::npos) {
        std::string_view resto = campo;
        const auto iOrdinal = TomarEntero(resto, 3);
        if (!iOrdinal || !Recortar(resto).empty())
            return std::nullopt;
        return HoraLeida{HoraLeida::Clase::ordinal, *iOrdinal};
    }
    const auto iMinutos = Minutos(campo);
    if (!iMinutos)
        return std::nullopt;
    campo = Recortar(campo);
    const bool bIntervalo = Tomar(campo, "-") && Recortar(campo).find(':') != std::string_view::npos;
    return HoraLeida{bIntervalo ? HoraLeida::Clase::intervalo : HoraLeida::Clase::reloj, *iMinutos};
}

}  // namespace efv::contador
