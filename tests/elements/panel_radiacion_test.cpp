// The yearly simulation of an array of panels.
#include "elements/panel_radiacion.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/calendario/ano_comun.h"
#include "solar/inclinacion_optima.h"

namespace efv::elements {
namespace {

using solar::FuenteRadiacion;

struct Hecho {
    std::vector<double> adPanel = std::vector<double>(solar::kHorasBloque);
    std::vector<double> adHorizontal = std::vector<double>(solar::kHorasBloque);
    DiasPanel dias;
};

Hecho Simular(clima::BibliotecaClima& biblioteca, const solar::PlanoEstudio& plano, double dInclinacion,
              std::vector<double> adHorizontal = std::vector<double>(solar::kHorasBloque))
{
    Hecho h;
    h.adHorizontal = std::move(adHorizontal);
    h.dias = SimularPanel(biblioteca, plano, dInclinacion, solar::BloqueHoras(h.adPanel),
                          solar::BloqueHoras(h.adHorizontal));
    return h;
}

// One call an hour and a part, as the simulation is stated.
Hecho SimularHoraAHora(clima::BibliotecaClima& b, const solar::PlanoEstudio& p, double dInclinacion,
                       std::vector<double> adHorizontal)
{
    Hecho hecho;
    hecho.adHorizontal = std::move(adHorizontal);
    std::size_t iDiaAno = 0;
    for (int m = 0; m < 12; ++m) {
        for (int d = 0; d < calendario::kDiasMes[static_cast<std::size_t>(m)]; ++d, ++iDiaAno) {
            const double dFactor =
                solar::FactorDelDia(b, p.dDatoSitio, p.dLatitud, m, d, dInclinacion, p.dOrientacion, 0.5, 25.0);
            double dHorizontal = 0.0;
            double dPanel = 0.0;
            for (int h = 0; h < 24; ++h) {
                const auto neta = [&](double t) {
                    const auto parte = [&](double k) {
                        return b.clGetRadiacionSolarTotal(p.dDatoSitio, p.dLatitud, m + 1, d + 1, h + 1, 25.0,
                                                          0.5, t, p.dOrientacion, k);
                    };
                    const double dTodo = parte(0.0);
                    return std::max(dTodo - std::abs(parte(1.0)), 0.0);
                };
                const auto i = static_cast<std::size_t>((m * 31 + d) * 24 + h);
                const bool bCielo = p.fuente == FuenteRadiacion::cielo;
                if (bCielo)
                    hecho.adHorizontal[i] = neta(0.0);
                hecho.adPanel[i] = bCielo ? neta(dInclinacion) : dFactor * hecho.adHorizontal[i];
                dHorizontal += hecho.adHorizontal[i];
                dPanel += hecho.adPanel[i];
            }
            hecho.dias.horizontal.adDia[iDiaAno] = dHorizontal;
            hecho.dias.panel.adDia[iDiaAno] = dPanel;
            hecho.dias.horizontal.dTotal += dHorizontal;
            hecho.dias.panel.dTotal += dPanel;
        }
    }
    return hecho;
}

template <class A>
bool MismosBits(const A& a, const A& b)
{
    return std::ranges::equal(
        a, b, {}, [](double d) { return std::bit_cast<std::uint64_t>(d); },
        [](double d) { return std::bit_cast<std::uint64_t>(d); });
}

// Madrid, the southern half, polar night and a site that is no number.
TEST(RadiacionDelPanel, LasOperacionesPorLotesDanLosMismosBitsQueHoraAHora)
{
    auto& biblioteca = clima::BibliotecaActual();
    std::vector<double> adHorizontal(solar::kHorasBloque);
    for (std::size_t i = 0; i < adHorizontal.size(); ++i)
        adHorizontal[i] = static_cast<double>(i % 907) - 3.25;
    for (const FuenteRadiacion fuente : {FuenteRadiacion::cielo, FuenteRadiacion::horizontal}) {
        for (const solar::PlanoEstudio& plano : {solar::PlanoEstudio{fuente, 650.0, 40.4, -35.0},
                                                 {fuente, 0.0, -33.45, 180.0},
                                                 {fuente, 10.0, 78.2, 0.0},
                                                 {fuente, std::nan(""), 40.4, 0.0}}) {
            for (const double dInclinacion : {0.0, 33.3, 90.0}) {
                const Hecho lotes = Simular(biblioteca, plano, dInclinacion, adHorizontal);
                const Hecho horas = SimularHoraAHora(biblioteca, plano, dInclinacion, adHorizontal);
                EXPECT_TRUE(MismosBits(lotes.adPanel, horas.adPanel)) << plano.dLatitud << dInclinacion;
                EXPECT_TRUE(MismosBits(lotes.dias.panel.adDia, horas.dias.panel.adDia));
                EXPECT_TRUE(MismosBits(lotes.dias.horizontal.adDia, horas.dias.horizontal.adDia));
                EXPECT_EQ(std::isnan(lotes.dias.panel.dTotal), std::isnan(horas.dias.panel.dTotal));
            }
        }
    }
}

/// 10 an hour less the tilt; half of that is taken off on the 1st of each month. The record gives the hour of
/// the year less the tilt.
class CieloLlano final : public clima::BibliotecaClima {
public:
    double clGetRadiacionSolarTotal(double, double, int, int iDia, int, double, double, double dInclinacion,
                                    double, double dParte) override
    {
        if (dParte == 0.0)
            return 10.0 - dInclinacion;
        return iDia == 1 ? -0.5 * (10.0 - dInclinacion) : 0.0;
    }
    double clGetID(int iHoraAno, double dInclinacion, double) override { return iHoraAno - dInclinacion; }
};

TEST(RadiacionDelPanel, CadaFuenteTieneSuSuelo)
{
    CieloLlano cielo;
    // 353 days of 24 · 6 and 12 of half of it on the plane; a tilt above 10 gives nothing, and not less.
    const Hecho plano = Simular(cielo, {FuenteRadiacion::cielo, 0, 40, 0}, 4.0);
    EXPECT_EQ(plano.dias.panel.adDia[0], 72.0);
    EXPECT_EQ(plano.dias.panel.adDia[1], 144.0);
    EXPECT_EQ(plano.dias.panel.dTotal, 359.0 * 144.0);
    EXPECT_EQ(plano.dias.horizontal.dTotal, 359.0 * 240.0);
    EXPECT_EQ(Simular(cielo, {FuenteRadiacion::cielo, 0, 40, 0}, 12.0).dias.panel.dTotal, 0.0);
    // Of the record's first day hours 3 to 23 less 2.5 are above 0: sum(3..23) − 21 · 2.5. 1 March is hour
    // 1416.
    const Hecho registro = Simular(cielo, {FuenteRadiacion::registro, 0, 40, 0}, 2.5);
    EXPECT_EQ(registro.dias.panel.adDia[0], 273.0 - 52.5);
    EXPECT_EQ(registro.adHorizontal[2 * 744], 1416.0);
    EXPECT_EQ(registro.adHorizontal[(31 + 28) * 24], 0.0);  // 29 February
    EXPECT_EQ(registro.adHorizontal.back(), 8759.0);
    // The host's hours aren't touched; the factor is 0.6 on every day, half over half on the 1st.
    const Hecho factor = Simular(cielo, {FuenteRadiacion::horizontal, 0, 40, 0}, 4.0,
                                 std::vector<double>(solar::kHorasBloque, -5));
    EXPECT_EQ(factor.adHorizontal[0], -5.0);
    EXPECT_DOUBLE_EQ(factor.dias.panel.dTotal, 0.6 * -5 * 8760);
    EXPECT_EQ(factor.adPanel[(31 + 28) * 24], 0.0);
}

TEST(RadiacionDelPanel, LaNochePolarNoEsNumeroYLaGraficaLoAguanta)
{
    const solar::PlanoEstudio plano{FuenteRadiacion::horizontal, 0.0, 80.0, 10.0};
    const Hecho h =
        Simular(clima::BibliotecaActual(), plano, 30.0, std::vector<double>(solar::kHorasBloque, 5));
    auto grafica = GraficaPanel(plano, h.dias);
    EXPECT_EQ(grafica.csTitulo,
              L"Radiación incidente (w/m²·día) Lat=80,00N Or: T=25ºC Hr=50% RiTanual=nan w/m²·día");
    ASSERT_EQ(grafica.aSeries.size(), 2U);
    EXPECT_TRUE(std::isnan(grafica.aSeries[1].adY[0]));
    const auto extension = ui::ExtensionDe(grafica);
    EXPECT_TRUE(std::isfinite(extension.dMaxY));
    EXPECT_EQ(extension.dMaxX, 365.0);
    grafica.csTitulo.clear();
    EXPECT_EQ(ui::EscribirSvg(grafica).find("nan"), std::string::npos);
}

}  // namespace
}  // namespace efv::elements
