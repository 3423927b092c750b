#include <quorvel/solar/energia.h>

#include <cmath>

#include <gtest/gtest.h>

#include <quorvel/solar.h>

#include "comun/ficheros.h"

namespace {

using namespace efv;
using namespace efv::solar;

// Factors of 1 + latitude / 100 from 30 to 50 north, whatever month and tilt.
class EnergiaDeCampo : public ::testing::Test {
protected:
    EnergiaDeCampo()
    {
        std::string xml;
        for (const int iLatitud : {30, 50}) {
            xml += "<Latitud Lat='" + std::to_string(iLatitud) + "'>";
            for (const char* alpha : {"0", "90"}) {
                xml += std::string("<Alpha Ph='") + alpha + "'";
                for (const char mes : std::string("abcdefghijkl"))
                    xml += std::string(" K") + mes + "='" + std::to_string(1 + iLatitud / 100.0) + "'";
                xml += "/>";
            }
            xml += "</Latitud>";
        }
        tabla.Cargar(carpeta.Escribir("k.xml", "<Q><TablaFactoresK>" + xml + "</TablaFactoresK></Q>"));
    }

    pruebas::CarpetaTemporal carpeta;
    CBaseFactorK tabla;
    CampoSolar campo{
        .dLatitud = 40.0,
        .adRadHorizontal = {7200, 10800, 14400, 18000, 21600, 25200, 25200, 21600, 18000, 14400, 10800, 7200},
        .dInclinacion = 30.0,
        .dPotencia = 2.0,
        .dPR = 0.75,
        .dFactor = 0.5};
};

// K = 1.4: January 2 · 1.4 = 2.8 kWh/m²·day; × 2 kWp × 0.75 × 0.5 = 2.1 kWh a day, × 31 = 65.1.
// The year: 31·2 + 28·3 + 31·4 + 30·5 + 31·6 + 30·7 +
//   31·7 + 31·6 + 30·5 + 31·4 + 30·3 + 31·2 = 1645 kWh/m² on the horizontal; × 1.4 × 0.75 = 1727.25 kWh.
TEST_F(EnergiaDeCampo, PorLaTablaEsRadiacionPorKPotenciaYRendimiento)
{
    const auto ano = CalcularEnergia(campo, Metodo::tabla, tabla);
    ASSERT_TRUE(ano);
    EXPECT_NEAR(ano->meses[0].dHorizontal, 2.0, 1e-12);
    EXPECT_NEAR(ano->meses[0].dPlano, 2.8, 1e-12);
    EXPECT_NEAR(ano->meses[0].dEnergiaDia, 2.1, 1e-12);
    EXPECT_NEAR(ano->meses[0].dEnergiaMes, 65.1, 1e-12);
    EXPECT_NEAR(ano->Energia(), 1727.25, 1e-9);
    EXPECT_NEAR(ano->HorizontalMedia(), 1645.0 / 365, 1e-12);
    EXPECT_NEAR(ano->EnergiaDiaMedia() * 365, ano->Energia(), 1e-9);
    EXPECT_NEAR(ano->PlanoMedio() * 365 * 2.0 * 0.375, ano->Energia(), 1e-9);

    campo.dLatitud = 60.0;
    EXPECT_FALSE(CalcularEnergia(campo, Metodo::tabla, tabla));
    EXPECT_TRUE(CalcularEnergia(campo, Metodo::correlacion, tabla));
}

// Both methods make the same of a radiation on the plane, which is that of the exported function.
TEST_F(EnergiaDeCampo, PorLaCorrelacionSoloCambiaElPlano)
{
    const auto ano = CalcularEnergia(campo, Metodo::correlacion, tabla);
    ASSERT_TRUE(ano);
    double dRI = 0.0;
    phGetRI_kWh_m2_dia(dRI, 0, 1, 40.0, 1, 10800.0, 30.0, 0.0, 0.5, 0.5);
    EXPECT_EQ(ano->meses[1].dPlano, dRI);
    EXPECT_EQ(ano->meses[1].dEnergiaMes, dRI * 2.0 * 0.75 * 0.5 * 28);
}

// What counts is the hemisphere: the sign of a latitude in the south makes no other field of it.
TEST_F(EnergiaDeCampo, EnElSurElCampoMiraAlNorte)
{
    campo.bNorte = false;
    campo.dLatitud = -40.0;
    const auto conSigno = CalcularEnergia(campo, Metodo::correlacion, tabla);
    campo.dLatitud = 40.0;
    const auto sinSigno = CalcularEnergia(campo, Metodo::correlacion, tabla);
    double dRI = 0.0;
    phGetRI_kWh_m2_dia(dRI, 0, 5, -40.0, 0, 25200.0, -30.0, 0.0, 1.0, 1.0);
    EXPECT_EQ(conSigno->meses[5].dPlano, dRI);
    EXPECT_EQ(sinSigno->meses[5].dPlano, dRI);
    EXPECT_FALSE(CalcularEnergia(campo, Metodo::tabla, tabla));
}

// At 70 degrees the sun doesn't set in June: no value for the month, nor for the year.
TEST_F(EnergiaDeCampo, SinValorDeUnMesNoLoHayDelAno)
{
    campo.dLatitud = 70.0;
    const auto ano = CalcularEnergia(campo, Metodo::correlacion, tabla);
    EXPECT_TRUE(std::isnan(ano->meses[5].dEnergiaMes));
    EXPECT_TRUE(std::isfinite(ano->meses[3].dEnergiaMes));
    EXPECT_TRUE(std::isnan(ano->Energia()));
    EXPECT_TRUE(std::isnan(ano->PlanoMedio()));
}

}  // namespace
