// The network by libcurl against a stand-in server: redirections, stalls, sizes, broken answers, certificates.
#include <chrono>

#include <gtest/gtest.h>

#include <quorvel/ficheros.h>

#include "comun/servidor_pvgis.h"

namespace {

using namespace efv;
using namespace std::chrono_literals;
using Causa = FalloRed::Causa;

class Redes : public testing::Test {
protected:
    static void SetUpTestSuite() { servidor = std::make_unique<pruebas::ServidorPvgis>(); }
    static void TearDownTestSuite() { servidor.reset(); }

    std::variant<RespuestaRed, FalloRed> Pedir(const std::string& url) const
    {
        return ElMundo().red->Obtener(url, opciones, avance);
    }
    std::string Cuerpo(const std::string& url) const
    {
        const auto hecho = Pedir(url);
        const auto* respuesta = std::get_if<RespuestaRed>(&hecho);
        EXPECT_NE(respuesta, nullptr) << std::get<FalloRed>(hecho).texto;
        return respuesta != nullptr ? respuesta->cuerpo : "";
    }
    std::optional<Causa> Fallo(const std::string& url) const
    {
        const auto hecho = Pedir(url);
        const auto* fallo = std::get_if<FalloRed>(&hecho);
        return fallo != nullptr ? std::optional(fallo->causa) : std::nullopt;
    }

    static inline std::unique_ptr<pruebas::ServidorPvgis> servidor;
    OpcionesDescarga opciones{.espera = 400ms, .autoridades = {}, .cabeceras = {}};
    AvanceRed avance;
};

TEST_F(Redes, UnaRespuestaDeCualquierEstadoYForma)
{
    EXPECT_EQ(Cuerpo(servidor->http + "vacio/"), "");
    const std::string entera = Cuerpo(servidor->http + "bien/tmy");
    EXPECT_GT(entera.size(), 500'000U);
    EXPECT_EQ(Cuerpo(servidor->http + "troceado/tmy"), entera);
    EXPECT_EQ(Cuerpo(servidor->http + "salto/tmy"), entera);
    const auto rechazo = std::get<RespuestaRed>(Pedir(servidor->http + "rechazo/"));
    EXPECT_EQ(rechazo.iEstado, 400);
    EXPECT_TRUE(rechazo.cuerpo.starts_with("{\"message\""));
    opciones.cabeceras = {{"User-Agent", "QuorvelClima1"}};
    EXPECT_NE(Cuerpo(servidor->http + "cabeceras/").find("User-Agent: QuorvelClima1\r\n"), std::string::npos);
}

TEST_F(Redes, SoloLoQueCallaDemasiadoSeDaPorPerdido)
{
    EXPECT_EQ(Cuerpo(servidor->http + "lento/").size(), 2000U);  // a second in all, 50 ms between bytes
    for (const char* modo : {"mudo/", "parado/"}) {
        const auto desde = std::chrono::steady_clock::now();
        EXPECT_EQ(Fallo(servidor->http + modo), Causa::tiempoAgotado);
        EXPECT_LT(std::chrono::steady_clock::now() - desde, 2s);
    }
}

TEST_F(Redes, LoRotoYLoDemasiadoGrandeNoEsRespuesta)
{
    EXPECT_EQ(Fallo(servidor->http + "cortado/tmy"), Causa::sinRespuesta);
    EXPECT_EQ(Fallo(servidor->http + "bucle/"), Causa::sinRespuesta);
    opciones.maximo = 100'000;
    EXPECT_EQ(Fallo(servidor->http + "grande/"), Causa::demasiadoGrande);
    opciones.maximo = 2000;
    EXPECT_EQ(Fallo(servidor->http + "lento/"), std::nullopt);  // exactly as many
    EXPECT_EQ(Fallo("http://127.0.0.1:1/"), Causa::sinRed);
    for (const char* url : {"file:///etc/passwd", "ftp://localhost/", "", "https:/"})
        EXPECT_EQ(Fallo(url), Causa::noSegura) << url;
    EXPECT_EQ(Fallo(servidor->http + "archivo/"), Causa::noSegura);
}

TEST_F(Redes, QuienDescargaVeElAvanceYPuedeParar)
{
    std::uint64_t uUltimo = 0;
    std::optional<std::uint64_t> uTotal;
    avance = [&](std::uint64_t u, std::optional<std::uint64_t> total) {
        EXPECT_GE(u, uUltimo);
        uUltimo = u;
        uTotal = total;
        return u < 1000;
    };
    EXPECT_EQ(Fallo(servidor->http + "lento/"), Causa::cancelada);
    EXPECT_GE(uUltimo, 1000U);
    EXPECT_EQ(uTotal, 2000U);
}

TEST_F(Redes, ElCertificadoYSuNombreSeCompruebanSiempre)
{
    EXPECT_EQ(Fallo(servidor->https + "bien/"), Causa::noSegura);
    opciones.autoridades = servidor->autoridad;
    EXPECT_GT(Cuerpo(servidor->https + "bien/").size(), 1000U);
    EXPECT_EQ(Fallo(servidor->ajeno + "bien/"), Causa::noSegura);
    EXPECT_GT(Cuerpo(servidor->http + "seguro/").size(), 1000U);
    EXPECT_EQ(Fallo(servidor->https + "inseguro/"), Causa::noSegura);
    opciones.autoridades = "/no/existe.pem";
    EXPECT_EQ(Fallo(servidor->https + "bien/"), Causa::noSegura);
}

}  // namespace
