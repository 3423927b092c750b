// Menus in cells, colours of the host, times of day, captions of groups that change, long work.
#include "muestra.h"

#include <set>

#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

#include <quorvel/ui/campo.h>
#include <quorvel/unidades.h>

namespace {

using namespace efv;
using namespace efv::pruebas;

class Entradas : public ui::Dialogo {
public:
    Entradas() : Dialogo("Entradas", L"Configuración de entradas")
    {
        for (int i = 0; i < 4; ++i) {
            filas.InsertItem(i, std::to_wstring(i + 1));
            filas.SetItemText(i, 1, L"ST1." + std::to_wstring(i + 1));
            filas.SetItemText(i, 2, ui::NombreDeColor(i + 1));
        }
        lista.acsColumnas = {L"Nº", L"Referencia", L"Color"};
        lista.modelo = std::make_shared<ui::FilasDeLista>(filas);
        lista.alAbrir = [this](int iFila, int iColumna) { abierta = {iFila, iColumna}; };
        menu.acsEntradas = ui::MenuDeColores(false);
        menu.iLineaAntesDe = ui::kEntradaOtroColor;
        menu.lista = &lista;
        menu.iColumna = 2;
        menu.alElegir = [this] {
            filas.SetItemText(lista.iSeleccion, 2, menu.Texto());
            ++lista.uVersion;
        };
        color.bDelDibujo = true;
        color.destino = &nColor;
        color.colocacion.grupo = hora.colocacion.grupo = L"Ficha";
        hora.destino = &iHora;
        boton.alPulsar = [this] { TitularGrupo(L"Ficha", L"Ficha (kWh)"); };
        Volcar();
    }

