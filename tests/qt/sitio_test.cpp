// Room on the screen: what is small enough for it, and what is remembered of the windows.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QFont>
#include <QHeaderView>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

#include "muestra.h"
#include "recorrido.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

// A small screen without its bar of tasks.
constexpr QSize kPantallaPequena(1366, 728);

void Cabe(const QWidget& ventana, const std::string& nombre)
{
    const QSize minimo = ventana.minimumSizeHint();
    EXPECT_TRUE(minimo.boundedTo(kPantallaPequena) == minimo)
        << nombre << ": " << minimo.width() << " x " << minimo.height();
    EXPECT_TRUE(ventana.size().boundedTo(kPantallaPequena) == ventana.size())
        << nombre << ": " << ventana.width() << " x " << ventana.height();
    // Only a table scrolls sideways, by itself.
    for (const auto* rollo : ventana.findChildren<QAbstractScrollArea*>()) {
        const QScrollBar& barra = *rollo->horizontalScrollBar();
        const bool bSobra = rollo->isVisible() && barra.isVisible() && barra.maximum() > 0;
        EXPECT_TRUE(!bSobra || qobject_cast<const QAbstractItemView*>(rollo) != nullptr) << nombre;
    }
}

// OK and Cancel are in sight however little there is to see of the rest.
void SusBotonesSeVen(const QWidget& ventana, const std::string& nombre)
{
    for (const char* boton : {"aceptar", "cancelar"}) {
        const auto* w = ventana.findChild<QAbstractButton*>(boton, Qt::FindDirectChildrenOnly);
        ASSERT_NE(w, nullptr) << nombre;
        EXPECT_TRUE(w->isHidden() || ventana.rect().contains(w->geometry())) << nombre << ": " << boton;
    }
}

// Nothing of these is out of sight: what is dragged is seen together with what comes of it.
void NoSeRueda(const ui::Dialogo& dialogo, const QWidget& ventana)
{
    for (const char* clase : {"CDlgDatosReceptor", "CDlgDatosConsumo", "CDlgDatosConsumoDia"}) {
        const auto* rollo = ventana.findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly);
        EXPECT_TRUE(dialogo.clase != clase || rollo->verticalScrollBar()->maximum() == 0)
            << clase << ": " << rollo->verticalScrollBar()->maximum();
    }
}

// Pulled as narrow as it goes nothing scrolls sideways; pulled wide again all stands where it stood, and the
// focus stays.
void SePliegaAlTirarDeElla(QDialog& ventana, const std::string& nombre)
{
    const QWidget& controles =
        *ventana.findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly)->widget();
    const QWidget* conFoco = ventana.focusWidget();
    const QSize abierta = ventana.size();
    const auto tirar = [&](int iAncho) {
        ventana.resize(iAncho, abierta.height());
        QApplication::processEvents();
    };
    constexpr int kSobrado = 4000;
    tirar(kSobrado);
    const QSize antes = controles.minimumSizeHint();
    tirar(0);
    Cabe(ventana, nombre + ", narrow");
    SusBotonesSeVen(ventana, nombre + ", narrow");
    tirar(kSobrado);
    EXPECT_EQ(controles.minimumSizeHint(), antes) << nombre;
    EXPECT_TRUE(conFoco == nullptr || ventana.focusWidget() == conFoco) << nombre;
}

class ConLetras : public ConPantallas, public testing::WithParamInterface<double> {
protected:
    ConLetras()
    {
        QFont letras = m_antes;
        letras.setPointSizeF(GetParam());
        QApplication::setFont(letras);
    }
    ~ConLetras() override { QApplication::setFont(m_antes); }

private:
    QFont m_antes = QApplication::font();
};

