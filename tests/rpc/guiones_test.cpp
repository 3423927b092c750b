// Scripts and transcripts of dialogs between JSON and a dialog's controls.
#include "rpc/guiones.h"
#include "comun/anfitrion.h"
#include "rpc/json.h"

namespace efv::rpc::pruebas {
namespace {

// Plays the script, one line of JSON, and gives the dialog's transcript.
Json Representar(ui::Dialogo& dialogo, const std::string& pasos)
{
    ui::PresentadorGuionizado presentador;
    presentador.guiones =
        rpc::LeerGuiones(rpc::Json::parse(R"([{"dialog":")" + dialogo.clase + R"(","steps":)" + pasos + "}]"));
    ui::InstalarPresentador(&presentador);
    dialogo.Mostrar();
    ui::InstalarPresentador(nullptr);
    std::string salida;
    rpc::EscribirDialogos(salida, presentador.transcripciones);
    Json transcripcion = Json::parse(salida).at(0);
    if (presentador.csErrorGuion)
        transcripcion["error"] = CadenaUtf8(*presentador.csErrorGuion);
    return transcripcion;
}

TEST(Transcripcion, LasSeriesDicenSuFormaYSuTrazo)
{
    class Estudio : public ui::Dialogo {
    public:
        Estudio() : Dialogo("Estudio", L"Estudio")
        {
            using enum ui::FormaSerie;
            Anadir<ui::Grafica>("grafica", L"").datos.aSeries = {
                {{0, 1}, {2, 3}, ui::kRojo, 2, linea, 3},
                {{0}, {1}, ui::kAzul, 1, escalon},
                {{0}, {1}, ui::kNegro, 1, barra, 1, L"Producida"}};
        }
    } d;
    const Json grafica = Representar(d, R"([{"read":"*"}])")["reads"][0]["grafica"];
    EXPECT_EQ(grafica["axis"], "number");
    const Json& series = grafica["series"];
    EXPECT_EQ(series[0],
              Json::parse(R"({"x":[0,1],"y":[2,3],"colour":"#FF0000","width":2,"style":3,"kind":"line"})"));
    EXPECT_EQ(series[1]["kind"], "step");
    EXPECT_EQ(series[1]["style"], 1);
    EXPECT_EQ(series[2]["kind"], "bar");
    EXPECT_EQ(series[2]["name"], "Producida");
    EXPECT_EQ(series[2]["style"], 1);
}

class Horario : public ui::Dialogo {
public:
    Horario() : Dialogo("Horario", L"Horario")
    {
        inicio.iMaximo = 1440;
        inicio.alMover = [this] { aiValores.push_back(inicio.iValor); };
        Anadir<ui::Deslizador>("apagado", L"").bHabilitado = false;
        Anadir<ui::Imagen>("esquema", L"Esquema").csImagen = L"grafica";
    }
    ui::Deslizador& inicio = Anadir<ui::Deslizador>("I1", L"&Inicio:");
    std::vector<int> aiValores;
};

TEST(Guiones, UnDeslizadorSeMueveAUnNumero)
{
    Horario d;
    const Json t = Representar(
        d, R"([{"set":["I1","1440"]},{"type":["Inicio:","0"]},{"set":["I1","450,0"]},{"read":"*"}])");
    EXPECT_EQ(t.count("error"), 0U) << t;
    EXPECT_EQ(d.aiValores, (std::vector<int>{1440, 0, 450}));
    const Json estado = t["reads"][0];
    EXPECT_EQ(estado["I1"]["value"], 450);
    EXPECT_EQ(estado["I1"]["text"], "450");
    EXPECT_EQ(estado["esquema"]["text"], "grafica");
    EXPECT_EQ(estado["esquema"]["value"], nullptr);
}

TEST(Guiones, LoQueUnaPersonaNoPuedeMoverEsUnError)
{
    for (const char* paso :
         {R"({"set":["I1","1441"]})", R"({"set":["I1","-1"]})", R"({"set":["I1","1,5"]})",
          R"({"set":["I1",""]})", R"({"set":["I1","1e99"]})", R"({"set":["apagado","1"]})",
          R"({"check":["I1",true]})", R"({"press":"esquema"})", R"({"set":["esquema","1"]})"}) {
        Horario d;
        const Json t = Representar(d, "[" + std::string(paso) + "]");
        EXPECT_EQ(t.value("error", "").find("paso 0 de Horario: control"), 0U) << paso << t;
        EXPECT_TRUE(d.aiValores.empty()) << paso;
        EXPECT_EQ(t["result"], "Cancel");
    }
}

}  // namespace
}  // namespace efv::rpc::pruebas
