#include <algorithm>
#include <array>
#include <map>

#include <gtest/gtest.h>

#include <quorvel/solar.h>

#include "comun/avisos.h"
#include "comun/ficheros.h"

namespace {

using namespace efv;

using Doce = std::array<double, 12>;

/// Text of a row; factors from the first on, the others as the file lacks them.
std::string Alpha(const std::string& ph, const std::vector<double>& k)
{
    std::string texto = "<Alpha Ph='" + ph + "'";
    for (std::size_t m = 0; m < k.size(); ++m)
        texto += std::string(" K") + static_cast<char>('a' + m) + "='" + std::to_string(k[m]) + "'";
    return texto + "/>";
}

/// The same factor all year.
std::string Alpha(const std::string& ph, double k)
{
    return Alpha(ph, std::vector<double>(12, k));
}

std::string Latitud(const std::string& lat, const std::string& filas)
{
    return "<Latitud Lat='" + lat + "'>" + filas + "</Latitud>";
}

/// All 19 inclinations, the factor being `base` plus a thousandth of the inclination.
std::string Malla(double base)
{
    std::string filas;
    for (int a = 0; a <= 90; a += 5)
        filas += Alpha(std::to_string(a), base + a / 1000.0);
    return filas;
}

class FactorK : public ::testing::Test {
protected:
    int Cargar(const std::string& latitudes)
    {
        return phCargarBaseFactorK(
            carpeta.Escribir("k.xml", "<Q><TablaFactoresK>" + latitudes + "</TablaFactoresK></Q>"));
    }

    /// The factor of January, expected equal in all months; -1 when the query fails.
    static double K(double dLatitud, double dAlpha, int iHemisferio = 1)
    {
        double adK[12];
        std::ranges::fill(adK, -1.0);
        const int iExito = phGetDataFactorK(dLatitud, iHemisferio, dAlpha, adK);
        EXPECT_EQ(iExito == 1, adK[0] != -1.0);
        EXPECT_TRUE(std::ranges::all_of(adK, [&](double k) { return k == adK[0]; }));
        return adK[0];
    }

    ~FactorK() override { phGetBaseFactorK().Vaciar(); }

