// Every dialog of the library has its picture, and whole: what a screen says that it opens, it opens.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "anfitrion/simbolos.h"
#include "apoyo.h"
#include "capturas/capturar.h"
#include "comun/ficheros.h"
#include "proyecto/ejemplo.h"
#include "ventana_principal.h"

namespace {

namespace fs = std::filesystem;
using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

// Classes of dialogs as the library's sources name them.
std::set<std::string> DialogosDeLaBiblioteca()
{
    const std::regex clase(R"re("(CDlg\w+|C\w+Sheet)")re");
    std::set<std::string> clases;
    for (const auto& entrada : fs::recursive_directory_iterator(EFV_CARPETA_PRUEBAS "/../src")) {
        if (entrada.path().extension() != ".cpp" && entrada.path().extension() != ".h")
            continue;
        std::ifstream fichero(entrada.path());
        const std::string texto{std::istreambuf_iterator<char>(fichero), {}};
        for (std::sregex_iterator i(texto.begin(), texto.end(), clase); i != std::sregex_iterator(); ++i)
            clases.insert((*i)[1]);
    }
    return clases;
}

class Capturas : public ConCatalogos {
protected:
    Capturas() { phSetQuorvelBIMCtrl(control); }

    static inline ControlAnfitrion control;  // the module keeps it for good
    VentanaPrincipal ventana{LeerLocalidades(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/localidades.xml"))};
    Sesion& sesion = ventana.LaSesion();
    const CarpetaTemporal carpeta;
};

TEST_F(Capturas, CadaDialogoDeLaBibliotecaTieneLaSuyaYCabeEnUnaPantallaPequena)
{
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    ventana.show();
    const ResultadoCapturas programa = CapturarPrograma(ventana, carpeta.Ruta());
    // Each tab, a design that fails with its schematic, a field at fault, designs out of date, the palette,
    // long work, the help, both schematics; each in both themes.
    EXPECT_EQ(programa.nCapturas, 2 * (static_cast<int>(VentanaPrincipal::Pestanas().size()) + 9));
    const ResultadoCapturas resultado = Capturar(Pantallas(sesion), carpeta.Ruta());
    for (const auto& faltas : {programa.faltas, resultado.faltas})
        for (const std::string& falta : faltas)
            ADD_FAILURE() << falta;
    const std::set<std::string> clases = DialogosDeLaBiblioteca();
    EXPECT_GE(clases.size(), 20U);
    for (const std::string& clase : clases)
        EXPECT_TRUE(resultado.clases.contains(clase)) << clase << " has no picture";
    EXPECT_FALSE(sesion.Modificado());
}

TEST_F(Capturas, UnaPantallaQueNoAbreLoQueDiceEsUnaFalta)
{
    const ResultadoCapturas resultado = Capturar(
        {{"tipo", {"CDlgAsistenteTipoInstalacion", "CDlgMesAno"}, [] { phSeleccionAsistenteSFV(); }, {}}},
        carpeta.Ruta());
    EXPECT_EQ(resultado.nCapturas, 2);
    ASSERT_EQ(resultado.faltas.size(), 1U);
    EXPECT_NE(resultado.faltas.front().find("CDlgMesAno"), std::string::npos);
}

}  // namespace
