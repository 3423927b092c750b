// The help for each screen, the window's keys, its status and first steps.
#include <fstream>
#include <iterator>
#include <map>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "ayuda/apartados.h"
#include "ayuda/ventana_ayuda.h"
#include "comun/guion.h"
#include "datos.h"
#include "diseno/estado.h"
#include "idioma.h"
#include "muestra.h"
#include "recorrido.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

// The text below each heading of the page.
std::map<std::string, std::string> Apartados()
{
    std::ifstream fichero(CarpetaDeAyuda() / kAyudaDePantallas);
    std::map<std::string, std::string> apartados;
    std::string titulo;
    for (std::string linea; std::getline(fichero, linea);) {
        if (linea.starts_with("## "))
            titulo = linea.substr(3);
        else
            apartados[titulo] += linea;
    }
    return apartados;
}

class Ayuda : public ConPantallas {};

TEST_F(Ayuda, CadaPantallaTieneLaSuya)
{
    const auto apartados = Apartados();
    const auto tieneAyuda = [&](const std::string& clase) {
        const auto apartado = apartados.find(std::string(ApartadoDe(clase)));
        EXPECT_TRUE(apartado != apartados.end() && apartado->second.size() > 40) << clase;
    };
    Recorrer([&](ui::Dialogo& dialogo, QDialog&) { tieneAyuda(dialogo.clase); });
    for (const auto* panel : ventana.findChildren<QDialog*>())
        tieneAyuda(panel->objectName().toStdString());
    tieneAyuda("paleta");
}

TEST_F(Ayuda, F1LlevaAlApartadoYSeBuscaEnElTexto)
{
    ui::Dialogo dialogo("CDlgMapaZonas", L"Mapa");
    Mostrar(dialogo, [](QDialog& sobre) {
        QTest::keyClick(&sobre, Qt::Key_F1);
        auto* ayuda = dynamic_cast<VentanaAyuda*>(sobre.findChild<QDialog*>("ayuda"));
        ASSERT_NE(ayuda, nullptr);
        EXPECT_TRUE(ayuda->isVisible());
        EXPECT_EQ(ayuda->Encabezamiento(), "Mapa de zonas climáticas");
        EXPECT_TRUE(ayuda->Buscar("acimut"));
        EXPECT_TRUE(ayuda->Buscar("autodescarga"));  // before it: from the top again
        EXPECT_FALSE(ayuda->Buscar("no está escrito"));
        ayuda->close();
    });
}

TEST_F(Ayuda, SinDisenoSeEmpiezaPorLosPrimerosPasosYLoAceptadoPasaDelante)
{
    Guion guion;
    ventana.show();
    auto& fichas = Hijo<QTabWidget>(ventana, "pestanas");
    EXPECT_EQ(fichas.currentIndex(), 0);
    EXPECT_EQ(Hijo<QLabel>(ventana, "estado").text(), "Madrid · sin diseño");
    EXPECT_EQ(Hijo<QLabel>(ventana, "ultima").text(), "Proyecto nuevo");
    sesion.Proyecto().red.csInversor = kInversor;
    sesion.Proyecto().red.csPanel = kPanel;
    guion.Dialogo("CDlgAsistenteSFVRed", {paso::Pulsar{"OK"}});
    Hijo<QPushButton>(ventana, "disenarRed").click();
    EXPECT_EQ(ventana.DisenoALaVista(), Diseno::red);
    // 12 panels of 350.448 W and one inverter.
    EXPECT_TRUE(Hijo<QLabel>(ventana, "estado")
                    .text()
                    .startsWith("Madrid · 12 × CS3U-350P, 1 × SB5.0-1AV-40 · 4,2 kWp · comprobaciones"));
    EXPECT_EQ(Hijo<QLabel>(ventana, "ultima").text(), "Hecho: cambio de la conexión a red");
    ventana.MostrarPestana("inicio");
    Hijo<QPushButton>(ventana, "ejemplo").click();
    EXPECT_NE(fichas.currentIndex(), 0);
}

TEST_F(Ayuda, ElTecladoLlegaATodasLasPartes)
{
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    ventana.show();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    ventana.MostrarPestana("red");
    const auto enElFoco = [](const char* nombre) {
        for (const QWidget* w = QApplication::focusWidget(); w != nullptr; w = w->parentWidget())
            if (w->objectName() == nombre || w->accessibleName() == nombre)
                return true;
        return false;
    };
    Hijo<QLineEdit>(ventana, "csProyecto").setFocus();
    for (const char* parte : {"Esquema", "PanelRed", "PanelLugar"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
        EXPECT_TRUE(enElFoco(parte)) << parte;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(enElFoco("PanelRed"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_TRUE(enElFoco("PanelConsumo"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(ventana.DisenoALaVista(), Diseno::red);
}

}  // namespace