    CListCtrl filas;
    short nColor = 5;
    int iHora = 90;
    std::pair<int, int> abierta{-1, -1};
    ui::Lista& lista = Anadir<ui::Lista>("lista", L"", ui::Lista::Forma::tabla);
    ui::Seleccion& menu = Anadir<ui::Seleccion>("Color", L"", ui::Seleccion::Forma::menu);
    ui::BotonColor& color = Anadir<ui::BotonColor>("nColor", L"C&olor:");
    ui::Hora& hora = Anadir<ui::Hora>("iHora", L"&Hora:");
    ui::Boton& boton = Anadir<ui::Boton>("boton", L"&Cambiar");
};

QMenu* MenuAbierto()
{
    QApplication::processEvents();
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

// The entry in front of the person, by the keyboard.
void ElegirEntrada(QMenu& menu, const QString& rotulo)
{
    for (QAction* entrada : menu.actions())
        if (entrada->text() == rotulo)
            menu.setActiveAction(entrada);
    QTest::keyClick(&menu, Qt::Key_Return);
    QApplication::processEvents();
}

TEST(MenuDeCelda, UnClicEnLaCeldaDeLaFilaElegidaLoAbre)
{
    Entradas d;
    Mostrar(d, [&](QDialog& v) {
        auto& tabla = Hijo<QTableView>(v, "lista");
        const auto clic = [&](int iFila, int iColumna) {
            const QPoint celda = tabla.visualRect(tabla.model()->index(iFila, iColumna)).center();
            QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {}, celda);
        };
        clic(1, 2);  // no more than its selection
        EXPECT_EQ(MenuAbierto(), nullptr);
        EXPECT_EQ(d.lista.iSeleccion, 1);
        clic(1, 1);
        EXPECT_EQ(MenuAbierto(), nullptr);
        clic(1, 2);
        ASSERT_NE(MenuAbierto(), nullptr);
        const QList<QAction*> entradas = MenuAbierto()->actions();
        ASSERT_EQ(entradas.size(), 11);
        EXPECT_TRUE(entradas[9]->isSeparator());
        EXPECT_EQ(entradas[10]->text(), "Elegir otro...");
        ElegirEntrada(*MenuAbierto(), "Magenta");
        EXPECT_EQ(d.menu.iSeleccion, 5);
        EXPECT_EQ(tabla.model()->index(1, 2).data().toString(), "Magenta");
        EXPECT_EQ(MenuAbierto(), nullptr);
        // It is no button somewhere else in the window.
        EXPECT_EQ(v.findChild<QWidget*>("Color"), nullptr);
        d.menu.bHabilitado = false;
        clic(1, 2);
        EXPECT_EQ(MenuAbierto(), nullptr);
    });
    EXPECT_EQ(d.abierta, std::pair(-1, -1));
}

TEST(MenuDeCelda, ElTecladoLoAbreYLasOtrasCeldasSeAbrenComoSiempre)
{
    Entradas d;
    Mostrar(d, [&](QDialog& v) {
        auto& tabla = Hijo<QTableView>(v, "lista");
        const auto cerrado = [&] {
            QMenu* menu = MenuAbierto();
            if (menu != nullptr)
                QTest::keyClick(menu, Qt::Key_Escape);
            return menu == nullptr;
        };
        tabla.setFocus();
        QTest::keyClick(&tabla, Qt::Key_Space);
        EXPECT_TRUE(cerrado() || d.lista.iSeleccion >= 0);
        tabla.setCurrentIndex(tabla.model()->index(2, 2));
        for (const auto tecla : {Qt::Key_Space, Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&tabla, tecla);
            EXPECT_FALSE(cerrado()) << tecla;
        }
        QContextMenuEvent pedido(QContextMenuEvent::Keyboard, {}, tabla.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&tabla, &pedido);
        EXPECT_FALSE(cerrado());
        EXPECT_EQ(d.menu.iSeleccion, -1);
        EXPECT_FALSE(d.Terminado());

        tabla.setCurrentIndex(tabla.model()->index(2, 1));
        QTest::keyClick(&tabla, Qt::Key_F2);
        EXPECT_TRUE(cerrado());
        EXPECT_EQ(d.abierta, std::pair(2, 1));
        QTest::keyClick(&tabla, Qt::Key_Space);
        ASSERT_NE(MenuAbierto(), nullptr);
        QTest::keyClick(MenuAbierto(), Qt::Key_Down);  // from the first
        QTest::keyClick(MenuAbierto(), Qt::Key_Return);
        QApplication::processEvents();
        EXPECT_EQ(d.filas.GetItemText(2, 2), L"Amarillo");
        d.abierta = {-1, -1};
        QTest::keyClick(&tabla, Qt::Key_Return);  // elsewhere it opens the cell, as F2 does
        EXPECT_EQ(d.abierta.first, 2);
        EXPECT_FALSE(d.Terminado());
    });
}

TEST(BotonDeColor, MuestraElColorYOfreceSuMenu)
{
    Entradas d;
    Mostrar(d, [&](QDialog& v) {
        auto& boton = Hijo<QPushButton>(v, "nColor");
        const auto muestra = [&] { return boton.icon().pixmap(16).toImage().pixelColor(8, 8); };
        EXPECT_EQ(boton.text(), "Azul");
        EXPECT_EQ(boton.accessibleName(), "Color: Azul");
        EXPECT_EQ(muestra(), QColor(Qt::blue));
        boton.setFocus();
        QTimer::singleShot(0, [] { ElegirEntrada(*MenuAbierto(), "Verde"); });
        QTest::keyClick(&boton, Qt::Key_Space);
        QApplication::processEvents();
        EXPECT_EQ(d.color.iColor, 3);
        EXPECT_EQ(muestra(), QColor(Qt::green));
        QTimer::singleShot(0, [] {
            EXPECT_TRUE(MenuAbierto()->actions()[9]->isSeparator());
            ElegirEntrada(*MenuAbierto(), "Por bloque");
        });
        QTest::mouseClick(&boton, Qt::LeftButton);
        QApplication::processEvents();
        EXPECT_EQ(d.color.iColor, ui::kColorPorBloque);
        EXPECT_EQ(muestra().alpha(), 0);
        d.color.bSoloLectura = true;
        qt::RefrescarVentana(&v);
        EXPECT_FALSE(boton.isEnabled());
        Hijo<QPushButton>(v, "aceptar").click();
    });
    EXPECT_EQ(d.nColor, 257);
}

TEST(EleccionDeColor, SeEligeConTecladoConNumeroOConRaton)
{
    qt::InstalarPresentadorQt();
    ui::Presentador& presentador = ui::PresentadorActual();
    // Blue, then one hue on (15 degrees, ten codes) and one shade on.
    CuandoSeAbra([](QDialog& v) {
        auto& tabla = Hijo<QTableView>(v, "colores");
        EXPECT_TRUE(tabla.hasFocus());
        EXPECT_EQ(tabla.currentIndex().data().toInt(), 170);
        QTest::keyClick(&tabla, Qt::Key_Right);
        QTest::keyClick(&tabla, Qt::Key_Down);
        EXPECT_EQ(Hijo<QSpinBox>(v, "indice").value(), 181);
        QTest::keyClick(&tabla, Qt::Key_Return);
    });
    EXPECT_EQ(presentador.ElegirColor(170), 181);

    // What the drawing says is none of the palette's: nothing chosen, nothing to accept.
    CuandoSeAbra([](QDialog& v) {
        EXPECT_FALSE(Hijo<QPushButton>(v, "aceptar").isEnabled());
        auto& indice = Hijo<QSpinBox>(v, "indice");
        indice.setFocus();
        indice.selectAll();
        QTest::keyClicks(&indice, "255");
        EXPECT_EQ(Hijo<QTableView>(v, "colores").currentIndex().data().toInt(), 255);
        Hijo<QPushButton>(v, "aceptar").click();
    });
    EXPECT_EQ(presentador.ElegirColor(ui::kColorPorCapa), 255);

    CuandoSeAbra([](QDialog& v) {
        auto& tabla = Hijo<QTableView>(v, "colores");
        // Every code once; a cell of none of them can't be chosen.
        std::set<int> codigos;
        for (int i = 0; i < tabla.model()->rowCount(); ++i)
            for (int j = 0; j < tabla.model()->columnCount(); ++j)
                codigos.insert(tabla.model()->index(i, j).data().toInt());
        EXPECT_EQ(codigos.size(), 256U);
        const auto clic = [&](int iFila, int iColumna) {
            QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {},
                              tabla.visualRect(tabla.model()->index(iFila, iColumna)).center());
        };
        clic(0, 8);
        clic(0, 9);
        EXPECT_EQ(Hijo<QSpinBox>(v, "indice").value(), 9);
        QTest::keyClick(&tabla, Qt::Key_Escape);
    });
    EXPECT_EQ(presentador.ElegirColor(1), std::nullopt);
    ui::InstalarPresentador(nullptr);
}

