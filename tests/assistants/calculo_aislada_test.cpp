#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include <gtest/gtest.h>

#include "assistants/calculo_aislada.h"
#include "assistants/vectores.h"

namespace {

using namespace efv::assistants;
namespace pruebas = efv::pruebas;

// Every result by name, beside the record's fields.
pruebas::Valores Nombrados(ValoresAislada& v)
{
    pruebas::Valores n = pruebas::Sueltos(ValoresPorNombre(v));
    n["radiacion7"] = &v.adRadiacionInclinada[7];
    return n;
}

pruebas::Valores Nombrados(CBaseAcumuladorModelo& a, CBasePanelFotoModelo& p)
{
    return {{"dVnom", &a.dVnom}, {"dPeso", &a.dPeso}, {"dPmpm", &p.dPmpm},
            {"dVmpm", &p.dVmpm}, {"dImpm", &p.dImpm}, {"dVoc", &p.dVoc},
            {"dH", &p.dH},       {"dB", &p.dB},       {"dP", &p.dP}};
}

// The factor of vectores.py.
std::optional<std::array<double, 12>> FactorVectores(double dLatitud, int iHemisferio, double dAlpha)
{
    if (dAlpha < 0 || dAlpha > 90)
        return std::nullopt;
    std::array<double, 12> k{};
    for (std::size_t m = 0; m < 12; ++m) {
        const double d = static_cast<double>(m) - 5.5;
        k[m] = (1 + dAlpha * d * d / 4000 - dAlpha * dAlpha / 9000 + (iHemisferio == 1 ? 0 : 0.01)) *
               (1 + dLatitud / 1000);
    }
    return k;
}

TEST(CalculoAislada, DaLosVectores)
{
    const auto vectores = pruebas::LeerVectores("aislada");
    ASSERT_EQ(vectores.size(), 120U);
    for (std::size_t i = 0; i < vectores.size(); ++i) {
        const auto& vector = vectores[i];
        ValoresAislada v;
        CBaseAcumuladorModelo acumulador;
        CBasePanelFotoModelo panel;
        for (const auto& [nombre, texto] : vector.entradas) {
            pruebas::Asignar(Nombrados(v), nombre, texto);
            pruebas::Asignar(Nombrados(acumulador, panel), nombre, texto);
        }
        std::ranges::copy(pruebas::Numeros(vector.Entrada("radiacion")), v.adRadiacion.begin());
        const auto caps = pruebas::Numeros(vector.Entrada("capacidades"));
        std::tie(acumulador.dCapC1, acumulador.dCapC5, acumulador.dCapC10, acumulador.dCapC20,
                 acumulador.dCapC100, acumulador.dCapC120) =
            std::tie(caps[0], caps[1], caps[2], caps[3], caps[4], caps[5]);
        const auto numeros = pruebas::Numeros(vector.Entrada("cargas"));
        std::vector<DatosReceptor> receptores;
        for (std::size_t c = 0; c < numeros.size(); c += 3)
            receptores.push_back({static_cast<int>(numeros[c]), numeros[c + 1], numeros[c + 2]});
        Recalcular(v, {&acumulador, &panel, receptores, FactorVectores}, vector.bForzar);
        for (const auto& [nombre, texto] : vector.resultados)
            pruebas::Esperar(Nombrados(v), nombre, texto, i);
    }
}

// A place with 3600 kJ/m² in January and one more 3600 each month: 1 to 12 peak sun hours when every factor
// is 1. Two loads: 2 × 100 W × 3 h + 50 W × 8 h = 1000 Wh.
class CalculoAisladaAMano : public testing::Test {
protected:
    ValoresAislada v;
    CBaseAcumuladorModelo acumulador;
    CBasePanelFotoModelo panel;
    std::vector<DatosReceptor> receptores{{2, 100.0, 3.0}, {1, 50.0, 8.0}};
    ConsultaFactoresK factores = [](double, int, double) { return Todos(1.0); };

    CalculoAisladaAMano()
    {
        acumulador.dCapC100 = 100.0;
        acumulador.dVnom = 12.0;
        acumulador.dPeso = 10.0;
        panel.dPmpm = 100.0;
        panel.dVoc = 22.0;
        panel.dH = 1000.0;
        panel.dB = 500.0;
        v.dLatitud = 40.0;
        for (int m = 0; m < 12; ++m)
            v.adRadiacion[static_cast<std::size_t>(m)] = 3600.0 * (m + 1);
        v.dPerdidaCableado = v.dPerdidaAcumulador = v.dPerdidaAcoplamiento = 0.0;
        v.dProfundidadDescarga = 50.0;
        v.dDiasAutonomia = 3.0;
        v.dTensionSistema = 24.0;
        v.dTensionMaxFV = 50.0;
    }

    static std::optional<std::array<double, 12>> Todos(double d)
    {
        std::array<double, 12> k{};
        k.fill(d);
        return k;
    }

