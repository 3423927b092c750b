// Projects of the desktop program in the command.
#include <span>

#include "apoyo.h"
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
    // What an order's design of a shipped example is, as the record that an archive keeps.
    template <class R>
    void Tomar(const char* orden, const char* ejemplo, R& registro)
    {
        const std::string ruta = m_carpeta.Ruta().string() + "/registro";
        ASSERT_EQ(Correr({orden, (kEjemplos / ejemplo).string(), "--guardar", ruta}).iEstado, 0);
        const std::string bytes = LeerTodo(ruta);
        CArchive ar(std::as_bytes(std::span(bytes)));
        registro.Serialize(ar);
    }
    static Json Valores(const char* orden, const std::string& ruta)
    {
        const Corrida corrida = Correr({orden, ruta, "--json"});
        EXPECT_EQ(corrida.errores, "");
        return Json::parse(corrida.salida);
    }
    void PonerLugar(const Json& resultado)
    {
        m_proyecto.lugar.dLatitud = resultado["lugar"]["latitud_grados"];
        for (std::size_t m = 0; m < 12; ++m)
            m_proyecto.lugar.adRadHorizontal[m] = resultado["lugar"]["radiacion_kJ_m2_dia"][m];
    }

    CarpetaTemporal m_carpeta;
    estudio::CProyectoEstudio m_proyecto;
};

TEST_F(ProyectoDeEstudio, ElDisenoEsElMismoQueElDeSuJson)
{
    const Json red = Valores("red", (kEjemplos / "cubierta-red.json").string());
    const Json aislada = Valores("aislada", (kEjemplos / "casa-aislada.json").string());
    Tomar("red", "cubierta-red.json", m_proyecto.red);
    Tomar("aislada", "casa-aislada.json", m_proyecto.aislada);
    PonerLugar(red);
    const std::string ruta = Guardar(m_proyecto);
    const Json otra = Valores("red", ruta);
    for (const char* campo :
         {"iInversores", "iPanelesSerie", "iPanelesParalelo", "dInclinacion", "dDistanciaFilas"})
        EXPECT_EQ(otra["valores"][campo], red["valores"][campo]) << campo;
    EXPECT_EQ(otra["meses"], red["meses"]);
    PonerLugar(aislada);
    const Json casa = Valores("aislada", Guardar(m_proyecto));
    for (const char* campo :
         {"iAcumuladoresParalelo", "iPanelesSerie", "iPanelesParalelo", "dEnergiaNecesaria"})
        EXPECT_EQ(casa["valores"][campo], aislada["valores"][campo]) << campo;
    EXPECT_EQ(casa["receptores"].size(), aislada["receptores"].size());
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
