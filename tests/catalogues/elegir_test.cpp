// The table that models are chosen out of, over a small catalogue written here.
#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quorvel/catalogues.h>

#include "catalogues/viewer/elegir_dialogo.h"
#include "comun/ficheros.h"
#include "comun/guion.h"

namespace efv {
namespace {

using namespace efv::pruebas;
namespace paso = ui::paso;

class ElegirModelo : public testing::Test {
protected:
    ElegirModelo()
    {
        csRuta = carpeta.Escribir(
            "ZqModFotoHE5.xml",
            "<Q><TablaFamilias><Familia nombre='Sol'>"
            "<Modelo csModelo='S 500' dPmpm='500' dVmpm='41' dImpm='12.2' dVoc='49' dIsc='13' iNp='1' "
            "iNs='60'/>"
            "<Modelo csModelo='S 300' dPmpm='300' dVmpm='32' dImpm='9.4' dVoc='39' dIsc='10' iNp='1' iNs='60'/>"
            "</Familia><Familia nombre='Ánodo'>"
            "<Modelo csModelo='A 495 sol' dPmpm='495' dVmpm='40' dImpm='12' dVoc='48' dIsc='13' iNp='1' "
            "iNs='60'/>"
            "<Modelo csModelo='A sin dato'/>"
            "</Familia></TablaFamilias></Q>");
        EXPECT_NE(base->Cargar(csRuta), 0);
    }

    template <class C>
    static C& El(ui::Dialogo& d, std::string_view nombre)
    {
        for (ui::Control* control : d.Controles())
            if (control->nombre == nombre)
                return dynamic_cast<C&>(*control);
        throw std::runtime_error("falta " + std::string(nombre));
    }

    // Names of the models in sight, " " between them.
    static std::string Modelos(ui::Dialogo& d)
    {
        const auto& tabla = El<ui::Lista>(d, "modelos");
        std::string modelos;
        for (int i = 0; i < tabla.Filas(); ++i)
            modelos += (i > 0 ? " " : "") + CadenaUtf8(tabla.modelo->Celda(i, 1).substr(0, 3));
        return modelos;
    }

    const CarpetaTemporal carpeta;
    CString csRuta;
    const TipoCatalogo& tipo = *BuscarTipoCatalogo("modulos");
    const std::unique_ptr<CBaseXML> base = tipo.CrearBase();
};

TEST_F(ElegirModelo, PalabrasFamiliaYCondicionesSeSumanYElElegidoQuedaMientrasSeVea)
{
    CDlgElegirModelo d(tipo, *base, {}, L"Sol#S 300");
    auto& buscar = El<ui::Edicion>(d, "csBuscar");
    auto& condiciones = El<ui::Edicion>(d, "csCondiciones");
    auto& nota = El<ui::TextoFijo>(d, "csNota");
    EXPECT_EQ(Modelos(d), "S 5 S 3 A 4 A s");
    EXPECT_EQ(d.Seleccion(), L"Sol#S 300");
    EXPECT_EQ(nota.csTexto, L"4 modelos");

    d.Teclear(buscar, L"SOL");
    EXPECT_EQ(Modelos(d), "S 5 S 3 A 4");
    EXPECT_EQ(nota.csTexto, L"3 de 4 modelos");
    d.Teclear(condiciones, L"Pmpm >= 495");
    EXPECT_EQ(Modelos(d), "S 5 A 4");
    EXPECT_EQ(d.Seleccion(), L"Sol#S 500");  // what was at hand is out of sight: the first
    d.Elegir(El<ui::Seleccion>(d, "iFamilia"), 1);
    EXPECT_EQ(Modelos(d), "A 4");
    EXPECT_EQ(d.Seleccion(), L"Ánodo#A 495 sol");

    d.Teclear(condiciones, L"Pmpp >= 495");
    EXPECT_TRUE(nota.csTexto.starts_with(L"Sin condiciones: no hay ningún campo «Pmpp»; los hay: Familia, "))
        << CadenaUtf8(nota.csTexto);
    EXPECT_EQ(condiciones.color, ui::kRojo);
    EXPECT_EQ(Modelos(d), "A 4");
    d.Teclear(buscar, L"nada de esto");
    EXPECT_EQ(d.Seleccion(), L"");
    EXPECT_FALSE(El<ui::Boton>(d, "Ver").bHabilitado);
}

TEST_F(ElegirModelo, LaCabeceraOrdenaDeMenosAMasDeMasAMenosYComoEnElFichero)
{
    CDlgElegirModelo d(tipo, *base, {}, L"Sol#S 500");
    auto& tabla = El<ui::Lista>(d, "modelos");
    const auto iPmpm = static_cast<int>(std::ranges::find(tabla.acsColumnas, CString(L"Pmpm (W)")) -
                                        tabla.acsColumnas.begin());
    d.Ordenar(tabla, iPmpm);
    EXPECT_EQ(Modelos(d), "S 3 A 4 S 5 A s");
    EXPECT_EQ(tabla.iSeleccion, 2);
    d.Ordenar(tabla, iPmpm);
    EXPECT_EQ(Modelos(d), "S 5 A 4 S 3 A s");
    EXPECT_TRUE(tabla.bDescendente);
    d.Ordenar(tabla, iPmpm);
    EXPECT_EQ(Modelos(d), "S 5 S 3 A 4 A s");
    EXPECT_EQ(tabla.iColumnaOrden, -1);
}

TEST_F(ElegirModelo, SePresentaEnLugarDelArbolYUnDobleClicElige)
{
    ASSERT_NE(phCargarBasePanelesFotovoltaicos(csRuta), 0);
    ElegirModelosEn(FormaDeElegir::tabla);
    Guion guion;
    guion.presentador.guiones.push_back({"CDlgElegirModelo",
                                         {paso::Leer{{"ficha", "grafica"}}, paso::Teclear{"csBuscar", L"495"},
                                          paso::Leer{{"ficha", "grafica"}}, paso::Abrir{"modelos", 0, 0}}});
    CString csId = L"A sin dato";
    EXPECT_EQ(phSeleccionPanelFoto(csId), 1);
    EXPECT_EQ(guion.presentador.csErrorGuion, std::nullopt);
    EXPECT_EQ(csId, L"Ánodo#A 495 sol");
    // The curves of the model at hand: five irradiances, the first ending at Voc.
    EXPECT_FALSE(guion.Estado(0, 0, "grafica").bVisible);
    const auto grafica = std::get<CCtrlCurva2D>(guion.Estado(0, 1, "grafica").propio);
    ASSERT_EQ(grafica.aSeries.size(), 6U);  // and the scale
    EXPECT_DOUBLE_EQ(grafica.aSeries[1].adX.back(), 48.0);
    EXPECT_EQ(std::get<ui::EstadoControl::DeLista>(guion.Estado(0, 1, "ficha").propio).filas[2],
              (std::vector<CString>{L"Pmpm (W)", L"495,00"}));
    ElegirModelosEn(FormaDeElegir::arbol);
    phGetBasePanelFoto().Vaciar();
    phGetBasePanelFoto().csSeleccion.clear();
}

}  // namespace
}  // namespace efv
