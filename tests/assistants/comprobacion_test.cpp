#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/assistants_calculo.h>
#include <quorvel/tipos_catalogo.h>

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

// What hangs on a coefficient that nobody gave is open, but for what 25 ºC already break.
TEST_F(ComprobacionCampoTest, SinCoeficienteNoHayVeredicto)
{
    using enum Limite;
    panel.dCTVoc = panel.dCTPmpm = panel.dCTIsc = 0;
    for (const Limite limite : {tensionVacioInversor, tensionVacioModulo, tensionMppMaxima, tensionMppMinima,
                                corrienteCortocircuito}) {
        EXPECT_EQ(De(limite, 12, 2).bCumple, std::nullopt);
        EXPECT_TRUE(std::isnan(De(limite, 12, 2).dValor));
    }
    Esperar(tensionVacioInversor, 17, 1, 629, 600, false);
    Esperar(tensionMppMinima, 4, 1, 120, 150, false);
    Esperar(corrienteMpp, 12, 2, 8, 10, true);
}

// A value that the model's file doesn't give, and that is therefore of another model, decides nothing.
TEST_F(ComprobacionCampoTest, LoHeredadoNoEntraEnNingunaComprobacion)
{
    using enum Limite;
    const auto falta = [](CModelo& modelo, std::string_view tipo,
                          std::initializer_list<std::string_view> campos) {
        modelo.uAusentes = 0;
        for (const efv::CampoCatalogo& campo : efv::BuscarTipoCatalogo(tipo)->Campos())
            if (std::ranges::find(campos, campo.nombre) != campos.end())
                modelo.uAusentes |= campo.uMarca;
    };
    const auto abiertos = [&](const std::vector<Limite>& esperados) {
        const auto campo = Comprobar({.iPanelesSerie = 12, .iPanelesParalelo = 2}, panel, inversor);
        std::vector<Limite> hallados;
        for (const Comprobacion& c : campo.limites)
            if (!c.bCumple)
                hallados.push_back(c.limite);
        EXPECT_EQ(hallados, esperados);
    };
    abiertos({});
    falta(inversor, "inversores", {"dVCCMax", "dIScMax"});
    abiertos({tensionVacioInversor, corrienteCortocircuito});
    falta(inversor, "inversores", {"dICCMax"});
    abiertos({});  // the list is the model's own
    falta(inversor, "inversores", {"dICCMax", "csICCMaxMPPT"});
    abiertos({corrienteMpp});
    falta(inversor, "inversores", {"iNumMPPT"});
    abiertos({corrienteMpp, corrienteCortocircuito});
    falta(inversor, "inversores", {});
    falta(panel, "modulos", {"dVoc", "dImpm"});
    abiertos({tensionVacioInversor, tensionVacioModulo, tensionMppMaxima, tensionMppMinima, corrienteMpp});
    EXPECT_EQ(ProponerComprobada(5, {}, panel, inversor).falta, SinPropuesta::sinDatos);
    falta(panel, "modulos", {});
    panel.dIsc = 0;
    abiertos({corrienteCortocircuito});
}

TEST_F(ComprobacionCampoTest, ElCampoDeUnReguladorSeMideConSusLimites)
{
    const auto resultados = [&](int iSerie, int iParalelo) {
        const auto campo = Comprobar({.iPanelesSerie = iSerie, .iPanelesParalelo = iParalelo}, panel,
                                     LimitesRegulador{150, 60, 35});
        std::vector<std::optional<bool>> lista;
        for (const Comprobacion& c : campo.limites)
            lista.push_back(c.bCumple);
        return lista;
    };
    using Lista = std::vector<std::optional<bool>>;
    EXPECT_EQ(resultados(3, 4), (Lista{true, true, true, true}));    // 123.6 V, 73.125 V, 34.9 A
    EXPECT_EQ(resultados(4, 5), (Lista{true, false, true, false}));  // 164.8 V, 148 at 25 ºC; 43.625 A
    EXPECT_EQ(resultados(2, 1), (Lista{true, true, false, true}));   // 48.75 V
}

// In series 7 (6 · 24.375 V are below 150) to 13 (14 · 34.375 V pass 480); two strings on two trackers, of
// 5500 W at most, so 14 to 22 panels of 240 W an inverter.
TEST_F(ComprobacionCampoTest, LaPropuestaComprobadaAlcanzaLaPotencia)
{
    const auto esperar = [&](double dPotencia, int iInversores, int iSerie, int iRamales, double dAlcanza) {
        const PropuestaComprobada p = ProponerComprobada(dPotencia, {}, panel, inversor);
        EXPECT_EQ(p.falta, SinPropuesta::ninguna);
        EXPECT_EQ(p.iInversores, iInversores) << dPotencia;
        EXPECT_EQ(p.iPanelesSerie, iSerie) << dPotencia;
        EXPECT_EQ(p.iRamales, iRamales) << dPotencia;
        EXPECT_NEAR(p.dPotencia, dAlcanza, 1e-9);
        EXPECT_FALSE(p.comprobacion.Incumple());
        return p.bSeguidoresIguales;
    };
    EXPECT_TRUE(esperar(5, 1, 11, 2, 5.28));
    EXPECT_TRUE(esperar(5.28, 2, 7, 2, 6.72));  // above its nominal output: two inverters
    EXPECT_TRUE(esperar(10, 2, 11, 2, 10.56));
    EXPECT_TRUE(esperar(3, 1, 7, 2, 3.36));
    inversor.dPCANom = 4000;
    EXPECT_TRUE(esperar(10.9, 3, 8, 2, 11.52));
    // Two strings would pass the power: one tracker stays free.
    inversor.dPCCMax = 3000;
    EXPECT_FALSE(esperar(2, 1, 9, 1, 2.16));
}

