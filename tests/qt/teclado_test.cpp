// The keyboard in every dialog and panel of which there are pictures: one key, one control; a way through them
// all.
#include <map>
#include <set>
#include <string>

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>

#include "recorrido.h"

namespace {

using namespace efv;
using namespace efv::estudio;
using namespace efv::pruebas;

// The letters that widgets in sight answer to, with how many do.
std::map<QString, QStringList> TeclasDe(const QWidget& ventana)
{
    std::map<QString, QStringList> teclas;
    const auto contar = [&](const QString& rotulo) {
        if (const QKeySequence tecla = QKeySequence::mnemonic(rotulo); !tecla.isEmpty())
            teclas[tecla.toString()] << rotulo;
    };
    for (const auto* boton : ventana.findChildren<QAbstractButton*>())
        if (boton->isVisibleTo(&ventana))
            contar(boton->text());
    for (const auto* rotulo : ventana.findChildren<QLabel*>())
        if (rotulo->buddy() != nullptr && rotulo->isVisibleTo(&ventana))
            contar(rotulo->text());
    for (const auto* barra : ventana.findChildren<QTabBar*>())
        for (int i = 0; i < barra->count(); ++i)
            contar(barra->tabText(i));
    for (const auto* barra : ventana.findChildren<QMenuBar*>())
        for (const QAction* menu : barra->actions())
            contar(menu->text());
    return teclas;
}

void UnaTeclaUnControl(const QWidget& ventana, const std::string& nombre)
{
    for (const auto& [tecla, rotulos] : TeclasDe(ventana))
        EXPECT_EQ(rotulos.size(), 1) << nombre << ": " << tecla.toStdString() << " for "
                                     << rotulos.join(", ").toStdString();
}

// Pressed on and on, Tab comes to everything that may have the focus, and from anywhere back to where it began.
void ElTabuladorPasaPorTodos(QWidget& ventana, const std::string& nombre)
{
    constexpr int kPulsaciones = 400;
    std::set<const QWidget*> vistos;
    for (int i = 0; i < kPulsaciones; ++i) {
        QWidget* conFoco = ventana.focusWidget();
        vistos.insert(conFoco);
        QTest::keyClick(conFoco != nullptr ? conFoco : &ventana, Qt::Key_Tab);
    }
    for (const QWidget* hijo : ventana.findChildren<QWidget*>())
        if ((hijo->focusPolicy() & Qt::TabFocus) != 0 && hijo->window() == &ventana &&
            hijo->focusProxy() == nullptr && hijo->isVisibleTo(&ventana) && hijo->isEnabledTo(&ventana)) {
            EXPECT_TRUE(vistos.contains(hijo)) << nombre << ": " << hijo->objectName().toStdString();
        }
}

bool SubeEnSuColumna(const QRect& antes, const QRect& ahora)
{
    const bool bMismaColumna = ahora.left() < antes.right() && antes.left() < ahora.right();
    return bMismaColumna && ahora.bottom() < antes.top();
}

// What can be written in a form comes in the order in which they are read: a later one isn't above an earlier
// one of the same column.
void ElOrdenEsElDeLaLectura(const ui::Dialogo& dialogo, const QWidget& ventana)
{
    const QWidget* anterior = nullptr;
    for (const ui::Control* control : dialogo.Controles()) {
        const auto* w = ventana.findChild<QWidget*>(QString::fromStdString(control->nombre));
        if (control->nombre.empty() || control->bSoloLectura || w == nullptr || !w->isVisibleTo(&ventana) ||
            w->focusPolicy() == Qt::NoFocus)
            continue;
        if (anterior != nullptr && anterior->parentWidget() == w->parentWidget()) {
            EXPECT_FALSE(SubeEnSuColumna(anterior->geometry(), w->geometry()))
                << dialogo.clase << ": " << control->nombre << " after "
                << anterior->objectName().toStdString();
        }
        anterior = w;
    }
}

// The way that Tab really goes: within its column nothing comes after what stands below it.
void ElTabuladorSigueLaVista(const QWidget& ventana, const std::string& nombre)
{
    const QWidget* anterior = nullptr;
    for (const QWidget* w = ventana.nextInFocusChain(); w != &ventana; w = w->nextInFocusChain()) {
        if ((w->focusPolicy() & Qt::TabFocus) == 0 || w->window() != &ventana || !w->isVisibleTo(&ventana))
            continue;
        if (anterior != nullptr && anterior->parentWidget() == w->parentWidget()) {
            const QRect antes = anterior->geometry();
            const QRect ahora = w->geometry();
            EXPECT_FALSE(SubeEnSuColumna(antes, ahora)) << nombre << ": " << w->objectName().toStdString()
                                                        << " after " << anterior->objectName().toStdString();
            const bool bMismaLinea = ahora.top() < antes.bottom() && antes.top() < ahora.bottom();
            EXPECT_FALSE(bMismaLinea && ahora.right() < antes.left() && ahora.top() <= antes.top())
                << nombre << ": " << w->objectName().toStdString() << " after "
                << anterior->objectName().toStdString() << ", on its right";
        }
        anterior = w;
    }
}

// Drawings are told in words.
void LosDibujosSeDescriben(const QWidget& ventana, const std::string& nombre)
{
    for (const QWidget* w : ventana.findChildren<QWidget*>()) {
        const auto* rotulo = qobject_cast<const QLabel*>(w);
        const bool bImagen = rotulo != nullptr && !rotulo->pixmap().isNull();
        const bool bDibujo = qobject_cast<const QGraphicsView*>(w) != nullptr || w->objectName() == "grafica";
        if (w->isVisibleTo(&ventana) && (bImagen || bDibujo)) {
            EXPECT_FALSE(w->accessibleName().isEmpty()) << nombre << ": " << w->objectName().toStdString();
            EXPECT_TRUE(bImagen || !w->accessibleDescription().isEmpty())
                << nombre << ": " << w->objectName().toStdString();
        }
    }
}

// The word at the end of a line, where Qt's own answer for a field never comes back, and attributes to its last
// letter.
void UnaLineaSeLeeEntera(QAccessibleInterface& accesible, const QString& linea)
{
    QAccessibleTextInterface* texto = accesible.textInterface();
    ASSERT_NE(texto, nullptr);
    const int n = static_cast<int>(linea.size());
    EXPECT_EQ(texto->text(0, texto->characterCount()), linea);
    int iDesde = 0, iHasta = 0;
    EXPECT_TRUE(linea.endsWith(texto->textAtOffset(n, QAccessible::WordBoundary, &iDesde, &iHasta)));
    EXPECT_EQ(iHasta, n);
    EXPECT_EQ(texto->textAtOffset(n, QAccessible::CharBoundary, &iDesde, &iHasta), QString());
    texto->attributes(0, &iDesde, &iHasta);
    EXPECT_EQ(iHasta, n);
}

// Whoever hears the screen learns what each control is that the keyboard reaches.
void TodosTienenNombre(QWidget& ventana, const std::string& nombre)
{
    for (QWidget* hijo : ventana.findChildren<QWidget*>()) {
        const bool bAparte = hijo->window() != &ventana || !hijo->isVisibleTo(&ventana);
        if (bAparte || (hijo->focusPolicy() & Qt::TabFocus) == 0 || hijo->objectName().startsWith("qt_") ||
            qobject_cast<QTabBar*>(hijo) != nullptr || qobject_cast<QTabWidget*>(hijo) != nullptr ||
            (hijo->objectName().isEmpty() && hijo->metaObject()->className() == QByteArray("QWidget")))
            continue;
        QAccessibleInterface* accesible = QAccessible::queryAccessibleInterface(hijo);
        ASSERT_NE(accesible, nullptr);
        const QString oido = accesible->text(QAccessible::Name);
        EXPECT_FALSE(oido.isEmpty()) << nombre << ": " << hijo->objectName().toStdString() << " ("
                                     << hijo->metaObject()->className() << ')';
        const auto* combo = qobject_cast<const QComboBox*>(hijo);
        EXPECT_TRUE(combo == nullptr || oido != combo->currentText())
            << nombre << ": " << oido.toStdString() << " is chosen, and no name";
        EXPECT_TRUE(accesible->role() != QAccessible::Client)
            << nombre << ": " << oido.toStdString() << " is passed over";
        if (const auto* campo = qobject_cast<const QLineEdit*>(hijo))
            UnaLineaSeLeeEntera(*accesible, campo->displayText());
        if (combo != nullptr && !combo->isEditable())
            UnaLineaSeLeeEntera(*accesible, combo->currentText());
    }
}

class Teclado : public ConPantallas {};

TEST_F(Teclado, LoQueSeEligeYLoQueCambiaSeOye)
{
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    ventana.show();
    auto* lugar = ventana.findChild<QComboBox*>("iLugar");
    ASSERT_NE(lugar, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    lugar->setFocus();
    ASSERT_NE(QAccessible::queryAccessibleInterface(lugar), nullptr);
    QTest::keyClick(lugar, Qt::Key_Down);
    QCoreApplication::processEvents();
    const auto* aviso = ventana.findChild<QWidget*>("avisoHablado");
    ASSERT_NE(aviso, nullptr);
    const QString dicho = aviso->accessibleName();
    EXPECT_TRUE(dicho.contains(lugar->currentText())) << dicho.toStdString();
    EXPECT_TRUE(dicho.contains("Zonas HE1")) << dicho.toStdString();
}

TEST_F(Teclado, CadaTeclaEsDeUnSoloControlYElTabuladorPasaPorTodos)
{
    const int nVistos = Recorrer([](ui::Dialogo& dialogo, QDialog& vista) {
        UnaTeclaUnControl(vista, dialogo.clase);
        ElOrdenEsElDeLaLectura(dialogo, vista);
        TodosTienenNombre(vista, dialogo.clase);
        ElTabuladorSigueLaVista(vista, dialogo.clase);
        LosDibujosSeDescriben(vista, dialogo.clase);
        ElTabuladorPasaPorTodos(vista, dialogo.clase);
    });
    EXPECT_GT(nVistos, 25);
}

TEST_F(Teclado, TambienEnLaVentanaDelPrograma)
{
    sesion.Nuevo(ProyectoDeEjemplo(sesion.LugarInicial()));
    ventana.show();
    for (const char* nombre : VentanaPrincipal::Pestanas()) {
        ventana.MostrarPestana(nombre);
        UnaTeclaUnControl(ventana, nombre);
        TodosTienenNombre(ventana, nombre);
        ElTabuladorSigueLaVista(ventana, nombre);
        LosDibujosSeDescriben(ventana, nombre);
        ElTabuladorPasaPorTodos(ventana, nombre);
    }
}

}  // namespace
