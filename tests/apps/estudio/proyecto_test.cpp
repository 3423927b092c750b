// Projects as files: what is kept, and what happens to files that are no good.
#include "proyecto/fichero.h"

#include <array>
#include <cmath>

#include "apoyo.h"
#include "comun/ficheros.h"
#include "comun/ficheros_memoria.h"
#include "comun/memoria_escasa.h"
#include "comun/mundo_de_prueba.h"

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
    Economia& economia = proyecto->economia;
    economia.venta.dPrimaFija = 0.25;
    economia.autoconsumo.csReferencia = L"Tejado";
    economia.autoconsumo.dTIR = 4.5;
    economia.adPrecioConsumo[11][30][23] = 0.75;
    economia.adPrecioVertido[0][0][0] = 0.125;
    proyecto->planos = {{20.0, -90.0, 0.25}, {40.0, 90.0, 0.75}};
    Elementos& elementos = proyecto->elementos;
    elementos.panelesAislada.csIdMicro = L"M#1";
    elementos.panelesRed.nColor = 5;
    elementos.dPerdidasRegulador = 0.02;
    elementos.acumuladores.iRotulos = 15;
    phAsignArrayInverterInputs(0, 2, 4, elementos.inversor.entradas, 1);
    elementos.inversor.entradas[3].csReferencia = L"Porche";
    elementos.inversor.entradas[3].nColor = 1;
    elementos.inversor.iNumEntradas = 4;
    elementos.red.csReferencia = L"RED";
    proyecto->portada = {L"Ana", L"Calle 1", L"Elena", L"Elena, n.º 3", L"B"};
    return proyecto;
}

CString Guardado(const CarpetaTemporal& carpeta, std::span<const std::byte> bytes)
{
    return carpeta.Escribir("p.efvp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

std::string Fallo(const CString& csRuta)
{
    try {
        static_cast<void>(LeerProyecto(csRuta));
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
    const auto despues = LeerProyecto(csRuta).proyecto;
    EXPECT_EQ(BytesDe(*despues), BytesDe(*antes));
    EXPECT_EQ(despues->csNombre, antes->csNombre);
    EXPECT_EQ(despues->portada, antes->portada);
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
    const Economia& economia = despues->economia;
    EXPECT_EQ(economia.venta.dPrimaFija, 0.25);
    EXPECT_EQ(economia.autoconsumo.csReferencia, L"Tejado");
    EXPECT_EQ(economia.autoconsumo.dTIR, 4.5);
    EXPECT_EQ(economia.adPrecioConsumo[11][30][23], 0.75);
    EXPECT_EQ(economia.adPrecioVertido[0][0][0], 0.125);
    EXPECT_EQ(despues->planos, antes->planos);
    const Elementos& elementos = despues->elementos;
    EXPECT_EQ(elementos.panelesAislada.csIdMicro, L"M#1");
    EXPECT_EQ(elementos.panelesRed.nColor, 5);
    EXPECT_EQ(elementos.dPerdidasRegulador, 0.02);
    EXPECT_EQ(elementos.acumuladores.iRotulos, 15);
    ASSERT_EQ(elementos.inversor.entradas.GetSize(), 4);
    EXPECT_EQ(elementos.inversor.entradas[3].csReferencia, L"Porche");
    EXPECT_EQ(elementos.inversor.entradas[3].nColor, 1);
    EXPECT_EQ(elementos.red.csReferencia, L"RED");
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

// A file that the program's first version wrote.
TEST(Proyecto, ElDeLaPrimeraVersionSeAbre)
{
    const auto proyecto =
        LeerProyecto(CadenaDesdeUtf8(EFV_CARPETA_PRUEBAS "/apps/estudio/proyecto-1.efvp")).proyecto;
    EXPECT_EQ(proyecto->csNombre, L"Cortijo «Ñ» 🌞");
    EXPECT_EQ(proyecto->lugar.csDetalle, L"Almería");
    EXPECT_EQ(proyecto->lugar.adRadHorizontal[11], 12000.0);
    EXPECT_EQ(proyecto->aislada.iAcumuladoresSerie, 24);
    EXPECT_EQ(proyecto->red.iInversores, 9);
    const Consumo& consumo = proyecto->consumo;
    ASSERT_EQ(consumo.lReceptores.GetSize(), 2);
    EXPECT_EQ(consumo.lReceptores[1].dHorario[11][6][5], 120.0);
    EXPECT_EQ(consumo.adHoras[8759], 0.3);
    EXPECT_EQ(consumo.adMes[11][5], 7.5);
    EXPECT_EQ(consumo.aiPeriodoHora[23], 2);
    EXPECT_EQ(proyecto->economia.adPrecioConsumo[5][5][5], Economia::kPrecioConsumo);
    EXPECT_EQ(consumo.dHusoHorario, -15.0);
    EXPECT_EQ(BytesDe(*ProyectoDe(BytesDe(*proyecto))), BytesDe(*proyecto));
}

// Put behind the sections of this program by hand: name, schema, length, bytes; the number of sections stands
// behind mark and schema.
std::vector<std::byte> ConSeccion(const wchar_t* csNombre, int iSchema, const std::vector<std::byte>& dentro)
{
    auto bytes = BytesDe(*Lleno());
    bytes.at(12) = static_cast<std::byte>(std::to_integer<int>(bytes.at(12)) + 1);
    CArchive ar(bytes);
    ar << std::wstring_view(csNombre);
    ar << iSchema;
    ar << static_cast<std::uint32_t>(dentro.size());
    bytes.insert(bytes.end(), dentro.begin(), dentro.end());
    return bytes;
}

TEST(Proyecto, UnaSeccionDesconocidaSeConserva)
{
    const std::vector<std::byte> dentro = {std::byte{1}, std::byte{0}, std::byte{255}};
    const auto bytes = ConSeccion(L"cables", 7, dentro);
    const auto proyecto = ProyectoDe(bytes);
    EXPECT_EQ(proyecto->red.iInversores, 9);
    ASSERT_EQ(proyecto->ajenas.size(), 1U);
    EXPECT_EQ(proyecto->ajenas[0].iSchema, 7);
    EXPECT_EQ(BytesDe(*proyecto), bytes);
}

TEST(Proyecto, UnaSeccionRepetidaOVaciaDeNombreSeRechaza)
{
    const CarpetaTemporal carpeta;
    for (const wchar_t* csNombre : {L"red", L""})
        EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, ConSeccion(csNombre, 1, {}))), "dañado"));
}

