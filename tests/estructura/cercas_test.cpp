// A file includes only its own layer and those before it, and calls exported functions only where it may. The
// same check runs over the project and over planted texts, one of each kind of breach.
#include "estructura/cercas.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using efv::estructura::CapaDeFichero;
using efv::estructura::Faltas;
using efv::estructura::Fichero;
using efv::estructura::LeerReglas;
using efv::estructura::Reglas;
using efv::estructura::SinComentariosNiLiterales;

const fs::path kRaiz = EFV_RAIZ;

Reglas ReglasDelProyecto()
{
    std::ifstream entrada(kRaiz / "tests/estructura/capas.txt");
    return LeerReglas(entrada);
}

std::string Leer(const fs::path& ruta)
{
    std::ifstream entrada(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

// Every file below the folders; those that build or that the desktop reads, not code, are told by name.
std::vector<Fichero> FicherosDelProyecto()
{
    std::vector<Fichero> ficheros;
    for (const char* carpeta : {"include", "src", "apps"}) {
        for (const auto& entrada : fs::recursive_directory_iterator(kRaiz / carpeta)) {
            const fs::path& ruta = entrada.path();
            if (entrada.is_regular_file() && ruta.filename() != "CMakeLists.txt" &&
                ruta.parent_path().filename() != "escritorio")
                ficheros.push_back(
                    {fs::relative(entrada.path(), kRaiz).generic_string(), Leer(entrada.path())});
        }
    }
    return ficheros;
}

TEST(Cercas, ElProyectoLasRespeta)
{
    const std::vector<Fichero> ficheros = FicherosDelProyecto();
    EXPECT_GT(ficheros.size(), 300U);
    EXPECT_EQ(Faltas(ReglasDelProyecto(), ficheros), std::vector<std::string>());
}

// What exists beside a planted file, one of each kind.
std::vector<std::string> FaltasDe(std::string ruta, std::string texto)
{
    const std::vector<Fichero> ficheros = {
        {"include/QuorvelEFV.h", ""},       {"include/quorvel/ui/lista.h", ""},
        {"include/quorvel/solar.h", ""},    {"include/quorvel/framework/CString.h", ""},
        {"src/platform/texto/texto.h", ""}, {"src/ui/ejes.h", ""},
        {"src/solar/energia.h", ""},        {"src/module/singletons.h", ""},
        {"src/assistants/equipos.h", ""},   {"src/economics/tarifas.h", ""},
        {"apps/efv/solar/energia.h", ""},   {std::move(ruta), std::move(texto)},
    };
    return Faltas(ReglasDelProyecto(), ficheros);
}

void EsperarFalta(const std::string& ruta, const std::string& texto, const std::string& que)
{
    const std::vector<std::string> faltas = FaltasDe(ruta, texto);
    ASSERT_EQ(faltas.size(), 1U) << testing::PrintToString(faltas) << texto;
    EXPECT_TRUE(faltas[0].starts_with(ruta + ": " + que)) << faltas[0];
}

void EsperarNinguna(const std::string& ruta, const std::string& texto)
{
    EXPECT_EQ(FaltasDe(ruta, texto), std::vector<std::string>()) << texto;
}

TEST(Cercas, UnaInclusionHaciaAdelanteEsUnaFalta)
{
    EsperarFalta("src/ui/a.cpp", "#include \"solar/energia.h\"\n", "includes solar/energia.h of solar");
    EsperarFalta("src/ui/a.cpp", "  #  include <quorvel/solar.h>\n", "includes quorvel/solar.h of solar");
    EsperarFalta("src/solar/a.h", "#include <QuorvelEFV.h>\n", "includes QuorvelEFV.h of module");
    EsperarFalta("include/quorvel/ui/a.h", "#include <quorvel/solar.h>\n", "includes quorvel/solar.h of solar");
    // Peers know nothing of one another.
    EsperarFalta("src/economics/a.cpp", "#include \"assistants/equipos.h\"", "includes assistants/equipos.h");
    EsperarFalta("src/assistants/a.cpp", "#include \"economics/tarifas.h\"", "includes economics/tarifas.h");
}

TEST(Cercas, ElPresentadorDeQtConoceSoloDialogosYPlataforma)
{
    EsperarFalta("src/qt/a.cpp", "#include <quorvel/solar.h>\n", "includes quorvel/solar.h of solar");
    EsperarFalta("src/qt/a.cpp", "#include \"solar/energia.h\"\n", "includes solar/energia.h of solar");
    EsperarFalta("src/qt/a.cpp", "#include <QuorvelEFV.h>\n", "includes QuorvelEFV.h of module");
    EsperarNinguna("src/qt/a.cpp",
                   "#include <QWidget>\n#include <quorvel/ui/lista.h>\n"
                   "#include \"ui/ejes.h\"\n#include \"platform/texto/texto.h\"\n");
}

TEST(Cercas, LosProgramasYLasCabecerasPublicasVenSoloLoPublico)
{
    EsperarFalta("apps/efv/a.cpp", "#include \"ui/ejes.h\"\n", "includes ui/ejes.h, which isn't public");
    EsperarFalta("src/rpc/a.cpp", "#include \"ui/ejes.h\"\n", "includes ui/ejes.h, which isn't public");
    EsperarFalta("include/quorvel/ui/a.h", "#include \"ui/ejes.h\"\n",
                 "includes ui/ejes.h, which isn't public");
    // A program's own folder may be named like a layer.
    EsperarNinguna("apps/efv/a.cpp", "#include \"solar/energia.h\"\n#include <QuorvelEFV.h>\n");
}

TEST(Cercas, SoloQuienPuedeLlamaALasFuncionesExportadas)
{
    EsperarFalta("src/assistants/a.cpp", "auto d = phGetHora(25);\n", "calls phGetHora");
    EsperarFalta("src/assistants/a.cpp", "auto* f = &phGetHora;\n", "calls phGetHora");
    EsperarFalta("src/solar/a.h", "int n = 1'000; /* ' */ char c = '\"'; phGetHora(n);\n", "calls phGetHora");
    EsperarNinguna("src/module/a.cpp", "int phGetHora() { return 1; }");
    EsperarNinguna("src/solar/a.cpp", "// phGetHora()\nf(\"phGetHora()\"); g(R\"x(phGetHora)x\"); graphX();");
}

TEST(Cercas, UnFicheroSinCapaEsUnaFalta)
{
    for (const char* ruta : {"src/nueva/a.cpp", "src/suelto.cpp", "src/apps/a.cpp", "src/ui/a.cc", "apps/a.cpp",
                             "include/quorvel/nueva.h", "include/quorvel/nueva/a.h", "include/otra.h"})
        EsperarFalta(ruta, "", "belongs to no layer");
}

TEST(Cercas, CadaBibliotecaAjenaSeConoceDondeDebe)
{
    EsperarFalta("src/solar/a.cpp", "#include <pugixml.hpp>\n", "includes pugixml.hpp");
    EsperarFalta("src/rpc/a.cpp", "#include <CLI/CLI.hpp>\n", "includes CLI/CLI.hpp");
    EsperarFalta("src/ui/a.cpp", "#include <QString>\n", "includes QString");
    EsperarFalta("include/quorvel/ui/a.h", "#include <fmt/format.h>\n", "includes fmt/format.h");
}

TEST(Cercas, NadaEsquivaLaLectura)
{
    EsperarFalta("src/ui/a.cpp", "#include MI_CABECERA\n", "includes by a macro");
    EsperarFalta("src/ui/a.cpp", "#include \"solar/no_existe.h\"\n",
                 "includes solar/no_existe.h, which doesn't exist");
    EsperarFalta("src/ui/a.cpp", "#include <solar/energia.h>\n", "includes solar/energia.h in angles");
    EXPECT_EQ(SinComentariosNiLiterales("a /* b\n */ c // d\n'e' \"f\\\"\" 1'0"), "a   c \n    1'0");
    std::istringstream mala("capa ui\nsolo ui nadie\n");
    EXPECT_THROW(LeerReglas(mala), std::invalid_argument);
}

}  // namespace
