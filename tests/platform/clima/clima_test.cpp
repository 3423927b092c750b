// The sky against vectores.py, and against figures told with the definition of the model.
#include <array>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/clima.h>

#include "comun/ficheros.h"

namespace {

using namespace efv::clima;
using efv::pruebas::CarpetaTemporal;

constexpr std::string_view kHorizonte =
    "Latitude (decimal degrees):\t45\r\nA\tH_hor\r\n-170.0\t12.0\r\n-60 25\n0;8\n45.5,40.0\n0\t99\n480\t3\n";

double Radiacion(double dSitio, double dLatitud, int iMes, int iDia, int iHora, double dParte = 0.0,
                 double dInclinacion = 0.0, double dOrientacion = 0.0, double dTemperatura = 25.0,
                 double dHumedad = 0.5)
{
    return BibliotecaActual().clGetRadiacionSolarTotal(dSitio, dLatitud, iMes, iDia, iHora, dTemperatura,
                                                       dHumedad, dInclinacion, dOrientacion, dParte);
}

std::vector<std::vector<double>> Vectores(const std::string& tipo)
{
    std::vector<std::vector<double>> filas;
    for (const auto& fila : efv::pruebas::LeerCsv("platform/clima/vectores.csv")) {
        if (fila[0] != tipo)
            continue;
        auto& numeros = filas.emplace_back();
        for (std::size_t i = 1; i < fila.size(); ++i)
            numeros.push_back(std::stod(fila[i]));
    }
    return filas;
}

/// Loads what a test needs and unloads it at its end.
class Clima : public testing::Test {
protected:
    ~Clima() override
    {
        CargarHorizonte({}, csError);
        CargarRegistroClimatico({}, csError);
        InstalarBiblioteca(nullptr);
    }
    CarpetaTemporal carpeta;
    CString csError;
};

TEST_F(Clima, HorasYAnosContraElProgramaIndependiente)
{
    for (const auto& v : Vectores("hora"))
        EXPECT_NEAR(Radiacion(v[0], v[1], int(v[2]), int(v[3]), int(v[4]), 0.0, v[7], v[8], v[5], v[6]), v[9],
                    1e-9);
    std::array<double, 372> adTemperaturas{};
    adTemperaturas.fill(25.0);
    for (const auto& v : Vectores("ano")) {
        const SitioCielo sitio{v[0], v[1], 0.5, adTemperaturas};
        std::array<SumasMeses, 1> sumas{};
        BibliotecaActual().SumasDeInclinaciones(sitio, std::array{v[2]}, v[3], sumas);
        EXPECT_NEAR(sumas[0][12] / 1000.0, v[4], 1e-8);
    }
}

// Figures that go with the definition: Madrid at noon of the summer solstice, at ten of the winter one.
TEST_F(Clima, CifrasDeLaDefinicion)
{
    EXPECT_NEAR(Radiacion(650, 40.4, 6, 21, 12), 972.7012340754928, 1e-9);
    EXPECT_NEAR(Radiacion(650, 40.4, 12, 21, 10, 0.0, 35.0, -20.0), 577.5947693741141, 1e-9);
}

TEST_F(Clima, LoQueNoExisteNoRadia)
{
    EXPECT_EQ(Radiacion(650, 40.4, 2, 29, 12), 0.0);
    EXPECT_EQ(Radiacion(650, 40.4, 0, 1, 12), 0.0);
    EXPECT_EQ(Radiacion(650, 40.4, 6, 21, 25), 0.0);
    EXPECT_EQ(Radiacion(650, 40.4, 6, 21, 1), 0.0);
    EXPECT_EQ(Radiacion(650, NAN, 6, 21, 12), 0.0);
    EXPECT_EQ(Radiacion(650, 40.4, 6, 21, 12, 0.0, INFINITY), 0.0);
    EXPECT_EQ(Radiacion(650, 40.4, 6, 21, 12, NAN), 0.0);
    EXPECT_GT(Radiacion(650, 40.4, 6, 21, 12, 0.0, 0, 0, -400.0),
              900.0);                                      // below absolute zero: the least water
    EXPECT_EQ(Radiacion(650, 40.4, 6, 21, 12, 1.0), 0.0);  // nothing stands around
}

TEST_F(Clima, ElHorizonteQuitaLaDirecta)
{
    ASSERT_TRUE(CargarHorizonte(carpeta.Escribir("horizonte.txt", kHorizonte), csError));
    for (const auto& v : Vectores("horizonte"))
        EXPECT_NEAR(Radiacion(v[0], v[1], int(v[2]), int(v[3]), int(v[4]), 1.0, v[5], v[6]), v[7], 1e-9);
    EXPECT_FALSE(CargarHorizonte(carpeta.Escribir("sin.txt", "nada\n"), csError));
    EXPECT_FALSE(CargarHorizonte(carpeta.Escribir("medio.txt", "10\n"), csError));
    EXPECT_EQ(csError, L"línea 1: falta la elevación del acimut 10");
    EXPECT_GT(Radiacion(200, 40.4, 12, 21, 9, 1.0), 0.0);  // the one before stays
}

/// A host's library: only the single operations, ours underneath.
class DeAnfitrion final : public BibliotecaClima {
public:
    explicit DeAnfitrion(BibliotecaClima& propia) : m_propia(propia) {}
    double clGetRadiacionSolarTotal(double a, double b, int c, int d, int e, double f, double g, double h,
                                    double i, double j) override
    {
        return m_propia.clGetRadiacionSolarTotal(a, b, c, d, e, f, g, h, i, j);
    }
    double clGetID(int a, double b, double c) override { return m_propia.clGetID(a, b, c); }

private:
    BibliotecaClima& m_propia;
};

// The batches of our library and the loops over its single calls give the same bits, over sites, temperatures
// that aren't numbers, tilts and horizons.
TEST_F(Clima, LosLotesDanLosMismosBitsQueLasLlamadas)
{
    DeAnfitrion anfitrion(BibliotecaActual());
    const std::vector<double> adInclinaciones = {0.0, 0.2, 17.4, 36.0, 90.0, 120.0, -5.0, 61.0, 33.0};
    std::array<double, 372> adTemperaturas{};
    unsigned semilla = 3;
    const auto azar = [&] { return (semilla = semilla * 1664525U + 1013904223U) / 4294967296.0; };
    for (int i = 0; i < 4; ++i) {
        for (double& t : adTemperaturas)
            t = azar() < 0.05 ? std::nan("") : azar() * 60.0 - 15.0;
        if (i == 2) {
            ASSERT_TRUE(CargarHorizonte(carpeta.Escribir("h.txt", kHorizonte), csError));
        }
        const SitioCielo sitio{azar() * 3000.0, azar() * 180.0 - 90.0, azar(), adTemperaturas};
        const double dOrientacion = azar() * 360.0 - 180.0;
        std::vector<SumasMeses> lote(adInclinaciones.size()), sueltas(adInclinaciones.size());
        BibliotecaActual().SumasDeInclinaciones(sitio, adInclinaciones, dOrientacion, lote);
        anfitrion.SumasDeInclinaciones(sitio, adInclinaciones, dOrientacion, sueltas);
        EXPECT_EQ(lote, sueltas) << i;
        std::vector<double> ano(8760), anoSuelto(8760);
        BibliotecaActual().AnoDelPlano(sitio, 30.0, dOrientacion, std::span<double, 8760>(ano));
        anfitrion.AnoDelPlano(sitio, 30.0, dOrientacion, std::span<double, 8760>(anoSuelto));
        EXPECT_EQ(ano, anoSuelto) << i;
    }
}

/// A climate record with the same radiation in every hour; `cambia` may alter a line.
std::string Registro(const char* segunda, double dSexta, double dSeptima,
                     const std::function<void(int, std::string&)>& cambia = {})
{
    constexpr int kDias[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::string texto = "Lugar 1\r\n" + std::string(segunda) + "\r\n";
    int iHoraAno = 0;
    for (int m = 0; m < 12; ++m)
        for (int d = 1; d <= kDias[m]; ++d)
            for (int h = 1; h <= 24; ++h) {
                std::string linea = std::to_string(m + 1) + "\t" + std::to_string(d) + "\t" +
                                    std::to_string(h) + "\t20.0\t5.0\t" + std::to_string(dSexta) + "\t" +
                                    std::to_string(dSeptima) + "\t0.01\t50\t1\t0\t0\t90";
                if (cambia)
                    cambia(iHoraAno, linea);
                texto += linea + "\r\n";
                ++iHoraAno;
            }
    return texto;
}

// 21 March at the equator's noon hour (12.5 h): n = 80, declination 23.45·sin(364·360/365.25) = -0.504º, hour
// angle 7.5º: cos z = cos(0.504º)·cos(7.5º) = 0.99141. 600 of global and 150 of diffuse give 450/0.99141 of
// direct; a plane at 90º facing south sees cos θ = -sin δ = 0.0088 of it, half the sky and half of 0.2·600.
TEST_F(Clima, UnRegistroEnUnPlanoAMano)
{
    ASSERT_TRUE(CargarRegistroClimatico(carpeta.Escribir("r.txt", Registro("0\t0\t10", 600, 150)), csError));
    const int iHora = (31 + 28 + 20) * 24 + 12;
    EXPECT_NEAR(BibliotecaActual().clGetID(iHora, 0.0, 0.0), 600.0, 1e-9);
    const double dDeclinacion = 23.45 * std::sin(364.0 * 360 / 365.25 * M_PI / 180) * M_PI / 180;
    const double dDirecta = 450.0 / (std::cos(dDeclinacion) * std::cos(7.5 * M_PI / 180));
    EXPECT_NEAR(BibliotecaActual().clGetID(iHora, 90.0, 0.0),
                dDirecta * -std::sin(dDeclinacion) + 150.0 / 2 + 0.2 * 600.0 / 2, 1e-6);
    EXPECT_NEAR(BibliotecaActual().clGetID(0, 90.0, 0.0), 300.0 + 60.0, 1e-9);  // midnight: all of it diffuse
    EXPECT_EQ(BibliotecaActual().clGetID(8760, 0.0, 0.0), 0.0);
    EXPECT_EQ(BibliotecaActual().clGetID(-1, 0.0, 0.0), 0.0);
    EXPECT_EQ(BibliotecaActual().clGetID(12, NAN, 0.0), 0.0);
    // Four values in the second line: a reference climate, whose sixth column is direct.
    ASSERT_TRUE(
        CargarRegistroClimatico(carpeta.Escribir("z.txt", Registro("0\t0\t10\t-15", 450, 150)), csError));
    EXPECT_NEAR(BibliotecaActual().clGetID(iHora, 0.0, 0.0), 600.0, 1e-9);
}

TEST_F(Clima, UnFicheroEpw)
{
    constexpr int kDias[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    std::string texto = "LOCATION,x,y,z,w,v,0.0,0.0,0,10\n";
    for (int i = 0; i < 7; ++i)
        texto += "CABECERA\n";
    for (int m = 0; m < 12; ++m)
        for (int d = 1; d <= kDias[m]; ++d)
            for (int h = 1; h <= 24; ++h)
                texto += "2005," + std::to_string(m + 1) + "," + std::to_string(d) + "," + std::to_string(h) +
                         ",60,?,20,5,50,101325,0,0,300,600,1,150,0\n";
    ASSERT_TRUE(CargarRegistroClimatico(carpeta.Escribir("a.epw", texto), csError));
    EXPECT_NEAR(BibliotecaActual().clGetID((31 + 28 + 20) * 24 + 12, 0.0, 0.0), 600.0, 1e-9);
}

TEST_F(Clima, UnRegistroDanadoSeRechazaConSuLinea)
{
    ASSERT_TRUE(CargarRegistroClimatico(carpeta.Escribir("b.txt", Registro("0\t0\t10", 600, 150)), csError));
    const auto rechazado = [&](const std::string& texto) {
        csError.clear();
        EXPECT_FALSE(CargarRegistroClimatico(carpeta.Escribir("m.txt", texto), csError));
        return csError;
    };
    const auto cambiando = [](int iHora, const char* linea) {
        return Registro("0\t0\t10", 600, 150, [=](int i, std::string& l) {
            if (i == iHora)
                l = linea;
        });
    };
    EXPECT_EQ(rechazado(Registro("x\t0\t10", 1, 1)), L"línea 2: la latitud no es un número");
    EXPECT_EQ(rechazado(cambiando(5, "1\t1\t6\t2\t1\t6\t1")), L"línea 8: hay 7 columnas y se esperaban 13");
    EXPECT_EQ(rechazado(cambiando(0, "2\t30\t1\t2\t1\t6\t1\t1\t1\t1\t1\t1\t1")),
              L"línea 3: el mes, el día o la hora no existen");
    EXPECT_EQ(rechazado(cambiando(0, "1\t1\t1\t2\t1\tnan\t1\t1\t1\t1\t1\t1\t1")),
              L"línea 3: la radiación no es un número");
    EXPECT_EQ(rechazado("Lugar\n0 0 0\n"), L"hay 0 horas y se esperaban 8760");
    EXPECT_EQ(rechazado(Registro("0\t0\t10", 1, 1) + "12\t31\t24\t2\t1\t6\t1\t1\t1\t1\t1\t1\t1\n"),
              L"línea 8763: hay más de 8760 horas");
    EXPECT_FALSE(CargarRegistroClimatico(L"/dev/null", csError));
    EXPECT_NEAR(BibliotecaActual().clGetID((31 + 28 + 20) * 24 + 12, 0.0, 0.0), 600.0,
                1e-9);  // the one before stays
    ASSERT_TRUE(CargarRegistroClimatico(carpeta.Escribir("c.txt", Registro("0\t0\t10", -5, 150) + "\r\n  \r\n"),
                                        csError));
    EXPECT_NEAR(BibliotecaActual().clGetID(12, 0.0, 0.0), -5.0, 1e-9);  // a negative radiation stays
}

}  // namespace
