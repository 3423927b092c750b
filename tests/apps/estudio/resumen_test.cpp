// What the designs and a consumption amount to. Figures by hand from the models' data sheets.
#include "diseno/resumen.h"

#include "apoyo.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

class Resumenes : public ConCatalogos {};

CString Valor(const std::vector<LineaResumen>& lineas, const wchar_t* csConcepto)
{
    const auto hallada = std::ranges::find(lineas, csConcepto, &LineaResumen::csConcepto);
    return hallada == lineas.end() ? CString(L"(falta)") : hallada->csValor;
}

TEST_F(Resumenes, UnRegistroNuevoNoTieneDiseno)
{
    EXPECT_TRUE(ResumenDe(CSFVAsistenteAislada()).empty());
    EXPECT_TRUE(ResumenDe(CSFVAsistenteRed()).empty());
}

TEST_F(Resumenes, DeLaAislada)
{
    CSFVAsistenteAislada diseno = DisenoAislada();
    AnadirCarga(diseno, L"Vivienda#Televisor 60 W", 2.0, 3.0);
    AnadirCarga(diseno, L"Vivienda#Lámpara interior 7 W", 10.0, 5.0);
    const auto lineas = ResumenDe(diseno);
    EXPECT_EQ(Valor(lineas, L"Receptores"), L"2 modelos, 190 W");  // 2 × 60 + 10 × 7
    EXPECT_EQ(Valor(lineas, L"Energía diaria"), L"710 Wh");        // 120 × 3 + 70 × 5
    EXPECT_EQ(Valor(lineas, L"Potencia instalada"), L"5257 Wp");   // 15 × 350.448
    EXPECT_EQ(Valor(lineas, L"Acumuladores"), L"24 en serie × 2 en paralelo = 48");
    EXPECT_EQ(Valor(lineas, L"Tensión del ramal"), L"117,6 V (en vacío 139,8 V)");
}

TEST_F(Resumenes, DeLaRed)
{
    const auto lineas = ResumenDe(DisenoRed(4));
    EXPECT_EQ(Valor(lineas, L"Paneles en total"), L"56 paneles");   // 4 × 7 × 2
    EXPECT_EQ(Valor(lineas, L"Potencia instalada"), L"19,63 kWp");  // 56 × 350.448 W
    EXPECT_EQ(Valor(lineas, L"Potencia de inversores"), L"20,00 kW");
    EXPECT_EQ(Valor(lineas, L"Tensión del ramal"), L"274,4 V (MPPT 175–500 V)");
}

// Arrays of a file may not run in step.
TEST_F(Resumenes, LasCargasLlegaLaListaMasCorta)
{
    CSFVAsistenteAislada diseno = DisenoAislada();
    AnadirCarga(diseno, L"Vivienda#Televisor 60 W", 2.0, 3.0);
    diseno.acsModelo.Add(L"Otro");
    EXPECT_EQ(Valor(ResumenDe(diseno), L"Energía diaria"), L"360 Wh");
}

TEST(ResumenConsumo, HorasYReceptores)
{
    Consumo consumo;
    std::ranges::fill(consumo.adHoras, 100.0);
    // 31 days of 24 hours of 0.1 kWh; 8760 of them in the year.
    EXPECT_NEAR(AnoDe(consumo).adMes[0], 74.4, 1e-9);
    EXPECT_NEAR(AnoDe(consumo).adMes[1], 67.2, 1e-9);
    EXPECT_NEAR(AnoDe(consumo).Energia(), 876.0, 1e-9);
    EXPECT_EQ(Valor(ResumenDe(consumo, AnoDe(consumo)), L"Energía diaria media"), L"2,40 kWh");
    consumo.bExcluir = 1;
    EXPECT_EQ(AnoDe(consumo).Energia(), 0.0);

    Consumo porReceptores;
    porReceptores.iTipoEntrada = 1;
    auto receptor = std::make_unique<CSFVDataReceptor>();
    receptor->dPotencia = 500.0;
    receptor->iCantidad = 2;
    for (auto& mes : receptor->dHorario)
        for (auto& dia : mes)
            dia[1] = 90.0;  // from midnight to 1:30
    porReceptores.lReceptores.Add(std::move(receptor));
    const AnoDeConsumo ano = AnoDe(porReceptores);
    EXPECT_EQ(ano.dPotencia, 1000.0);
    EXPECT_NEAR(ano.Energia(), 365 * 1.5, 1e-9);
    EXPECT_NEAR(ano.adMes[3], 30 * 1.5, 1e-9);
    const CCtrlCurva2D grafica = GraficaDe(ano);
    ASSERT_EQ(grafica.aSeries.size(), 1U);
    EXPECT_EQ(grafica.aSeries[0].adY.size(), 12U);
}

}  // namespace
