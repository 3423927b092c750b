// Tables, sections and drops of cables against vectores.csv, which vectores.py writes from tables typed a
// second time and in exact fractions; and what stands at the edges of the tables.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <quorvel/cables.h>

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