TEST_P(ConLetras, TodoCabeEnUnaPantallaPequena)
{
    Recorrer(
        [](ui::Dialogo& dialogo, QDialog& vista) {
            Cabe(vista, dialogo.clase);
            SusBotonesSeVen(vista, dialogo.clase);
            NoSeRueda(dialogo, vista);
        },
        [](ui::Dialogo& dialogo, QDialog& vista) { SePliegaAlTirarDeElla(vista, dialogo.clase); });
    VentanaPrincipal otra(LeerLocalidades(CadenaDesdeUtf8(EFV_CARPETA_DATOS "/localidades.xml")));
    otra.LaSesion().Nuevo(ProyectoDeEjemplo(otra.LaSesion().LugarInicial()));
    otra.show();
    for (const char* nombre : VentanaPrincipal::Pestanas()) {
        otra.MostrarPestana(nombre);
        QApplication::processEvents();
        Cabe(otra, nombre);
    }
    const auto& fichas = *Hijo<QTabWidget>(otra, "pestanas").tabBar();
    for (int i = 0; i < fichas.count(); ++i)
        EXPECT_TRUE(fichas.rect().contains(fichas.tabRect(i))) << fichas.tabText(i).toStdString();
}
INSTANTIATE_TEST_SUITE_P(Letras, ConLetras, testing::Values(9.0, 14.0));

// Settings of their own while it lives.
class Geometria : public testing::Test {
protected:
    Geometria() { qt::RecordarVentanas(&ajustes); }
    ~Geometria() override { qt::RecordarVentanas(nullptr); }

    static void Abrir(const std::function<void(QDialog&)>& mirar)
    {
        Muestra muestra;
        const std::unique_ptr<QDialog> ventana(qt::CrearVentana(muestra));
        ventana->show();
        mirar(*ventana);
        ventana->hide();
    }

    const QTemporaryDir carpeta;
    QSettings ajustes{carpeta.filePath("ajustes.ini"), QSettings::IniFormat};
};

TEST_F(Geometria, NadaSeAbreFueraDeLaPantalla)
{
    const QRect sitio = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize tamano(800, 680);
    const QPoint abajo(sitio.width() - tamano.width(), sitio.height() - tamano.height());
    for (const auto& caso : {
             std::pair(QPoint(100, 50), QPoint(100, 50)),  // as it was
             std::pair(QPoint(-300, 50), QPoint(0, 50)),   // an edge
             std::pair(QPoint(5000, 5000), abajo),         // a screen that is gone
         }) {
        ajustes.setValue("ventanas/Muestra/sitio", QRect(caso.first, tamano));
        Abrir([&](const QDialog& ventana) { EXPECT_EQ(ventana.geometry(), QRect(caso.second, tamano)); });
    }
    ajustes.setValue("ventanas/Muestra/sitio", QRect(0, 0, 3000, 2000));
    Abrir([&](const QDialog& ventana) { EXPECT_EQ(ventana.size(), sitio.size()); });
}

TEST_F(Geometria, LoQueLaPersonaMueveSeRecuerdaPorSuClase)
{
    const QRect elegido(120, 60, 900, 680);
    Abrir([](QDialog&) {});
    EXPECT_TRUE(ajustes.allKeys().isEmpty());  // left alone
    QList<int> anchos;
    Abrir([&](QDialog& ventana) {
        ventana.setGeometry(elegido);
        auto& cabecera = *Hijo<QTableView>(ventana, "tabla").horizontalHeader();
        const QPoint borde(cabecera.sectionPosition(1) - 1, cabecera.height() / 2);
        QTest::mousePress(cabecera.viewport(), Qt::LeftButton, {}, borde);
        cabecera.resizeSection(0, cabecera.sectionSize(0) + 37);
        QTest::mouseRelease(cabecera.viewport(), Qt::LeftButton, {}, borde);
        QApplication::processEvents();
        anchos = {cabecera.sectionSize(0), cabecera.sectionSize(1)};
    });
    Abrir([&](QDialog& ventana) {
        EXPECT_EQ(ventana.geometry(), elegido);
        const auto& cabecera = *Hijo<QTableView>(ventana, "tabla").horizontalHeader();
        EXPECT_EQ((QList<int>{cabecera.sectionSize(0), cabecera.sectionSize(1)}), anchos);
    });
}

}  // namespace
