// Scripts and transcripts of dialogs between JSON and a dialog's controls.
#include "rpc/guiones.h"
#include "apoyo.h"
#include "rpc/json.h"

namespace efv::orden::pruebas {
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
            Anadir<ui::Grafica>("grafica", L"").datos.aSeries = {{{0, 1}, {2, 3}, ui::kRojo, 2, linea, 3},
                                                                 {{0}, {1}, ui::kAzul, 1, escalon},
                                                                 {{0}, {1}, ui::kNegro, 1, barra}};
        }
    } d;
    const Json series = Representar(d, R"([{"read":"*"}])")["reads"][0]["grafica"]["series"];
    EXPECT_EQ(series[0],
              Json::parse(R"({"x":[0,1],"y":[2,3],"colour":"#FF0000","width":2,"style":3,"kind":"line"})"));
    EXPECT_EQ(series[1]["kind"], "step");
    EXPECT_EQ(series[1]["style"], 1);
    EXPECT_EQ(series[2]["kind"], "bar");
    EXPECT_EQ(series[2]["style"], 1);
}

}  // namespace
}  // namespace efv::orden::pruebas
