// Projects of the desktop program in the command.
#include "apoyo.h"
#include "diseno/proyecto_json.h"
#include "proyecto/proyecto.h"

namespace efv::orden::pruebas {
namespace {

class ProyectoDeEstudio : public ::testing::Test {
protected:
    std::string Guardar(estudio::CProyectoEstudio& proyecto)
    {
        std::vector<std::byte> bytes;
        CArchive ar(bytes);
        proyecto.Serialize(ar);
        return m_carpeta.Crear("p.efvp",
                               std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
    }
    static Json Valores(const char* orden, const std::string& ruta)
    {
        const Corrida corrida = Correr({orden, ruta, "--json"});
        EXPECT_EQ(corrida.errores, "");
        return Json::parse(corrida.salida);
    }
    CarpetaTemporal m_carpeta;
    estudio::CProyectoEstudio m_proyecto;
};

// The JSON of the command as a project of the program, and that project in the command.
TEST_F(ProyectoDeEstudio, ElJsonHechoProyectoDaLasMismasCifras)
{
    for (const auto& [orden, ejemplo] : {std::pair("red", "cubierta-red.json"),
                                         {"aislada", "casa-aislada.json"},
                                         {"venta", "venta-cubierta.json"},
                                         {"autoconsumo", "casa-autoconsumo.json"}}) {
        SCOPED_TRACE(ejemplo);
        const std::string json = (kEjemplos / ejemplo).string();
        const ProyectoDeJson leido = AbrirProyectoJson(json, "");
        Json suyo = Valores(orden, json), otro = Valores(orden, Guardar(*leido.proyecto));
        for (const char* parte : {"valores", "meses", "comprobacion", "estudio"})
            EXPECT_EQ(suyo[parte], otro[parte]) << parte;
        EXPECT_EQ(suyo["titulo"], otro["titulo"]);
    }
}

// The project keeps what the file says of its cables and losses, each kind of design only its own stretches.
TEST_F(ProyectoDeEstudio, ElCableadoYElRendimientoVanConElProyecto)
{
    for (const auto& [orden, ejemplo, cableado] :
         {std::tuple("red", "cubierta-red.json",
                     R"({"limite": 0.5, "material": "Al", "L2": {"metodo": "D1"}})"),
          {"aislada", "casa-aislada.json", R"({"limite": 3, "paneles": {"longitud": 20}})"}}) {
        Json json = Json::parse(LeerTodo(kEjemplos / ejemplo));
        json["cableado"] = Json::parse(cableado);
        if (std::string_view(orden) == "red")
            json["rendimiento"] = 0.7;
        const std::string ruta = m_carpeta.Crear("c.json", json.dump());
        const ProyectoDeJson leido = AbrirProyectoJson(ruta, "");
        EXPECT_TRUE(leido.notas.empty());
        const Json suyo = Valores(orden, ruta), otro = Valores(orden, Guardar(*leido.proyecto));
        EXPECT_EQ(suyo["cableado"], otro["cableado"]);
        EXPECT_EQ(suyo["meses"], otro["meses"]);
        leido.proyecto->calculo.csCableado += L"}";
        EXPECT_TRUE(Contiene(Correr({orden, Guardar(*leido.proyecto)}).errores, {"cableado están dañados"}));
        EXPECT_THROW(CriteriosDe(*leido.proyecto), std::exception);
    }
}

// Without a word of its kind, with a module and a load that no catalogue has.
TEST_F(ProyectoDeEstudio, LosModelosPropiosVanConElProyecto)
{
    Json json = Json::parse(LeerTodo(kEjemplos / "casa-aislada.json"));
    json.erase("tipo");
    json["modelos"] = Json::parse(R"([{"catalogo": "modulos", "csModelo": "Mío 400", "dPmpm": 400, "dVmpm": 34,
        "dImpm": 11.76, "dVoc": 41, "dIsc": 12.5, "dH": 1700, "dB": 1100}])");
    json["csPanel"] = "Mío 400";
    json["receptores"].push_back(
        {{"csModelo", "Torno"}, {"dPotencia", 900}, {"iTipoRed", 1}, {"dVoltaje", 230}});
    json["receptores"].back()["franjas"] = Json::parse(R"([["10:00", "12:00"]])");
    const std::string ruta = m_carpeta.Crear("mio.json", json.dump());
    const Json suyo = Valores("aislada", ruta);
    EXPECT_EQ(suyo["valores"]["csPanel"], "Del proyecto#Mío 400");
    EXPECT_TRUE(
        Contiene(suyo["avisos"].dump(), {"Torno: no está en el catálogo", "900,0 W de corriente alterna"}));
    // 900 W two hours a day.
    Json sin = json;
    sin["receptores"].erase(sin["receptores"].size() - 1);
    const Json antes = Valores("aislada", m_carpeta.Crear("sin.json", sin.dump()));
    EXPECT_NEAR(
        suyo["valores"]["dEnergiaDiaria"].get<double>() - antes["valores"]["dEnergiaDiaria"].get<double>(),
        1800.0, 1e-6);

    const std::string proyecto = Guardar(*AbrirProyectoJson(ruta, "").proyecto);
    const Json otro = Valores("aislada", proyecto);
    EXPECT_EQ(otro["valores"]["iPanelesParalelo"], suyo["valores"]["iPanelesParalelo"]);
    EXPECT_EQ(otro["comprobacion"], suyo["comprobacion"]);
    EXPECT_EQ(Correr({"consumo", "receptores", proyecto, "--json"}).iEstado, 0);

    json["modelos"][0]["dPmp"] = 1;
    EXPECT_TRUE(Contiene(Correr({"aislada", m_carpeta.Crear("mal.json", json.dump())}).errores,
                         {"modelos: elemento 0: ", "no hay ningún campo «dPmp»; parecidos: dPmpm"}));
}

TEST_F(ProyectoDeEstudio, LoQueNoTieneSeDice)
{
    const std::string ruta = Guardar(m_proyecto);
    for (const auto& [orden, texto] : {std::pair("red", "no tiene instalación conectada a red"),
                                       {"aislada", "no tiene instalación aislada"},
                                       {"autoconsumo", "no tiene estudio guiado"}}) {
        const Corrida corrida = Correr({orden, ruta});
        EXPECT_EQ(corrida.iEstado, 1);
        EXPECT_TRUE(Contiene(corrida.errores, {"p.efvp", texto}));
    }
    const std::string cortado = m_carpeta.Crear("c.efvp", LeerTodo(ruta).substr(0, 40));
    EXPECT_TRUE(Contiene(Correr({"red", cortado}).errores, {"c.efvp", "cortado"}));
}

}  // namespace
}  // namespace efv::orden::pruebas
