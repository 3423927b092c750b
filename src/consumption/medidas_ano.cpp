// The last twelve months of a meter as a year of 365 days, in hours of the sun or of the clock.
#include <quorvel/contador.h>

#include <algorithm>

#include <fmt/format.h>

#include "platform/numero/conversion.h"

namespace efv {

namespace {

constexpr int kHorasDia = 24;
constexpr int kDiasSemana = 7;
constexpr double kWhPorKWh = 1000.0;
/// A day with this many hours closes the twelve months.
constexpr int kHorasDeDiaEntero = 23;
/// Share of missing hours from which the year is hardly the meter's.
constexpr double kMuchasRellenas = 0.1;

bool Es29DeFebrero(const FechaCivil& fecha)
{
    return fecha.iMes == 2 && fecha.iDia == 29;
}

// Place of a date in the year of 365 days, from 0; 29 February has none.
int DiaDelAno(const FechaCivil& fecha)
{
    const FechaCivil comun{2018, fecha.iMes, fecha.iDia};
    return DiaDeFecha(comun) - DiaDeFecha({2018, 1, 1});
}

std::size_t HoraDelAno(const FechaCivil& fecha, int iHora)
{
    return static_cast<std::size_t>(DiaDelAno(fecha)) * kHorasDia + static_cast<std::size_t>(iHora);
}

std::string Texto(int iDia)
{
    const FechaCivil fecha = FechaDeDia(iDia);
    return fmt::format("{}/{}/{}", fecha.iDia, fecha.iMes, fecha.iAno);
}

// Last day that is measured whole, or else the last one.
int UltimoDia(const std::vector<HoraMedida>& horas)
{
    int nHoras = 0;
    for (std::size_t i = horas.size(); i-- > 0;) {
        nHoras = i + 1 < horas.size() && horas[i + 1].iDia == horas[i].iDia ? nHoras + 1 : 1;
        if (nHoras >= kHorasDeDiaEntero)
            return horas[i].iDia;
    }
    return horas.back().iDia;
}

// The day after the same date of the year before.
int PrimerDia(int iUltimo)
{
    FechaCivil fecha = FechaDeDia(iUltimo);
    if (Es29DeFebrero(fecha))
        fecha.iDia = 28;
    --fecha.iAno;
    const int iPrimero = DiaDeFecha(fecha) + 1;
    return Es29DeFebrero(FechaDeDia(iPrimero)) ? iPrimero + 1 : iPrimero;
}

class Ano {
public:
    Ano(const MedidasContador& medidas, const OpcionesAno& opciones) : m_medidas(medidas), m_opciones(opciones)
    {
    }

    AnoMedido Hacer()
    {
        m_ano.iUltimoDia = UltimoDia(m_medidas.horas);
        m_ano.iPrimerDia = PrimerDia(m_ano.iUltimoDia);
        for (int iDia = m_ano.iPrimerDia; iDia <= m_ano.iUltimoDia; ++iDia)
            if (const FechaCivil fecha = FechaDeDia(iDia); !Es29DeFebrero(fecha))
                m_ano.aiAno[static_cast<std::size_t>(DiaDelAno(fecha))] = fecha.iAno;
        // The first hours of the clock fall on the sun's day before: they close the year where nothing else
        // does.
        for (const bool bDentro : {true, false})
            for (const HoraMedida& hora : m_medidas.horas)
                Poner(hora, bDentro);
        if (m_nBisiesto > 0)
            m_ano.notas.push_back(fmt::format("El 29 de febrero no cuenta: {} horas, {} kWh.", m_nBisiesto,
                                              CadenaUtf8(numero::nuConvertFltToIntlStr(m_dBisiesto, 2))));
        Rellenar();
        for (double& d : *m_ano.adHoras)
            d *= kWhPorKWh;
        AnotarPeriodo();
        return std::move(m_ano);
    }

private:
    bool EnElAno(int iDia) const { return iDia >= m_ano.iPrimerDia && iDia <= m_ano.iUltimoDia; }

    // Where an hour begins in the hours of the year.
    HoraOficial LugarDe(const HoraMedida& hora) const
    {
        const int iUniversal = HoraUniversal(hora.iDia, hora.iOrden, m_opciones.huso);
        if (!m_opciones.bSolar)
            return RelojOficial(iUniversal, m_opciones.huso);
        const int iSolar = iUniversal + DesfaseSolar(m_opciones.dLongitud);
        return {iSolar / kHorasDia, iSolar % kHorasDia};
    }

