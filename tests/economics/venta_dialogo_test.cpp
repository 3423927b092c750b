// The dialog of a sale to the grid, driven by scripts; its figures are those of vectores.py.
#include <algorithm>

#include <gtest/gtest.h>

#include <quorvel/economics.h>

#include "comun/guion.h"
#include "economics/vectores.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

constexpr const char* kClase = "CDlgCalculoEconomicoRed";

class VentaDialogo : public ::testing::Test {
protected:
    int Abrir(std::vector<ui::Paso> pasos)
    {
        guion.Dialogo(kClase, std::move(pasos));
        const double adMeses[12] = {};
        const int iResultado = phViabilidadEconomicaRed(estudio, adMeses, adMeses, 0.0);
        EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
        return iResultado;
    }
    const ui::EstadoControl& Estado(const char* control, std::size_t iLectura = 0) const
    {
        return guion.Estado(0, iLectura, control);
    }
    CString Texto(const char* control, std::size_t iLectura = 0) const
    {
        return guion.Texto(0, iLectura, control);
    }
    const ui::EstadoControl::DeLista& Filas(std::size_t iLectura = 0) const
    {
        return std::get<ui::EstadoControl::DeLista>(Estado("lista", iLectura).propio);
    }
    const CCtrlCurva2D& Grafica(std::size_t iLectura) const
    {
        return std::get<CCtrlCurva2D>(Estado("grafica", iLectura).propio);
    }

    Guion guion;
    CSFVCalculoEconomico estudio;
};

double Ultimo(const CArray<double, double&>& ad)
{
    return ad[ad.GetSize() - 1];
}

TEST_F(VentaDialogo, LosAnosSalenDeLosTextosDelAnterior)
{
    const auto vectores = LeerVectoresEconomia("tabla");
    ASSERT_EQ(vectores.size(), 20U);
    for (std::size_t i = 0; i < vectores.size(); ++i) {
        estudio = EstudioDe(vectores[i]);
        ASSERT_EQ(Abrir({paso::Pulsar{"OK"}}), 1) << i;
        const std::map<std::string, double> hallados = {
            {"energia", Ultimo(estudio.aEnergia)},
            {"prima", Ultimo(estudio.aPrima)},
            {"ingresos", Ultimo(estudio.aIngresos)},
            {"ingresosAcumulados", Ultimo(estudio.aIngresosAcumulados)},
            {"cuota", Ultimo(estudio.aCapitalInteres)},
            {"mantenimiento", Ultimo(estudio.aMantenimiento)},
            {"cashFlow", Ultimo(estudio.aCashFlow)},
            {"acumulado", Ultimo(estudio.aAcumulado)},
            {"filas", static_cast<double>(estudio.aAnio.GetSize())},
            {"dPrimaFija", estudio.dPrimaFija},
        };
        for (const auto& [nombre, dHallado] : hallados)
            EXPECT_DOUBLE_EQ(dHallado, vectores[i].resultados.at(nombre)) << i << " " << nombre;
        EXPECT_NEAR(estudio.dTIR, vectores[i].resultados.at("dTIR"), 0.0051) << i;  // two decimals on screen
    }
}

// 10,000 kWh at 80 % sold at 0.45513: 3,641.04 the first year; 5 kW at 8 €/W cost 40,000.
TEST_F(VentaDialogo, LoQueEnsenaAlAbrir)
{
    estudio.dEnergiaBase = 10000;
    estudio.dPotenciaGenerador = 5000;
    estudio.aEnergia = {7.0};
    estudio.aEnergiaMes = {5.0};
    ASSERT_EQ(Abrir({paso::Leer{}, paso::Pulsar{"OK"}}), 1);
    EXPECT_EQ(guion.presentador.transcripciones[0].csTitulo, L"Datos económicos");
    EXPECT_EQ(Texto("dPrimaFija"), L"0,45513");
    EXPECT_EQ(estudio.dPrimaFija, 0.45513);
    EXPECT_EQ(Texto("dEnergiaInstalacion"), L"8000,00");
    EXPECT_EQ(Texto("dCosteElegible"), L"40000,00");
    EXPECT_EQ(Texto("dPrimaVariable"), L"0,000000");
    EXPECT_EQ(Filas().acsColumnas,
              (std::vector<CString>{L"Año", L"Energia Anual", L"Prima", L"Ingresos", L"Ing Acumulados",
                                    L"Capital+Interes", L"Mantenimiento", L"Cash Flow", L"Acumulado"}));
    EXPECT_EQ(Filas().filas[0][3], L"3641,04");
    EXPECT_EQ(Filas().filas[1][1], L"7960,00");
    EXPECT_EQ(Filas().filas[24][0], L"25");
    EXPECT_EQ(Texto("iTipoAmortizacion"), L"Método Frances");
    EXPECT_TRUE(Estado("dPotenciaGenerador").bSoloLectura);
    EXPECT_FALSE(Estado("dCosteInstalacion").bHabilitado);
    EXPECT_FALSE(Estado("dPrimaVariableA").bHabilitado);
    ASSERT_EQ(estudio.aEnergia.GetSize(), 25);
    ASSERT_EQ(estudio.aEnergiaMes.GetSize(), 1);
    EXPECT_EQ(estudio.aEnergiaMes[0], 5.0);
}

