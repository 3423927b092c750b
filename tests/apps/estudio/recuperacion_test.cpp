// Unsaved work outlives the program's death, and nobody is offered what another window is at.
#include "proyecto/recuperacion.h"

#include <csignal>
#include <filesystem>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

#include "apoyo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"
#include "proyecto/fichero.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;
using ui::Respuesta;

class Copias : public testing::Test {
protected:
    std::string EnCarpeta(const char* nombre) const { return (carpeta.Ruta() / nombre).string(); }
    std::size_t Ficheros() const
    {
        std::error_code fallo;
        const std::filesystem::directory_iterator dentro(EnCarpeta("copias"), fallo);
        return fallo ? 0U : static_cast<std::size_t>(std::distance(begin(dentro), end(dentro)));
    }
    static void Renombrar(Sesion& sesion, const wchar_t* csNombre)
    {
        sesion.Proyecto().csNombre = csNombre;
        sesion.Cambiado();
    }
    // In a process of its own, which is killed at the end.
    void Morir(const std::function<void(Sesion&, Recuperacion&)>& vida) const
    {
        const pid_t hijo = ::fork();
        ASSERT_GE(hijo, 0);
        if (hijo == 0) {
            Sesion suya;
            Recuperacion suyas(EnCarpeta("copias"));
            vida(suya, suyas);
            ::kill(::getpid(), SIGKILL);
        }
        int iEstado = 0;
        ASSERT_EQ(::waitpid(hijo, &iEstado, 0), hijo);
        ASSERT_TRUE(WIFSIGNALED(iEstado));
    }
    void MorirCon(const wchar_t* csNombre, const CString& csRuta = {}) const
    {
        Morir([&](Sesion& suya, Recuperacion& suyas) {
            if (!csRuta.empty())
                suya.Abrir(csRuta);
            Renombrar(suya, csNombre);
            suyas.Seguir(suya);
        });
    }

    CarpetaTemporal carpeta;
    Guion guion;
    Sesion sesion;
    Recuperacion copias{EnCarpeta("copias")};
};

TEST_F(Copias, LoQueEstabaSinGuardarVuelveConSuFichero)
{
    CProyectoEstudio guardado;
    guardado.csNombre = L"Guardado";
    guardado.ajenas.push_back({L"de otro programa", 3, {std::byte{7}}});
    const CString csRuta = CadenaDesdeUtf8(EnCarpeta("p.efvp"));
    EscribirProyecto(BytesDe(guardado), csRuta);
    MorirCon(L"Sin guardar", csRuta);
    EXPECT_EQ(LeerProyecto(csRuta).proyecto->csNombre, L"Guardado");

    guion.presentador.respuestas = {Respuesta::si};
    EXPECT_TRUE(copias.Ofrecer(sesion));
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_NE(guion.Mensajes()[0].find(csRuta), CString::npos);
    EXPECT_EQ(sesion.Proyecto().csNombre, L"Sin guardar");
    EXPECT_EQ(sesion.Ruta(), csRuta);
    EXPECT_TRUE(sesion.Modificado());
    ASSERT_EQ(sesion.Proyecto().ajenas.size(), 1U);
    EXPECT_EQ(Ficheros(), 2U);  // this process's own copy now, and its lock
    // The file is the one that the dead process knew: it is saved without a question.
    EXPECT_TRUE(sesion.Guardar());
    EXPECT_EQ(guion.Mensajes().size(), 1U);
    copias.Seguir(sesion);
    EXPECT_EQ(Ficheros(), 0U);
}

TEST_F(Copias, DescartarBorraYMasTardeDeja)
{
    MorirCon(L"Uno");
    MorirCon(L"Dos");
    guion.presentador.respuestas = {Respuesta::no, Respuesta::cancelar};
    EXPECT_TRUE(copias.Ofrecer(sesion));
    EXPECT_EQ(guion.Mensajes().size(), 2U);
    EXPECT_EQ(copias.Halladas().size(), 1U);
    guion.presentador.respuestas = {Respuesta::no};
    EXPECT_TRUE(copias.Ofrecer(sesion));
    EXPECT_FALSE(copias.Ofrecer(sesion));
    EXPECT_EQ(Ficheros(), 0U);
    EXPECT_FALSE(sesion.Modificado());
}

TEST_F(Copias, LaDeUnProgramaVivoNoSeOfrece)
{
    Renombrar(sesion, L"Vivo");
    copias.Seguir(sesion);
    EXPECT_EQ(Ficheros(), 2U);
    Recuperacion otra(EnCarpeta("copias"));
    EXPECT_TRUE(otra.Halladas().empty());
    // What one window is being offered, another isn't.
    MorirCon(L"Muerto");
    const auto ofrecidas = otra.Halladas();
    ASSERT_EQ(ofrecidas.size(), 1U);
    EXPECT_TRUE(copias.Halladas().empty());
}

TEST_F(Copias, SoloSeEscribeLoQueCambiaYLoDeshechoLaRetira)
{
    copias.Seguir(sesion);
    EXPECT_EQ(Ficheros(), 0U);
    Renombrar(sesion, L"Uno");
    copias.Seguir(sesion);
    ASSERT_EQ(Ficheros(), 2U);
    for (const auto& entrada : std::filesystem::directory_iterator(EnCarpeta("copias")))
        std::filesystem::last_write_time(entrada, std::filesystem::file_time_type{});
    copias.Seguir(sesion);
    for (const auto& entrada : std::filesystem::directory_iterator(EnCarpeta("copias")))
        EXPECT_EQ(entrada.last_write_time(), std::filesystem::file_time_type{});
    sesion.Deshacer();
    copias.Seguir(sesion);
    EXPECT_EQ(Ficheros(), 0U);
}

TEST_F(Copias, SinSitioDondeEscribirSeDice)
{
    carpeta.Crear("copias", "un fichero");
    Renombrar(sesion, L"Uno");
    EXPECT_THROW(copias.Seguir(sesion), std::runtime_error);
    EXPECT_TRUE(copias.Halladas().empty());
}

}  // namespace
