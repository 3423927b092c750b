// A file includes only its own layer and those before it.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

// First to last. What stands on one line may not include one another.
const std::map<std::string, int> kCapas = {
    {"platform", 0},  {"resources", 1},  {"frame", 2},       {"ui", 3},         {"catalogues", 4},
    {"solar", 5},     {"electrical", 6}, {"consumption", 7}, {"assistants", 8}, {"economics", 9},
    {"elements", 10}, {"module", 11},    {"qt", 12},         {"apps", 13},
};

// Public headers: the layer that each belongs to. Those of `platform` are many, the others one a layer.
int CapaDeCabecera(const std::string& nombre)
{
    const std::string sinSufijo = nombre.substr(0, nombre.find('.'));
    if (sinSufijo.starts_with("catalogo"))
        return kCapas.at("catalogues");
    if (sinSufijo.starts_with("assistants"))
        return kCapas.at("assistants");
    const auto capa = kCapas.find(sinSufijo);
    return capa != kCapas.end() ? capa->second : kCapas.at("platform");
}

int CapaDeInclusion(const std::string& ruta)
{
    if (ruta == "QuorvelEFV.h")
        return kCapas.at("module");
    if (ruta.starts_with("quorvel/"))
        return CapaDeCabecera(ruta.substr(8));
    const auto capa = kCapas.find(ruta.substr(0, ruta.find('/')));
    return capa != kCapas.end() ? capa->second : -1;  // -1: a library of the system
}

void ComprobarFichero(const fs::path& fichero, int iCapa, bool soloPublicas)
{
    std::ifstream entrada(fichero);
    const std::regex inclusion(R"re(^\s*#\s*include\s*["<]([^">]+)[">])re");
    std::smatch partes;
    for (std::string linea; std::getline(entrada, linea);) {
        if (!std::regex_search(linea, partes, inclusion))
            continue;
        const std::string ruta = partes[1];
        EXPECT_LE(CapaDeInclusion(ruta), iCapa) << fichero << " includes " << ruta;
        const bool publica = ruta == "QuorvelEFV.h" || ruta.starts_with("quorvel/");
        EXPECT_TRUE(!soloPublicas || publica || CapaDeInclusion(ruta) == -1)
            << fichero << " includes " << ruta << ", which isn't public";
    }
}

int Recorrer(const fs::path& carpeta, bool soloPublicas, int (*capa)(const fs::path&))
{
    int ficheros = 0;
    for (const auto& entrada : fs::recursive_directory_iterator(carpeta)) {
        const std::string sufijo = entrada.path().extension();
        if (sufijo != ".h" && sufijo != ".cpp")
            continue;
        ++ficheros;
        ComprobarFichero(entrada.path(), capa(fs::relative(entrada.path(), carpeta)), soloPublicas);
    }
    return ficheros;
}

const fs::path kRaiz = EFV_RAIZ;

TEST(Capas, CadaFicheroIncluyeSoloLasSuyasOAnteriores)
{
    EXPECT_GT(Recorrer(kRaiz / "src", false, [](const fs::path& p) { return kCapas.at(p.begin()->string()); }),
              20);
    EXPECT_GT(Recorrer(kRaiz / "include" / "quorvel", true,
                       [](const fs::path& p) { return CapaDeCabecera(p.begin()->string()); }),
              8);
}

// The commands stand over the public headers only; their own files are included by bare name or folder.
TEST(Capas, LosProgramasUsanSoloLasCabecerasPublicas)
{
    EXPECT_GT(Recorrer(kRaiz / "apps", true, [](const fs::path&) { return kCapas.at("apps"); }), 3);
}

}  // namespace
