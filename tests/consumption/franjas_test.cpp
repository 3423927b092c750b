#include "consumption/franjas.h"
#include "consumption/franjas_texto.h"

#include <numeric>

#include <gtest/gtest.h>

#include "comun/ficheros.h"

namespace {

using namespace efv::consumption;
using Banda = std::array<double, 6>;

struct Lecturas {
    double dUso, dMostradas, dFracciones;
    int nMinutos;  // of the chart
};

Lecturas Leer(const Banda& f)
{
    const auto fracciones = FraccionesDelDia(f);
    Lecturas l{HorasDeUso(f), HorasMostradas(f), std::accumulate(fracciones.begin(), fracciones.end(), 0.0), 0};
    for (int m = 0; m < 1440; ++m)
        l.nMinutos += EnUsoAlMinuto(f, m) ? 1 : 0;
    return l;
}

void Esperar(const Banda& f, double dUso, double dMostradas, double dFracciones, int nMinutos)
{
    const Lecturas l = Leer(f);
    EXPECT_DOUBLE_EQ(l.dUso, dUso) << f[2];
    EXPECT_DOUBLE_EQ(l.dMostradas, dMostradas) << f[2];
    EXPECT_DOUBLE_EQ(l.dFracciones, dFracciones) << f[2];
    EXPECT_EQ(l.nMinutos, nMinutos) << f[2];
}

// Worked by hand; each line is a case in which the readings part.
TEST(Franjas, CadaLecturaTieneSuRegla)
{
    Esperar({0, 0, 0, 0, 0, 0}, 0, 0, 0, 0);
    Esperar({0, 0, 480, 600, 0, 0}, 0, 2, 2, 121);          // an empty first band stops the sum of use only
    Esperar({480, 600, 540, 660, 0, 0}, 2, 2, 2, 121);      // the second starts inside the first
    Esperar({480, 600, 660, 780, 720, 840}, 6, 4, 4, 242);  // the third inside the second
    Esperar({480, 600, 0, 0, 540, 660}, 2, 4, 2, 121);      // the third inside the first, the second empty
    Esperar({600, 480, 660, 720, 780, 840}, 0, 0, 2, 122);  // the first backwards
    Esperar({480, 600, 600, 660, 660, 720}, 4, 4, 4, 241);  // touching bands share a minute in the chart
    Esperar({1410, 1440, 0, 0, 0, 0}, 0.5, 0.5, 0.5, 30);   // 24:00 is a valid end; there is no minute 1440
}

TEST(Franjas, UnaHoraEmpiezaDentroYAcabaFuera)
{
    const Banda f = {510, 600, 610, 620, 650, 660};
    EXPECT_DOUBLE_EQ(FraccionDeHora(f, 8), 0.5);
    EXPECT_DOUBLE_EQ(FraccionDeHora(f, 9), 1.0);
    EXPECT_DOUBLE_EQ(FraccionDeHora(f, 10), 20.0 / 60.0);
    EXPECT_DOUBLE_EQ(FraccionDeHora(f, 11), 0.0);
}

// vectores.csv comes from vectores.py, an independent program in exact fractions. The quick count of a whole
// day must be the count minute by minute, bit for bit.
TEST(Franjas, LasCuatroLecturasDanLosVectores)
{
    int casos = 0;
    for (const auto& fila : efv::pruebas::LeerCsv("consumption/vectores.csv")) {
        if (fila[0] != "franjas")
            continue;
        ++casos;
        Banda f;
        for (std::size_t i = 0; i < 6; ++i)
            f[i] = std::stod(fila[1 + i]);
        SCOPED_TRACE(testing::PrintToString(f));
        EXPECT_NEAR(HorasDeUso(f), std::stod(fila[7]), 1e-9);
        EXPECT_NEAR(HorasMostradas(f), std::stod(fila[8]), 1e-9);
        EXPECT_EQ(Leer(f).nMinutos, std::stoi(fila[9]));
        const auto fracciones = FraccionesDelDia(f);
        for (std::size_t h = 0; h < 24; ++h) {
            EXPECT_EQ(fracciones[h], std::stoi(fila[10 + h]) / 60.0) << h;
            EXPECT_EQ(fracciones[h], FraccionDeHora(f, static_cast<int>(h))) << h;
        }
    }
    EXPECT_EQ(casos, 2000);
}

// Bounds that no dialog writes but an archive may hold.
TEST(Franjas, LosLimitesDescabelladosNoRompenLaCuentaRapida)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinito = std::numeric_limits<double>::infinity();
    for (const Banda& f : {Banda{nan, 600, 700, nan, 800, 900}, Banda{-5, 30, 1e300, 1e301, 0, 0},
                           Banda{-infinito, infinito, 0, 0, 0, 0}, Banda{0, 1e9, 1e9, 2e9, 2e9, 3e9},
                           Banda{-100, -50, -50, 10, 10, 20}, Banda{0, 0, nan, nan, 60, 120}}) {
        const auto fracciones = FraccionesDelDia(f);
        for (std::size_t h = 0; h < 24; ++h)
            EXPECT_EQ(fracciones[h], FraccionDeHora(f, static_cast<int>(h))) << f[0] << ' ' << h;
    }
}

TEST(Franjas, SeLeenComoSeEscriben)
{
    struct Caso {
        const wchar_t* texto;
        const wchar_t* franjas;  // as they are written; empty: not understood
    };
    for (const Caso& caso : {
             Caso{L"08:00-12:00; 18:00-22:00", L"08:00-12:00; 18:00-22:00"},
             Caso{L" de 18 a 22 y de 8 h a 12.30 h ", L"08:00-12:30; 18:00-22:00"},
             Caso{L"0–24", L"00:00-24:00"},
             Caso{L"22:00-6:15", L"00:00-06:15; 22:00-24:00"},
             Caso{L"8-10,10-12", L"08:00-10:00; 10:00-12:00"},
             Caso{L"8-12;11-13", L""},
             Caso{L"8-8", L""},
             Caso{L"8-25", L""},
             Caso{L"8:60-9", L""},
             Caso{L"24:01-2", L""},
             Caso{L"8 12", L""},
             Caso{L"1-2;3-4;5-6;7-8", L""},
             Caso{L"22-2;3-4;5-6", L""},
             Caso{L"800-900", L""},
         }) {
        const auto leidas = LeerFranjas(caso.texto);
        EXPECT_EQ(leidas.franjas ? TextoDeFranjas(*leidas.franjas) : CString(), caso.franjas)
            << efv::CadenaUtf8(caso.texto);
        EXPECT_EQ(leidas.csFallo.empty(), leidas.franjas.has_value());
    }
    EXPECT_EQ(LeerFranjas(L"").franjas, (std::array<double, 6>{}));
}

}  // namespace
