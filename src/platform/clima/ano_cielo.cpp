#include "platform/clima/ano_cielo.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace efv::clima {

namespace {

constexpr double kGrados = 180.0 / std::numbers::pi;

/// Tilts that are summed side by side: the sums of one tilt stay in calendar order.
constexpr std::size_t kCarriles = 8;

/// An hour as the sums need it.
struct HoraSuma {
    double dCosCenit, dFrente, dDirecta, dDifusa, dSuelo, dTapada;
};

/// The planes of one group of tilts.
struct Carriles {
    std::array<double, kCarriles> adSeno{}, adCoseno{}, adCielo{}, adSuelo{};
};

Carriles HacerCarriles(std::span<const double> adInclinaciones, double dOrientacion)
{
    Carriles c;
    for (std::size_t i = 0; i < adInclinaciones.size(); ++i) {
        const PlanoCielo plano(adInclinaciones[i], dOrientacion);
        c.adSeno[i] = plano.dSenoInclinacion;
        c.adCoseno[i] = plano.dCosenoInclinacion;
        c.adCielo[i] = plano.dVistaCielo;
        c.adSuelo[i] = plano.dVistaSuelo;
    }
    return c;
}

using Sumas = std::array<double, kCarriles>;

// The same operations as TotalEnPlano and DirectaEnPlano, for all tilts of a group. Without a horizon there is
// nothing to take off, and what isn't taken off changes no bit.
template <bool CON_HORIZONTE>
void SumarHoras(std::span<const HoraSuma> horas, const Carriles& c, Sumas& mes, Sumas& ano)
{
    Sumas m = mes;
    Sumas a = ano;
    for (const HoraSuma& h : horas) {
        for (std::size_t i = 0; i < kCarriles; ++i) {
            const double dCosIncidencia = h.dCosCenit * c.adCoseno[i] + h.dFrente * c.adSeno[i];
            const double dDirecta = h.dDirecta * (dCosIncidencia > 0.0 ? dCosIncidencia : 0.0);
            double dNeta = dDirecta + h.dDifusa * c.adCielo[i] + h.dSuelo * c.adSuelo[i];
            if constexpr (CON_HORIZONTE)
                dNeta -= dDirecta * h.dTapada;
            m[i] += dNeta;
            a[i] += dNeta;
        }
    }
    mes = m;
    ano = a;
}

std::vector<HoraSuma> HorasDeSuma(const AnoCielo& ano, double dOrientacion)
{
    const PlanoCielo plano(0.0, dOrientacion);
    std::vector<HoraSuma> horas;
    horas.reserve(ano.horas.size());
    for (const auto& [cielo, iHora, bTapada] : ano.horas)
        horas.push_back({cielo.dCosCenit, Frente(cielo, plano), cielo.dDirecta, cielo.dDifusa,
                         kAlbedo * cielo.dGlobal, bTapada ? 1.0 : 0.0});
    return horas;
}

// The morning's hour with the sun at the same height, if its bits are the same: its sky is then the same.
const HoraCielo* HoraDeIgualAltura(std::span<const AnoCielo::Hora> delDia, const HoraCielo& hora)
{
    for (const AnoCielo::Hora& otra : delDia)
        if (otra.cielo.dCosCenit == hora.dCosCenit)
            return &otra.cielo;
    return nullptr;
}

void CopiarRadiacion(const HoraCielo& de, HoraCielo& a)
{
    a.dDirecta = de.dDirecta;
    a.dGlobal = de.dGlobal;
    a.dDifusa = de.dDifusa;
}

}  // namespace

double Altitud(double dDatoSitio)
{
    return std::clamp(dDatoSitio, -500.0, 10000.0);
}

double Humedad(double dHumedad)
{
    return std::clamp(dHumedad, 0.0, 1.0);
}

bool Tapado(const HoraCielo& hora, const Horizonte& horizonte)
{
    const double dElevacion = std::asin(std::min(hora.dCosCenit, 1.0)) * kGrados;
    return dElevacion < horizonte.Elevacion(std::atan2(hora.dOeste, hora.dSur) * kGrados);
}