    void Calcular(bool bForzar) { Recalcular(v, {&acumulador, &panel, receptores, factores}, bForzar); }
};

TEST_F(CalculoAisladaAMano, DimensionaAcumuladoresYPaneles)
{
    Calcular(true);
    EXPECT_EQ(v.dEnergiaNecesaria, 1000.0);
    EXPECT_EQ(v.dCapacidadNecesaria, 1000.0 * 3 / 24 / 0.5);  // 250 Ah
    EXPECT_EQ(v.iAcumuladoresSerie, 2);
    EXPECT_EQ(v.iAcumuladoresParalelo, 3);
    EXPECT_EQ(v.dCapacidadResultante, 300.0);
    EXPECT_EQ(v.dPesoAcumuladores, 60.0);
    // The unfavourable month is January with one hour: 1000 Wp are ten panels in five branches of two.
    EXPECT_EQ(v.csMesReferencia, L"Enero");
    EXPECT_EQ(v.dPotenciaMinima, 1000.0);
    EXPECT_EQ(v.iPanelesSerie, 2);
    EXPECT_EQ(v.iPanelesParalelo, 5);
    EXPECT_EQ(v.dPotenciaMaxFV, 1250.0);
    EXPECT_EQ(v.dSuperficieTotal, 5.0);
    EXPECT_EQ(v.dInclinacion, 50.0);
}

TEST_F(CalculoAisladaAMano, SinForzarSoloLosAcumuladoresPorRamalSiguenLaPropuesta)
{
    Calcular(true);
    v.iAcumuladoresSerie = 7;
    v.iAcumuladoresParalelo = 1;
    v.iPanelesParalelo = 4;
    v.dInclinacion = 10.0;
    v.dDistanciaFilas = 1.0;
    factores = [](double, int, double dAlpha) { return Todos(dAlpha == 10.0 ? 0.5 : 1.0); };
    Calcular(false);
    EXPECT_EQ(v.iAcumuladoresSerie, 2);
    EXPECT_EQ(v.iTotalAcumuladores, 2);
    EXPECT_EQ(v.iPanelesParalelo, 4);
    EXPECT_EQ(v.dDistanciaFilas, 1.0);
    // The person's tilt changes what is in force; the proposed count follows the proposed tilt.
    EXPECT_EQ(v.dHSP, 0.5);
    EXPECT_EQ(v.dPotenciaMinima, 2000.0);
    EXPECT_EQ(v.dPotenciaInstalada, 800.0);
    EXPECT_EQ(v.iPanelesParaleloP, 5);
    EXPECT_EQ(v.iRamalesNecesarios, 10);
}

TEST_F(CalculoAisladaAMano, SinReceptoresSeProponeUnRamalDeCada)
{
    receptores.clear();
    Calcular(true);
    EXPECT_EQ(v.dCapacidadNecesaria, 0.0);
    EXPECT_EQ(v.iAcumuladoresParalelo, 1);
    EXPECT_EQ(v.dPotenciaMinima, 0.0);
    EXPECT_EQ(v.iPanelesParalelo, 1);
}

TEST_F(CalculoAisladaAMano, MasDeDiezHorasPicoPropuestasCuentanComoNinguna)
{
    v.iMesCalculo = 9;  // ten hours exactly
    Calcular(true);
    EXPECT_EQ(v.dHSPP, 10.0);
    EXPECT_EQ(v.iPanelesParaleloP, 1);
    factores = [](double, int, double) { return Todos(1.05); };
    receptores.front().iCantidad = 200;
    Calcular(true);
    EXPECT_EQ(v.dHSP, 1.05 * 36000 / 3600);
    EXPECT_EQ(v.dHSPP, 0.0);
    EXPECT_GT(v.dPotenciaMinima, 0.0);
    EXPECT_EQ(v.dPotenciaMinimaP, 0.0);
    EXPECT_EQ(v.iPanelesParaleloP, 1);
}

// Months at equal radiation: the last one gives its name, and the proposal's months decide.
TEST_F(CalculoAisladaAMano, ElMesDeReferenciaEsElUltimoDeLosIguales)
{
    v.adRadiacion.fill(7200.0);
    v.adRadiacion[4] = 7200.0 - 0.001;  // 2.8e-7 hours less
    Calcular(true);
    EXPECT_EQ(v.csMesReferencia, L"Diciembre");
    v.dInclinacion = 5.0;
    factores = [](double, int, double dAlpha) {
        auto k = Todos(1.0);
        (*k)[dAlpha == 5.0 ? 10 : 2] = 0.5;
        return k;
    };
    Calcular(false);
    EXPECT_EQ(v.csMesReferencia, L"Marzo");
    EXPECT_EQ(v.dHSP, 1.0);
    v.iMesCalculo = 12;
    Calcular(false);
    EXPECT_EQ(v.csMesReferencia, L"Anual");
}

TEST_F(CalculoAisladaAMano, FueraDeLaTablaDeFactoresNoHaySol)
{
    factores = [](double, int, double) { return std::nullopt; };
    Calcular(true);
    EXPECT_EQ(v.dHSP, 0.0);
    EXPECT_EQ(v.dPotenciaMinima, 0.0);
    EXPECT_EQ(v.adRadiacionInclinada[11], 0.0);
}

TEST_F(CalculoAisladaAMano, EnElSurSeSumaALaMagnitudDeLaLatitud)
{
    v.dLatitud = -30.0;
    v.iHemisferio = 0;
    Calcular(true);
    EXPECT_EQ(v.dInclinacion, 40.0);
    EXPECT_EQ(v.dOrientacion, 180.0);
}

TEST_F(CalculoAisladaAMano, UnModeloDesconocidoDejaLoAnterior)
{
    Calcular(true);
    const int iParalelo = v.iPanelesParalelo;
    receptores.front().iCantidad = 50;
    Recalcular(v, {&acumulador, nullptr, receptores, factores}, true);
    EXPECT_EQ(v.iPanelesParalelo, iParalelo);
    EXPECT_GT(v.iAcumuladoresParalelo, 3);
    const int iAcumuladores = v.iAcumuladoresParalelo;
    v.dInclinacion = 5.0;
    v.adRadiacion[0] = 10.0;
    Recalcular(v, {nullptr, &panel, {}, factores}, true);
    EXPECT_EQ(v.iAcumuladoresParalelo, iAcumuladores);
    EXPECT_EQ(v.dInclinacion, 5.0);
    EXPECT_EQ(v.adRadiacionInclinada[0], 10.0);  // the row of radiation is always worked out
}

TEST_F(CalculoAisladaAMano, ValoresAbsurdosNoRompenElCalculo)
{
    v.dTensionSistema = 0.0;
    v.iMesCalculo = 99;
    v.iPanelesSerie = v.iPanelesParalelo = 2'000'000'000;
    panel.dVoc = panel.dPmpm = 0.0;
    Calcular(false);
    EXPECT_TRUE(std::isinf(v.dCapacidadNecesaria));
    EXPECT_EQ(v.iTotalPaneles, 2147483647);
    EXPECT_EQ(v.csMesReferencia, L"");
    v.dPerdidaCableado = 100.0;
    Calcular(true);
    EXPECT_TRUE(std::isinf(v.dEnergiaNecesaria));
}

TEST_F(CalculoAisladaAMano, LasFilasSeEspacianConElLargoDelModelo)
{
    v.iDisposicion = 1;
    v.dLatitud = 16.0;  // shadow as long as the height
    Calcular(true);
    EXPECT_NEAR(v.dDistanciaFilas, 500 * (std::sin(26 * M_PI / 180) + std::cos(26 * M_PI / 180)), 1e-9);
    v.dInclinacion = 30.0;
    EspaciarFilas(v, panel);
    EXPECT_NEAR(v.dDistanciaFilas, 1000 * (0.5 + std::sqrt(0.75)), 1e-9);
    EXPECT_NEAR(v.dSuperficieProyectada, v.dSuperficieTotal * std::sqrt(0.75), 1e-12);
}

// Capacities at 1, 5, 10, 20, 100 and 120 hours.
std::optional<double> EnVigor(const std::array<double, 6>& c)
{
    CBaseAcumuladorModelo m;
    std::tie(m.dCapC1, m.dCapC5, m.dCapC10, m.dCapC20, m.dCapC100, m.dCapC120) = std::tuple_cat(c);
    return CapacidadEnVigor(m);
}

TEST(Equipos, LaCapacidadEnVigorEsLaQueSobresale)
{
    EXPECT_EQ(EnVigor({0, 0, 80, 0, 100, 105}), 105.0);
    EXPECT_EQ(EnVigor({0, 0, 0, 0, 100, 100}), std::nullopt);
    // 20 hours aren't compared with 10 nor with 100: the shorter discharge wins, and hides nothing.
    EXPECT_EQ(EnVigor({0, 0, 90, 95, 0, 0}), 90.0);
    EXPECT_EQ(EnVigor({0, 0, 0, 120, 100, 0}), 120.0);
    EXPECT_EQ(EnVigor({0, 0, 0, 100, 120, 0}), 120.0);
    EXPECT_EQ(EnVigor({5.0000005, 5, 0, 0, 0, 0}), std::nullopt);
    EXPECT_EQ(EnVigor({}), std::nullopt);
}

TEST(ValoresAislada, VanYVuelvenDelRegistroSinSusReceptores)
{
    CSFVAsistenteAislada registro;
    registro.adCantidad.Add(3.0);
    registro.acsModelo.Add(L"A#B");
    registro.iPanelesPorFila = 9;
    registro.dPotenciaSalidaCA = 77.0;
    ValoresAislada v;
    TomarDelRegistro(v, registro);
    EXPECT_TRUE(v.adCantidad.IsEmpty());
    EXPECT_EQ(v.dPanelesPorFila, 9.0);
    v.dPanelesPorFila = 12.9;
    v.csPanel = L"C#D";
    v.dPotenciaSalidaCA = 1.0;
    DevolverAlRegistro(v, registro);
    EXPECT_EQ(registro.iPanelesPorFila, 12);
    EXPECT_EQ(registro.csPanel, L"C#D");
    EXPECT_EQ(registro.dPotenciaSalidaCA, 77.0);
    EXPECT_EQ(registro.acsModelo, (CStringArray{L"A#B"}));
}

}  // namespace
