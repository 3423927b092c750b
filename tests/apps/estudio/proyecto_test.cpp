// Projects as files: what is kept, and what happens to files that are no good.
#include "proyecto/fichero.h"

#include <array>
#include <cmath>

#include "apoyo.h"
#include "comun/ficheros.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

std::unique_ptr<CProyectoEstudio> Lleno()
{
    auto proyecto = std::make_unique<CProyectoEstudio>();
    proyecto->csNombre = L"Cortijo «Ñ» 🌞";
    proyecto->lugar.csNombre = L"Aquí";
    proyecto->lugar.csDetalle = L"Almería";
    proyecto->lugar.bPropio = 0;
    proyecto->lugar.dLatitud = -36.5;
    proyecto->lugar.iHemisferio = 0;
    for (std::size_t m = 0; m < 12; ++m)
        proyecto->lugar.adRadHorizontal[m] = 1000.0 * static_cast<double>(m + 1);
    proyecto->aislada = DisenoAislada();
    AnadirCarga(proyecto->aislada, L"A#B", 3.0, 4.5);
    proyecto->aislada.adHorario.SetAt(503, 1440.0);
    proyecto->red = DisenoRed(9);
    Consumo& consumo = proyecto->consumo;
    consumo.csReferencia = L"C-1";
    for (int i = 1; i <= 2; ++i) {
        auto receptor = std::make_unique<CSFVDataReceptor>();
        receptor->csModelo = L"F#M" + std::to_wstring(i);
        receptor->dHorario[11][6][5] = 60.0 * i;
        consumo.lReceptores.Add(std::move(receptor));
    }
    consumo.iTipoEntrada = 1;
    consumo.iPatron = 8;
    consumo.dPotMaxima = 1234.5;
    consumo.adHoras[0] = 0.1;
    consumo.adHoras[8759] = 0.3;
    consumo.adMes[11][5] = 7.5;
    consumo.aiPeriodoHora[23] = 2;
    consumo.bExcluir = 1;
    consumo.iRotulacion = 2;
    consumo.dHusoHorario = -15.0;
    return proyecto;
}

CString Guardado(const CarpetaTemporal& carpeta, std::span<const std::byte> bytes)
{
    return carpeta.Escribir("p.efvp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

std::string Fallo(const CString& csRuta)
{
    try {
        LeerProyecto(csRuta);
    } catch (const std::runtime_error& fallo) {
        return fallo.what();
    }
    return "";
}

bool Contiene(const std::string& texto, const char* parte)
{
    return texto.find(parte) != std::string::npos;
}

TEST(Proyecto, LoGuardadoVuelveEntero)
{
    const CarpetaTemporal carpeta;
    const auto antes = Lleno();
    const CString csRuta = CadenaDesdeUtf8((carpeta.Ruta() / "p.efvp").string());
    EscribirProyecto(BytesDe(*antes), csRuta);
    const auto despues = LeerProyecto(csRuta);
    EXPECT_EQ(BytesDe(*despues), BytesDe(*antes));
    EXPECT_EQ(despues->csNombre, antes->csNombre);
    EXPECT_EQ(despues->lugar, antes->lugar);
    EXPECT_EQ(despues->aislada.adHorario, antes->aislada.adHorario);
    EXPECT_EQ(despues->aislada.iAcumuladoresSerie, 24);
    EXPECT_EQ(despues->red.iInversores, 9);
    const Consumo& consumo = despues->consumo;
    EXPECT_EQ(consumo.csReferencia, L"C-1");
    ASSERT_EQ(consumo.lReceptores.GetSize(), 2);
    EXPECT_EQ(consumo.lReceptores[1].csModelo, L"F#M2");
    EXPECT_EQ(consumo.lReceptores[1].dHorario[11][6][5], 120.0);
    EXPECT_EQ(consumo.iTipoEntrada, 1);
    EXPECT_EQ(consumo.iPatron, 8);
    EXPECT_EQ(consumo.dPotMaxima, 1234.5);
    EXPECT_EQ(consumo.adHoras[0], 0.1);
    EXPECT_EQ(consumo.adHoras[8759], 0.3);
    EXPECT_EQ(consumo.adMes[11][5], 7.5);
    EXPECT_EQ(consumo.aiPeriodoHora[23], 2);
    EXPECT_EQ(consumo.bExcluir, 1);
    EXPECT_EQ(consumo.iRotulacion, 2);
    EXPECT_EQ(consumo.dHusoHorario, -15.0);
}

// Bytes put together by hand from the layout, up to the loads; what follows them is zeros.
TEST(Proyecto, ElFormatoEsElDeSiempre)
{
    std::ifstream fichero(EFV_CARPETA_PRUEBAS "/../fuzz/muestras/estudio/cabeza.bin", std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(fichero), {});
    ASSERT_FALSE(bytes.empty());
    bytes.resize(bytes.size() + 4 + 4 + 8 + (8760 + 72) * 8 + 24 * 4 + 4 + 4 + 8);
    const auto proyecto = ProyectoDe(std::as_bytes(std::span(bytes)));
    EXPECT_EQ(proyecto->lugar.csNombre, L"Madrid");
    EXPECT_EQ(proyecto->lugar.dLatitud, 40.4);
    EXPECT_EQ(proyecto->lugar.adRadHorizontal[11], 6000.0);
    ASSERT_EQ(proyecto->consumo.lReceptores.GetSize(), 1);
    EXPECT_EQ(proyecto->consumo.lReceptores[0].dHorario[11][6][1], 90.0);
}

// Wherever it is cut.
TEST(Proyecto, UnFicheroCortadoSeRechaza)
{
    const CarpetaTemporal carpeta;
    const auto bytes = BytesDe(*Lleno());
    for (std::size_t n = 0; n < bytes.size(); n += n < 600 ? 1 : 1997) {
        const std::string fallo = Fallo(Guardado(carpeta, std::span(bytes).first(n)));
        EXPECT_TRUE(Contiene(fallo, n < 8 ? "No es un proyecto" : "cortado")) << n << ": " << fallo;
        EXPECT_TRUE(Contiene(fallo, "p.efvp"));
    }
}

TEST(Proyecto, LoAjenoLoNuevoYLoDanadoDicenLoSuyo)
{
    const CarpetaTemporal carpeta;
    EXPECT_TRUE(Contiene(Fallo(carpeta.Escribir("a.txt", "EFV-PRO, dice este texto")), "No es un proyecto"));
    EXPECT_NE(Fallo(CadenaDesdeUtf8((carpeta.Ruta() / "no-existe").string())), "");
    EXPECT_NE(Fallo(CadenaDesdeUtf8(carpeta.Ruta().string())), "");

    const auto bueno = BytesDe(*Lleno());
    auto bytes = bueno;
    bytes[8] = std::byte{2};  // the schema follows the mark of eight bytes
    EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, bytes)), "más nueva"));
    bytes[8] = std::byte{0};
    EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, bytes)), "dañado"));
    bytes = bueno;
    bytes.push_back(std::byte{0});
    EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, bytes)), "detrás de su final"));
}

