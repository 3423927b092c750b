#include "platform/clima/registro_climatico.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "platform/clima/horizonte.h"
#include "platform/clima/numeros_linea.h"
#include "platform/numero/tolerancia.h"

namespace efv::clima {

namespace {

constexpr std::size_t kHorasAno = 8760;
constexpr double kRadianes = std::numbers::pi / 180.0;
/// Zenith in degrees above which all that arrives counts as diffuse.
constexpr double kCenitDifuso = 87.0;

/// Where a kind of file has what, columns from 0.
struct FormatoClima {
    char separador;
    std::size_t nColumnas;  // at least, or exactly
    bool bExactas;
    std::size_t iMes, iDia, iHora, iGlobal, iDifusa;
    bool bDirectaEnGlobal;  // the global's column holds the direct horizontal
};
constexpr FormatoClima kRegistro{'\t', 13, true, 0, 1, 2, 5, 6, false};
constexpr FormatoClima kReferencia{'\t', 13, true, 0, 1, 2, 5, 6, true};
constexpr FormatoClima kEpw{',', 16, false, 1, 2, 3, 13, 15, false};

/// Reads line after line and knows which one it is at.
class LectorClima {
public:
    explicit LectorClima(std::string_view texto) : m_texto(texto) {}

    std::optional<std::string_view> Siguiente()
    {
        ++m_iLinea;
        return SiguienteLinea(m_texto);
    }
    [[noreturn]] void Rechazar(const std::string& motivo) const
    {
        throw FicheroInvalido(fmt::format("línea {}: {}", m_iLinea, motivo));
    }
    double Numero(std::string_view campo, const char* nombre) const
    {
        const auto d = NumeroFinito(campo);
        if (!d)
            Rechazar(fmt::format("{} no es un número", nombre));
        return *d;
    }
    int Entero(std::string_view campo, const char* nombre) const
    {
        const double d = Numero(campo, nombre);
        if (d != std::floor(d) || std::abs(d) > 10000.0)
            Rechazar(fmt::format("{} no existe", nombre));
        return static_cast<int>(d);
    }

private:
    std::string_view m_texto;
    int m_iLinea = 0;
};

bool EnBlanco(std::string_view linea)
{
    return linea.find_first_not_of(" \t\r") == linea.npos;
}

/// Latitude and longitude of a heading.
struct Cabecera {
    FormatoClima formato;
    double dLatitud, dLongitud;
};

Cabecera LeerEpw(LectorClima& lector, std::string_view primera)
{
    const auto campos = Campos(primera, ',');
    if (campos.size() < 8)
        lector.Rechazar("faltan datos del lugar");
    const double dLatitud = lector.Numero(campos[6], "la latitud");
    const double dLongitud = lector.Numero(campos[7], "la longitud");
    for (int i = 1; i < 8; ++i)
        if (!lector.Siguiente())
            lector.Rechazar("faltan líneas de cabecera");
    return {kEpw, dLatitud, dLongitud};
}

Cabecera LeerCabecera(LectorClima& lector)
{
    const auto primera = lector.Siguiente();
    if (!primera)
        lector.Rechazar("el fichero está vacío");
    if (primera->starts_with("LOCATION,"))
        return LeerEpw(lector, *primera);
    const auto segunda = lector.Siguiente();
    const auto valores = Palabras(segunda.value_or(""), " \t\r");
    if (valores.size() < 2)
        lector.Rechazar("falta la latitud");
    const double dLatitud = lector.Numero(valores[0], "la latitud");
    const double dLongitud = lector.Numero(valores[1], "la longitud");
    return {valores.size() == 4 ? kReferencia : kRegistro, dLatitud, dLongitud};
}

}  // namespace

RegistroClimatico RegistroClimatico::Leer(std::string_view texto)
{
    if (texto.starts_with("\xEF\xBB\xBF"))
        texto.remove_prefix(3);
    LectorClima lector(texto);
    const Cabecera cabecera = LeerCabecera(lector);
    const FormatoClima& f = cabecera.formato;
    RegistroClimatico registro;
    registro.m_dLatitud = cabecera.dLatitud;
    registro.m_dLongitud = cabecera.dLongitud;
    registro.m_horas.reserve(kHorasAno);
    SolesRegistro soles(cabecera.dLatitud);
    while (const auto linea = lector.Siguiente()) {
        if (registro.m_horas.size() == kHorasAno && EnBlanco(*linea))
            continue;
        if (registro.m_horas.size() == kHorasAno)
            lector.Rechazar("hay más de 8760 horas");
        const auto campos = Campos(*linea, f.separador);
        if (f.bExactas ? campos.size() != f.nColumnas : campos.size() < f.nColumnas)
            lector.Rechazar(fmt::format("hay {} columnas y se esperaban {}", campos.size(), f.nColumnas));
        const int iMes = lector.Entero(campos[f.iMes], "el mes");
        const int iDia = lector.Entero(campos[f.iDia], "el día");
        const int iHora = lector.Entero(campos[f.iHora], "la hora");
        if (!DiaDelAno(iMes, iDia) || iHora < 1 || iHora > 24)
            lector.Rechazar("el mes, el día o la hora no existen");
        const double dDifusa = lector.Numero(campos[f.iDifusa], "la radiación difusa");
        const double dOtra = lector.Numero(campos[f.iGlobal], "la radiación");
        registro.Anadir(soles.En(iMes, iDia, iHora - 0.5), soles, f.bDirectaEnGlobal ? dOtra + dDifusa : dOtra,
                        dDifusa);
    }
    if (registro.m_horas.size() != kHorasAno)
        throw FicheroInvalido(fmt::format("hay {} horas y se esperaban 8760", registro.m_horas.size()));
    return registro;
}

void RegistroClimatico::Anadir(const SolRegistro& sol, const SolesRegistro& soles, double dGlobal,
                               double dDifusa)
{
    const double w = sol.dAnguloHora * kRadianes;
    HoraCielo h;
    h.dGlobal = dGlobal;
    h.dDifusa = std::min(dDifusa, dGlobal);
    if (numero::Mayor(sol.dCenit, kCenitDifuso)) {
        h.dDifusa = dGlobal;
    } else {
        h.dCosCenit = sol.dSenoDeclinacion * soles.SenoLatitud() +
                      sol.dCosenoDeclinacion * soles.CosenoLatitud() * std::cos(w);
        h.dSur = sol.dCosenoDeclinacion * soles.SenoLatitud() * std::cos(w) -
                 sol.dSenoDeclinacion * soles.CosenoLatitud();
        h.dOeste = sol.dCosenoDeclinacion * std::sin(w);
        h.dDirecta = (h.dGlobal - h.dDifusa) / h.dCosCenit;
    }
    m_horas.push_back(h);
}

double RegistroClimatico::Radiacion(int iHoraAno, const PlanoCielo& plano) const
{
    if (iHoraAno < 0 || static_cast<std::size_t>(iHoraAno) >= m_horas.size())
        return 0.0;
    const HoraCielo& h = m_horas[static_cast<std::size_t>(iHoraAno)];
    return TotalEnPlano(h, Frente(h, plano), plano);
}

}  // namespace efv::clima
