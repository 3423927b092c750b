#include "comun/reloj.h"

#include <charconv>
#include <chrono>
#include <cstdlib>

#include <fmt/format.h>

#include "comun/consola.h"

namespace efv::orden {

namespace {

// The digits at `posicion`, `cifras` of them; -1 when something else stands there.
int Cifras(std::string_view texto, std::size_t posicion, std::size_t cifras)
{
    const std::string_view trozo = texto.substr(posicion, cifras);
    if (trozo.find_first_not_of("0123456789") != std::string_view::npos)
        return -1;
    int n = -1;
    std::from_chars(trozo.data(), trozo.data() + trozo.size(), n);
    return n;
}

bool Existe(const FechaHora& m)
{
    const std::chrono::year_month_day fecha{std::chrono::year(m.iAno),
                                            std::chrono::month(static_cast<unsigned>(m.iMes)),
                                            std::chrono::day(static_cast<unsigned>(m.iDia))};
    return m.iAno > 0 && fecha.ok() && m.iHora >= 0 && m.iHora < 24 && m.iMinuto >= 0 && m.iMinuto < 60 &&
           m.iSegundo >= 0 && m.iSegundo < 60;
}

}  // namespace

std::optional<FechaHora> LeerMomento(std::string_view texto)
{
    constexpr std::string_view forma = "0000-00-00T00:00:00";
    constexpr std::size_t soloFecha = 10;
    if (texto.size() != forma.size() && texto.size() != soloFecha)
        return std::nullopt;
    for (std::size_t i = 0; i < texto.size(); ++i)
        if (forma[i] != '0' && texto[i] != forma[i])
            return std::nullopt;
    FechaHora momento{Cifras(texto, 0, 4), Cifras(texto, 5, 2), Cifras(texto, 8, 2), 0, 0, 0};
    if (texto.size() > soloFecha) {
        momento.iHora = Cifras(texto, 11, 2);
        momento.iMinuto = Cifras(texto, 14, 2);
        momento.iSegundo = Cifras(texto, 17, 2);
    }
    return Existe(momento) ? std::optional(momento) : std::nullopt;
}

void FijarRelojDelEntorno()
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    const char* variable = std::getenv("EFV_AHORA");
    if (variable == nullptr || *variable == '\0')
        return;
    const std::optional<FechaHora> momento = LeerMomento(variable);
    if (!momento)
        throw ErrorUso(
            fmt::format("EFV_AHORA: se esperaba un momento como 2028-02-01T12:00:00, llegó «{}»", variable));
    FijarReloj(momento);
}

}  // namespace efv::orden