// A count of loads that the file can't hold ends with the file, without taking memory for them.
TEST(Proyecto, UnNumeroFalsoDeReceptoresNoReservaMemoria)
{
    const CarpetaTemporal carpeta;
    const auto proyecto = Lleno();
    auto bytes = BytesDe(*proyecto);
    // The reference, "C-1": three marker bytes, its length, three UTF-16 units; then the count.
    const std::array<unsigned char, 6> referencia = {'C', 0, '-', 0, '1', 0};
    const auto donde = std::search(bytes.begin(), bytes.end(), referencia.begin(), referencia.end(),
                                   [](std::byte b, unsigned char c) { return b == std::byte{c}; });
    ASSERT_NE(donde, bytes.end());
    *(donde + 6) = *(donde + 7) = std::byte{0xFF};  // a count of 32 bits follows: what comes next, enormous
    const std::string fallo = Fallo(Guardado(carpeta, bytes));
    EXPECT_TRUE(Contiene(fallo, "cortado") || Contiene(fallo, "dañado")) << fallo;
}

TEST(Proyecto, LoQueNingunProyectoContieneSeRechaza)
{
    const CarpetaTemporal carpeta;
    const auto rechazado = [&](auto cambiar) {
        const auto proyecto = Lleno();
        cambiar(*proyecto);
        return Contiene(Fallo(Guardado(carpeta, BytesDe(*proyecto))), "dañado");
    };
    using P = CProyectoEstudio;
    EXPECT_TRUE(rechazado([](P& p) { p.lugar.dLatitud = std::nan(""); }));
    EXPECT_TRUE(rechazado([](P& p) { p.lugar.adRadHorizontal[3] = -1.0; }));
    EXPECT_TRUE(rechazado([](P& p) { p.consumo.aiPeriodoHora[7] = 3; }));
    EXPECT_TRUE(rechazado([](P& p) { p.consumo.iPatron = 9; }));
    EXPECT_TRUE(rechazado([](P& p) { p.consumo.iTipoEntrada = -1; }));
    EXPECT_TRUE(rechazado([](P& p) { p.red.iInversores = 2'000'000'000; }));
    EXPECT_FALSE(rechazado([](P& p) { p.aislada.dDistanciaFilas = std::nan(""); }));
}

TEST(Proyecto, GuardarDondeNoSePuedeNoTocaNada)
{
    const CarpetaTemporal carpeta;
    const CString csRuta = CadenaDesdeUtf8((carpeta.Ruta() / "no" / "p.efvp").string());
    EXPECT_THROW(EscribirProyecto(BytesDe(*Lleno()), csRuta), std::runtime_error);
    EXPECT_TRUE(std::filesystem::is_empty(carpeta.Ruta()));
}

}  // namespace
