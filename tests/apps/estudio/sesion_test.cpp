// The open project: the question before anything is lost, the mark of what is unsaved, the files last used.
#include "proyecto/sesion.h"

#include "apoyo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"
#include "proyecto/fichero.h"
#include "proyecto/receptores.h"
#include "proyecto/vigencia.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;
using ui::Respuesta;

class SesionGuionizada : public testing::Test {
protected:
    CString EnCarpeta(const char* nombre) const { return CadenaDesdeUtf8((carpeta.Ruta() / nombre).string()); }
    void Renombrar(const wchar_t* csNombre)
    {
        sesion.Proyecto().csNombre = csNombre;
        sesion.Cambiado();
    }

    CarpetaTemporal carpeta;
    Guion guion;
    Sesion sesion;
};

TEST_F(SesionGuionizada, LosCambiosSinGuardarSePreguntan)
{
    auto& respuestas = guion.presentador.respuestas;
    sesion.Nuevo();
    EXPECT_TRUE(guion.Mensajes().empty());

    Renombrar(L"Uno");
    EXPECT_TRUE(sesion.Modificado());
    respuestas = {Respuesta::cancelar};
    sesion.Nuevo();
    EXPECT_EQ(sesion.Proyecto().csNombre, L"Uno");

    // Yes, but then no file: nothing is lost either.
    respuestas = {Respuesta::si};
    EXPECT_FALSE(sesion.PuedeCerrarse());
    EXPECT_TRUE(sesion.Modificado());

    respuestas = {Respuesta::si};
    guion.presentador.ficheros = {EnCarpeta("uno.efvp")};
    EXPECT_TRUE(sesion.PuedeCerrarse());
    EXPECT_EQ(LeerProyecto(EnCarpeta("uno.efvp")).proyecto->csNombre, L"Uno");

    Renombrar(L"Dos");
    respuestas = {Respuesta::no};
    sesion.Nuevo();
    EXPECT_NE(sesion.Proyecto().csNombre, L"Dos");
    EXPECT_EQ(LeerProyecto(EnCarpeta("uno.efvp")).proyecto->csNombre, L"Uno");
    EXPECT_EQ(guion.Mensajes().size(), 4U);
}

TEST_F(SesionGuionizada, LoDeshechoNoEstaModificado)
{
    const CString csAntes = sesion.Proyecto().csNombre;
    Renombrar(L"Otro");
    EXPECT_TRUE(sesion.Modificado());
    Renombrar(csAntes.c_str());
    EXPECT_FALSE(sesion.Modificado());
    sesion.Proyecto().consumo.adHoras[8759] = 1.0;
    sesion.Cambiado();
    EXPECT_TRUE(sesion.Modificado());
}

struct SesionConJson : ConCatalogos {
    CarpetaTemporal carpeta;
    Guion guion;
    Sesion sesion;
};

TEST_F(SesionConJson, SeAbreComoProyectoSinGuardar)
{
    const CString csCarpeta = CadenaDesdeUtf8(EFV_CARPETA_DATOS "/ejemplos/");
    ASSERT_TRUE(sesion.Abrir(csCarpeta + L"casa-aislada.json"));
    EXPECT_EQ(sesion.Proyecto().consumo.lReceptores.GetSize(), 8);
    EXPECT_TRUE(MismosReceptores(sesion.Proyecto()));
    // Given up for the next one.
    guion.presentador.respuestas = {ui::Respuesta::no};
    ASSERT_TRUE(sesion.Abrir(csCarpeta + L"cubierta-red.json"));
    EXPECT_EQ(sesion.Titulo(), L"Cubierta de una vivienda en Sevilla[*] - efv-estudio");
    EXPECT_TRUE(sesion.Ruta().empty());
    EXPECT_TRUE(sesion.Modificado());
    const CProyectoEstudio& proyecto = sesion.Proyecto();
    EXPECT_EQ(proyecto.lugar.csNombre, L"Sevilla");
    EXPECT_EQ(proyecto.celulas.dMaxima, 75.0);
    EXPECT_EQ(proyecto.red.iPanelesSerie, 9);
    EXPECT_TRUE(Desfases(proyecto, Diseno::red).empty());
    ASSERT_EQ(guion.Mensajes().size(), 1U);

    guion.presentador.respuestas = {ui::Respuesta::no, ui::Respuesta::no};
    const CString csMalo = carpeta.Escribir("malo.json", R"({"tipo": "red", "lugar": "Sebilla"})");
    EXPECT_FALSE(sesion.Abrir(csMalo));
    EXPECT_TRUE(guion.Mensajes().back().starts_with(
        L"«" + csMalo + L"»: lugar: no hay ningún lugar «Sebilla»; parecidos: Sevilla"));
    EXPECT_EQ(sesion.Proyecto().red.iPanelesSerie, 9);
}

