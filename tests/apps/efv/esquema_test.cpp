// The order that draws schematics: formats, papers, and what it refuses.
#include "apoyo.h"

namespace efv::orden::pruebas {
namespace {

class OrdenEsquema : public testing::Test {
protected:
    Corrida Dibujar(const char* ejemplo, std::vector<std::string> opciones)
    {
        opciones.insert(opciones.begin(), {"esquema", (kEjemplos / ejemplo).string()});
        return Correr(opciones);
    }
    std::string Ruta(const char* nombre) const { return (m_carpeta.Ruta() / nombre).string(); }

    CarpetaTemporal m_carpeta;
};

TEST_F(OrdenEsquema, ElFinalDelFicheroDiceElFormato)
{
    for (const auto& [nombre, principio] :
         {std::pair("e.dxf", "  0\r\nSECTION"), {"e.SVG", "<?xml"}, {"e.pdf", "%PDF"}}) {
        for (const char* ejemplo : {"cubierta-red.json", "casa-aislada.json"}) {
            const Corrida corrida = Dibujar(ejemplo, {"--salida", Ruta(nombre), "--papel", "a3"});
            EXPECT_EQ(corrida.iEstado, 0) << corrida.errores;
            EXPECT_NE(corrida.salida.find("1 hoja de A3 apaisado"), std::string::npos) << corrida.salida;
            EXPECT_TRUE(LeerTodo(Ruta(nombre)).starts_with(principio)) << nombre;
        }
    }
    const Corrida svg = Dibujar("cubierta-red.json", {"--salida", "-", "--formato", "svg", "--revision", "C3"});
    EXPECT_TRUE(svg.salida.starts_with("<?xml") && svg.salida.ends_with("</svg>\n"));
    EXPECT_NE(svg.salida.find(">C3<"), std::string::npos);
    EXPECT_NE(svg.salida.find(">Calle del Agua, 7, Sevilla<"), std::string::npos);
}

TEST_F(OrdenEsquema, LoQueNoEntiendeSeDiceYNadaSeEscribe)
{
    const std::string dxf = Ruta("e.dxf");
    for (const auto& [opciones, iEstado] : std::vector<std::pair<std::vector<std::string>, int>>{
             {{}, 2},
             {{"--salida", Ruta("e.dwg")}, 2},
             {{"--salida", dxf, "--papel", "A7"}, 2},
             {{"--salida", dxf, "--margen", "45"}, 2},
             {{"--salida", dxf, "--formato", "png"}, 2},
         }) {
        EXPECT_EQ(Dibujar("cubierta-red.json", opciones).iEstado, iEstado);
        EXPECT_FALSE(std::filesystem::exists(dxf));
    }
    EXPECT_NE(Dibujar("venta-cubierta.json", {"--salida", dxf}).iEstado, 0);
}

}  // namespace
}  // namespace efv::orden::pruebas