TEST_F(ComprobacionCampoTest, ElRepartoDeUnosPanelesEsExacto)
{
    const auto reparto = [&](int iPaneles, int iInversores) {
        return RepartirComprobada(iPaneles, iInversores, {}, panel, inversor);
    };
    const auto esperar = [&](const PropuestaComprobada& p, int iSerie, int iRamales, bool bIguales) {
        EXPECT_EQ(p.falta, SinPropuesta::ninguna);
        EXPECT_EQ(p.iPanelesSerie, iSerie);
        EXPECT_EQ(p.iRamales, iRamales);
        EXPECT_EQ(p.bSeguidoresIguales, bIguales);
    };
    esperar(reparto(22, 1), 11, 2, true);
    esperar(reparto(20, 2), 10, 1, false);  // 5 in series are too few
    EXPECT_NEAR(reparto(20, 2).dPotencia, 4.8, 1e-9);
    EXPECT_EQ(reparto(17, 1).falta, SinPropuesta::reparto);
    EXPECT_TRUE(reparto(17, 1).comprobacion.Incumple());
    inversor.iUsoPrincipal = 1;
    EXPECT_EQ(reparto(22, 1).falta, SinPropuesta::usoAislado);
}

TEST_F(ComprobacionCampoTest, SinPropuestaSeSabePorQue)
{
    const auto motivo = [&](double dPotencia = 5) {
        return ProponerComprobada(dPotencia, {}, panel, inversor).falta;
    };
    const CBaseInversorModelo bueno = inversor;
    inversor.dVCCMax = 280;
    EXPECT_EQ(motivo(), SinPropuesta::tension);
    inversor = bueno;
    inversor.csICCMaxMPPT = L"5,00/5,00";
    EXPECT_EQ(motivo(), SinPropuesta::corriente);
    inversor = bueno;
    inversor.dPCCMax = 1600;
    EXPECT_EQ(motivo(), SinPropuesta::potenciaCC);
    inversor = bueno;
    EXPECT_EQ(motivo(0), SinPropuesta::sinDatos);
    EXPECT_EQ(motivo(std::nan("")), SinPropuesta::sinDatos);
    inversor.iUsoPrincipal = 1;
    EXPECT_EQ(motivo(), SinPropuesta::usoAislado);
    inversor = bueno;
    inversor.dVCCMax = inversor.dVMPPMax = panel.dVsmax = 0;
    EXPECT_EQ(motivo(), SinPropuesta::sinDatos);
}

// Three in series: 2 · 24.375 V are below 60 and 4 · 41.2 V above 150; up to four strings of 8.725 A.
TEST_F(ComprobacionCampoTest, EnUnReguladorLaPropuestaEsElMenorCampoQueAlcanza)
{
    const auto proponer = [&](double dPotencia, LimitesRegulador regulador) {
        return ProponerComprobada(dPotencia, {}, panel, regulador);
    };
    const LimitesRegulador bueno{150, 60, 35};
    for (const auto& [dPotencia, iRamales] : {std::pair(2.0, 3), {2.16, 3}, {2.17, 4}, {2.88, 4}}) {
        const PropuestaComprobada p = proponer(dPotencia, bueno);
        EXPECT_EQ(p.falta, SinPropuesta::ninguna);
        EXPECT_EQ(p.iInversores, 0);
        EXPECT_EQ(p.iPanelesSerie, 3);
        EXPECT_EQ(p.iRamales, iRamales) << dPotencia;
        EXPECT_NEAR(p.dPotencia, 0.72 * iRamales, 1e-9);
        EXPECT_FALSE(p.comprobacion.Incumple());
    }
    EXPECT_EQ(proponer(2.89, bueno).falta, SinPropuesta::potenciaRegulador);
    EXPECT_EQ(proponer(2, {100, 60, 35}).falta, SinPropuesta::tensionRegulador);
    EXPECT_EQ(proponer(2, {150, 60, 8}).falta, SinPropuesta::corrienteRegulador);
    EXPECT_EQ(proponer(0, bueno).falta, SinPropuesta::sinDatos);
}

}  // namespace
