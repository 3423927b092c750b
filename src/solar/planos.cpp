#include <quorvel/solar/planos.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "platform/numero/tolerancia.h"
#include "solar/curvas_inclinacion.h"

namespace efv::solar {

namespace {

constexpr double kNada = std::numeric_limits<double>::quiet_NaN();

/// Mean daily radiations of a place, kWh/m²·day.
struct Radiaciones {
    DoceMeses adHorizontal{}, adPlano{};
};

class FuenteHoras {
public:
    FuenteHoras(const CampoSolar& campo, double dAltitud, OrigenHoras origen)
        : m_campo(campo),
          m_sitio{dAltitud, campo.bNorte ? std::abs(campo.dLatitud) : -std::abs(campo.dLatitud), kHumedadNormal,
                  TemperaturasNormales()},
          m_origen(origen),
          m_adHorizontal(origen == OrigenHoras::cielo ? SumasDelCielo(0.0, 0.0) : SumasDelRegistro(0.0, 0.0))
    {
    }

    double OrientacionAlEcuador() const { return m_campo.bNorte ? 0.0 : 180.0; }

    Radiaciones En(double dInclinacion, double dOrientacion) const
    {
        Radiaciones r;
        const DoceMeses adPlano = m_origen == OrigenHoras::cielo ? SumasDelCielo(dInclinacion, dOrientacion)
                                                                 : SumasDelRegistro(dInclinacion, dOrientacion);
        for (std::size_t m = 0; m < kMeses; ++m) {
            if (m_origen == OrigenHoras::registro) {
                const double dDias = kDiasMesReferencia[m] * 1000.0;
                r.adHorizontal[m] = m_adHorizontal[m] / dDias;
                r.adPlano[m] = adPlano[m] / dDias;
                continue;
            }
            r.adHorizontal[m] = m_campo.adRadHorizontal[m] / kKJporKWh;
            // A month without sun has no share to tell; radiation in it contradicts the latitude.
            r.adPlano[m] = m_adHorizontal[m] > 0.0    ? r.adHorizontal[m] * (adPlano[m] / m_adHorizontal[m])
                           : r.adHorizontal[m] == 0.0 ? 0.0
                                                      : kNada;
        }
        return r;
    }

private:
    // Wh/m² of each month.
    DoceMeses SumasDelCielo(double dInclinacion, double dOrientacion) const
    {
        std::array<clima::SumasMeses, 1> sumas{};
        clima::BibliotecaActual().SumasDeInclinaciones(m_sitio, std::array{dInclinacion}, dOrientacion, sumas);
        DoceMeses ad{};
        std::copy_n(sumas[0].begin(), kMeses, ad.begin());
        return ad;
    }

    static DoceMeses SumasDelRegistro(double dInclinacion, double dOrientacion)
    {
        DoceMeses ad{};
        int iHora = 0;
        for (std::size_t m = 0; m < kMeses; ++m)
            for (const int iFin = iHora + 24 * kDiasMesReferencia[m]; iHora < iFin; ++iHora)
                ad[m] += std::max(clima::BibliotecaActual().clGetID(iHora, dInclinacion, dOrientacion), 0.0);
        return ad;
    }

    const CampoSolar& m_campo;
    clima::SitioCielo m_sitio;
    OrigenHoras m_origen;
    DoceMeses m_adHorizontal;
};

AnoEnergia Ano(const CampoSolar& campo, double dParte, const Radiaciones& r)
{
    AnoEnergia ano;
    for (std::size_t m = 0; m < kMeses; ++m) {
        MesEnergia& mes = ano.meses[m];
        mes.dHorizontal = r.adHorizontal[m];
        mes.dPlano = r.adPlano[m];
        mes.dEnergiaDia = mes.dPlano * (campo.dPotencia * dParte) * campo.dPR * campo.dFactor;
        mes.dEnergiaMes = mes.dEnergiaDia * kDiasMesReferencia[m];
    }
    return ano;
}

}  // namespace

double SumaDePartes(std::span<const PlanoCampo> planos)
{
    double dSuma = 0.0;
    for (const PlanoCampo& plano : planos)
        dSuma += plano.dParte;
    return dSuma;
}

bool LleganAlTotal(std::span<const PlanoCampo> planos)
{
    return numero::Igual(SumaDePartes(planos), 1.0);
}

double EnergiaPlanos::Energia() const
{
    double dSuma = 0.0;
    for (const Plano& p : planos)
        dSuma += p.ano.Energia();
    return dSuma;
}

double EnergiaPlanos::EnergiaAlEcuador() const
{
    double dSuma = 0.0;
    for (const Plano& p : planos)
        dSuma += p.alEcuador.Energia();
    return dSuma;
}

double EnergiaPlanos::Perdida() const
{
    return 1.0 - Energia() / EnergiaAlEcuador();
}

EnergiaPlanos CalcularPlanos(const CampoSolar& campo, double dAltitud, std::span<const PlanoCampo> planos,
                             OrigenHoras origen)
{
    const FuenteHoras fuente(campo, dAltitud, origen);
    EnergiaPlanos energia;
    energia.origen = origen;
    for (const PlanoCampo& plano : planos)
        energia.planos.push_back(
            {plano, Ano(campo, plano.dParte, fuente.En(plano.dInclinacion, plano.dOrientacion)),
             Ano(campo, plano.dParte, fuente.En(plano.dInclinacion, fuente.OrientacionAlEcuador()))});
    return energia;
}

std::string NombreDeOrigen(OrigenHoras origen)
{
    return origen == OrigenHoras::registro ? "registro climático"
                                           : "cielo despejado ajustado a las doce radiaciones";
}

}  // namespace efv::solar
