// Place and sun on the desktop: search over the municipalities, PVGIS, climate record, study, minimum power.
#include <fstream>

#include <gtest/gtest.h>

#include "apoyo.h"
#include "clima/dialogo_he5.h"
#include "clima/estudios.h"
#include "comun/ficheros.h"
#include "comun/guion.h"
#include "comun/servidor_pvgis.h"
#include "diseno/resumen.h"
#include "energia/panel_energia.h"
#include "energia/planos.h"
#include "paneles/panel_lugar.h"
#include "proyecto/fichero.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

template <class C>
C& De(ui::Dialogo& dialogo, std::string_view nombre)
{
    for (ui::Control* control : dialogo.Controles())
        if (control->nombre == nombre)
            return dynamic_cast<C&>(*control);
    throw std::out_of_range(std::string(nombre));
}

const std::vector<Localidad>& Todos()
{
    static const auto lugares =
        LeerLugares(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/"), CadenaDesdeUtf8(EFV_CARPETA_DATOS "/"));
    return lugares;
}

class Clima : public ConCatalogos {
protected:
    static void SetUpTestSuite() { servidor = std::make_unique<ServidorPvgis>(); }
    static void TearDownTestSuite() { servidor.reset(); }
    ~Clima() override
    {
        CString csError;
        clima::CargarRegistroClimatico({}, csError);
    }

    static void Usar(const char* modo)
    {
        solar::PonerServicioPVGIS(
            {.url = servidor->http + modo, .autoridades = {}, .espera = std::chrono::milliseconds(400)});
    }

    static inline std::unique_ptr<ServidorPvgis> servidor;
    const CarpetaTemporal carpeta;
    Guion guion;
    Sesion sesion{LugarDe(*BuscarLocalidad(Todos(), L"Madrid"))};
};

TEST_F(Clima, ElPanelBuscaEntreLosMunicipios)
{
    PanelLugar panel(sesion, Todos());
    auto& lista = De<ui::Seleccion>(panel, "iLugar");
    EXPECT_EQ(lista.acsEntradas.size(), 1U + 66U);
    panel.Teclear(De<ui::Edicion>(panel, "csBuscar"), L"moya");
    // Madrid, where the project stands, and every Moya.
    ASSERT_EQ(lista.acsEntradas.size(), 1U + 1U + 4U);
    EXPECT_EQ(lista.Texto(), L"Madrid");
    const auto moya = std::ranges::find(lista.acsEntradas, L"Moya (Cuenca)");
    ASSERT_NE(moya, lista.acsEntradas.end());
    panel.Elegir(lista, static_cast<int>(moya - lista.acsEntradas.begin()));
    EXPECT_EQ(sesion.Proyecto().lugar.csNombre, L"Moya");
    EXPECT_NEAR(sesion.Proyecto().situacion.dAltitud, 1136.0, 0.5);
    EXPECT_TRUE(De<ui::TextoFijo>(panel, "csZona").csTexto.starts_with(L"Zonas HE1 E1, HE5 II"));
}

// 23.25 kWh/m² in January, the mean of its two years.
TEST_F(Clima, LaRadiacionDePvgisPasaAlProyectoYSePuedeCancelar)
{
    PanelLugar panel(sesion, Todos());
    Usar("bien");
    guion.presentador.cancelaciones = {0.0};
    const Lugar antes = sesion.Proyecto().lugar;
    panel.Pulsar(De<ui::Boton>(panel, "PVGIS"));
    EXPECT_EQ(sesion.Proyecto().lugar, antes);
    panel.Pulsar(De<ui::Boton>(panel, "PVGIS"));
    EXPECT_NEAR(sesion.Proyecto().lugar.adRadHorizontal[0], 23.25 / 31 * 3600, 0.06);
    EXPECT_EQ(sesion.Proyecto().lugar.bPropio, 1);
    EXPECT_TRUE(guion.Mensajes().empty());
    Usar("rechazo");
    panel.Pulsar(De<ui::Boton>(panel, "PVGIS"));
    ASSERT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_NE(guion.Mensajes()[0].find(L"Location over the sea"), CString::npos)
        << CadenaUtf8(guion.Mensajes()[0]);
}

TEST_F(Clima, ElRegistroEsDelProyectoYSeVuelveALeer)
{
    Usar("troceado");
    const CString csRuta = CadenaDesdeUtf8((carpeta.Ruta() / "ano.txt").string());
    guion.presentador.ficheros = {csRuta};
    DescargarRegistro(sesion);
    EXPECT_EQ(sesion.Proyecto().situacion.csRegistro, csRuta);
    ASSERT_TRUE(clima::RegistroCargado());
    EXPECT_EQ(clima::RegistroCargado()->dLongitud, -3.7);
    const CString csProyecto = CadenaDesdeUtf8((carpeta.Ruta() / "p.efvp").string());
    guion.presentador.ficheros = {csProyecto};
    EXPECT_TRUE(sesion.GuardarComo());
    Sesion otra;
    CargarRegistroDelProyecto(otra);
    EXPECT_FALSE(clima::RegistroCargado());
    EXPECT_TRUE(otra.Abrir(csProyecto));
    CargarRegistroDelProyecto(otra);
    EXPECT_TRUE(clima::RegistroCargado());
    // A record that is gone is told, and none stands in for it.
    std::filesystem::remove(CadenaUtf8(csRuta));
    CargarRegistroDelProyecto(Sesion{});
    EXPECT_TRUE(guion.Mensajes().empty());
    CargarRegistroDelProyecto(otra);
    EXPECT_EQ(guion.Mensajes().size(), 1U);
    EXPECT_FALSE(clima::RegistroCargado());
}

TEST_F(Clima, LaOrientacionSeVeJuntoALaEnergia)
{
    PanelEnergia panel(sesion.Proyecto().lugar);
    const auto nota = [&] { return De<ui::TextoFijo>(panel, "csNota").csTexto; };
    const CString csSur = nota();
    panel.Teclear(De<ui::Edicion>(panel, "dOrientacion"), L"180");
    panel.Salir(De<ui::Edicion>(panel, "dOrientacion"));
    EXPECT_NE(nota(), csSur);
    EXPECT_NE(nota().find(L"hacia el ecuador"), CString::npos);
    guion.Dialogo("CDlgCalculoInclinacionPanel",
                  {paso::Esperar{}, paso::Elegir{"iOpcion", 1}, paso::Pulsar{"OK"}});
    double dInclinacion = 30.0;
    EXPECT_TRUE(EstudiarInclinacion(sesion, dInclinacion, 0.0));
    // The best of the year at Madrid lies near 36 degrees under a clear sky.
    EXPECT_NEAR(dInclinacion, 36.0, 0.5);
}

// A plane of a field gives its share, whatever the others do; a roof of two halves gives their mean.
TEST_F(Clima, LosPlanosSonDelProyecto)
{
    PanelEnergia panel(sesion.Proyecto().lugar);
    const auto anual = [&] {
        panel.Poner(sesion.Proyecto().lugar, sesion.Proyecto().situacion, sesion.Proyecto().planos);
        CString csNota = De<ui::TextoFijo>(panel, "csNota").csTexto;
        csNota.erase(0, csNota.find(L"): ") + 3);
        std::ranges::replace(csNota, L',', L'.');
        return std::stod(csNota);
    };
    const auto con = [&](double dOrientacion) {
        sesion.Proyecto().planos = {{30.0, dOrientacion, 1.0}};
        return anual();
    };
    const double dSur = con(0.0), dNorte = con(180.0);
    ASSERT_LT(dNorte, 0.8 * dSur);
    sesion.Proyecto().planos.clear();
    using namespace paso;
    guion.Dialogo("DialogoPlanos",
                  {Pulsar{"Anadir"}, Poner{"dParte", L"50"}, Pulsar{"OK"},  // refused: a half is missing
                   Pulsar{"Anadir"}, Poner{"dOrientacion", L"180"}, Pulsar{"OK"}});
    EditarPlanos(sesion, panel.Campo());
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(guion.Mensajes(), std::vector<CString>{L"Las partes suman 50,0000 % y deben sumar 100 %."});
    ASSERT_EQ(sesion.Proyecto().planos, (std::vector<solar::PlanoCampo>{{30, 0, 0.5}, {30, 180, 0.5}}));
    EXPECT_TRUE(sesion.Modificado());
    EXPECT_NEAR(anual(), (dSur + dNorte) / 2, 0.11);  // figures of one decimal

    const CString csProyecto = CadenaDesdeUtf8((carpeta.Ruta() / "p.efvp").string());
    guion.presentador.ficheros = {csProyecto};
    EXPECT_TRUE(sesion.GuardarComo());
    Sesion otra;
    EXPECT_TRUE(otra.Abrir(csProyecto));
    EXPECT_EQ(otra.Proyecto().planos, sesion.Proyecto().planos);

    guion.Dialogo("DialogoPlanos",
                  {Elegir{"planos", 1}, Pulsar{"Quitar"}, Poner{"dParte", L"100"}, Pulsar{"OK"}});
    EditarPlanos(otra, panel.Campo());
    EXPECT_EQ(otra.Proyecto().planos, (std::vector<solar::PlanoCampo>{{30, 0, 1}}));
}

// The summary tells both figures as the report does.
TEST_F(Clima, ElResumenPoneLosPlanosJuntoALaCifraDelAsistente)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    EXPECT_TRUE(ResumenDe(proyecto, Diseno::red, CalcularDiseno(proyecto, Diseno::red)).empty());
    proyecto.red = DisenoRed(2);
    proyecto.planos = {{30.0, 90.0, 0.5}, {30.0, -90.0, 0.5}};
    const auto lineas = ResumenDe(proyecto, Diseno::red, CalcularDiseno(proyecto, Diseno::red));
    const std::string html = report::DocumentoHtml(DocumentoDe(proyecto, Diseno::red), "");
    ASSERT_EQ(lineas.size(), ResumenDe(proyecto.red).size() + 4);
    EXPECT_EQ(lineas[0].csConcepto, L"Energía del asistente, hacia el ecuador");
    EXPECT_EQ(lineas[1].csConcepto, L"Energía de los planos (cielo despejado ajustado a las doce radiaciones)");
    EXPECT_EQ(lineas[3].csConcepto, L"  30,0º hacia -90,0º, 50,0 %");
    EXPECT_NE(html.find("Energía con la orientación de los paneles"), std::string::npos);
    proyecto.red.csPanel = L"Nadie#Nada";
    EXPECT_EQ(ResumenDe(proyecto, Diseno::red, CalcularDiseno(proyecto, Diseno::red)).size(),
              ResumenDe(proyecto.red).size());
}

