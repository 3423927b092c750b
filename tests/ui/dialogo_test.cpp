// The core of dialogs: fields by member, pages, who leaves a field, what is checked and what isn't.
#include <gtest/gtest.h>

#include "comun/guion.h"
#include "ui/ficha.h"

namespace {

namespace ui = efv::ui;
namespace paso = efv::ui::paso;
using efv::pruebas::Guion;

struct Datos {
    double dTension = 48.0, dMinima = 10.0;
    int iTipo = 0, bActivo = 1;
    short nRamas = 3;
    CString csNombre = L"uno";
};

constexpr auto kNombres = std::to_array<ui::NombreCampo<Datos>>({
    {"dTension", &Datos::dTension},
    {"dMinima", &Datos::dMinima},
    {"iTipo", &Datos::iTipo},
    {"bActivo", &Datos::bActivo},
    {"nRamas", &Datos::nRamas},
    {"csNombre", &Datos::csNombre},
});

}  // namespace

template <>
struct efv::ui::CamposDe<Datos> : efv::ui::CamposDeTabla<Datos, kNombres> {
};

namespace {

constexpr auto kTipos = std::to_array<std::wstring_view>({L"CC", L"CA"});
constexpr auto kCampos = ui::Campos<Datos>({
    {&Datos::csNombre, L"Nombre:"},
    {&Datos::dTension, L"Tensión (V):", {&Datos::dMinima, 100}},
    {&Datos::dMinima, L"Mínima (V):", {1, 50}},
    {.miembro = &Datos::iTipo, .rotulo = L"Tipo:", .entradas = kTipos},
    {.miembro = &Datos::bActivo, .rotulo = L"Activo", .casilla = true},
    {&Datos::nRamas, L"Ramas:"},
});
constexpr auto kComprobaciones = std::to_array<ui::Comprobacion<Datos>>({
    {&Datos::csNombre, ui::Vacio<&Datos::csNombre>, L"Sin nombre"},
});

class Ficha : public ui::DialogoFicha<Datos> {
public:
    explicit Ficha(const Datos& inicial = {}) : DialogoFicha("Ficha", L"Ficha", inicial, kComprobaciones)
    {
        Anadir(kCampos);
        Anadir<ui::Boton>("Calcular", L"").alPulsar = [this] { csVisto = De(&Datos::dTension).csTexto; };
        De(&Datos::dTension).alSalir = [this] { ++nSalidas; };
        Volcar();
    }

    using DialogoFicha::De;
    CString csVisto;
    int nSalidas = 0;
};

TEST(Campos, SeHallanPorSuMiembroYSeLlamanComoEnSuTabla)
{
    Ficha ficha;
    EXPECT_EQ(ficha.De(&Datos::dTension).csTexto, L"48,00");
    EXPECT_EQ(ficha.De<ui::Seleccion>(&Datos::iTipo).nombre, "iTipo");
    EXPECT_EQ(ficha.De<ui::Casilla>(&Datos::bActivo).bMarcada, true);
    EXPECT_THROW(ficha.De<ui::Edicion>(&Datos::iTipo), std::bad_variant_access);
    ficha.De(&Datos::csNombre).csTexto.clear();
    EXPECT_EQ(ficha.Aceptar(), std::nullopt);
    EXPECT_FALSE(ficha.Terminado());
    EXPECT_EQ(ficha.foco, &ficha.De(&Datos::csNombre));
}

TEST(Campos, UnEnteroDe16BitsNoSeDesborda)
{
    Ficha ficha;
    auto& ramas = ficha.De<ui::Edicion>(&Datos::nRamas);
    EXPECT_EQ(ramas.csTexto, L"3");
    ramas.csTexto = L"40000";
    const auto rechazo = ficha.Aceptar();
    ASSERT_TRUE(rechazo);
    EXPECT_EQ(rechazo->csTexto, L"Introduzca un número entre -32768 y 32767.");
    ramas.csTexto = L"-32768";
    EXPECT_EQ(ficha.Aceptar(), std::nullopt);
    EXPECT_EQ(ficha.datos.nRamas, -32768);
}

TEST(Campos, LoOcultoNiSeCompruebaNiLimita)
{
    Ficha ficha;
    ui::Edicion& minima = ficha.De(&Datos::dMinima);
    ui::Edicion& tension = ficha.De(&Datos::dTension);
    tension.csTexto = L"2";
    ASSERT_TRUE(ficha.Recoger());  // 2 is below dMinima
    minima.bVisible = false;
    minima.csTexto = L"nada";
    EXPECT_EQ(ficha.Recoger(), std::nullopt);
    EXPECT_EQ(ficha.datos.dTension, 2.0);
    EXPECT_EQ(ficha.datos.dMinima, 10.0);
    minima.csTexto = L"99";  // outside its own limits
    EXPECT_EQ(ficha.Recoger(), std::nullopt);
    EXPECT_EQ(ficha.datos.dMinima, 99.0);
}

TEST(Campos, UnaEleccionDesconocidaSeQuedaComoEstaba)
{
    Datos datos;
    datos.iTipo = 7;
    Ficha ficha(datos);
    auto& tipo = ficha.De<ui::Seleccion>(&Datos::iTipo);
    EXPECT_EQ(tipo.iSeleccion, -1);
    EXPECT_EQ(ficha.Recoger(), std::nullopt);
    EXPECT_EQ(ficha.datos.iTipo, 7);
    ficha.Elegir(tipo, 1);
    EXPECT_EQ(ficha.Recoger(), std::nullopt);
    EXPECT_EQ(ficha.datos.iTipo, 1);
}

// Each thing done elsewhere leaves the field that was typed into, once.
TEST(Foco, LoQueSeHaceEnOtraParteDejaElCampo)
{
    Ficha ficha;
    ui::Edicion& tension = ficha.De(&Datos::dTension);
    int nEsperadas = 0;
    const auto tras = [&](auto accion) {
        ficha.Teclear(tension, L"50");
        EXPECT_EQ(ficha.nSalidas, nEsperadas);
        accion();
        EXPECT_EQ(ficha.nSalidas, ++nEsperadas);
        ficha.Salir(tension);  // the toolkit's own notice, later
        EXPECT_EQ(ficha.nSalidas, nEsperadas);
    };
    tras([&] { ficha.Teclear(ficha.De(&Datos::dMinima), L"5"); });
    tras([&] { ficha.Elegir(ficha.De<ui::Seleccion>(&Datos::iTipo), 0); });
    tras([&] { ficha.Marcar(ficha.De<ui::Casilla>(&Datos::bActivo), false); });
    tras([&] { ficha.Pulsar(dynamic_cast<ui::Boton&>(*ficha.Controles().back())); });
    EXPECT_EQ(ficha.csVisto, L"50");
    tras([&] { ficha.Aceptar(); });
}

// Two pages that share a name with each other and with the dialog.
class Hojas : public ui::Dialogo {
public:
    Hojas() : Dialogo("Hojas", L"Hojas")
    {
        Anadir<ui::TextoFijo>("grafica", L"").csTexto = L"fuera";
        for (const wchar_t* titulo : {L"Una", L"Dos"}) {
            ui::Pagina& pagina = AnadirPagina(titulo);
            const CString csPagina = titulo;
            pagina.Anadir<ui::Edicion>("iMes", L"Mes:").csTexto = csPagina;
            pagina.Anadir<ui::Edicion>(efv::CadenaUtf8(L"sola" + csPagina), L"").csTexto = L"s";
            pagina.alAbrir = [this, csPagina] { sucesos.push_back(L"abre " + csPagina); };
            pagina.alFrente = [this, csPagina] { sucesos.push_back(L"frente " + csPagina); };
            pagina.alDejar = [this, csPagina] { return csPagina != csRetiene; };
            pagina.alRecoger = [this, csPagina] {
                sucesos.push_back(L"recoge " + csPagina);
                return true;
            };
            if (csPagina == L"Dos")
                pagina.Anadir<ui::TextoFijo>("grafica", L"").csTexto = L"dentro";
        }
    }

