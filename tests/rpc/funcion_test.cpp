// Arguments that no exported function has yet, in rows of a table of the tests.
#include <vector>

#include <gtest/gtest.h>

#include "rpc/control_guionizado.h"
#include "rpc/funcion.h"

namespace efv::rpc {
namespace {

constexpr std::size_t kBloque = 12 * 31 * 24;

// Doubles the last number of the first blocks and counts those that came.
int Estudiar(double* adProduccion, const double* adCarga, CObArrayPropio<CSFVDataReceptor>& lReceptores)
{
    const auto n = (static_cast<std::size_t>(lReceptores.GetSize()) + 1) * kBloque;
    adProduccion[n - 1] *= 2.0;
    if (!lReceptores.IsEmpty())
        lReceptores[0].iCantidad += 1;
    return adCarga != nullptr ? static_cast<int>(adCarga[n - 1]) : -1;
}

short Colorear(short& nColor, CObArrayPropio<CSFVAsistenteRed>& lDisenos)
{
    nColor = static_cast<short>(nColor - lDisenos.GetSize());
    return 7;
}

constexpr auto kEstudiar = Funcion::De<&Estudiar, BloquesPorRegistro{0, 2}, BloquesPorRegistro{1, 2, true}>(
    "Estudiar", "adProduccion, adCarga, lReceptores");
constexpr auto kColorear = Funcion::De<&Colorear>("Colorear", "nColor, lDisenos");

class FuncionDePrueba : public ::testing::Test {
protected:
    Json Invocar(const Funcion& funcion, const Json& params)
    {
        std::string salida = "{";
        funcion.Invocar(params, {m_control}, salida);
        return Json::parse(salida + "}");
    }
    std::string Rechazo(const Funcion& funcion, const Json& params)
    {
        try {
            Invocar(funcion, params);
        } catch (const ErrorRpc& e) {
            EXPECT_EQ(e.GetCodigo(), Codigo::argumentos);
            return e.what();
        }
        ADD_FAILURE() << "accepted";
        return {};
    }

private:
    ControlGuionizado m_control;
};

Json Bloques(std::size_t n)
{
    return std::vector<double>(n * kBloque, 1.5);
}

TEST_F(FuncionDePrueba, LosBloquesTienenLaLongitudDeLaLista)
{
    const Json dos = Json::parse(R"([{"iCantidad":4,"csModelo":"A#r"},{}])");
    const Json r = Invocar(kEstudiar, {Bloques(3), Bloques(3), dos});
    EXPECT_EQ(r["return"], 1);
    EXPECT_EQ(r["params"][0].size(), 3 * kBloque);
    EXPECT_EQ(r["params"][0].back(), 3.0);
    EXPECT_EQ(r["params"][1], Bloques(3));
    EXPECT_EQ(r["params"][2][0]["iCantidad"], 5);
    EXPECT_EQ(r["params"][2][0]["csModelo"], "A#r");

    // No records, or no list at all: the whole installation alone.
    EXPECT_EQ(Invocar(kEstudiar, {Bloques(1), nullptr, nullptr})["return"], -1);
    EXPECT_EQ(Invocar(kEstudiar, {Bloques(1), nullptr, Json::array()})["params"][1], nullptr);

    for (const Json& mal : {Bloques(2), Json::array(), Json(7), Json()}) {
        const std::string texto = Rechazo(kEstudiar, {mal, nullptr, dos});
        EXPECT_NE(texto.find("adProduccion"), std::string::npos) << texto;
        EXPECT_NE(texto.find("26784"), std::string::npos) << texto;
    }
    EXPECT_NE(Rechazo(kEstudiar, {Bloques(3), Bloques(1), dos}).find("adCarga"), std::string::npos);
    EXPECT_NE(Rechazo(kEstudiar, {Bloques(1), nullptr, 3}).find("lReceptores"), std::string::npos);
    EXPECT_NE(Rechazo(kEstudiar, {Bloques(2), nullptr, Json::parse(R"([{"nada":1}])")}).find("elemento 0"),
              std::string::npos);
}

TEST_F(FuncionDePrueba, CualquierListaDeRegistrosYEnterosDe16Bits)
{
    const Json r = Invocar(kColorear, {-32767, Json::parse(R"([{"iInversores":3}])")});
    EXPECT_EQ(r["return"], 7);
    EXPECT_EQ(r["params"][0], -32768);
    EXPECT_EQ(r["params"][1][0]["iInversores"], 3);
    EXPECT_NE(Rechazo(kColorear, {-32769, nullptr}).find("16 bits"), std::string::npos);
    EXPECT_EQ(kColorear.Declaracion(),
              "short Colorear(short& nColor, CObArrayPropio<CSFVAsistenteRed>& lDisenos)");
}

TEST_F(FuncionDePrueba, LaFirmaDiceDeQueDependeLaLongitud)
{
    const auto parametros = kEstudiar.GetFirma().parametros;
    EXPECT_EQ(parametros[1].tipo, "const double*");
    EXPECT_EQ(parametros[1].longitud, "(lReceptores + 1) * 8928");
    EXPECT_TRUE(parametros[1].bPuedeFaltar);
    EXPECT_FALSE(parametros[0].bPuedeFaltar);
    EXPECT_EQ(parametros[2].longitud, "");
}

}  // namespace
}  // namespace efv::rpc