TEST_F(Clima, PotenciaMinima)
{
    DialogoHE5 dialogo(sesion.Proyecto().lugar);  // zone III: C = 1.2
    const auto texto = [&] { return De<ui::TextoFijo>(dialogo, "csResultado").csTexto; };
    // 1.2·(0.001875·5000 − 3.13) and 1.2·(0.002·5000 − 5).
    EXPECT_TRUE(
        texto().starts_with(L"CTE de 2006, por los usos: 7,49 kW\nCTE de 2006, por la superficie: 6,00 kW"));
    dialogo.Elegir(De<ui::Seleccion>(dialogo, "iUso2"), 6);  // hospitals: 1.2·3.29 more
    dialogo.Teclear(De<ui::Edicion>(dialogo, "dCubierta"), L"800");
    dialogo.Salir(De<ui::Edicion>(dialogo, "dCubierta"));
    EXPECT_TRUE(texto().starts_with(L"CTE de 2006, por los usos: 11,44 kW"));
    EXPECT_NE(texto().find(L"CTE de 2022: 40,00 kW"), CString::npos);
    dialogo.Teclear(De<ui::Edicion>(dialogo, "dSuperficie1"), L"-1");
    dialogo.Salir(De<ui::Edicion>(dialogo, "dSuperficie1"));
    EXPECT_EQ(De<ui::TextoFijo>(dialogo, "csResultado").color, ui::kRojo);
}

}  // namespace
