// Tables, sections and drops of cables against vectores.csv, which vectores.py writes from tables typed a
// second time and in exact fractions; and what stands at the edges of the tables.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <quorvel/cables.h>
#include <quorvel/cables_calculo.h>

#include "comun/ficheros.h"
#include "electrical/cables.h"

namespace {

using namespace efv::electrical;
using efv::pruebas::LeerCsv;
using Fila = std::vector<std::string>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

template <class PROBAR>
int ConCadaFila(const std::string& clase, PROBAR probar)
{
    int n = 0;
    for (const Fila& fila : LeerCsv("electrical/cables/vectores.csv")) {
        if (fila[0] != clase)
            continue;
        probar(fila, testing::PrintToString(fila));
        ++n;
    }
    return n;
}

int Entero(const Fila& fila, std::size_t i)
{
    return std::stoi(fila.at(i));
}

double Doble(const Fila& fila, std::size_t i)
{
    return std::stod(fila.at(i));
}

TEST(TablasDeCables, SonLasDeUnaSegundaLectura)
{
    EXPECT_EQ(ConCadaFila("corrientes",
                          [](const Fila& fila, const std::string& caso) {
                              const auto& columnas =
                                  Entero(fila, 1) == 0 ? kCorrientesCobre : kCorrientesAluminio;
                              ASSERT_EQ(fila.size(), 3 + kSeccionesNormales) << caso;
                              for (std::size_t s = 0; s < kSeccionesNormales; ++s)
                                  EXPECT_EQ(columnas.at(std::stoul(fila[2])).at(s), Doble(fila, 3 + s)) << caso;
                          }),
              32);
    EXPECT_EQ(ConCadaFila("factores",
                          [](const Fila& fila, const std::string& caso) {
                              const CasoCable base{.iMetodo = Entero(fila, 1) == 1 ? 5 : 0,
                                                   .iAislante = Entero(fila, 2)};
                              for (std::size_t k = 3; k < fila.size(); ++k) {
                                  CasoCable cable = base;
                                  cable.dTemperatura = 10.0 + 5.0 * static_cast<double>(k - 3);
                                  EXPECT_NEAR(FactorTemperatura(cable), Doble(fila, k), 1e-15) << caso;
                              }
                              CasoCable fuera = base;
                              fuera.dTemperatura = 10.1 + 5.0 * static_cast<double>(fila.size() - 4);
                              EXPECT_EQ(FactorTemperatura(fuera), 0.0) << caso;
                          }),
              10);
    EXPECT_EQ(ConCadaFila("columna",
                          [](const Fila& fila, const std::string& caso) {
                              const CasoCable cable{.iMetodo = Entero(fila, 1),
                                                    .iAislante = Entero(fila, 2),
                                                    .bTrifasico = Entero(fila, 3) != 0};
                              EXPECT_EQ(CorrientesDe(cable), &kCorrientesCobre.at(std::stoul(fila[4]))) << caso;
                          }),
              90);
    EXPECT_EQ(ConCadaFila("referencia",
                          [](const Fila& fila, const std::string& caso) {
                              EXPECT_EQ(phCalcSeccCorriente(Doble(fila, 1)), Doble(fila, 2)) << caso;
                              EXPECT_EQ(phGetSeccProx(Doble(fila, 2)), Doble(fila, 2)) << caso;
                          }),
              16);
}

TEST(SeccionDeCable, DaLosVectores)
{
    EXPECT_EQ(ConCadaFila("cable",
                          [](const Fila& fila, const std::string& caso) {
                              EXPECT_EQ(phGetSeccionCable(Entero(fila, 1), Entero(fila, 2), Entero(fila, 3),
                                                          Entero(fila, 4), Doble(fila, 5), Doble(fila, 6)),
                                        Doble(fila, 7))
                                  << caso;
                          }),
              600);
}

// By hand, from the tables.
TEST(SeccionDeCable, EnElBordeDeLasTablas)
{
    EXPECT_EQ(phGetSeccionCable(0, 0, 0, 0, 30, 14), 1.5);
    EXPECT_EQ(phGetSeccionCable(0, 0, 0, 0, 9, 14.5 * 1.22), 1.5);  // below 10 ºC as at 10 ºC
    EXPECT_EQ(phGetSeccionCable(1, 0, 0, 1, 30, 68), 25);
    EXPECT_EQ(phGetSeccionCable(1, 0, 0, 1, 30, 68.000002), 0);  // the column ends at 25 mm²
    EXPECT_EQ(phGetSeccionCable(1, 0, 0, 1, 30, 68.0000005), 25);
    EXPECT_EQ(phGetSeccionCable(0, 0, 0, 0, 65, 1), 0);  // PVC bears no 65 ºC
    EXPECT_NEAR(FactorTemperatura({.dTemperatura = 62.5}), 0.25, 1e-15);
    EXPECT_NE(phGetSeccionCable(0, 0, 4, 0, 95.0000005, 1), 0);  // on the last entry
    EXPECT_EQ(phGetSeccionCable(0, 0, 4, 0, 95.000002, 1), 0);
    EXPECT_EQ(phGetSeccionCable(0, 0, 0, 0, 64.9999999, 0), 0);  // a factor of almost 0 divides nothing
    EXPECT_EQ(phGetSeccionCable(0, 0, 5, 0, 30, 1), 0);          // no such insulation in air,
    EXPECT_EQ(phGetSeccionCable(5, 0, 5, 0, 20, 26), 1.5);       // in the ground it counts as XLPE
    EXPECT_EQ(phGetSeccionCable(9, 0, 0, 0, 30, 1), 0);
    EXPECT_EQ(phGetSeccionCable(0, 0, 0, 0, kNan, 1), 0);
    EXPECT_EQ(phGetSeccionCable(0, 0, 0, 0, 30, kNan), 0);
    // Aluminium has no 1.5 mm², yet its zero matches a current of 0, and is more than a negative one.
    EXPECT_EQ(phGetSeccionCable(1, 1, 0, 1, 30, 13.5), 2.5);
    EXPECT_EQ(phGetSeccionCable(1, 1, 0, 1, 30, 0), 1.5);
    EXPECT_EQ(phGetSeccionCable(1, -7, 0, 1, 30, -1), 1.5);
    EXPECT_EQ(phGetSeccProx(7), 10);
    EXPECT_EQ(phGetSeccProx(301), 0);
    EXPECT_EQ(phCalcSeccCorriente(14), 2.5);
    EXPECT_EQ(phCalcSeccCorriente(329), 0);
}

TEST(CaidaDeTension, DaLosVectores)
{
    using Cinco = double (*)(double, double, double, double, double);
    using Seis = double (*)(double, double, double, double, double, double);
    const auto cinco = [](Cinco f, const Fila& x) {
        return f(Doble(x, 3), Doble(x, 4), Doble(x, 5), Doble(x, 6), Doble(x, 7));
    };
    const auto seis = [](Seis f, const Fila& x) {
        return f(Doble(x, 3), Doble(x, 4), Doble(x, 5), Doble(x, 6), Doble(x, 7), Doble(x, 8));
    };
    EXPECT_EQ(ConCadaFila("formula",
                          [&](const Fila& fila, const std::string& caso) {
                              const bool bTres = Entero(fila, 2) == 3;
                              double d = kNan;
                              switch (Entero(fila, 1)) {
                                  case 1:
                                      d = cinco(bTres ? phGetSection1T : phGetSection1, fila);
                                      break;
                                  case 2:
                                      d = seis(bTres ? phGetSection2T : phGetSection2, fila);
                                      break;
                                  case 3:
                                      d = seis(bTres ? phGetSection3T : phGetSection3, fila);
                                      break;
                                  default:
                                      d = cinco(bTres ? phGetSection4T : phGetSection4, fila);
                                      EXPECT_EQ(d, cinco(bTres ? phGetCaidaTensionT : phGetCaidaTension, fila));
                              }
                              const double dEsperado = Doble(fila, fila.size() - 1);
                              // Two voltages 2.5 % apart lose some digits in their difference.
                              EXPECT_NEAR(d, dEsperado, 1e-12 * dEsperado) << caso;
                          }),
              240);
    EXPECT_TRUE(std::isinf(phGetSection4(10, 5, 1, 0, 50)));
}

TEST(TramoDeCable, DaLosVectores)
{
    EXPECT_EQ(ConCadaFila("tramo",
                          [](const Fila& fila, const std::string& caso) {
                              const TramoCable tramo{.dLongitud = Doble(fila, 9),
                                                     .dCorriente = Doble(fila, 10),
                                                     .dTension = Doble(fila, 11),
                                                     .dCosFi = Doble(fila, 12),
                                                     .bTrifasico = Entero(fila, 4) != 0,
                                                     .iMetodo = Entero(fila, 1),
                                                     .iMaterial = Entero(fila, 2),
                                                     .iAislante = Entero(fila, 3),
                                                     .dTemperatura = Doble(fila, 5),
                                                     .dTemperaturaConductor = Doble(fila, 6),
                                                     .iConductoresFase = Entero(fila, 7),
                                                     .dMargen = Doble(fila, 8),
                                                     .dLimiteCaida = Doble(fila, 13)};
                              const TramoCalculado c = Dimensionar(tramo);
                              EXPECT_EQ(c.dPorCorriente, Doble(fila, 14)) << caso;
                              EXPECT_NEAR(c.dMinimaPorCaida, Doble(fila, 15), 1e-9 * Doble(fila, 15)) << caso;
                              EXPECT_EQ(c.dPorCaida, Doble(fila, 16)) << caso;
                              EXPECT_EQ(c.dSeccion, Doble(fila, 17)) << caso;
                              EXPECT_NEAR(c.dAdmisible, Doble(fila, 18), 1e-9) << caso;
                              EXPECT_NEAR(c.dCaida, Doble(fila, 19), 1e-9) << caso;
                              EXPECT_EQ(c.Cumple(), Doble(fila, 17) > 0) << caso;
                          }),
              150);
}

// 20 A, B1, copper, XLPE, two conductors: 23 A at 1.5 mm² and 31 A at 2.5 mm². γ of copper at 90 ºC is
// 1/(0.018·(1 + 70·0.00392)) = 43.593; 2·25·20/(43.593·0.015·230) = 6.6490 mm², so 10 mm², at which
// 2·25·20/(43.593·10) = 2.2939 V.
TEST(TramoDeCable, AManoYConLaSeccionImpuesta)
{
    TramoCable tramo{.dLongitud = 25, .dCorriente = 20};
    TramoCalculado c = Dimensionar(tramo);
    EXPECT_EQ(c.dPorCorriente, 1.5);
    EXPECT_NEAR(c.dMinimaPorCaida, 6.6490, 1e-4);
    EXPECT_EQ(c.dSeccion, 10);
    EXPECT_NEAR(c.dCaida, 2.2939, 1e-4);
    EXPECT_EQ(c.dReserva, 75 - 20);
    EXPECT_TRUE(c.Cumple());

    tramo.dSeccion = 6;  // 54 A, and a drop of 1.66 %
    c = Dimensionar(tramo);
    EXPECT_TRUE(c.bCorriente);
    EXPECT_FALSE(c.bCaida);
    EXPECT_NEAR(c.dCaidaPct, 2.2939 / 0.6 / 2.3, 1e-4);
    tramo.iAislante = 0;
    tramo.dTemperatura = 65;  // PVC bears nothing there
    c = Dimensionar(tramo);
    EXPECT_FALSE(c.bCorriente);
    EXPECT_EQ(c.dAdmisible, 0);
    tramo.dSeccion.reset();
    EXPECT_EQ(Dimensionar(tramo).dSeccion, 0);
    EXPECT_NEAR(CorrienteDePotencia(9900, 400, 0.9, true), 15.8771, 1e-4);
    // Aluminium has no 1.5 mm², whatever little flows.
    EXPECT_EQ(Dimensionar({.dCorriente = 1e-9, .iMaterial = 1}).dSeccion, 2.5);
}

TEST(Conductividad, BajaConLaTemperatura)
{
    EXPECT_EQ(phGetConductividadCobre(20), 1 / 0.018);
    EXPECT_EQ(phGetConductividadAluminio(20), 1 / 0.029);
    // 50 K above: 1 + 50 · 0.00392 = 1.196; 1 / (1.196 · 0.018) = 46.4511...
    EXPECT_NEAR(phGetConductividadCobre(70), 46.451133407655, 1e-11);
    EXPECT_EQ(phGetConductividad(-500, 0.02, 0.004), phGetConductividad(-273.15, 0.02, 0.004));
}

TEST(PerdidasDeBateria, PorLaFormula)
{
    // At 20 ºC: 0.56 + 0.002 + 0.4 = 0.962.
    EXPECT_NEAR(phCalcKa_(20, 0.005), 0.00481, 1e-17);
    // 1 - (1 - 0.18) · 0.00481 · 3 / 0.4 - 0.18
    EXPECT_NEAR(phCalcR(0.00481, 0.05, 0.01, 0.12, 0.4, 3), 0.7904185, 1e-15);
}

TEST(VocabularioDeCables, LosIndicesDesconocidosNoTienenNombreSalvoLosMateriales)
{
    CString cs = L"x";
    EXPECT_STREQ(phGetCsTipoTramo(9, cs), L"Tramo Inversor-Red");
    EXPECT_STREQ(phGetCsTipoInstalacion(8, cs), L"F");
    EXPECT_STREQ(phGetCsTipoInstalacionLT(5, cs), L"D1: Cable multipolar en conductos en el suelo");
    EXPECT_STREQ(phGetCsTipoAislante(3, cs), L"CADA");
    EXPECT_STREQ(phGetCsTipoAislanteLT(1, cs), L"XLPE (Polietileno reticulado)");
    EXPECT_STREQ(phGetCsTipoMatCable(0, cs), L"Cu");
    EXPECT_STREQ(phGetCsTipoMatCableLT(-3, cs), L"Aluminio (Al)");
    EXPECT_EQ(cs, L"Aluminio (Al)");
    for (const auto funcion : {phGetCsTipoTramo, phGetCsTipoInstalacion, phGetCsTipoInstalacionLT,
                               phGetCsTipoAislante, phGetCsTipoAislanteLT}) {
        for (const int i : {-1, 10, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
            cs = L"x";
            EXPECT_STREQ(funcion(i, cs), L"");
            EXPECT_TRUE(cs.empty());
        }
    }
}

}  // namespace
