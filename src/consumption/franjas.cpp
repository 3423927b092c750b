#include "consumption/franjas.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/numero/tolerancia.h"

namespace efv::consumption {

using numero::Igual;
using numero::kTolerancia;
using numero::Mayor;
using numero::MayorIgual;
using numero::Menor;
using numero::MenorIgual;

namespace {

constexpr double kMinutosHora = 60.0;
constexpr int kMinutosDia = 1440;

bool EsVacia(double dInicio, double dFin)
{
    return Igual(dInicio, dFin) || Menor(dFin, dInicio);
}

}  // namespace

double HorasDeUso(Franjas f)
{
    if (EsVacia(f[0], f[1]))
        return 0.0;
    double dMinutos = f[1] - f[0];
    if (!EsVacia(f[2], f[3]) && MayorIgual(f[2], f[1])) {
        dMinutos += f[3] - f[2];
        if (!EsVacia(f[4], f[5]) && MayorIgual(f[4], f[1]))  // f[1], not f[3]
            dMinutos += f[5] - f[4];
    }
    return dMinutos / kMinutosHora;
}

double HorasMostradas(Franjas f)
{
    if (Menor(f[1], f[0]))
        return 0.0;
    double dMinutos = f[1] - f[0];
    if (!Menor(f[3], f[2]) && MayorIgual(f[2], f[1]))
        dMinutos += f[3] - f[2];
    if (!Menor(f[5], f[4]) && MayorIgual(f[4], f[3]))
        dMinutos += f[5] - f[4];
    return dMinutos / kMinutosHora;
}

bool EnUsoAlMinuto(Franjas f, int iMinuto)
{
    const double m = iMinuto;
    const auto en = [m](double dInicio, double dFin) {
        return MayorIgual(m, dInicio) && MenorIgual(m, dFin) && !Igual(dInicio, dFin);
    };
    return en(f[0], f[1]) || (en(f[2], f[3]) && MayorIgual(f[2], f[1])) ||
           (en(f[4], f[5]) && MayorIgual(f[4], f[1]) && MayorIgual(f[4], f[3]));
}

// ---------------------------------------------------------------------------------------------------
// Fractions of an hour
// ---------------------------------------------------------------------------------------------------

namespace {

bool EmpezadaAl(double m, double dInicio)
{
    return MayorIgual(m, dInicio);
}

bool SinAcabarAl(double m, double dFin)
{
    return !Igual(m, dFin) && Mayor(dFin, m);
}

}  // namespace

double FraccionDeHora(Franjas f, int iHora)
{
    const auto en = [](double m, double dInicio, double dFin) {
        return EmpezadaAl(m, dInicio) && SinAcabarAl(m, dFin);
    };
    int nMinutos = 0;
    for (int i = 0; i < 60; ++i) {
        const double m = kMinutosHora * iHora + i;
        nMinutos += en(m, f[0], f[1]) || (en(m, f[2], f[3]) && MayorIgual(f[2], f[1])) ||
                            (en(m, f[4], f[5]) && MayorIgual(f[4], f[3]) && MayorIgual(f[4], f[1]))
                        ? 1
                        : 0;
    }
    return nMinutos / kMinutosHora;
}

namespace {

// Number of whole minutes from 0 below `d`, at most a day's; 0 for not-a-number.
int MinutosBajo(double d)
{
    if (!(d > 0.0))
        return 0;
    if (d > kMinutosDia)
        return kMinutosDia;
    const int i = static_cast<int>(d);
    return i < d ? i + 1 : i;
}

// The minute that `d` exactly is; -1 when it is none of the day. Bounds nearly always are whole minutes, at
// which a band starts or ends without any tolerance.
int MinutoExacto(double d)
{
    if (!(d >= 0.0 && d <= kMinutosDia))
        return -1;
    const int i = static_cast<int>(d);
    return i == d ? i : -1;
}

// First minute of the day at which the band has started; the day's end when there is none.
int PrimerMinuto(double dInicio)
{
    if (const int i = MinutoExacto(dInicio); i >= 0)
        return i;
    const double dDesde = dInicio - kTolerancia;
    return dDesde <= kMinutosDia ? MinutosBajo(dDesde) : kMinutosDia;
}

// First minute of the day at which the band has ended. The estimate may lie one off where the tolerance
// falls on a whole minute; what decides is the comparison itself.
int MinutoFinal(double dFin)
{
    if (const int i = MinutoExacto(dFin); i >= 0)
        return i;
    int i = MinutosBajo(dFin - kTolerancia);
    while (i > 0 && !SinAcabarAl(i - 1, dFin))
        --i;
    while (i < kMinutosDia && SinAcabarAl(i, dFin))
        ++i;
    return i;
}

// Fraction of an hour of each number of minutes.
constexpr auto kFracciones = [] {
    std::array<double, 61> fracciones{};
    for (int i = 0; i <= 60; ++i)
        fracciones[static_cast<std::size_t>(i)] = i / kMinutosHora;
    return fracciones;
}();

class ContadorDeMinutos {
public:
    // Counts the minutes of a band but for those counted already: bands come in order of time, and within
    // the tolerance two may share a minute.
    void Contar(double dInicio, double dFin)
    {
        const int iInicio = std::max(PrimerMinuto(dInicio), m_iContados);
        const int iFin = MinutoFinal(dFin);
        if (iInicio >= iFin)
            return;
        m_iContados = iFin;
        const int iHora = iInicio / 60;
        const int iHoraFinal = iFin / 60;
        if (iHora == iHoraFinal) {
            Sumar(iHora, iFin - iInicio);
            return;
        }
        Sumar(iHora, 60 * iHora + 60 - iInicio);
        for (int i = iHora + 1; i < iHoraFinal; ++i)
            m_nMinutos[static_cast<std::size_t>(i)] = 60;  // nobody else can have been there
        Sumar(iHoraFinal, iFin - 60 * iHoraFinal);
    }

    std::array<double, 24> Fracciones() const
    {
        std::array<double, 24> fracciones;
        for (std::size_t i = 0; i < fracciones.size(); ++i)
            fracciones[i] = kFracciones[m_nMinutos[i]];
        return fracciones;
    }

private:
    void Sumar(int iHora, int nMinutos)
    {
        m_nMinutos[static_cast<std::size_t>(iHora)] += static_cast<std::uint8_t>(nMinutos);
    }

    std::array<std::uint8_t, 25> m_nMinutos{};  // the last gets the nothing behind 24:00
    int m_iContados = 0;
};

}  // namespace

std::array<double, 24> FraccionesDelDia(Franjas f)
{
    ContadorDeMinutos contador;
    contador.Contar(f[0], f[1]);
    if (MayorIgual(f[2], f[1]))
        contador.Contar(f[2], f[3]);
    if (MayorIgual(f[4], f[3]) && MayorIgual(f[4], f[1]))
        contador.Contar(f[4], f[5]);
    return contador.Fracciones();
}

}  // namespace efv::consumption