// The place's section, whose name, schema and length follow the first section.
TEST(Proyecto, UnaSeccionDeUnaVersionPosteriorODeOtroLargoSeRechaza)
{
    const CarpetaTemporal carpeta;
    const std::array<unsigned char, 10> nombre = {'l', 0, 'u', 0, 'g', 0, 'a', 0, 'r', 0};
    const auto bueno = BytesDe(*Lleno());
    const auto donde = std::search(bueno.begin(), bueno.end(), nombre.begin(), nombre.end(),
                                   [](std::byte b, unsigned char c) { return b == std::byte{c}; });
    ASSERT_NE(donde, bueno.end());
    const auto iSchema = static_cast<std::size_t>(donde - bueno.begin()) + nombre.size();
    auto bytes = bueno;
    bytes[iSchema] = std::byte{2};
    EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, bytes)), "más nueva"));
    bytes[iSchema] = std::byte{0};
    EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, bytes)), "dañado"));
    bytes = bueno;
    bytes[iSchema + 7] = std::byte{0x7F};  // its length beyond the file
    EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, bytes)), "cortado"));
    // A byte more than it holds
    bytes = bueno;
    const std::size_t nLargo = std::to_integer<std::size_t>(bytes[iSchema + 4]);
    ASSERT_LT(nLargo, 255U);
    bytes[iSchema + 4] = static_cast<std::byte>(nLargo + 1);
    bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(iSchema + 8 + nLargo), std::byte{0});
    EXPECT_TRUE(Contiene(Fallo(Guardado(carpeta, bytes)), "dañado"));
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
    bytes[8] = std::byte{3};  // the schema follows the mark of eight bytes
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
    EXPECT_TRUE(rechazado([](P& p) { p.planos[1].dParte = 0.5; }));
    EXPECT_TRUE(rechazado([](P& p) { p.planos[0].dInclinacion = std::nan(""); }));
    EXPECT_TRUE(rechazado([](P& p) { p.planos.assign(21, {30.0, 0.0, 1.0 / 21}); }));
    EXPECT_TRUE(rechazado([](P& p) { p.red.iInversores = 2'000'000'000; }));
    EXPECT_FALSE(rechazado([](P& p) { p.aislada.dDistanciaFilas = std::nan(""); }));
}

TEST(Proyecto, CadaLlamadaAlDiscoQueFallaDejaElViejoOElNuevo)
{
    const auto bytes = BytesDe(*Lleno());
    const std::string nuevo(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    bool bFallado = true;
    for (std::size_t n = 0; bFallado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner("/d/p.efvp", "viejo");
        FicherosConAverias averiados(disco, n, ENOSPC);
        const ConFicheros con(averiados);
        std::optional<Huella> conocida = efv::HuellaDe("viejo");
        bool bHecho = false;
        try {
            bHecho = ActualizarProyecto(bytes, L"/d/p.efvp", conocida);
        } catch (const std::runtime_error& fallo) {
            EXPECT_TRUE(Contiene(fallo.what(), "No se puede guardar «/d/p.efvp».\nE")) << fallo.what();
        }
        bFallado = averiados.HaFallado();
        const std::string contenido = disco.Contenido("/d/p.efvp");
        EXPECT_TRUE(contenido == nuevo || (!bHecho && contenido == "viejo")) << n;
        EXPECT_TRUE(bHecho || bFallado);
    }
}

TEST(Proyecto, SinMemoriaEnCualquierSitioDejaElViejoOElNuevo)
{
    const auto bytes = BytesDe(*Lleno());
    const std::string nuevo(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    bool bFaltado = true;
    for (std::size_t n = 0; bFaltado; ++n) {
        FicherosEnMemoria disco;
        disco.Poner("/d/p.efvp", "viejo");
        const ConFicheros con(disco);
        bool bHecho = false;
        try {
            const MemoriaEscasa escasa(n);
            std::optional<Huella> conocida = efv::HuellaDe("viejo");
            bHecho = ActualizarProyecto(bytes, L"/d/p.efvp", conocida);
        } catch (const std::bad_alloc&) {
        }
        bFaltado = MemoriaEscasa::HaFaltado();
        const std::string contenido = disco.Contenido("/d/p.efvp");
        ASSERT_TRUE(contenido == nuevo || (!bHecho && contenido == "viejo")) << n;
        ASSERT_TRUE(bHecho || bFaltado) << n;
        ASSERT_EQ(disco.Cuantos(), 1U) << n;
    }
}

TEST(Proyecto, GuardarDondeNoSePuedeNoTocaNada)
{
    const CarpetaTemporal carpeta;
    const CString csRuta = CadenaDesdeUtf8((carpeta.Ruta() / "no" / "p.efvp").string());
    EXPECT_THROW(EscribirProyecto(BytesDe(*Lleno()), csRuta), std::runtime_error);
    EXPECT_TRUE(std::filesystem::is_empty(carpeta.Ruta()));
}

}  // namespace