AnoCielo HacerAnoCielo(const SitioCielo& sitio, const Horizonte* horizonte)
{
    const LatitudCielo latitud(sitio.dLatitud);
    const double dPresion = Presion(Altitud(sitio.dDatoSitio));
    const double dHumedad = Humedad(sitio.dHumedad);
    AnoCielo ano;
    ano.horas.reserve(4600);
    int iHoraAno = 0;
    for (int iMes = 1; iMes <= 12; ++iMes) {
        ano.aiInicioMes[static_cast<std::size_t>(iMes - 1)] = ano.horas.size();
        for (int iDia = 1; DiaDelAno(iMes, iDia); ++iDia, iHoraAno += 24) {
            const double dTemperatura =
                sitio.adTemperaturas[static_cast<std::size_t>((iMes - 1) * 31 + iDia - 1)];
            if (!std::isfinite(dTemperatura))
                continue;
            const DiaCielo dia(*DiaDelAno(iMes, iDia));
            const double dAgua = AguaPrecipitable(dTemperatura, dHumedad);
            const std::size_t iPrimera = ano.horas.size();
            for (int iHora = 1; iHora <= 24; ++iHora) {
                HoraCielo hora = SolDeLaHora(latitud, dia, iHora);
                if (hora.dCosCenit <= 0.0)
                    continue;
                if (const HoraCielo* igual = HoraDeIgualAltura(std::span(ano.horas).subspan(iPrimera), hora))
                    CopiarRadiacion(*igual, hora);
                else
                    CieloDespejado(hora, dia.dExtraterrestre, dPresion, dAgua);
                ano.horas.push_back(
                    {hora, iHoraAno + iHora - 1, horizonte != nullptr && Tapado(hora, *horizonte)});
            }
        }
    }
    ano.aiInicioMes[12] = ano.horas.size();
    return ano;
}

void RadiarAno(const AnoCielo& ano, const PlanoCielo& plano, std::span<double, 8760> adNeta)
{
    for (const auto& [cielo, iHora, bTapada] : ano.horas) {
        const double dFrente = Frente(cielo, plano);
        const double dQuita = bTapada ? DirectaEnPlano(cielo, dFrente, plano) : 0.0;
        adNeta[static_cast<std::size_t>(iHora)] = TotalEnPlano(cielo, dFrente, plano) - std::abs(dQuita);
    }
}

void SumarInclinaciones(const AnoCielo& ano, std::span<const double> adInclinaciones, double dOrientacion,
                        std::span<SumasMeses> sumas)
{
    const std::vector<HoraSuma> horas = HorasDeSuma(ano, dOrientacion);
    const bool bTapadas = std::ranges::any_of(horas, [](const HoraSuma& h) { return h.dTapada != 0.0; });
    const auto sumar = bTapadas ? &SumarHoras<true> : &SumarHoras<false>;
    for (std::size_t iGrupo = 0; iGrupo < adInclinaciones.size(); iGrupo += kCarriles) {
        const std::size_t n = std::min(kCarriles, adInclinaciones.size() - iGrupo);
        const Carriles carriles = HacerCarriles(adInclinaciones.subspan(iGrupo, n), dOrientacion);
        Sumas anual{};
        for (std::size_t m = 0; m < 12; ++m) {
            Sumas mensual{};
            sumar(std::span(horas).subspan(ano.aiInicioMes[m], ano.aiInicioMes[m + 1] - ano.aiInicioMes[m]),
                  carriles, mensual, anual);
            for (std::size_t i = 0; i < n; ++i)
                sumas[iGrupo + i][m] = mensual[i];
        }
        for (std::size_t i = 0; i < n; ++i) {
            sumas[iGrupo + i][12] = anual[i];
            if (!std::isfinite(adInclinaciones[iGrupo + i]))
                sumas[iGrupo + i] = {};
        }
    }
}

}  // namespace efv::clima