TEST_F(SesionGuionizada, UnFicheroMaloDejaElProyectoAbierto)
{
    guion.presentador.ficheros = {EnCarpeta("bueno.efvp")};
    Renombrar(L"Bueno");
    ASSERT_TRUE(sesion.Guardar());
    const auto recientes = sesion.Recientes();
    EXPECT_FALSE(sesion.Abrir(carpeta.Escribir("malo.efvp", "no")));
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_NE(guion.Mensajes()[0].find(L"malo.efvp"), CString::npos);
    EXPECT_EQ(sesion.Proyecto().csNombre, L"Bueno");
    EXPECT_EQ(sesion.Ruta(), EnCarpeta("bueno.efvp"));
    EXPECT_EQ(sesion.Recientes(), recientes);
}

TEST_F(SesionGuionizada, GuardarQueFallaLoDiceYSigueModificado)
{
    Renombrar(L"Uno");
    guion.presentador.ficheros = {EnCarpeta("no/uno.efvp")};
    EXPECT_FALSE(sesion.Guardar());
    EXPECT_TRUE(sesion.Modificado());
    EXPECT_TRUE(sesion.Ruta().empty());
    EXPECT_EQ(guion.Mensajes().size(), 1U);
}

TEST_F(SesionGuionizada, LosRecientesSonOchoYElUltimoVaDelante)
{
    for (int i = 0; i < 10; ++i) {
        guion.presentador.ficheros.emplace_back(EnCarpeta((std::to_string(i) + ".efvp").c_str()));
        ASSERT_TRUE(sesion.GuardarComo());
    }
    ASSERT_TRUE(sesion.Abrir(EnCarpeta("5.efvp")));
    ASSERT_EQ(sesion.Recientes().size(), kRecientes);
    EXPECT_EQ(sesion.Recientes()[0], EnCarpeta("5.efvp"));
    EXPECT_EQ(sesion.Recientes()[1], EnCarpeta("9.efvp"));
    EXPECT_EQ(std::ranges::count(sesion.Recientes(), EnCarpeta("5.efvp")), 1);
}

TEST_F(SesionGuionizada, LoQueOtroProgramaEscribioSePregunta)
{
    guion.presentador.ficheros = {EnCarpeta("uno.efvp")};
    Renombrar(L"Uno");
    ASSERT_TRUE(sesion.Guardar());
    Renombrar(L"Dos");
    ASSERT_TRUE(sesion.Guardar());
    EXPECT_TRUE(guion.Mensajes().empty());

    CProyectoEstudio otro;
    otro.csNombre = L"De otro";
    EscribirProyecto(BytesDe(otro), EnCarpeta("uno.efvp"));
    Renombrar(L"Tres");
    guion.presentador.respuestas = {Respuesta::cancelar};
    EXPECT_FALSE(sesion.Guardar());
    guion.presentador.respuestas = {Respuesta::no};
    guion.presentador.ficheros = {EnCarpeta("aparte.efvp")};
    EXPECT_TRUE(sesion.Guardar());
    EXPECT_EQ(LeerProyecto(EnCarpeta("aparte.efvp")).proyecto->csNombre, L"Tres");
    EXPECT_EQ(LeerProyecto(EnCarpeta("uno.efvp")).proyecto->csNombre, L"De otro");

    ASSERT_TRUE(sesion.Abrir(EnCarpeta("uno.efvp")));
    EscribirProyecto(BytesDe(*std::make_unique<CProyectoEstudio>()), EnCarpeta("uno.efvp"));
    Renombrar(L"Cuatro");
    guion.presentador.respuestas = {Respuesta::si};
    EXPECT_TRUE(sesion.Guardar());
    EXPECT_EQ(LeerProyecto(EnCarpeta("uno.efvp")).proyecto->csNombre, L"Cuatro");
    EXPECT_EQ(guion.Mensajes().size(), 3U);
}

