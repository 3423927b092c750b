// Help: misspelt orders and options, `efv ayuda`, the manual's page, what a shell completes.
#include <filesystem>
#include <fstream>
#include <set>

#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

TEST(Ayuda, LoMalEscritoDiceQuePudoSer)
{
    const struct {
        std::vector<std::string> argumentos;
        const char* esperado;
    } casos[] = {
        {{"enrgia"}, "enrgia; parecidos: energia (ayuda: efv --help)"},
        {{"catalogo", "lista"}, "lista; parecidos: listar (ayuda: efv catalogo --help)"},
        {{"energia", "--latitud", "4"}, "--latitud; parecidos: --lat (ayuda: efv energia --help)"},
        {{"energia", "--poten=4"}, "--poten=4; parecidos: --potencia"},
        {{"energia", "--jsn"}, "--jsn; parecidos: --json"},
        {{"catalogo", "ver", "--tip", "x"}, "--tip; parecidos: --tipo (ayuda: efv catalogo ver --help)"},
        {{"energia", "5"}, "inesperado: 5 (ayuda"},
        {{"energia", "--qwertyuiop"}, "inesperado: --qwertyuiop (ayuda"},
        {{"ayuda", "catalogo", "vr"}, "«efv catalogo» no tiene la orden «vr»; parecidos: ver"},
    };
    for (const auto& caso : casos) {
        const Corrida corrida = Correr(caso.argumentos);
        EXPECT_EQ(corrida.iEstado, 2);
        EXPECT_TRUE(Contiene(corrida.errores, {caso.esperado}));
        EXPECT_EQ(corrida.salida, "");
    }
}

TEST(Ayuda, LaOrdenDaLoQueSuOpcion)
{
    EXPECT_EQ(Correr({"ayuda", "energia"}).salida, Correr({"energia", "--help"}).salida);
    EXPECT_EQ(Correr({"ayuda", "catalogo", "ver"}).salida, Correr({"catalogo", "ver", "--help"}).salida);
    EXPECT_EQ(Correr({"ayuda"}).salida, Correr({"--help"}).salida);
    EXPECT_EQ(Correr({"-V"}).salida, Correr({"--version"}).salida);
}

// A line of the manual that begins with "." and no request of ours would be lost on the page.
TEST(Ayuda, LaPaginaDelManualTieneTodaOrdenYOpcion)
{
    const std::string pagina = Correr({"ayuda", "--man"}).salida;
    EXPECT_TRUE(Contiene(pagina, {".TH EFV 1", ".SS efv catalogo importar\\-pan",
                                  "\\fB\\-\\-inclinacion\\fR \\fIGRADOS\\fR", ".SH ESTADO DE SALIDA"}));
    std::istringstream lineas(pagina);
    for (std::string linea; std::getline(lineas, linea);) {
        if (!linea.starts_with('.'))
            continue;
        const std::string pedido = linea.substr(0, linea.find(' '));
        EXPECT_TRUE(std::set<std::string>({".TH", ".SH", ".SS", ".TP", ".PP", ".nf", ".fi"}).contains(pedido))
            << linea;
    }
}

class Completado : public ::testing::Test {
protected:
    // The first of each line, without its help.
    static std::vector<std::string> Tras(std::vector<std::string> palabras)
    {
        palabras.insert(palabras.begin(), {"completar", "--", "candidatos"});
        const Corrida corrida = Correr(palabras);
        EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
        std::vector<std::string> candidatos;
        std::istringstream lineas(corrida.salida);
        for (std::string linea; std::getline(lineas, linea);)
            candidatos.push_back(linea.substr(0, linea.find('\t')));
        return candidatos;
    }
};

TEST_F(Completado, OrdenesOpcionesYPalabras)
{
    using Lista = std::vector<std::string>;
    EXPECT_EQ(Tras({"ener"}), Lista{"energia"});
    EXPECT_EQ(Tras({"energia", "--la"}), Lista{"--lat"});
    EXPECT_EQ(Tras({"energia", "--metodo", ""}), Lista({"correlacion", "tabla", "ambos"}));
    EXPECT_EQ(Tras({"energia", "--metodo", "tabla", "--metodo=a"}), Lista{"ambos"});
    EXPECT_EQ(Tras({"energia", "--metodo", "=", "a"}), Lista{"ambos"});
    EXPECT_EQ(Tras({"catalogo", "ver", "--tipo", "mi"}), Lista{"microinversores"});
    EXPECT_EQ(Tras({"ayuda", "catalogo", "ver"}), Lista{"ver"});
    EXPECT_EQ(Tras({"completar", ""}), Lista({"bash", "zsh", "fish"}));
    EXPECT_EQ(Tras({"red", ""}), Lista{":ficheros"});
    EXPECT_EQ(Tras({"energia", "--datos", "/d"}), Lista{":carpetas"});
    EXPECT_EQ(Tras({"no-hay", "--tal", ""}).front(), "energia");
}

TEST_F(Completado, LugaresYModelosSinMayusculasNiAcentos)
{
    const CarpetaTemporal datos;
    const std::string ruta = datos.Ruta().string();
    std::ofstream(datos.Ruta() / "m.xml")
        << R"(<Q><TablaFamilias><Familia nombre="Énergy"><Modelo csModelo="A-1"/>)"
           R"(<Modelo csModelo="B 2"/></Familia></TablaFamilias></Q>)";
    std::filesystem::copy_file(EFV_CARPETA_PRUEBAS "/../data/localidades.xml",
                               datos.Ruta() / "localidades.xml");
    using Lista = std::vector<std::string>;
    EXPECT_EQ(Tras({"energia", "--datos", ruta, "--lugar", "leo"}), Lista{"León"});
    const std::string catalogo = ruta + "/m.xml";
    EXPECT_EQ(Tras({"curvas", "--fichero", catalogo, "energy#"}), Lista({"Énergy#A-1", "Énergy#B 2"}));
    EXPECT_EQ(Tras({"catalogo", "ver", "--fichero=" + catalogo, "b"}), Lista{"Énergy#B 2"});
    EXPECT_EQ(Tras({"catalogo", "listar", "--fichero", catalogo, "--familia", ""}), Lista{"Énergy"});
    // What can't be read completes nothing, and says nothing into the line being typed.
    EXPECT_EQ(Tras({"curvas", "--fichero", ruta + "/falta.xml", ""}), Lista{});
}

}  // namespace
}  // namespace efv::orden::pruebas