    pruebas::CarpetaTemporal carpeta;
    pruebas::Avisos avisos;
};

// vectores.csv comes from vectores.py, an independent program.
TEST_F(FactorK, LaInterpolacionDaLosVectores)
{
    std::map<std::string, std::string> tabla;
    const auto vectores = pruebas::LeerCsv("solar/vectores.csv");
    for (const auto& fila : vectores) {
        if (fila[0] != "fila")
            continue;
        std::vector<double> k;
        std::transform(fila.begin() + 3, fila.end(), std::back_inserter(k),
                       [](const auto& t) { return std::stod(t); });
        tabla[fila[1]] += Alpha(fila[2], k);
    }
    std::string latitudes;
    for (const auto& [lat, filas] : tabla)
        latitudes += Latitud(lat, filas);
    ASSERT_EQ(Cargar(latitudes), 1);
    int casos = 0;
    for (const auto& fila : vectores) {
        if (fila[0] != "k")
            continue;
        ++casos;
        double adK[12] = {};
        ASSERT_EQ(phGetDataFactorK(std::stod(fila[1]), 1, std::stod(fila[2]), adK), 1);
        EXPECT_NEAR(adK[std::stoi(fila[3])], std::stod(fila[4]), 1e-12) << fila[1] << " " << fila[2];
    }
    EXPECT_EQ(casos, 80);
}

TEST_F(FactorK, FueraDeLasLatitudesFallaSinEscribir)
{
    ASSERT_EQ(Cargar(Latitud("40", Malla(1))), 1);
    EXPECT_DOUBLE_EQ(K(40, 35), 1.035);
    EXPECT_DOUBLE_EQ(K(-40, 35), 1.035);  // only the magnitude counts
    EXPECT_EQ(K(39.99, 35), -1);
    EXPECT_EQ(K(40, 35, 2), -1);  // the south looks for negative latitudes
    EXPECT_DOUBLE_EQ(K(40.0000005, 35), 1.035);
    phGetBaseFactorK().Vaciar();
    EXPECT_EQ(K(40, 35), -1);
}

TEST_F(FactorK, FueraDeLasInclinacionesDaCero)
{
    ASSERT_EQ(Cargar(Latitud("40", Malla(1)) + Latitud("41", Malla(2))), 1);
    EXPECT_EQ(K(40.5, 92), 0);
    EXPECT_EQ(K(40.5, -1), 0);
    EXPECT_DOUBLE_EQ(K(40.5, 90), 1.59);
}

TEST_F(FactorK, DeDosFilasIgualesValeLaUltima)
{
    ASSERT_EQ(Cargar(Latitud("40", Malla(1)) + Latitud("40", Malla(2))), 1);
    EXPECT_DOUBLE_EQ(K(40, 10), 2.01);
    ASSERT_EQ(Cargar(Latitud("40", Malla(1) + Alpha("10", 7))), 1);
    EXPECT_DOUBLE_EQ(K(40, 10), 7);
}

// The bracket of inclinations of the upper latitude goes on into the lower one: its rows stay where
// the lower latitude has none as near.
TEST_F(FactorK, LaHorquillaDeInclinacionesPasaALaSegundaLatitud)
{
    Cargar(Latitud("41", Alpha("10", 2) + Alpha("20", 3)) + Latitud("40", Alpha("0", 5) + Alpha("90", 6)));
    // Both latitudes give the value of 41's rows at 15.
    EXPECT_DOUBLE_EQ(K(40.5, 15), 2.5);
    // The upper latitude has no bracket at 50 (nothing above): it counts 0, and 20 stays the row below.
    // In the lower one 90 is the row above: (3 − 6) · (50 − 90)/(20 − 90) + 6.
    EXPECT_DOUBLE_EQ(K(40.5, 50), (0 + (3.0 - 6.0) * (50.0 - 90.0) / (20.0 - 90.0) + 6.0) / 2);
}

TEST_F(FactorK, ElMetodoDeTablaNoAplicaRendimientoYCuenta29EnFebrero)
{
    ASSERT_EQ(Cargar(Latitud("40", Malla(1))), 1);
    double d = 0;
    EXPECT_EQ(phGetRI_kWh_m2_dia(d, 1, 3, 40, 1, 18000, 50, 0, 0.5, 0.5), 1);
    EXPECT_DOUBLE_EQ(d, 18000 * 1.05 / 3600);
    EXPECT_EQ(phGetEIR_kWh_dia(d, 7, 3, 40, 1, 18000, 50, 0, 2, 0.5, 0.5), 1);
    EXPECT_DOUBLE_EQ(d, 18000 * 2 * 1.05 * 0.000278);
    EXPECT_EQ(phGetEIR_kWh_mes(d, 1, 1, 40, 1, 10000, 50, 0, 1, 1, 1), 1);
    EXPECT_DOUBLE_EQ(d, 10000 * 1.05 * 0.000278 * 29);
    double h[12];
    std::ranges::fill(h, 10000.0);
    EXPECT_EQ(phGetEIR_kWh_ano(d, 1, 40, 1, h, 50, 0, 1, 1, 1), 1);
    EXPECT_NEAR(d, 10000 * 1.05 * 0.000278 * 366, 1e-9);
    // A failed year leaves the sum so far; the others leave their result alone.
    EXPECT_EQ(phGetEIR_kWh_ano(d, 1, 50, 1, h, 50, 0, 1, 1, 1), 0);
    EXPECT_EQ(d, 0);
    d = 4;
    EXPECT_EQ(phGetEIR_kJ_mes(d, 1, 1, 50, 1, 10000, 50, 0, 1, 1, 1), 0);
    EXPECT_EQ(d, 4);
}

TEST_F(FactorK, LosHuecosSeMuestranYLaTablaSigueUtil)
{
    std::string filas = Malla(1);
    const std::string hueco = Alpha("35", 1.035);
    filas.erase(filas.find(hueco), hueco.size());
    EXPECT_EQ(Cargar(Latitud("36", Malla(1)) + Latitud("40 N", filas)), 0);
    ASSERT_EQ(avisos.Mostrados().size(), 1U);
    EXPECT_EQ(avisos.Mostrados()[0].mensaje.csTexto,
              L"Incoherencias en los datos:\nLat: 40 N falta datos para Alpha: 35.00º\n");
    EXPECT_DOUBLE_EQ(K(40, 35), 1.035);  // between 30 and 40
    EXPECT_NE(phGetBaseFactorK().GetCargada(), 0);
}

TEST_F(FactorK, UnaFilaSinAtributosConservaLosDeLaAnterior)
{
    Cargar(Latitud("x", Alpha("0", 3) + "<Alpha Ph='5' Kb='4'/><Otro/>") + "<Nada/>");
    const CBaseFactorKAlpha* fila = phGetBaseFactorK().BuscarAlpha(L"nadie la compara", L"5");
    ASSERT_NE(fila, nullptr);
    EXPECT_EQ(fila->FactorKa(), 3);
    EXPECT_EQ(fila->FactorKb(), 4);
    EXPECT_EQ(fila->FactorKl(), 3);
    EXPECT_DOUBLE_EQ(K(0, 0), 3);  // a latitude that is no number counts as 0
    EXPECT_EQ(phGetBaseFactorK().BuscarAlpha(L"x", L"5.0"), nullptr);
    Doce k{};
    EXPECT_EQ(phGetBaseFactorK().GetFactoresKExacto(L"", L"7", k[0], k[1], k[2], k[3], k[4], k[5], k[6], k[7],
                                                    k[8], k[9], k[10], k[11]),
              0);
    EXPECT_EQ(phGetBaseFactorK().GetFactoresKExacto(L"", L"5", k[0], k[1], k[2], k[3], k[4], k[5], k[6], k[7],
                                                    k[8], k[9], k[10], k[11]),
              1);
    EXPECT_EQ(k[1], 4);
}

TEST_F(FactorK, UnaCargaFallidaVaciaSinAviso)
{
    ASSERT_EQ(Cargar(Latitud("40", Malla(1))), 1);
    EXPECT_EQ(phCargarBaseFactorK(L"/no/existe.xml"), 0);
    EXPECT_TRUE(phGetBaseFactorK().EstaVacia());
    EXPECT_TRUE(avisos.Mostrados().empty());
    // Without a table the document is well formed and the table empty and coherent.
    EXPECT_EQ(phCargarBaseFactorK(carpeta.Escribir("v.xml", "<Q><Otra/></Q>")), 1);
    EXPECT_TRUE(phGetBaseFactorK().EstaVacia());
}

// A long text carried over to many rows must not multiply without limit.
TEST_F(FactorK, UnFicheroPequenoNoSeHaceEnorme)
{
    std::string filas = Alpha(std::string(4 << 20, 'a'), 1);
    for (int i = 0; i < 1000; ++i)
        filas += "<Alpha/>";
    EXPECT_EQ(Cargar(Latitud("40", filas)), 0);
    EXPECT_TRUE(phGetBaseFactorK().EstaVacia());
    EXPECT_TRUE(avisos.Mostrados().empty());
}

TEST_F(FactorK, LlenaElArbol)
{
    Cargar(Latitud("36", Alpha("0", 1) + Alpha("5", 1)) + Latitud("37", ""));
    CTreeCtrl arbol;
    arbol.InsertItem(L"viejo", 0, nullptr);
    phGetBaseFactorK().LlenarArbol(arbol);
    ASSERT_EQ(arbol.Raices().size(), 2U);
    EXPECT_EQ(arbol.Raices()[0]->csTexto, L"36");
    EXPECT_TRUE(arbol.Raices()[0]->bExpandido);
    ASSERT_EQ(arbol.Raices()[0]->aHijos.size(), 2U);
    EXPECT_EQ(arbol.Raices()[0]->aHijos[1]->iImagen, 1);
    EXPECT_EQ(phGetBaseFactorK().BuscarAlpha(L"", L"5")->GetItem(), arbol.Raices()[0]->aHijos[1].get());
}

// The shipped table: every capital of Spain and both hemispheres find their factors.
TEST_F(FactorK, LaTablaQueSeEntregaEsCoherente)
{
    ASSERT_EQ(phCargarBaseFactorK(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/ZqFactorKHE5.xml")), 1);
    double adK[12] = {};
    EXPECT_EQ(phGetDataFactorK(40.4, 1, 33, adK), 1);
    EXPECT_GT(adK[0], 1.3);
    EXPECT_LT(adK[5], 1.05);
    double adSur[12] = {};
    EXPECT_EQ(phGetDataFactorK(40.4, 2, 33, adSur), 1);
    EXPECT_NEAR(adSur[6], adK[0], 0.15);
}

}  // namespace
