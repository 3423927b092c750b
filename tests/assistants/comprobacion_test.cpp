#include <cmath>

#include <gtest/gtest.h>

#include <quorvel/assistants_calculo.h>

namespace {

using namespace efv::assistants;

// A module of 240 W, 8 A at 30 V; per degree it loses 0.12 V open and 1 W, and gains 5 mA in short circuit.
//   at -10 ºC (35 below 25): Voc 37 + 35·0.12 = 41.2 V, P 275 W, Vmp 275/8 = 34.375 V
//   at  70 ºC (45 above):    P 195 W, Vmp 24.375 V, Isc 8.5 + 45·0.005 = 8.725 A
class ComprobacionCampoTest : public testing::Test {
protected:
    CBasePanelFotoModelo panel;
    CBaseInversorModelo inversor;

    ComprobacionCampoTest()
    {
        panel.dPmpm = 240;
        panel.dVmpm = 30;
        panel.dImpm = 8;
        panel.dVoc = 37;
        panel.dIsc = 8.5;
        panel.dCTVoc = -120;
        panel.dCTIsc = 5;
        panel.dCTPmpm = -1000;
        panel.dVsmax = 1000;
        inversor.dPCCMax = 5500;
        inversor.dVMPPMax = 480;
        inversor.dVMPPMin = 150;
        inversor.dVCCMax = 600;
        inversor.dICCMax = 18;
        inversor.csICCMaxMPPT = L"10,00/18,00";
        inversor.dIScMax = 20;
        inversor.iNumMPPT = 2;
        inversor.iNumEntradas = 3;
        inversor.dPCANom = 5000;
    }

    Comprobacion De(Limite limite, int iSerie, int iParalelo) const
    {
        const auto campo = Comprobar({.iPanelesSerie = iSerie, .iPanelesParalelo = iParalelo}, panel, inversor);
        EXPECT_EQ(campo.limites.size(), 8U);
        const Comprobacion& c = campo.limites.at(static_cast<std::size_t>(limite));
        EXPECT_EQ(c.limite, limite);
        return c;
    }

    void Esperar(Limite limite, int iSerie, int iParalelo, double dValor, double dLimite, bool bCumple) const
    {
        const Comprobacion c = De(limite, iSerie, iParalelo);
        EXPECT_NEAR(c.dValor, dValor, 1e-9);
        EXPECT_EQ(c.dLimite, dLimite);
        EXPECT_EQ(c.bCumple, bCumple);
    }
};

TEST_F(ComprobacionCampoTest, LasTensionesSonLasDeLasTemperaturasExtremas)
{
    using enum Limite;
    Esperar(tensionVacioInversor, 12, 2, 494.4, 600, true);
    Esperar(tensionVacioInversor, 15, 1, 618, 600, false);  // 15 · 37 = 555 V at 25 ºC would do
    Esperar(tensionVacioModulo, 12, 2, 494.4, 1000, true);
    Esperar(tensionMppMaxima, 13, 2, 446.875, 480, true);
    Esperar(tensionMppMaxima, 14, 2, 481.25, 480, false);
    Esperar(tensionMppMinima, 7, 2, 170.625, 150, true);
    Esperar(tensionMppMinima, 6, 2, 146.25, 150, false);  // 180 V at 25 ºC
    panel.dVsmax = 400;
    Esperar(tensionVacioModulo, 12, 2, 494.4, 400, false);
}

// The odd string goes to the stronger tracker; the one told is the one nearest to its limit.
TEST_F(ComprobacionCampoTest, LosRamalesSeRepartenEntreLosSeguidores)
{
    using enum Limite;
    Esperar(corrienteMpp, 12, 1, 8, 18, true);
    Esperar(corrienteMpp, 12, 2, 8, 10, true);
    Esperar(corrienteMpp, 12, 3, 16, 18, true);
    Esperar(corrienteMpp, 12, 4, 16, 10, false);
    Esperar(corrienteCortocircuito, 12, 3, 17.45, 20, true);
    Esperar(corrienteCortocircuito, 12, 5, 26.175, 20, false);
    Esperar(ramales, 12, 4, 4, 3, false);
    Esperar(potenciaCC, 11, 2, 5280, 5500, true);
    Esperar(potenciaCC, 12, 2, 5760, 5500, false);
    EXPECT_NEAR(Comprobar({.iPanelesSerie = 12, .iPanelesParalelo = 2}, panel, inversor).dRatioCCCA, 1.152,
                1e-12);
}

TEST_F(ComprobacionCampoTest, SinDatoNoHayVeredicto)
{
    using enum Limite;
    inversor.dIScMax = 0;
    inversor.csICCMaxMPPT = L"0,00/0,00";
    EXPECT_EQ(De(corrienteCortocircuito, 12, 2).bCumple, std::nullopt);
    EXPECT_EQ(De(corrienteMpp, 12, 2).bCumple, std::nullopt);
    EXPECT_NEAR(De(corrienteMpp, 12, 3).dValor, 16, 1e-9);
    // Of a stand-alone inverter these are the battery's voltages and its own consumption.
    inversor.iUsoPrincipal = 1;
    for (const Limite limite : {tensionMppMaxima, tensionMppMinima, potenciaCC})
        EXPECT_EQ(De(limite, 12, 2).bCumple, std::nullopt);
    inversor = {};
    EXPECT_TRUE(std::isinf(Comprobar({}, panel, inversor).dRatioCCCA));
}

}  // namespace
