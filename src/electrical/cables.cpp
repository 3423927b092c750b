#include "electrical/cables.h"

#include <algorithm>
#include <span>

#include "platform/numero/tolerancia.h"

namespace efv::electrical {

namespace {

using numero::Igual;
using numero::MenorIgual;

constexpr double kCeroAbsoluto = -273.15;
constexpr double kTemperaturaReferencia = 20.0;
constexpr double kPorCiento = 100.0;

bool EnElSuelo(int iMetodo)
{
    return iMetodo == kMetodoD1 || iMetodo == kMetodoD2;
}

double Interpolar(std::span<const double> factores, double dTemperatura)
{
    double dHallada = kPrimeraTemperatura;
    for (std::size_t i = 0; i < factores.size(); ++i, dHallada += kPasoTemperatura) {
        if (!Igual(dHallada, dTemperatura) && !(dHallada > dTemperatura))
            continue;
        if (i == 0)
            return factores[0];
        return factores[i] + (dTemperatura - dHallada) / ((dHallada - kPasoTemperatura) - dHallada) *
                                 (factores[i - 1] - factores[i]);
    }
    return 0.0;
}

// The section of the first entry that is the value sought or more; 0 without one. An entry of 0 is a section
// that doesn't exist, and yet matches a sought 0.
double PrimeraQueLlega(const ColumnaCorrientes& entradas, double dBuscado)
{
    for (std::size_t i = 0; i < entradas.size(); ++i)
        if (Igual(entradas[i], dBuscado) || entradas[i] > dBuscado)
            return kSecciones[i];
    return 0.0;
}

}  // namespace

const ColumnaCorrientes* CorrientesDe(const CasoCable& caso)
{
    if (caso.iMetodo < 0 || static_cast<std::size_t>(caso.iMetodo) >= kColumnasMetodo.size())
        return nullptr;
    const ColumnasMetodo& columnas = kColumnasMetodo[static_cast<std::size_t>(caso.iMetodo)];
    const bool bPvc = caso.iAislante == 0;
    const std::size_t iColumna = caso.bTrifasico ? (bPvc ? columnas.iTresPvc : columnas.iTresOtro)
                                                 : (bPvc ? columnas.iDosPvc : columnas.iDosOtro);
    return caso.iMaterial == 0 ? &kCorrientesCobre[iColumna] : &kCorrientesAluminio[iColumna];
}

double FactorTemperatura(const CasoCable& caso)
{
    if (EnElSuelo(caso.iMetodo))
        return Interpolar(kFactoresSuelo[caso.iAislante == 0 ? 0 : 1], caso.dTemperatura);
    if (caso.iAislante < 0 || static_cast<std::size_t>(caso.iAislante) >= kFactoresAire.size())
        return 0.0;
    return Interpolar(kFactoresAire[static_cast<std::size_t>(caso.iAislante)], caso.dTemperatura);
}

double SeccionPorCorriente(const CasoCable& caso, double dCorriente)
{
    const ColumnaCorrientes* corrientes = CorrientesDe(caso);
    if (corrientes == nullptr)
        return 0.0;
    const double dFactor = FactorTemperatura(caso);
    if (MenorIgual(dFactor, 0.0))
        return 0.0;
    return PrimeraQueLlega(*corrientes, dCorriente / dFactor);
}

double SeccionNormal(double dSeccion)
{
    return PrimeraQueLlega(kSecciones, dSeccion);
}

double SeccionDeReferencia(double dCorriente)
{
    return PrimeraQueLlega(kCorrientesReferencia, dCorriente);
}

double SeccionPorPotencia(double dHilos, double dLongitud, double dPotencia, double dCaidaPct, double dTension,
                          double dConductividad)
{
    return dHilos * dLongitud * dPotencia / (dTension * dConductividad * dTension * (dCaidaPct / kPorCiento));
}

double SeccionEntreTensiones(double dHilos, double dLongitud, double dCorriente, double dCosFi,
                             double dTension1, double dTension2, double dConductividad)
{
    return dHilos * dLongitud * dCorriente * dCosFi / ((dTension1 - dTension2) * dConductividad);
}

double SeccionPorCaida(double dHilos, double dLongitud, double dCorriente, double dCosFi, double dTension,
                       double dCaidaPct, double dConductividad)
{
    return dHilos * dLongitud * dCorriente * dCosFi / ((dCaidaPct / kPorCiento) * dConductividad * dTension);
}

double SeccionOCaida(double dHilos, double dLongitud, double dCorriente, double dCosFi, double dCaidaOSeccion,
                     double dConductividad)
{
    return dHilos * dLongitud * dCorriente * dCosFi / (dCaidaOSeccion * dConductividad);
}

double Conductividad(double dTemperatura, const MaterialConductor& material)
{
    const double dSobreReferencia = std::max(dTemperatura, kCeroAbsoluto) - kTemperaturaReferencia;
    return 1.0 / ((dSobreReferencia * material.dCoeficiente + 1.0) * material.dResistividad);
}

double AutodescargaAjustada(double dTemperatura, double dKa)
{
    return (dTemperatura * 0.0014 * dTemperatura + dTemperatura * 0.0001 + 0.4) * dKa;
}

double RendimientoBateria(double dKaAjustado, double dKb, double dKc, double dKv, double dProfundidad,
                          double dDias)
{
    return 1.0 - (1.0 - dKb - dKc - dKv) * dKaAjustado * dDias / dProfundidad - dKb - dKc - dKv;
}

}  // namespace efv::electrical
