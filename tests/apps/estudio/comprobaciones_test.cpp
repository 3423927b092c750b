// The checks of a design beside it and in its schematic. Figures by hand from the data sheets: at -10 ºC a
// panel has 46.6 + 35 · 0.136258 = 51.369 V open and (350.448 + 35 · 1.335557) / 8.94 = 44.429 V of maximum
// power, at 70 ºC (350.448 - 45 · 1.335557) / 8.94 = 32.477 V; the inverter takes 600 V, 175 to 500 V, 5250 W.
#include "paneles/panel_comprobaciones.h"

#include "apoyo.h"
#include "elementos/rotulos.h"
#include "esquema/lamina.h"
#include "proyecto/ejemplo.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

class ComprobacionesDelDiseno : public ConCatalogos {
protected:
    ComprobacionesDelDiseno()
    {
        proyecto.red = DisenoRed(2);
        proyecto.red.iPanelesSerie = 12;
        proyecto.red.iPanelesParalelo = 1;
    }
    std::vector<LineaComprobacion> Lineas(Diseno diseno)
    {
        const auto calculado = CalcularDiseno(proyecto, diseno);
        return calculado ? ComprobacionesDe(calculado->comprobacion) : std::vector<LineaComprobacion>();
    }

    CProyectoEstudio proyecto;
};

LineaComprobacion La(const std::vector<LineaComprobacion>& lineas, const wchar_t* csNombre)
{
    const auto linea = std::ranges::find(lineas, csNombre, &LineaComprobacion::csNombre);
    return linea == lineas.end() ? LineaComprobacion{} : *linea;
}

TEST_F(ComprobacionesDelDiseno, DicenValorLimiteMargenYResultado)
{
    const auto lineas = Lineas(Diseno::red);
    ASSERT_EQ(lineas.size(), 8U);
    const auto vacio = La(lineas, L"Tensión a circuito abierto, frío: entrada del inversor");
    EXPECT_EQ(vacio.csValor, L"616,4 V");
    EXPECT_EQ(vacio.csLimite, L"máx. 600,0 V");
    EXPECT_EQ(vacio.csMargen, L"-2,7 %");
    EXPECT_EQ(vacio.csResultado, L"✗ NO CUMPLE");
    const auto calor = La(lineas, L"Tensión en máxima potencia, calor: rango MPPT");
    EXPECT_EQ(calor.csValor, L"389,7 V");
    EXPECT_EQ(calor.csLimite, L"mín. 175,0 V");
    EXPECT_EQ(calor.csMargen, L"122,7 %");
    EXPECT_EQ(calor.bCumple, true);
    const auto corto = La(lineas, L"Corriente de cortocircuito de un seguidor, calor");
    EXPECT_EQ(corto.csLimite, L"—");
    EXPECT_EQ(corto.csMargen, L"—");
    EXPECT_EQ(corto.csResultado, L"? sin dato");

    proyecto.aislada = DisenoAislada();
    EXPECT_EQ(Lineas(Diseno::aislada).size(), 4U);
    proyecto.aislada.csPanel = L"Nadie#Nada";
    EXPECT_TRUE(Lineas(Diseno::aislada).empty());
}

// What the assistant proposes, 12 in series, fails; 14.3 panels on two trackers of at most 5250 W take two
// inverters.
TEST_F(ComprobacionesDelDiseno, ElPanelSigueAlProyecto)
{
    PanelComprobaciones panel;
    const auto texto = [&](std::size_t i) { return panel.Controles()[i]->Texto(); };
    const auto fallan = [&] {
        return std::ranges::count(panel.Lineas(), std::optional(false), &LineaComprobacion::bCumple);
    };
    panel.Poner(CalcularDiseno(proyecto, Diseno::red));
    EXPECT_EQ(texto(0), L"✗ 2 comprobaciones no se cumplen; 1 sin dato (células de -10 a 70 ºC)");
    EXPECT_EQ(texto(1), L"Propuesta comprobada: 2 inversores de 6 × 2 paneles, 8,41 kW");
    EXPECT_EQ(fallan(), 2);
    EXPECT_EQ(panel.Controles()[0]->color, ui::kRojo);

    proyecto.celulas.dMinima = 20.0;  // 12 · 47.28 V and 12 · 39.95 V
    panel.Poner(CalcularDiseno(proyecto, Diseno::red));
    EXPECT_EQ(fallan(), 0);
    EXPECT_EQ(texto(0), L"✓ Ningún límite se pasa; 1 sin dato (células de 20 a 70 ºC)");
    panel.Poner(std::nullopt);
    EXPECT_TRUE(panel.Lineas().empty());
    EXPECT_FALSE(panel.Controles()[1]->bVisible);
}

TEST_F(ComprobacionesDelDiseno, ElEsquemaEnmarcaLoQueFalla)
{
    const auto fallos = [&](Elemento::Clase clase) {
        const Lamina lamina = Dibujar(EsquemaDe(proyecto, Diseno::red));
        const auto zona = std::ranges::find(lamina.zonas, clase, &Zona::clase);
        return zona == lamina.zonas.end() ? CString(L"(no está)") : zona->csIndicacion;
    };
    EXPECT_EQ(fallos(Elemento::Clase::inversor),
              L"Tensión a circuito abierto, frío: entrada del inversor\n"
              L"NO CUMPLE: 616,4 V, máx. 600,0 V\n"
              L"Tensión en máxima potencia, frío: rango MPPT\n"
              L"NO CUMPLE: 533,1 V, máx. 500,0 V");
    EXPECT_EQ(fallos(Elemento::Clase::paneles), L"");
    EXPECT_NE(EscribirSvg(Dibujar(EsquemaDe(proyecto, Diseno::red))).find("NO CUMPLE: 616,4 V"),
              std::string::npos);
    proyecto.red.iPanelesSerie = 7;
    EXPECT_EQ(fallos(Elemento::Clase::inversor), L"");
}

TEST_F(ComprobacionesDelDiseno, ElProyectoDeEjemploCumple)
{
    Lugar lugar;
    lugar.dLatitud = 40.4;
    std::ranges::fill(lugar.adRadHorizontal, 15000.0);
    const auto ejemplo = ProyectoDeEjemplo(lugar);
    for (const Diseno diseno : {Diseno::aislada, Diseno::red}) {
        const auto calculado = CalcularDiseno(*ejemplo, diseno);
        ASSERT_TRUE(calculado);
        const auto lineas = ComprobacionesDe(calculado->comprobacion);
        EXPECT_GE(lineas.size(), 4U);
        for (const LineaComprobacion& linea : lineas)
            EXPECT_NE(linea.bCumple, false) << CadenaUtf8(linea.csNombre + L": " + linea.csValor);
    }
}

}  // namespace