    std::vector<CString> sucesos;
    CString csRetiene;
};

TEST(Paginas, OyenLoQueLesPasa)
{
    Guion guion;
    guion.Dialogo("Hojas", {paso::Elegir{"tab", 1}, paso::Elegir{"tab", CString(L"Una")}, paso::Pulsar{"OK"}});
    Hojas hojas;
    EXPECT_EQ(hojas.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(hojas.sucesos, (std::vector<CString>{L"abre Una", L"frente Una", L"abre Dos", L"frente Dos",
                                                   L"frente Una", L"recoge Una", L"recoge Dos"}));
    Hojas retenida;
    retenida.csRetiene = L"Una";
    retenida.Elegir(*retenida.Pestanas(), 1);
    EXPECT_EQ(retenida.PaginaAlFrente(), 0);
    EXPECT_TRUE(retenida.sucesos.empty());
}

TEST(Paginas, UnDialogoQueAcabaAntesDeVerseNoGastaGuion)
{
    Guion guion;
    guion.Dialogo("Hojas", {paso::Pulsar{"OK"}});
    Hojas acabado;
    acabado.Terminar(7);
    EXPECT_EQ(acabado.Mostrar(), 7);
    EXPECT_TRUE(acabado.sucesos.empty());
    Hojas hojas;
    EXPECT_EQ(hojas.Mostrar(), ui::Dialogo::ok);
    EXPECT_EQ(guion.presentador.transcripciones[0].iResultado, 7);
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
}

TEST(Paginas, UnNombreEsElDeLaPaginaDelFrenteYLuegoElDeFuera)
{
    Guion guion;
    guion.Dialogo("Hojas", {paso::Leer{}, paso::Leer{{"iMes", "grafica", "Mes:", "solaDos"}},
                            paso::Elegir{"tab", 1}, paso::Leer{}, paso::Poner{"iMes", L"x"}});
    Hojas hojas;
    hojas.Mostrar();
    EXPECT_EQ(guion.Texto(0, 0, "iMes"), L"Una");
    EXPECT_EQ(guion.Texto(0, 0, "grafica"), L"fuera");
    EXPECT_THROW(guion.Texto(0, 0, "solaDos"), std::out_of_range);
    EXPECT_EQ(guion.Texto(0, 1, "Mes:"), L"Una");
    EXPECT_EQ(guion.Texto(0, 1, "solaDos"), L"s");  // behind, but nothing else is called so
    EXPECT_EQ(guion.Texto(0, 2, "iMes"), L"Dos");
    EXPECT_EQ(guion.Texto(0, 2, "grafica"), L"dentro");
    EXPECT_EQ(guion.presentador.transcripciones[0].lecturas[2].size(), 4U);  // tab, iMes, solaDos, grafica
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
}

}  // namespace