TEST_F(SesionGuionizada, LoQueCambiaFueraSeDiceUnaVez)
{
    guion.presentador.ficheros = {EnCarpeta("uno.efvp")};
    Renombrar(L"Uno");
    ASSERT_TRUE(sesion.Guardar());
    sesion.ComprobarFichero();
    EXPECT_TRUE(guion.Mensajes().empty());

    CProyectoEstudio otro;
    otro.csNombre = L"De otro";
    EscribirProyecto(BytesDe(otro), EnCarpeta("uno.efvp"));
    guion.presentador.respuestas = {Respuesta::no};
    sesion.ComprobarFichero();
    sesion.ComprobarFichero();
    EXPECT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_EQ(sesion.Proyecto().csNombre, L"Uno");
    EXPECT_TRUE(sesion.Modificado());  // what is open stands nowhere else any more

    otro.csNombre = L"De otro más";
    EscribirProyecto(BytesDe(otro), EnCarpeta("uno.efvp"));
    guion.presentador.respuestas = {Respuesta::si};
    sesion.ComprobarFichero();
    EXPECT_EQ(sesion.Proyecto().csNombre, L"De otro más");
    EXPECT_FALSE(sesion.Modificado());
    sesion.Deshacer();
    EXPECT_EQ(sesion.Proyecto().csNombre, L"Uno");
    EXPECT_TRUE(sesion.Modificado());

    // Removed: it is told, and saving makes it again without a question.
    std::filesystem::remove(carpeta.Ruta() / "uno.efvp");
    sesion.ComprobarFichero();
    EXPECT_EQ(guion.Mensajes().size(), 3U);
    EXPECT_TRUE(sesion.Guardar());
    EXPECT_EQ(guion.Mensajes().size(), 3U);
    EXPECT_EQ(LeerProyecto(EnCarpeta("uno.efvp")).proyecto->csNombre, L"Uno");
}

TEST_F(SesionGuionizada, LosCambiosSeDeshacenYSeRehacenPorSuNombre)
{
    const auto inicial = BytesDe(sesion.Proyecto());
    EXPECT_TRUE(sesion.QueDeshacer().empty());
    Renombrar(L"Uno");
    guion.presentador.ficheros = {EnCarpeta("uno.efvp")};
    ASSERT_TRUE(sesion.Guardar());
    sesion.Proyecto().lugar.dLatitud = 12.5;
    sesion.Cambiado();
    sesion.Cambiado();  // nothing new: no step
    sesion.Proyecto().consumo.adHoras[100] = 7.0;
    sesion.Proyecto().planos = {{20.0, -90.0, 0.5}, {40.0, 90.0, 0.5}};
    sesion.Cambiado(L"prueba");
    const auto ultimo = BytesDe(sesion.Proyecto());

    EXPECT_EQ(sesion.QueDeshacer(), L"prueba");
    sesion.Deshacer();
    EXPECT_TRUE(sesion.Proyecto().planos.empty());
    EXPECT_EQ(sesion.Proyecto().lugar.dLatitud, 12.5);
    EXPECT_EQ(sesion.QueDeshacer(), L"cambio del lugar");
    EXPECT_EQ(sesion.QueRehacer(), L"prueba");
    sesion.Deshacer();
    EXPECT_FALSE(sesion.Modificado());  // as it was saved
    EXPECT_EQ(sesion.QueDeshacer(), L"cambio del nombre");
    sesion.Deshacer();
    EXPECT_TRUE(sesion.Modificado());
    EXPECT_EQ(BytesDe(sesion.Proyecto()), inicial);
    sesion.Deshacer();  // nothing before it
    EXPECT_EQ(BytesDe(sesion.Proyecto()), inicial);
    for (int i = 0; i < 3; ++i)
        sesion.Rehacer();
    EXPECT_EQ(BytesDe(sesion.Proyecto()), ultimo);

    sesion.Deshacer();
    Renombrar(L"Otra rama");
    EXPECT_TRUE(sesion.QueRehacer().empty());
    EXPECT_EQ(sesion.QueDeshacer(), L"cambio del nombre");
    sesion.Nuevo();  // answered with no: not saved
    EXPECT_TRUE(sesion.QueDeshacer().empty());
}

TEST(Historial, LosPasosTienenLimites)
{
    const auto bytes = [](std::size_t nTamano, int iValor) {
        return std::vector<std::byte>(nTamano, static_cast<std::byte>(iValor));
    };
    Historial pasos(3);
    for (int i = 0; i < 5; ++i)
        pasos.Anadir(bytes(10, i), bytes(12, i + 1), std::to_wstring(i));
    EXPECT_EQ(pasos.Pasos(), 3U);
    auto actual = bytes(12, 5);
    for (int i = 4; i > 1; --i) {
        EXPECT_EQ(pasos.QueDeshacer(), std::to_wstring(i));
        actual = pasos.Deshacer(actual);
        EXPECT_EQ(actual, bytes(10, i));
        actual = bytes(12, i);
    }
    EXPECT_TRUE(pasos.QueDeshacer().empty());

    // 100 bytes of each side of a step: two fit.
    Historial ligero(Historial::kPasos, 450);
    for (int i = 0; i < 4; ++i)
        ligero.Anadir(bytes(100, i), bytes(100, i + 1), L"paso");
    EXPECT_EQ(ligero.Pasos(), 2U);
    ligero.Anadir(bytes(1000, 1), bytes(1000, 2), L"grande");
    EXPECT_EQ(ligero.QueDeshacer(), L"grande");
}

}  // namespace