    void Poner(const HoraMedida& hora, bool bDentro)
    {
        if (!EnElAno(hora.iDia)) {
            m_nFuera += bDentro ? 1 : 0;
            return;
        }
        const HoraOficial lugar = LugarDe(hora);
        if (EnElAno(lugar.iDia) != bDentro)
            return;
        const FechaCivil fecha = FechaDeDia(lugar.iDia);
        if (Es29DeFebrero(fecha)) {
            ++m_nBisiesto;
            m_dBisiesto += hora.dConsumo;
            return;
        }
        const std::size_t i = HoraDelAno(fecha, lugar.iHora);
        // Only the clock's repeated hour adds up; the sun's meet at the ends of the year alone.
        if (m_opciones.bSolar && m_anHoras[i] > 0)
            return;
        ++m_anHoras[i];
        (*m_ano.adHoras)[i] += hora.dConsumo;
        m_ano.dExcedente += hora.dExcedente;
    }

    // The clock jumps over one hour in March: nothing is missing there.
    bool Salta(std::size_t i) const
    {
        if (m_opciones.bSolar)
            return false;
        const int iDia = DiaCivil(i / kHorasDia);
        return HorasDelDiaOficial(iDia) < kHorasDia && i % kHorasDia == 2;
    }

    int DiaCivil(std::size_t iDiaAno) const
    {
        FechaCivil fecha = FechaDeDia(DiaDeFecha({2018, 1, 1}) + static_cast<int>(iDiaAno));
        fecha.iAno = m_ano.aiAno[iDiaAno];
        return DiaDeFecha(fecha);
    }

    void Rellenar()
    {
        std::vector<std::size_t> huecos;
        for (std::size_t i = 0; i < kHorasDelAno; ++i)
            if (m_anHoras[i] == 0 && !Salta(i))
                huecos.push_back(i);
        m_ano.nRellenas = huecos.size();
        if (huecos.empty())
            return;
        const std::string primero = fmt::format("{} a las {} h", Texto(DiaCivil(huecos.front() / kHorasDia)),
                                                huecos.front() % kHorasDia);
        if (m_opciones.bEstricto)
            throw ErrorContador(fmt::format("faltan {} horas del {} al {}; la primera, {}", huecos.size(),
                                            Texto(m_ano.iPrimerDia), Texto(m_ano.iUltimoDia), primero));
        for (const std::size_t i : huecos)
            (*m_ano.adHoras)[i] = ValorParecido(i);
        const double dParte = static_cast<double>(huecos.size()) / static_cast<double>(kHorasDelAno);
        m_ano.notas.push_back(fmt::format(
            "Faltan {} horas{} (la primera, el {}): rellenas con el mismo día de la semana y hora más "
            "cercanos.",
            huecos.size(),
            dParte > kMuchasRellenas
                ? fmt::format(", el {} % del año", CadenaUtf8(numero::nuConvertFltToIntlStr(dParte * 100.0, 0)))
                : "",
            primero));
    }

    // Mean of the nearest weeks before and after that have the hour.
    double ValorParecido(std::size_t iHora) const
    {
        const int iDia = DiaCivil(iHora / kHorasDia);
        for (int iLejos = kDiasSemana; iLejos <= 366; iLejos += kDiasSemana) {
            double dSuma = 0.0;
            int n = 0;
            for (const int iOtro : {iDia - iLejos, iDia + iLejos}) {
                const FechaCivil fecha = FechaDeDia(iOtro);
                if (iOtro < m_ano.iPrimerDia || iOtro > m_ano.iUltimoDia || Es29DeFebrero(fecha))
                    continue;
                const std::size_t i = HoraDelAno(fecha, static_cast<int>(iHora % kHorasDia));
                if (m_anHoras[i] == 0)
                    continue;
                dSuma += (*m_ano.adHoras)[i] / m_anHoras[i];
                ++n;
            }
            if (n > 0)
                return dSuma / n;
        }
        throw ErrorContador(
            "no hay datos de todos los días de la semana y horas: hace falta al menos una semana entera");
    }

    void AnotarPeriodo()
    {
        m_ano.notas.insert(m_ano.notas.begin(),
                           fmt::format("Doce meses: del {} al {}, en horas {}.", Texto(m_ano.iPrimerDia),
                                       Texto(m_ano.iUltimoDia), m_opciones.bSolar ? "solares" : "oficiales"));
        if (m_nFuera > 0)
            m_ano.notas.push_back(
                fmt::format("El fichero tiene {} horas más, fuera de esos doce meses.", m_nFuera));
    }

    const MedidasContador& m_medidas;
    const OpcionesAno& m_opciones;
    AnoMedido m_ano;
    std::array<unsigned char, kHorasDelAno> m_anHoras{};
    std::size_t m_nFuera = 0, m_nBisiesto = 0;
    double m_dBisiesto = 0.0;
};

}  // namespace

AnoMedido AnoDeContador(const MedidasContador& medidas, const OpcionesAno& opciones)
{
    if (medidas.horas.empty())
        throw ErrorContador("no tiene ninguna hora entera");
    return Ano(medidas, opciones).Hacer();
}

}  // namespace efv
