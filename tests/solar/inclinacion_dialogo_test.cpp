// The study of the tilt and the map of zones, by script.
#include <cmath>
#include <cstdlib>

#include <gtest/gtest.h>

#include <quorvel/frame.h>
#include <quorvel/solar.h>

#include "comun/guion.h"
#include "solar/inclinacion_dialogo.h"
#include "solar/inclinacion_optima.h"
#include "solar/mapa_zonas_dialogo.h"

namespace {

using namespace efv;
using namespace efv::pruebas;
using solar::EstudioInclinacion;
using solar::FuenteRadiacion;

/// Best at 20 degrees in the first half of the year, at 10.4 in the second; nothing is radiated at an
/// orientation other than 25. Its record gives the tilt less 5 in each hour.
class CieloDePrueba final : public clima::BibliotecaClima {
public:
    CieloDePrueba() { clima::InstalarBiblioteca(this); }
    ~CieloDePrueba() override { clima::InstalarBiblioteca(nullptr); }

    double clGetRadiacionSolarTotal(double, double, int iMes, int, int, double, double, double dInclinacion,
                                    double dOrientacion, double dParte) override
    {
        if (dParte != 0.0 || dOrientacion != 25.0)
            return 0.0;
        const double dMejor = iMes <= 6 ? 20.0 : 10.4;
        return 1000.0 - (dInclinacion - dMejor) * (dInclinacion - dMejor);
    }
    double clGetID(int, double dInclinacion, double) override { return dInclinacion - 5.0; }
};

EstudioInclinacion Estudio(FuenteRadiacion fuente)
{
    return {.dInclinacionActual = 30.0,
            .fuente = fuente,
            .dDatoSitio = 650.0,
            .dLatitud = -33.454,
            .dOrientacion = 25.0,
            .radHorizontal = {}};
}

// 181 days of the first half: the year's best tilt is (181·20 + 184·10.4) / 365 = 15.16, so 15.2 of the grid.
TEST(EstudioInclinacion, LaSimulacionHallaDoceMesesYElAno)
{
    CieloDePrueba cielo;
    Guion guion;
    guion.Dialogo("CDlgCalculoInclinacionPanel",
                  {paso::Leer{}, paso::Esperar{}, paso::Leer{}, paso::Elegir{"iOpcion", 1},
                   paso::Elegir{"iMes", CString(L"Marzo")}, paso::Leer{}, paso::Pulsar{"OK"}});
    auto estudio = Estudio(FuenteRadiacion::cielo);
    EXPECT_TRUE(solar::EstudiarInclinacion(estudio));
    ASSERT_FALSE(guion.presentador.csErrorGuion) << CadenaUtf8(*guion.presentador.csErrorGuion);
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Estudio de la inclinación");
    EXPECT_EQ(guion.Texto(0, 0, "dInclinacionOptima"), L"0,00");
    EXPECT_FALSE(guion.Estado(0, 0, "iMes").bHabilitado);
    EXPECT_EQ(guion.Texto(0, 0, "iMes"), L"Anual");
    // 24·(181·900 + 184·(1000 − 19.6²)) and 24·(181·600 + 184·(1000 − 10.4²)).
    EXPECT_EQ(guion.Texto(0, 0, "dTotal1"), L"RiTotal (30,00º): 6629149 w/m²·año");
    EXPECT_EQ(guion.Texto(0, 0, "dTotal2"), L"RiTotal (0,00º): 6544765 w/m²·año");
    EXPECT_EQ(guion.Texto(0, 0, "csSimulacion"), L"Simulación");
    EXPECT_EQ(std::get<double>(guion.Estado(0, 0, "progreso").valor), 0.0);
    EXPECT_EQ(guion.Texto(0, 1, "dInclinacionOptima"), L"15,20");
    EXPECT_EQ(guion.Texto(0, 1, "csSimulacion"), L"Simulación");
    EXPECT_EQ(std::get<double>(guion.Estado(0, 1, "progreso").valor), 1.0);
    EXPECT_EQ(guion.Texto(0, 1, "grafica"), L"Radiación incidente (w/m²·día) Lat=-33,45S Or:SO T=25ºC Hr=50%");
    EXPECT_EQ(guion.Texto(0, 2, "dInclinacionOptima"), L"20,00");
    EXPECT_TRUE(guion.Estado(0, 2, "dInclinacionActual").bSoloLectura);
    EXPECT_TRUE(guion.Estado(0, 2, "iMes").bHabilitado);
    EXPECT_NEAR(estudio.dInclinacionActual, 20.0, 1e-9);
}

TEST(EstudioInclinacion, LasCurvasSiguenALaOpcionYALoTecleado)
{
    CieloDePrueba cielo;
    Guion guion;
    guion.Dialogo(
        "CDlgCalculoInclinacionPanel",
        {paso::Poner{"dInclinacionActual", L"12"}, paso::Leer{}, paso::Poner{"dInclinacionActual", L"91"},
         paso::Leer{}, paso::Poner{"dInclinacionActual", L"12"}, paso::Elegir{"iOpcion", 1}, paso::Leer{},
         paso::Elegir{"iOpcion", 0}, paso::Pulsar{"OK"}});
    auto estudio = Estudio(FuenteRadiacion::registro);
    EXPECT_TRUE(solar::EstudiarInclinacion(estudio));
    ASSERT_FALSE(guion.presentador.csErrorGuion) << CadenaUtf8(*guion.presentador.csErrorGuion);
    EXPECT_EQ(estudio.dInclinacionActual, 12.0);
    const auto grafica = [&](std::size_t i) {
        return std::get<CCtrlCurva2D>(guion.Estado(0, i, "grafica").propio);
    };
    // The record's hours are 12 − 5, and −5 floored at 0.
    const auto series = grafica(0).aSeries;
    ASSERT_EQ(series.size(), 2U);
    EXPECT_EQ(series[0].adX.front(), 1.0);
    EXPECT_EQ(series[0].adX.back(), 365.0);
    EXPECT_EQ(series[0].adY, std::vector<double>(365, 168.0));
    EXPECT_EQ(series[1].adY, std::vector<double>(365, 0.0));
    EXPECT_EQ(series[0].color, 0x808040U);
    EXPECT_EQ(series[1].color, 0x0000FFU);
    EXPECT_EQ(series[0].iEstilo, 1);
    EXPECT_EQ(series[1].iEstilo, 3);
    EXPECT_EQ(grafica(0).csTitulo, L"Radiación incidente (w/m²·día) Lat=-33,45S Or:SO");
    // 91 is refused, and the curves stay.
    EXPECT_EQ(guion.Mensajes().size() + (guion.presentador.transcripciones[0].csRechazo ? 1U : 0U), 1U);
    EXPECT_EQ(grafica(1).aSeries[0].adY, series[0].adY);
    EXPECT_EQ(grafica(2).aSeries[0].iEstilo, 3);
    EXPECT_EQ(grafica(2).aSeries[1].iEstilo, 1);
}

// Each hour of the horizontal is 3: the factor of a day is 1000 − (t − best)² over 1000 − best².
TEST(EstudioInclinacion, DeLaHorizontalSaleLaDelPlanoPorElFactorDeCadaDia)
{
    CieloDePrueba cielo;
    Guion guion;
    guion.Dialogo("CDlgCalculoInclinacionPanel", {paso::Leer{}, paso::Pulsar{"Cancel"}});
    auto estudio = Estudio(FuenteRadiacion::horizontal);
    estudio.bEditable = false;
    estudio.radHorizontal.assign(solar::kHorasBloque, 3.0);
    EXPECT_FALSE(solar::EstudiarInclinacion(estudio));
    EXPECT_EQ(estudio.dInclinacionActual, 30.0);
    const auto grafica = std::get<CCtrlCurva2D>(guion.Estado(0, 0, "grafica").propio);
    EXPECT_NEAR(grafica.aSeries[0].adY[0], 72.0 * 900.0 / 600.0, 1e-9);
    EXPECT_NEAR(grafica.aSeries[0].adY[181], 72.0 * (1000.0 - 19.6 * 19.6) / (1000.0 - 10.4 * 10.4), 1e-9);
    EXPECT_NEAR(grafica.aSeries[1].adY[0], 72.0, 1e-9);
}

TEST(EstudioInclinacion, SoloParaMirarSeCierra)
{
    auto estudio = Estudio(FuenteRadiacion::cielo);
    estudio.bEditable = false;
    CDlgCalculoInclinacionPanel dialogo(estudio);
    EXPECT_FALSE(dialogo.bAceptarVisible);
    EXPECT_EQ(dialogo.csCancelar, L"Cerrar");
}

// Year's sums of the sky's definition: 2443.8166 kWh/m² at 35 degrees south, 2065.8947 on the horizontal.
TEST(EstudioInclinacion, ElAnoDeMadrid)
{
    const CDlgCalculoInclinacionPanel dialogo({.dInclinacionActual = 35.0,
                                               .fuente = FuenteRadiacion::cielo,
                                               .dDatoSitio = 650.0,
                                               .dLatitud = 40.4,
                                               .radHorizontal = {}});
    EXPECT_NEAR(dialogo.dTotal1, 2443816.6, 0.06);
    EXPECT_NEAR(dialogo.dTotal2, 2065894.7, 0.06);
    // Hours at the place of their month and day: noon of 21 June on the horizontal.
    EXPECT_NEAR(dialogo.radHorizontal[(5 * 31 + 20) * 24 + 11], 972.7012340754928, 1e-9);
}

TEST(MapaDeZonas, UnPuntoPorMunicipioYUnaSeriePorZona)
{
    phSetPathHE5BD(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/").c_str());
    Guion guion;
    guion.Dialogo("CDlgMapaZonas", {paso::Leer{}, paso::Pulsar{"Cancel"}});
    EXPECT_EQ(phShowMapaZonaHE5(), 1);
    phSetPathHE5BD(L"");
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Mapa de zonas climáticas");
    const auto mapa = std::get<CCtrlCurva2D>(guion.Estado(0, 0, "imagen").propio);
    ASSERT_EQ(mapa.aSeries.size(), 5U);
    std::size_t nPuntos = 0;
    for (const auto& serie : mapa.aSeries)
        nPuntos += serie.adX.size();
    EXPECT_EQ(nPuntos, 8131U);
    // The axes hold the islands and the mainland, not Greenwich and the equator.
    const auto extension = ui::ExtensionDe(mapa);
    EXPECT_GT(extension.dMinY, 27.0);
    EXPECT_LT(extension.dMaxY, 44.0);
    EXPECT_LT(extension.dMinX, -17.5);
}

TEST(MapaDeZonas, SinMunicipiosLoDice)
{
    phSetPathHE5BD(L"/no/existe/");
    Guion guion;
    guion.Dialogo("CDlgMapaZonas", {paso::Leer{}, paso::Pulsar{"Cancel"}});
    EXPECT_EQ(phShowMapaZonaHE5(), 1);
    phSetPathHE5BD(L"");
    EXPECT_TRUE(guion.Texto(0, 0, "csNota").starts_with(L"No se pueden leer los municipios. /no/existe/"));
}

}  // namespace
