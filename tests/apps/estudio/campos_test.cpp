// Fields that count once they are left: what is taken, what is marked, what a number may look like.
#include "comun/campos.h"

#include <gtest/gtest.h>

#include "apoyo.h"
#include "comun/guion.h"
#include "comun/numeros.h"
#include "energia/panel_energia.h"
#include "paneles/panel_lugar.h"
#include "qt/muestra.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

TEST(NumerosEscritos, ElPuntoEsDeMillaresODecimalSegunSePueda)
{
    const ui::Intervalo grados{-90, 90}, energias{0, 1e6};
    struct Caso {
        const wchar_t* csEscrito;
        ui::Intervalo limites;
        std::optional<CString> csLeido;
    };
    for (const Caso& caso : {Caso{L"40,417", grados, L"40,417"}, Caso{L"40.4", grados, L"40.4"},
                             Caso{L"40.417", grados, L"40.417"}, Caso{L"-40.417", grados, L"-40.417"},
                             Caso{L"0.125", energias, L"0.125"}, Caso{L"1.234,5", energias, L"1234,5"},
                             Caso{L"1.234.567", energias, L"1234567"}, Caso{L"1.500", {1000, 2000}, L"1500"},
                             Caso{L"25.000", energias, std::nullopt}, Caso{L"1.23.456", energias, L"1.23.456"},
                             Caso{L"veinte", energias, L"veinte"}, Caso{L",-1.000", energias, L",-1.000"},
                             Caso{L"", energias, L""}})
        EXPECT_EQ(SinMillares(caso.csEscrito, caso.limites), caso.csLeido) << CadenaUtf8(caso.csEscrito);
}

class CamposDePaneles : public ConCatalogos {
protected:
    template <class C>
    static C& De(const ui::Dialogo& dialogo, std::string_view nombre)
    {
        for (ui::Control* control : dialogo.Controles())
            if (control->nombre == nombre)
                return dynamic_cast<C&>(*control);
        throw std::out_of_range(std::string(nombre));
    }
    static void Escribir(ui::Dialogo& dialogo, const char* campo, const wchar_t* csTexto)
    {
        auto& edicion = De<ui::Edicion>(dialogo, campo);
        dialogo.Teclear(edicion, csTexto);
        dialogo.Salir(edicion);
    }

    Guion guion;
    Sesion sesion;
};

TEST_F(CamposDePaneles, LoEscritoCuentaAlDejarElCampoYLoMaloSeMarca)
{
    PanelEnergia panel(sesion.Proyecto().lugar);
    auto& pr = De<ui::Edicion>(panel, "dPR");
    panel.Teclear(pr, L"0,7");
    EXPECT_EQ(panel.Campo().dPR, 0.8);
    panel.Salir(pr);
    EXPECT_EQ(panel.Campo().dPR, 0.7);

    for (const auto& [csMalo, csFalta] : {std::pair(L"7", L"«PR [0-1]»: Introduzca un número entre 0 y 1."),
                                          std::pair(L"mucho", L"«PR [0-1]»: Introduzca un número."),
                                          std::pair(L"", L"«PR [0-1]»: Introduzca un número.")}) {
        Escribir(panel, "dPR", csMalo);
        EXPECT_EQ(pr.color, ui::kRojo);
        EXPECT_EQ(panel.Campos().TextoFalta(), csFalta);
        EXPECT_EQ(De<ui::TextoFijo>(panel, "csNota").csTexto, csFalta);
        EXPECT_FALSE(De<ui::Lista>(panel, "tabla").bHabilitado);
        EXPECT_FALSE(De<ui::Grafica>(panel, "grafica").bHabilitado);
        EXPECT_EQ(panel.Campo().dPR, 0.7);
    }
    // Another field that is well doesn't hide it.
    Escribir(panel, "dInclinacion", L"20");
    EXPECT_EQ(panel.Campos().Falta(), &pr);
    Escribir(panel, "dPR", L"0.75");
    EXPECT_EQ(panel.Campos().Falta(), nullptr);
    EXPECT_TRUE(De<ui::Lista>(panel, "tabla").bHabilitado);
    EXPECT_EQ(panel.Campo().dPR, 0.75);
    EXPECT_EQ(pr.color, ui::kNegro);
    Escribir(panel, "dPotencia", L"2.500");
    EXPECT_NE(panel.Campos().TextoFalta().find(L"«2.500» el punto"), CString::npos);
}

TEST_F(CamposDePaneles, ElHemisferioSigueElSignoDeLaLatitud)
{
    PanelLugar panel(sesion, {});
    const Lugar& lugar = sesion.Proyecto().lugar;
    auto& hemisferio = De<ui::Seleccion>(panel, "iHemisferio");
    Escribir(panel, "dLatitud", L"-34");
    EXPECT_EQ(lugar.iHemisferio, 0);
    EXPECT_EQ(hemisferio.iSeleccion, 0);
    panel.Elegir(hemisferio, 1);
    EXPECT_EQ(lugar.dLatitud, 34.0);
    EXPECT_EQ(De<ui::Edicion>(panel, "dLatitud").csTexto, L"34,0000");
    // At the equator it is the person's.
    Escribir(panel, "dLatitud", L"0");
    panel.Elegir(hemisferio, 0);
    EXPECT_EQ(lugar.iHemisferio, 0);
    EXPECT_EQ(lugar.dLatitud, 0.0);
}

// The place is as the project has it when another project comes.
TEST_F(CamposDePaneles, UnaFaltaNoPasaAOtroProyecto)
{
    PanelLugar panel(sesion, {});
    Escribir(panel, "dLatitud", L"100");
    EXPECT_NE(panel.Campos().Falta(), nullptr);
    EXPECT_EQ(sesion.Proyecto().lugar.dLatitud, 40.0);
    guion.presentador.respuestas = {ui::Respuesta::no};
    sesion.Nuevo();
    panel.Actualizar();
    EXPECT_EQ(panel.Campos().Falta(), nullptr);
    EXPECT_EQ(De<ui::Edicion>(panel, "dLatitud").csTexto, L"40,0000");
}

}  // namespace