TEST(HoraDelDia, SeTecleaYSePasoAPaso)
{
    Entradas d;
    Mostrar(d, [&](QDialog& v) {
        auto& reloj = Hijo<QTimeEdit>(v, "iHora");
        EXPECT_EQ(reloj.text(), "01:30");
        reloj.setFocus();
        reloj.setSelectedSection(QTimeEdit::HourSection);
        QTest::keyClicks(&reloj, "1845");
        EXPECT_EQ(reloj.text(), "18:45");
        EXPECT_EQ(d.hora.iMinutos, 18 * 60 + 45);
        QTest::keyClick(&reloj, Qt::Key_Up);
        EXPECT_EQ(d.hora.Texto(), L"18:46");
        QTest::keyClick(&reloj, Qt::Key_Return);
    });
    EXPECT_EQ(d.ResultadoFinal(), ui::Dialogo::ok);
    EXPECT_EQ(d.iHora, 18 * 60 + 46);
}

TEST(Grupos, ElRotuloQueCambiaSeVe)
{
    Entradas d;
    Mostrar(d, [&](QDialog& v) {
        const auto& marco = dynamic_cast<QGroupBox&>(*Hijo<QPushButton>(v, "nColor").parentWidget());
        EXPECT_EQ(marco.title(), "Ficha");
        Hijo<QPushButton>(v, "boton").click();
        EXPECT_EQ(marco.title(), "Ficha (kWh)");
    });
}

// Works for so many milliseconds; gives how far it got, 0 to 1.
double Trabajar(ui::ProgresoTrabajo& trabajo, int iDuracion)
{
    QElapsedTimer reloj;
    reloj.start();
    double dHecho = 0.0;
    while (dHecho < 1.0) {
        QTest::qSleep(2);
        dHecho = std::min(1.0, static_cast<double>(reloj.elapsed()) / iDuracion);
        if (!trabajo.Avanzar(dHecho))
            return dHecho;
    }
    return dHecho;
}

