// The two downloads against a stand-in of the service. What an answer becomes is held against vectores.py
// elsewhere.
#include <algorithm>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "comun/ficheros.h"
#include "comun/servidor_pvgis.h"

namespace {

using namespace efv;
namespace fs = std::filesystem;
using namespace std::string_literals;

std::string Contenido(const fs::path& ruta)
{
    std::ifstream fichero(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

class Descargas : public testing::Test {
protected:
    static void SetUpTestSuite() { servidor = std::make_unique<pruebas::ServidorPvgis>(); }
    static void TearDownTestSuite() { servidor.reset(); }

    static void Usar(const char* modo)
    {
        solar::PonerServicioPVGIS(
            {.url = servidor->http + modo, .autoridades = {}, .espera = std::chrono::milliseconds(400)});
    }
    int Descargar(const std::string& nombre)
    {
        CString csArchivo = CadenaDesdeUtf8((carpeta.Ruta() / nombre).string());
        csError = L"como estaba";
        return phDownloadFilePVGIS(csArchivo, L"Madrid", 40.5, -3.75, 7.0, csError);
    }
    std::size_t Ficheros() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(carpeta.Ruta()), {}));
    }

    static inline std::unique_ptr<pruebas::ServidorPvgis> servidor;
    const pruebas::CarpetaTemporal carpeta;
    CString csError;
};

TEST_F(Descargas, ElAnoTipicoSeConvierteYNoQuedaMas)
{
    Usar("salto");
    carpeta.Crear("ano.v1.txt", "viejo");
    EXPECT_EQ(Descargar("ano.v1.txt"), 1);
    EXPECT_EQ(csError, L"como estaba");
    EXPECT_EQ(Ficheros(), 1U);
    const std::string registro = Contenido(carpeta.Ruta() / "ano.v1.txt");
    EXPECT_TRUE(registro.starts_with("Madrid 7\r\n40.500000\t-3.700000\t652.0\r\n1\t1\t1\t10.0\t"));
    EXPECT_EQ(std::ranges::count(registro, '\n'), 8762);
}

TEST_F(Descargas, ElEpwSeGuardaByteAByte)
{
    Usar("bien");
    EXPECT_EQ(Descargar("x.epw"), 1);
    EXPECT_EQ(Contenido(carpeta.Ruta() / "x.epw"),
              "LOCATION,unknown,-,unknown,ECMWF/ERA,unknown,40.4,-3.7,1.0,652.0\r\n\xff\0binary\n"s);
    EXPECT_EQ(Descargar("nepw"), 1);
    EXPECT_EQ(Descargar("x.EPW"), 1);  // only in lower case
    EXPECT_TRUE(Contenido(carpeta.Ruta() / "x.EPW").starts_with("Madrid 7\r\n"));
}

TEST_F(Descargas, UnAnoIncompletoDejaLoQueHayYLaRespuestaAlLado)
{
    Usar("corto");
    EXPECT_EQ(Descargar("a.b/../ano"), 0);  // no folder of that name
    EXPECT_NE(csError, L"como estaba");
    EXPECT_EQ(Descargar("ano"), 0);
    EXPECT_EQ(csError, L"como estaba");
    EXPECT_EQ(std::ranges::count(Contenido(carpeta.Ruta() / "ano"), '\n'),
              2 + 8000 + 1);  // the footer counts as an hour
    EXPECT_TRUE(Contenido(carpeta.Ruta() / "ano.tmp").starts_with("Latitude"));
    // That file isn't written over: the answer stays where it came.
    Usar("bien");
    EXPECT_EQ(Descargar("ano"), 0);
    EXPECT_EQ(csError, L"como estaba");
    EXPECT_TRUE(Contenido(carpeta.Ruta() / "ano").starts_with("Latitude"));
    EXPECT_EQ(std::ranges::count(Contenido(carpeta.Ruta() / "ano.tmp"), '\n'), 17 + 8000 + 1);
    EXPECT_EQ(Descargar("ano.tmp"), 0);
    EXPECT_TRUE(Contenido(carpeta.Ruta() / "ano.tmp").starts_with("Latitude"));
}

TEST_F(Descargas, SinRespuestaElFicheroSigueComoEstaba)
{
    carpeta.Crear("ano.txt", "viejo");
    for (const char* modo : {"parado", "cortado", "bucle"}) {
        Usar(modo);
        EXPECT_EQ(Descargar("ano.txt"), 0) << modo;
        EXPECT_NE(csError, L"como estaba");
        EXPECT_LE(csError.size(), 255U);
        EXPECT_EQ(Contenido(carpeta.Ruta() / "ano.txt"), "viejo");
    }
    // An error's page is an answer like any other, without hours.
    Usar("rechazo");
    EXPECT_EQ(Descargar("ano.txt"), 0);
    EXPECT_EQ(csError, L"como estaba");
    EXPECT_EQ(Contenido(carpeta.Ruta() / "ano.txt"), "");
}

class Mensuales : public Descargas {
protected:
    Mensuales() { ::setenv("TMPDIR", carpeta.Ruta().c_str(), 1); }  // NOLINT(concurrency-mt-unsafe)
    ~Mensuales() override { ::unsetenv("TMPDIR"); }                 // NOLINT(concurrency-mt-unsafe)

    int Pedir(int bAvisarSinDatos)
    {
        csError = L"como estaba";
        return phDownloadMonthRadPVGIS(40.5, -3.75, adRadiacion, csError, bAvisarSinDatos);
    }
    double adRadiacion[12] = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
};

// Two years of 15.5·m and 31·m kWh: a mean of 23.25·m a month, over its days and in kJ.
TEST_F(Mensuales, DoceMedias)
{
    Usar("troceado");
    EXPECT_EQ(Pedir(1), 1);
    EXPECT_NEAR(adRadiacion[0], 23.25 / 31 * 3600, 1e-9);
    EXPECT_NEAR(adRadiacion[1], 46.5 / 28 * 3600, 1e-9);
    EXPECT_NEAR(adRadiacion[11], 279.0 / 31 * 3600, 1e-9);
    EXPECT_EQ(Ficheros(), 0U);
}

TEST_F(Mensuales, SinFilasYSinRed)
{
    Usar("rechazo");
    EXPECT_EQ(Pedir(0), 1);
    EXPECT_EQ(csError, L"como estaba");
    EXPECT_EQ(adRadiacion[3], -1.0);
    EXPECT_EQ(Ficheros(), 0U);
    EXPECT_EQ(Pedir(1), 0);
    EXPECT_EQ(csError, L"Ubicación fuera de la cobertura espacial de PVGIS");
    EXPECT_EQ(Ficheros(), 1U);
    Usar("mudo");
    EXPECT_EQ(Pedir(0), 0);
    EXPECT_EQ(csError, L"Error en la descarga de datos de radiación desde PVGIS");
    EXPECT_EQ(adRadiacion[3], -1.0);
}

}  // namespace
