// Colours of the host, times of day, menus in cells, groups whose caption changes, long work.
#include <gtest/gtest.h>

#include "comun/guion.h"

namespace {

namespace ui = efv::ui;
namespace paso = efv::ui::paso;
using efv::pruebas::Guion;

TEST(Colores, SeLlamanComoEnElMenuYElRestoPorSuNumero)
{
    EXPECT_EQ(ui::NombreDeColor(1), L"Rojo");
    EXPECT_EQ(ui::NombreDeColor(9), L"Gris claro");
    EXPECT_EQ(ui::NombreDeColor(10), L"10");
    EXPECT_EQ(ui::NombreDeColor(257), L"Por bloque");
    EXPECT_EQ(ui::MenuDeColores(false).size(), 10U);
    EXPECT_EQ(ui::MenuDeColores(true).back(), L"Por bloque");
}

// 10 begins the hues at red; 15 degrees a row of ten, so that green, 120 degrees, is at 90 and blue at 170.
TEST(Colores, LaPaletaDaVueltaAlCirculo)
{
    EXPECT_EQ(ui::ColorDePaleta(2), 0x00FFFFU);
    EXPECT_EQ(ui::ColorDePaleta(10), 0x0000FFU);
    EXPECT_EQ(ui::ColorDePaleta(11), 0x8080FFU);  // half white
    EXPECT_EQ(ui::ColorDePaleta(94), 0x008000U);  // half as bright
    EXPECT_EQ(ui::ColorDePaleta(170), 0xFF0000U);
    EXPECT_EQ(ui::ColorDePaleta(250), 0x333333U);
    EXPECT_EQ(ui::ColorDePaleta(255), 0xFFFFFFU);
    EXPECT_EQ(ui::ColorDePaleta(ui::kColorPorCapa), std::nullopt);
    EXPECT_EQ(ui::ColorDePaleta(0), std::nullopt);
}

class Muestra : public ui::Dialogo {
public:
    Muestra() : Dialogo("Muestra", L"Muestra")
    {
        auto& color = Anadir<ui::BotonColor>("nColor", L"Color:");
        color.destino = &nColor;
        color.bDelDibujo = true;
        Anadir<ui::Hora>("iHora", L"Hora:").destino = &iHora;
        auto& lista = Anadir<ui::Lista>("lista", L"", ui::Lista::Forma::tabla);
        filas.InsertItem(0, L"fila");
        lista.modelo = std::make_shared<ui::FilasDeLista>(filas);
        auto& menu = Anadir<ui::Seleccion>("Color", L"", ui::Seleccion::Forma::menu);
        menu.acsEntradas = ui::MenuDeColores(false);
        menu.lista = &lista;
        menu.alElegir = [this, &menu] { iElegida = menu.iSeleccion; };
        Volcar();
    }

    using Dialogo::TitularGrupo;
    short nColor = 5;
    int iHora = 61, iElegida = -1;
    CListCtrl filas;
};

TEST(Controles, ElBotonDeColorOfreceSuMenuYLaEleccionDelAnfitrion)
{
    Guion guion;
    guion.Dialogo("Muestra", {paso::Leer{{"nColor"}}, paso::Color{std::nullopt}, paso::Color{173},
                              paso::Elegir{"nColor", CString(L"Elegir otro...")}, paso::Leer{{"nColor"}},
                              paso::Elegir{"nColor", 9}, paso::Leer{{"nColor"}},
                              paso::Elegir{"nColor", CString(L"Por capa")}, paso::Pulsar{"OK"}});
    Muestra muestra;
    EXPECT_EQ(muestra.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "nColor"), L"Azul");
    EXPECT_EQ(std::get<ui::EstadoControl::DeSeleccion>(guion.Estado(0, 0, "nColor").propio).iSeleccion, 4);
    EXPECT_EQ(guion.Texto(0, 1, "nColor"), L"Azul");  // cancelled
    EXPECT_EQ(guion.Estado(0, 2, "nColor").valor, ui::Valor(173));
    EXPECT_EQ(guion.Texto(0, 2, "nColor"), L"173");
    EXPECT_EQ(muestra.nColor, 256);
}

TEST(Controles, LaHoraSePoneConSuTexto)
{
    Guion guion;
    guion.Dialogo("Muestra", {paso::Leer{{"iHora"}}, paso::Poner{"iHora", L"23:59"}, paso::Leer{{"iHora"}},
                              paso::Pulsar{"OK"}});
    Muestra muestra;
    EXPECT_EQ(muestra.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.Texto(0, 0, "iHora"), L"01:01");
    EXPECT_EQ(guion.Estado(0, 1, "iHora").valor, ui::Valor(1439));
    EXPECT_EQ(muestra.iHora, 1439);
    for (const wchar_t* texto : {L"24:00", L"12:60", L"1:00", L"12-30", L""})
        EXPECT_EQ(ui::MinutosDeHora(texto), std::nullopt) << efv::CadenaUtf8(texto);
}

TEST(Controles, ElMenuDeUnaCeldaPideUnaFilaElegida)
{
    Guion guion;
    guion.Dialogo("Muestra", {paso::Elegir{"lista", 0}, paso::Elegir{"Color", CString(L"Verde")}});
    guion.Dialogo("Muestra", {paso::Elegir{"Color", CString(L"Verde")}});
    Muestra muestra;
    muestra.Mostrar();
    EXPECT_EQ(muestra.iElegida, 2);
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    Muestra sinFila;
    sinFila.Mostrar();
    EXPECT_EQ(guion.presentador.csErrorGuion, L"paso 0 de Muestra: control \"Color\": no hay fila elegida");
}

TEST(Controles, ElRotuloDeUnGrupoPuedeCambiar)
{
    Muestra muestra;
    EXPECT_EQ(muestra.TituloDeGrupo(L"Horas"), L"Horas");
    muestra.TitularGrupo(L"Horas", L"Horas (kWh)");
    EXPECT_EQ(muestra.TituloDeGrupo(L"Horas"), L"Horas (kWh)");
}

// Without anybody, or without an answer, work goes on to its end; only what can be cancelled takes one.
TEST(Trabajo, SeCancelaCuandoLaPersonaLoDice)
{
    EXPECT_TRUE(ui::PresentadorActual().EmpezarTrabajo(L"nadie", true)->Avanzar(0.5));
    Guion guion;
    guion.presentador.cancelaciones = {0.5};
    EXPECT_TRUE(ui::PresentadorActual().EmpezarTrabajo(L"fijo", false)->Avanzar(0.9));
    const auto trabajo = ui::PresentadorActual().EmpezarTrabajo(L"largo", true);
    EXPECT_TRUE(trabajo->Avanzar(0.4));
    EXPECT_FALSE(trabajo->Avanzar(0.6));
    EXPECT_TRUE(ui::PresentadorActual().EmpezarTrabajo(L"otro", true)->Avanzar(1.0));
    EXPECT_EQ(guion.presentador.trabajos, (std::vector<CString>{L"fijo", L"largo", L"otro"}));
}

}  // namespace
