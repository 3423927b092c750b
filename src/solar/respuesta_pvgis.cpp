#include <quorvel/solar/pvgis.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include <fmt/format.h>

#include "platform/clima/numeros_linea.h"
#include "platform/clima/sol_registro.h"
#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"
#include "solar/calendario.h"

namespace efv::solar {

namespace {

using clima::SiguienteLinea;

constexpr std::string_view kColumnas = "time(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP";
constexpr double kPresion = 101325.0;  // Pa
constexpr double kRelacionMasas = 0.62198;

bool Contiene(std::string_view linea, std::string_view palabra)
{
    return linea.find(palabra) != linea.npos;
}

// The number behind the first colon.
double Valor(std::string_view linea)
{
    const std::size_t iDosPuntos = linea.find(':');
    return iDosPuntos == linea.npos ? 0.0 : numero::LeerDoble(linea.substr(iDosPuntos + 1));
}

// ---------------------------------------------------------------------------------------------------
// Psychrometrics
// ---------------------------------------------------------------------------------------------------

/// Saturation pressure of water vapour, Pa, by Hyland and Wexler (1983), with two constants a digit shorter.
double PresionSaturacion(double dTemperatura)
{
    const double x = dTemperatura + 273.15;
    if (dTemperatura >= 0.0)
        return std::exp(1.3914993 - 5800.2206 / x - 0.04864039 * x + 0.000041764768 * (x * x) -
                        0.000000014452093 * (x * x * x) + 6.5459673 * std::log(x));
    return std::exp(6.3925247 - 5674.359 / x - 0.009677843 * x + 0.00000062215701 * (x * x) +
                    0.0000000020747825 * (x * x * x) - 0.0000000000009484024 * (x * x * x * x) +
                    4.1635019 * std::log(x));
}

/// Dew point, ºC, from the partial pressure in Pa (Peppers, 1988).
double PuntoRocio(double dPresion)
{
    const double q = dPresion * 0.001;
    const double a = std::log(q);
    const double d =
        6.54 + 14.526 * a + 0.7389 * (a * a) + 0.09486 * (a * a * a) + 0.4569 * std::pow(q, 0.1984);
    return d < 0.0 ? 6.09 + 12.608 * a + 0.4959 * (a * a) : d;
}

/// Temperature of the sky, ºC (Clark and Allen, 1978), with a cloud cover by season.
double TemperaturaCielo(double dTemperatura, double dRocio, int iMes)
{
    constexpr double kBoltzmann = 5.6697e-08;
    const double n = iMes >= 4 && iMes <= 10 ? 3.0 : 5.0;
    const double t = dTemperatura + 273.15;
    const double dCielo = t * t * t * t * (0.764 * std::log((dRocio + 273.15) / 273.0) + 0.787) *
                          (1.0 + 0.0224 * n - 0.0035 * (n * n) + 0.00028 * (n * n * n)) * kBoltzmann /
                          kBoltzmann;
    return std::pow(dCielo, 0.25) - 273.15;
}

// ---------------------------------------------------------------------------------------------------
// Rows
// ---------------------------------------------------------------------------------------------------

/// One hour of the answer.
struct HoraTipica {
    int iMes, iDia, iHora;
    double dTemperatura, dHumedad, dGlobal, dDifusa, dViento, dDireccion;
};

HoraTipica LeerHora(std::string_view linea)
{
    std::array<std::string_view, 9> campos{};
    for (std::string_view& campo : campos) {
        const std::size_t iComa = linea.find(',');
        campo = linea.substr(0, iComa);
        linea.remove_prefix(iComa == linea.npos ? linea.size() : iComa + 1);
    }
    const auto cifras = [&](std::size_t i) {
        return campos[0].size() > i ? numero::LeerEntero(campos[0].substr(i, 2)) : 0;
    };
    const auto numero = [&](std::size_t i) { return numero::LeerDoble(campos[i]); };
    return {cifras(4), cifras(6), cifras(9), numero(1), numero(2), numero(3), numero(5), numero(7), numero(8)};
}

constexpr std::array<std::uint32_t, 7> kPotencias = {1, 10, 100, 1'000, 10'000, 100'000, 1'000'000};

/// Writes `uCifras`, the last `iDecimales` of its digits behind a point.
void EscribirCifras(fmt::memory_buffer& salida, std::uint32_t uCifras, int iDecimales)
{
    constexpr std::size_t kMayor = std::numeric_limits<std::uint32_t>::digits10 + 2;  // with the point
    const std::size_t n = salida.size();
    salida.resize(n + kMayor);
    const std::uint32_t uEntera = uCifras / kPotencias[static_cast<std::size_t>(iDecimales)];
    std::uint32_t uResto = uCifras - uEntera * kPotencias[static_cast<std::size_t>(iDecimales)];
    char* p = std::to_chars(salida.data() + n, salida.data() + n + kMayor, uEntera).ptr;
    if (iDecimales > 0) {
        *p = '.';
        for (int i = iDecimales; i > 0; --i, uResto /= 10)
            p[i] = static_cast<char>('0' + uResto % 10);
        p += 1 + iDecimales;
    }
    salida.resize(static_cast<std::size_t>(p - salida.data()));
}

/// Writes `d` with `iDecimales` (0 to 6) as printf's %.*f does. Most numbers are far enough from a tie for one
/// multiplication to tell their digits; the others go the long way.
void Escribir(fmt::memory_buffer& salida, double d, int iDecimales)
{
    constexpr double kMaximo = 1e9;
    constexpr double kMargen = 1e-4;  // a product below 1e9 errs by 1e-7
    const double dEscalado = std::abs(d) * kPotencias[static_cast<std::size_t>(iDecimales)];
    if (!(dEscalado < kMaximo)) {
        fmt::format_to(std::back_inserter(salida), "{:.{}f}", d, iDecimales);
        return;
    }
    const auto uEntera = static_cast<std::uint32_t>(dEscalado);
    const double dFraccion = dEscalado - uEntera;
    if (std::abs(dFraccion - 0.5) < kMargen) {
        fmt::format_to(std::back_inserter(salida), "{:.{}f}", d, iDecimales);
        return;
    }
    if (std::signbit(d))
        salida.push_back('-');
    EscribirCifras(salida, uEntera + (dFraccion > 0.5 ? 1U : 0U), iDecimales);
}

/// Columns of decimals with their separators.
void EscribirHora(fmt::memory_buffer& salida, const HoraTipica& h, double dCielo, double dRazonHumedad,
                  double dAcimut, double dCenit)
{
    struct Columna {
        double d;
        int iDecimales;
    };
    const Columna columnas[] = {{static_cast<double>(h.iMes), 0},
                                {static_cast<double>(h.iDia), 0},
                                {static_cast<double>(h.iHora) + 1, 0},
                                {h.dTemperatura, 1},
                                {dCielo, 5},
                                {h.dGlobal, 0},
                                {h.dDifusa, 0},
                                {dRazonHumedad, 6},
                                {h.dHumedad, 4},
                                {h.dViento, 5},
                                {h.dDireccion, 0},
                                {dAcimut, 0},
                                {dCenit, 0}};
    for (const Columna& c : columnas) {
        Escribir(salida, c.d, c.iDecimales);
        salida.push_back('\t');
    }
    salida.resize(salida.size() - 1);
    salida.append(std::string_view("\r\n"));
}

void ConvertirHora(fmt::memory_buffer& salida, std::string_view linea, clima::SolesRegistro& soles)
{
    HoraTipica h = LeerHora(linea);
    if (numero::Mayor(h.dDireccion, 180.0))
        h.dDireccion -= 360.0;
    const double dParcial = PresionSaturacion(h.dTemperatura) * h.dHumedad * 0.01;
    const double dRazon = dParcial * kRelacionMasas / (kPresion - dParcial);
    const double dRocio = PuntoRocio(dRazon * kPresion / (dRazon + kRelacionMasas));
    const double dCielo = TemperaturaCielo(h.dTemperatura, dRocio, h.iMes);
    clima::SolRegistro sol = soles.En(h.iMes, h.iDia, h.iHora + 0.5);
    if (numero::Mayor(sol.dCenit, 90.0)) {
        sol.dAcimut = 0.0;
        sol.dCenit = 90.0;
        h.dGlobal = 0.0;
    } else if (numero::Mayor(sol.dCenit, 87.0)) {
        h.dGlobal = 0.0;
    }
    EscribirHora(salida, h, dCielo, dRazon, sol.dAcimut, sol.dCenit);
}

}  // namespace

RegistroConvertido ConvertirAnoTipico(std::string_view respuesta, std::string_view nombre, double dLatitud,
                                      double dValorCabecera)
{
    clima::SolesRegistro soles(0.0);  // of the answer's latitude
    double dLongitud = 0.0;
    double dElevacion = 0.0;
    fmt::memory_buffer salida;
    bool bDatos = false;
    RegistroConvertido registro;
    while (const auto linea = registro.iFilas < kFilasAnoTipico ? SiguienteLinea(respuesta) : std::nullopt) {
        if (bDatos) {
            ConvertirHora(salida, *linea, soles);
            ++registro.iFilas;
        } else if (Contiene(*linea, "Latitude")) {
            soles = clima::SolesRegistro(Valor(*linea));
        } else if (Contiene(*linea, "Longitude")) {
            dLongitud = Valor(*linea);
        } else if (Contiene(*linea, "Elevation")) {
            dElevacion = Valor(*linea);
        } else if (Contiene(*linea, kColumnas)) {
            fmt::format_to(std::back_inserter(salida), "{} {:.0f}\r\n{:.6f}\t{:.6f}\t{:.1f}\r\n", nombre,
                           dValorCabecera, dLatitud, dLongitud, dElevacion);
            bDatos = true;
        }
    }
    registro.texto = fmt::to_string(salida);
    return registro;
}

namespace {

/// Index of a month's English short name; empty text counts as January, an unknown one is 12.
std::size_t MesIngles(std::string_view nombre)
{
    constexpr std::array<std::string_view, 12> kMeses = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    if (nombre.empty())
        return 0;
    return static_cast<std::size_t>(std::ranges::find(kMeses, nombre) - kMeses.begin());
}

}  // namespace

std::optional<std::array<double, 12>> RadiacionMensual(std::string_view respuesta)
{
    std::array<double, 12> adSumas{};
    int iFilas = 0;
    bool bDatos = false;
    while (const auto linea = SiguienteLinea(respuesta)) {
        if (!bDatos) {
            bDatos = Contiene(*linea, "H(h)_m");
            continue;
        }
        const auto campos = clima::Campos(*linea, '\t');
        const auto campo = [&](std::size_t i) { return i < campos.size() ? campos[i] : std::string_view(); };
        const std::size_t m = MesIngles(campo(2));
        if (numero::LeerEntero(campo(0)) > 0 && m < 12) {
            adSumas[m] += numero::LeerDoble(campo(4));
            ++iFilas;
        }
    }
    if (iFilas == 0)
        return std::nullopt;
    const double dAnos = iFilas / 12;  // NOLINT(bugprone-integer-division): whole years
    for (std::size_t m = 0; m < 12; ++m)
        adSumas[m] = adSumas[m] / dAnos / kDiasMesReferencia[m] * 3600.0;
    return adSumas;
}

}  // namespace efv::solar
