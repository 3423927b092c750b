#include "solar/radiacion.h"

#include <cmath>

#include "platform/numero/tolerancia.h"
#include "solar/angulos.h"
#include "solar/calendario.h"

namespace efv::solar {

namespace {

constexpr double kOblicuidad = 0.4092797095926703;        // 23.45 degrees
constexpr double kAnguloPorDia = 0.01721420632103996;     // 2π/365
constexpr double kConstanteSolarDia = 37210.17104697619;  // 4870.8 kJ/m²·h × 24/π
constexpr double kReflectancia = 0.2;                     // of the ground
constexpr double kKWhPorKJ = 0.0002777778;                // this decimal, not 1/3600

// Day number of each month; October's isn't mid-month and stays so.
constexpr std::array<int, 12> kDiaNumero = {15, 46, 74, 105, 135, 166, 196, 227, 258, 270, 319, 349};

// What depends on the month's day number alone.
struct SolDelMes {
    double dDeclinacion, dSeno, dCoseno, dTangente;
    double dDistancia;  // correction of the extraterrestrial radiation by the sun's distance
};

std::array<SolDelMes, 12> CalcularSol()
{
    std::array<SolDelMes, 12> sol{};
    for (std::size_t m = 0; m < 12; ++m) {
        const double n = kDiaNumero[m];
        const double delta = kOblicuidad * std::sin((n + 284) * kAnguloPorDia);
        sol[m] = {delta, std::sin(delta), std::cos(delta), std::tan(delta),
                  std::cos(n * kAnguloPorDia) * 0.033 + 1};
    }
    return sol;
}

const std::array<SolDelMes, 12> kSol = CalcularSol();

const double kCosenoIncidencia = std::cos(0.6544984694978736);  // 37.5 degrees: 2.5 hours from noon

std::array<int, 12> DiasDelAnoActual()
{
    std::array<int, 12> dias = kDiasMesReferencia;
    const int iAno = AnoActual();
    // A clock that fails gives 29 as well.
    if (iAno == -1 || EsBisiesto(iAno))
        dias[1] = 29;
    return dias;
}

// Arctangent of √(1 − x²)/x in degrees. Not a number beyond ±1.
double ArcoCosenoGrados(double x)
{
    return std::atan(std::sqrt(1 - x * x) / x) / kRadianesPorGrado;
}

// Sunset hour angle in radians, from −tan φ · tan δ.
double Ocaso(double x)
{
    double grados = ArcoCosenoGrados(x);
    if (grados < 0)
        grados += 180;
    return grados * kRadianesPorGrado;
}

// Transmission of glass at the incidence of 2.5 hours from noon: kept in the record, no result uses it.
void CalcularIncidencia(RegistroRadiacion& r, std::size_t m, const PlanoInclinado& p, const SolDelMes& sol)
{
    const double c = sol.dSeno * p.dSenoLatitud * p.dCosenoInclinacion -
                     sol.dSeno * p.dCosenoLatitud * p.dSenoInclinacion +
                     sol.dCoseno * p.dCosenoLatitud * p.dCosenoInclinacion * kCosenoIncidencia +
                     sol.dCoseno * p.dSenoLatitud * p.dSenoInclinacion * kCosenoIncidencia;
    const double t = ArcoCosenoGrados(c);
    const double p1 = 0.9999853094699999 + 0.00277399 * t - 0.00028993 * t * t + 0.000008025541 * t * t * t -
                      0.0000000721636 * t * t * t * t;
    const double p2 = 0.989501758 + 0.00734668 * t - 0.0006301221 * t * t + 0.0000152771 * t * t * t -
                      0.000000116131 * t * t * t * t;
    const double difusa = r.dFraccionDifusa[m];
    const double relacion = r.dRelacion[m];
    r.dIncidencia[m] = t;
    r.dParteDirecta[m] = ((1 - difusa) * r.dRelacionDirecta[m] / relacion) * p1 * p2;
    r.dParteConDifusa[m] = r.dParteDirecta[m] + (difusa / relacion) * (p.dCosenoInclinacion + 1) * 0.440418;
    // The ground's term isn't divided by the tilt ratio.
    r.dParteTotal[m] = r.dParteConDifusa[m] + (1 - p.dCosenoInclinacion) * kReflectancia * 0.440418;
}

}  // namespace

RegistroRadiacion::RegistroRadiacion() : iDiasMes(DiasDelAnoActual()) {}

PlanoInclinado PrepararPlano(double dLatitud, double dInclinacion)
{
    const double beta = dInclinacion * kRadianesPorGrado;
    const double fi = dLatitud * kRadianesPorGrado;
    const double diferencia = fi - beta;
    return {std::sin(beta), std::cos(beta),       std::sin(fi),         std::cos(fi),
            std::tan(fi),   std::sin(diferencia), std::cos(diferencia), std::tan(diferencia)};
}

void CalcularMes(RegistroRadiacion& r, int iMes, const PlanoInclinado& p, double dRadHorizontal,
                 const FactoresEnergia& factores)
{
    const auto m = static_cast<std::size_t>(iMes);
    const SolDelMes& sol = kSol[m];

    const double ws = Ocaso(-p.dTangenteLatitud * sol.dTangente);
    const double wsPlano = Ocaso(-p.dTangenteDiferencia * sol.dTangente);
    const double b = std::sin(ws) * (sol.dCoseno * p.dCosenoLatitud) + ws * p.dSenoLatitud * sol.dSeno;
    const double h0 = sol.dDistancia * kConstanteSolarDia * b;
    const double kt = dRadHorizontal / h0;
    const double d = 5.53 * (kt * kt) + (1.39 - 4.03 * kt) - 3.11 * (kt * kt * kt);
    const double wm = numero::Mayor(wsPlano, ws) ? ws : wsPlano;
    const double rb =
        (std::sin(wm) * (sol.dCoseno * p.dCosenoDiferencia) + wm * p.dSenoDiferencia * sol.dSeno) / b;
    const double relacion =
        (p.dCosenoInclinacion + 1) * d * 0.5 + (1 - d) * rb + (1 - p.dCosenoInclinacion) * kReflectancia * 0.5;

    r.dRadHorizontal[m] = dRadHorizontal;
    r.dDeclinacion[m] = sol.dDeclinacion;
    r.dOcaso[m] = ws;
    r.dOcasoPlano[m] = wsPlano;
    r.dFactorB[m] = b;
    r.dRadExtraterrestre[m] = h0;
    r.dIndiceClaridad[m] = kt;
    r.dFraccionDifusa[m] = d;
    r.dOcasoMenor[m] = wm;
    r.dRelacionDirecta[m] = rb;
    r.dRelacion[m] = relacion;
    r.dRadPlano[m] = relacion * dRadHorizontal;
    r.dRadPlanoKWh[m] = r.dRadPlano[m] * kKWhPorKJ;
    r.dRadHorizontalKWh[m] = dRadHorizontal * kKWhPorKJ;
    r.dEnergiaDia[m] = r.dRadPlanoKWh[m] * factores.dPrimero * factores.dPR * factores.dAdicional;
    r.dEnergiaMes[m] = r.dEnergiaDia[m] * r.iDiasMes[m];
    CalcularIncidencia(r, m, p, sol);
    r.iCalculado[m] = 1;
}

}  // namespace efv::solar