TEST_F(VentaDialogo, LasBarrasCrecenDesdeUnaLineaCentral)
{
    estudio.dEnergiaBase = 1000;
    estudio.dPotenciaGenerador = 1000;
    estudio.dAniosPrestamo = 2;
    estudio.dAniosEstudio = 3;
    Abrir(
        {paso::Leer{{"grafica", "lista"}}, paso::Elegir{"iSerie", CString(L"Prima")}, paso::Leer{{"grafica"}}});
    const CCtrlCurva2D& cash = Grafica(0);
    EXPECT_EQ(cash.aSeries[0].csNombre, L"CashFlow");
    ASSERT_EQ(cash.aSeries[0].adY.size(), 3U);
    EXPECT_LT(cash.aSeries[0].adY[0], 0.0);
    const double dMinimo = *std::ranges::min_element(cash.aSeries[0].adY);  // the loan's years lose money
    EXPECT_EQ(cash.aSeries[1].adY, (std::vector<double>{dMinimo, -dMinimo}));
    EXPECT_EQ(cash.aSeries[1].iAncho, 0);
    EXPECT_EQ(Grafica(1).csTitulo, L"Prima");
    EXPECT_EQ(Grafica(1).aSeries[0].adY[1], 0.45627);  // 0.45513 · 1.0025
}

TEST_F(VentaDialogo, LasMarcasSoloAbrenYElMetodoRecalcula)
{
    estudio.dEnergiaBase = 1000;
    estudio.dPotenciaGenerador = 1000;
    Abrir({paso::Teclear{"dPrimaFija", L"0,5"}, paso::Marcar{"bPerformanceRatio", true}, paso::Leer{},
           paso::Poner{"dPerformanceRatio", L"70"}, paso::Leer{}, paso::Elegir{"iTipoAmortizacion", 1},
           paso::Leer{}, paso::Marcar{"bPerformanceRatio", false}, paso::Leer{}});
    EXPECT_EQ(Texto("dRendimientoInicial"), L"400,00");  // leaving the price calculated it
    EXPECT_EQ(Texto("dEnergiaInstalacion", 1), L"700,00");
    const auto rotulo = [&](std::size_t i) { return Texto("dCuotaAnual", i); };
    EXPECT_NE(rotulo(1), rotulo(2));
    // 8,000 over 15 years: the interest of the falling debt is 8000 · 0.02 · (15 + 1) / 2
    EXPECT_EQ(Texto("dTotalPagar", 2), L"9280,00");
    EXPECT_TRUE(Estado("dPerformanceRatio", 3).bSoloLectura);
    EXPECT_EQ(Texto("dPerformanceRatio", 3), L"70,00");
}

TEST_F(VentaDialogo, UnValorFueraDeSusLimitesNoCalculaNada)
{
    estudio.dEnergiaBase = 1000;
    estudio.dPotenciaGenerador = 1000;
    EXPECT_EQ(Abrir({paso::Poner{"dAniosEstudio", L"14"}, paso::Leer{}, paso::Pulsar{"OK"},
                     paso::Poner{"dTipoInteres", L"0"}, paso::Elegir{"iTipoCoste", 1}, paso::Leer{}}),
              0);
    EXPECT_EQ(Filas().filas.size(), 25U);
    const CString csAnos = L"Introduzca un número entre 15 y 200.";
    ASSERT_EQ(guion.Mensajes().size(), 3U);
    EXPECT_EQ(guion.Mensajes()[0], csAnos);
    EXPECT_EQ(guion.Mensajes()[1], L"Introduzca un número entre 0,1 y 100.");
    EXPECT_EQ(guion.presentador.transcripciones[0].csRechazo, csAnos);
    EXPECT_TRUE(Estado("dCosteInstalacion", 1).bHabilitado);  // the choice opens it all the same
    EXPECT_EQ(estudio.dTipoInteres, 2.0);
}

// A cost typed without a power: the price of a watt is infinite until there is one.
TEST_F(VentaDialogo, SinPotenciaLaRepercusionEsInfinitaYSePuedeSeguir)
{
    estudio.dCosteInstalacion = 1000;
    estudio.iTipoCoste = 1;
    estudio.bPotenciaGenerador = 1;
    EXPECT_EQ(
        Abrir({paso::Leer{}, paso::Poner{"dPotenciaGenerador", L"500"}, paso::Leer{}, paso::Pulsar{"OK"}}), 1);
    EXPECT_EQ(Texto("dRepercusion"), L"inf");
    EXPECT_EQ(Texto("dRepercusion", 1), L"2,00");
    EXPECT_TRUE(guion.Mensajes().empty());
}

}  // namespace