TEST(Trabajo, LoBreveNoSeVeYLoLargoSeCancelaConEscape)
{
    qt::InstalarPresentadorQt();
    ui::Presentador& presentador = ui::PresentadorActual();
    bool bVisto = false;
    CuandoSeAbra([&](QDialog& ventana) {
        bVisto = true;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(Hijo<QPushButton>(ventana, "cancelar").text(), "Cancelar");
        EXPECT_GT(Hijo<QProgressBar>(ventana, "progreso").value(), 0);
        QTest::keyClick(&ventana, Qt::Key_Escape);
    });
    {
        const auto breve = presentador.EmpezarTrabajo(L"Leyendo", true);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_EQ(Trabajar(*breve, 50), 1.0);
        QApplication::processEvents();
        EXPECT_FALSE(bVisto);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    {
        const auto largo = presentador.EmpezarTrabajo(L"Simulando el año", true);
        EXPECT_LT(Trabajar(*largo, 20'000), 0.5);
        EXPECT_TRUE(bVisto);
        EXPECT_FALSE(largo->Avanzar(1.0));  // for good
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ui::InstalarPresentador(nullptr);
}

TEST(Trabajo, LoQueNoSeCancelaNoSeCierraYEsperaElCursor)
{
    qt::InstalarPresentadorQt();
    bool bVisto = false;
    CuandoSeAbra([&](QDialog& ventana) {
        bVisto = true;
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_EQ(ventana.findChild<QPushButton*>(), nullptr);
        QTest::keyClick(&ventana, Qt::Key_Escape);
        EXPECT_FALSE(ventana.close());
        EXPECT_TRUE(ventana.isVisible());
    });
    {
        const auto trabajo = ui::PresentadorActual().EmpezarTrabajo(L"Guardando", false);
        EXPECT_EQ(Trabajar(*trabajo, 700), 1.0);
    }
    EXPECT_TRUE(bVisto);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ui::InstalarPresentador(nullptr);
}

// A value with its proposal beside it, as the assistants have them.
class ConPropuesta : public ui::Dialogo {
public:
    ConPropuesta() : Dialogo("ConPropuesta", L"Propuesta")
    {
        valor.limites = ui::Intervalo{0, 90};
        valor.destino = &dValor;
        valor.alSalir = [this] { Recoger(valor); };
        propuesta.colocacion = ui::JuntoA(valor);
        propuesta.bSoloLectura = true;
        propuesta.csTexto = L"30,41";
        superficie.destino = &dSuperficie;
        superficie.magnitud = L"Superficie";
        superficie.limites = ui::Intervalo{0, 1};
        Volcar();
    }

    double dValor = 12, dSuperficie = 0.5;
    ui::Edicion& valor = Anadir<ui::Edicion>("dInclinacion", L"&Inclinación (º):");
    ui::Edicion& propuesta = Anadir<ui::Edicion>("dInclinacionP", L"");
    ui::Edicion& superficie = Anadir<ui::Edicion>("dSuperficie", L"Superficie (cm²):");
};

TEST(Propuestas, SeUsanConSuBotonYConUnaTecla)
{
    ConPropuesta dialogo;
    Mostrar(dialogo, [&](QDialog& ventana) {
        auto& valor = Hijo<QLineEdit>(ventana, "dInclinacion");
        auto& propuesta = Hijo<QLineEdit>(ventana, "dInclinacionP");
        ASSERT_EQ(propuesta.actions().size(), 1);
        EXPECT_TRUE(propuesta.actions().constFirst()->isVisible());
        propuesta.actions().constFirst()->trigger();
        EXPECT_EQ(valor.text(), "30,41");
        EXPECT_EQ(dialogo.dValor, 30.41);
        valor.setFocus();
        valor.selectAll();
        QTest::keyClicks(&valor, "7");
        QTest::keyClick(&valor, Qt::Key_F9);
        EXPECT_EQ(dialogo.dValor, 30.41);
        dialogo.valor.bSoloLectura = true;
        qt::RefrescarVentana(&ventana);
        EXPECT_FALSE(propuesta.actions().constFirst()->isVisible());
    });
}

TEST(Indicaciones, DicenUnidadYLimitesEnLaUnidadDeLaPersona)
{
    ElegirUnidad(L"Superficie", L"cm²");
    ConPropuesta dialogo;
    EXPECT_EQ(ui::IndicacionDeCampo(dialogo.valor), L"Inclinación\nUnidad: º\nEntre 0 y 90");
    EXPECT_EQ(ui::IndicacionDeCampo(dialogo.propuesta), L"Propuesta: Inclinación\nUnidad: º");
    EXPECT_EQ(ui::IndicacionDeCampo(dialogo.superficie), L"Superficie\nUnidad: cm²\nEntre 0 y 10000");
    ElegirUnidad(L"Superficie", L"m²");
}

}  // namespace
