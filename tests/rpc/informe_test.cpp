// The report of a design by JSON: the same document as the programs', and what is wrong with the request by
// name.
#include <gtest/gtest.h>

#include "comun/anfitrion.h"
#include "comun/catalogos_enviados.h"

namespace efv::rpc::pruebas {
namespace {

using namespace efv::pruebas;

Json Red()
{
    return {{"csInversor", "SMA#SB5.0-1AV-40"},
            {"csPanel", "ET Solar#ET-M660285WW"},
            {"dPotenciaObjetivo", 5.0},
            {"iInversores", 3},
            {"iPanelesSerie", 11},
            {"iPanelesParalelo", 2},
            {"dInclinacion", 17.0}};
}

class Informe : public ConCatalogosEnviados {
protected:
    Json peticion = {
        {"record", "CSFVAsistenteRed"},
        {"value", Red()},
        {"title", "Nave <7>"},
        {"place", {{"name", "Aquí"}, {"latitude", 40.0}, {"radiation", std::vector<double>(12, 18000.0)}}},
        {"format", "text"}};
    Anfitrion anfitrion;
};

TEST_F(Informe, DiceElDisenoAceptado)
{
    const std::string texto = anfitrion.Resultado("rpc.report", peticion)["text"];
    for (const char* dicho : {"Nave <7>", "Aquí", "285,1 Wp", "kWh"})
        EXPECT_NE(texto.find(dicho), std::string::npos) << dicho << "\n" << texto;
    peticion.erase("format");
    peticion["cover"] = {{"customer", "Ayuntamiento"}, {"signature", "Elena <V>"}};
    const std::string pagina = anfitrion.Resultado("rpc.report", peticion)["text"];
    EXPECT_EQ(pagina.find("<!DOCTYPE html>"), 0U);
    EXPECT_NE(pagina.find("Nave &lt;7&gt;"), std::string::npos);
    for (const char* dicho : {"Ayuntamiento", "Firma: Elena &lt;V&gt;"})
        EXPECT_NE(pagina.find(dicho), std::string::npos) << dicho;
    // Without radiations there is no energy, and it isn't 0.
    peticion["place"].erase("radiation");
    peticion["format"] = "text";
    const std::string sin = anfitrion.Resultado("rpc.report", peticion)["text"];
    EXPECT_NE(sin.find("sin datos"), std::string::npos);
}

TEST_F(Informe, LoQueFaltaSeNombra)
{
    struct Caso {
        const char* puntero;
        Json valor;
        const char* dicho;
    };
    const Caso casos[] = {{"/record", "CSFVCalculoEconomico", "record"},
                          {"/value/csPanel", "Nadie#Nada", "Nadie#Nada"},
                          {"/value/iInversores", 0, "Todavía no hay diseño"},
                          {"/value/iOtro", 1, "iOtro"},
                          {"/place/latitude", 91, "latitude"},
                          {"/place/radiation", {1, 2}, "place"},
                          {"/place/radiacion", 1, "radiacion"},
                          {"/cover", {{"client", "A"}}, "client"},
                          {"/format", "pdf", "html o text"}};
    for (const Caso& caso : casos) {
        Json mala = peticion;
        mala[Json::json_pointer(caso.puntero)] = caso.valor;
        const auto [codigo, texto] = anfitrion.Error("rpc.report", mala);
        EXPECT_EQ(codigo, -32602) << caso.puntero;
        EXPECT_NE(texto.find(caso.dicho), std::string::npos) << texto;
    }
}

}  // namespace
}  // namespace efv::rpc::pruebas
