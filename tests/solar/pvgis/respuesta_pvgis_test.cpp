// Answers of the service against vectores.py, line by line, and what broken ones give.
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include <quorvel/solar/pvgis.h>
#include "comun/ficheros.h"

namespace {

using namespace efv::solar;

constexpr const char* kCabecera =
    "Latitude (decimal degrees): 40.400\r\nLongitude (decimal degrees): -3.700\r\nElevation (m): 652.0\r\n"
    "month,year\r\n1,2005\r\ntime(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP\r\n";

TEST(RespuestaPvgis, CadaFilaDelRegistroContraElProgramaIndependiente)
{
    std::string respuesta = kCabecera;
    std::string esperado = "Casa Ñ 3\r\n41.000000\t-3.700000\t652.0\r\n";
    int iFilas = 0;
    for (auto fila : efv::pruebas::LeerCsv("solar/pvgis/vectores.csv")) {
        if (fila[0] != "fila")
            continue;
        std::ranges::replace(fila[1], ' ', ',');
        std::ranges::replace(fila[2], ' ', '\t');
        respuesta += fila[1] + "\r\n";
        esperado += fila[2] + "\r\n";
        ++iFilas;
    }
    ASSERT_EQ(iFilas, 200);
    // The heading has the caller's latitude, the sun the answer's.
    const RegistroConvertido registro = ConvertirAnoTipico(respuesta, "Casa Ñ", 41.0, 2.6);
    EXPECT_EQ(registro.iFilas, 200);
    EXPECT_EQ(registro.texto, esperado);
}

TEST(RespuestaPvgis, FilasRotasYDeMasNoRompenNada)
{
    const auto filas = [](const std::string& texto) {
        return ConvertirAnoTipico(kCabecera + texto, "x", 0, 0).iFilas;
    };
    EXPECT_EQ(filas(""), 0);
    EXPECT_EQ(filas("\r\n20\r\n,,,,\r\n20079999:9999,1,2\r\nPVGIS (c) European Union\r\n"), 5);
    std::string larga;
    for (int i = 0; i < 9000; ++i)
        larga += "20070101:0010,10.0,50.0,0,0,0,300,1,180,95000\n";
    EXPECT_EQ(filas(larga), 8760);
    EXPECT_EQ(ConvertirAnoTipico("{\"message\":\"Location over the sea\"}", "x", 0, 0).texto, "");
}

TEST(RespuestaPvgis, MediasMensuales)
{
    constexpr const char* kMeses[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (const auto& fila : efv::pruebas::LeerCsv("solar/pvgis/vectores.csv")) {
        if (fila[0] != "mes")
            continue;
        std::string respuesta = "Latitude: 40\r\nyear\t\tmonth\t\tH(h)_m\r\n";
        for (int y = 0; y < 17; ++y)
            for (int m = 0; m < 12; ++m)
                respuesta += std::to_string(2005 + y) + "\t\t" + kMeses[m] + "\t\t" +
                             std::to_string(((std::stoi(fila[1]) * 31 + y * 12 + m) % 97) * 2.25) + "\r\n";
        respuesta += "\r\nH(h)_m: Irradiation\r\nPVGIS (c) European Union\r\n";
        const auto medias = RadiacionMensual(respuesta);
        ASSERT_TRUE(medias);
        for (std::size_t m = 0; m < 12; ++m)
            EXPECT_NEAR((*medias)[m], std::stod(fila[m + 2]), 1e-9 * std::stod(fila[m + 2]));
    }
}

TEST(RespuestaPvgis, SeriesCortasYSinFilas)
{
    EXPECT_EQ(RadiacionMensual("nada\n"), std::nullopt);
    EXPECT_EQ(RadiacionMensual("H(h)_m\nabc\t\tJan\t\t5\n2005\t\tEne\t\t5\n"), std::nullopt);
    const auto corta = RadiacionMensual("H(h)_m\n2005\t\tJan\t\t5\n");
    ASSERT_TRUE(corta);
    EXPECT_TRUE(std::isinf((*corta)[0]));
    EXPECT_TRUE(std::isnan((*corta)[1]));
    std::string sinNombre = "H(h)_m\n";
    for (int i = 0; i < 12; ++i)
        sinNombre += "2005\t\t\t\t31\n";  // a month without a name is January
    EXPECT_DOUBLE_EQ((*RadiacionMensual(sinNombre))[0], 12 * 3600.0);
}

}  // namespace
