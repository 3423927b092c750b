// The open project: the question before anything is lost, the mark of what is unsaved, the files last used.
#include "proyecto/sesion.h"

#include "apoyo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"
#include "proyecto/fichero.h"

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
    guion.presentador.respuestas = {Respuesta::no};
    EXPECT_FALSE(sesion.Guardar());
    EXPECT_EQ(LeerProyecto(EnCarpeta("uno.efvp")).proyecto->csNombre, L"De otro");
    EXPECT_TRUE(sesion.Modificado());
    guion.presentador.respuestas = {Respuesta::si};
    EXPECT_TRUE(sesion.Guardar());
    EXPECT_EQ(LeerProyecto(EnCarpeta("uno.efvp")).proyecto->csNombre, L"Tres");
    EXPECT_EQ(guion.Mensajes().size(), 2U);
}

}  // namespace
