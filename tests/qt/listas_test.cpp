// Lists and trees over rows that are asked for one by one, charts, the program's own screens.
#include "muestra.h"

#include <array>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>

#include "comun/ficheros.h"
#include "datos.h"

namespace {

using namespace efv;
using namespace efv::pruebas;

class Larga : public ui::Dialogo {
public:
    explicit Larga(ui::Lista::Forma forma)
        : Dialogo("Larga", L"Larga"), lista(Anadir<ui::Lista>("lista", L"", forma))
    {
        lista.acsColumnas = {L"a", L"b", L"c"};
        lista.modelo = filas;
    }
    std::shared_ptr<FilasContadas> filas = std::make_shared<FilasContadas>(100'000, 10);
    ui::Lista& lista;
};

TEST(Listas, CienMilFilasNoSePidenEnteras)
{
    for (const auto forma : {ui::Lista::Forma::tabla, ui::Lista::Forma::arbol}) {
        Larga d(forma);
        Mostrar(d, [&](QDialog& v) {
            auto& rejas = Hijo<QAbstractItemView>(v, "lista");
            QTest::qWait(20);
            EXPECT_GT(d.filas->nCeldas, 10);
            EXPECT_LT(d.filas->nCeldas, 2000);
            d.lista.iSeleccion = 99'998;
            ++d.lista.uVersion;
            qt::RefrescarVentana(&v);
            QTest::qWait(20);
            EXPECT_LT(d.filas->nCeldas, 4000);
            EXPECT_EQ(rejas.currentIndex().data().toString(), "99998:0");
            EXPECT_TRUE(rejas.viewport()->rect().intersects(rejas.visualRect(rejas.currentIndex())));
        });
    }
}

TEST(Listas, ElegirYAbrirDanFilaYColumna)
{
    Muestra d;
    int nElecciones = 0;
    d.tabla.alElegir = [&] { ++nElecciones; };
    Mostrar(d, [&](QDialog& v) {
        auto& tabla = Hijo<QTableView>(v, "tabla");
        const QPoint celda = tabla.visualRect(tabla.model()->index(2, 1)).center();
        QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {}, celda);
        EXPECT_EQ(d.tabla.iSeleccion, 2);
        EXPECT_EQ(nElecciones, 1);
        QTest::mouseDClick(tabla.viewport(), Qt::LeftButton, {}, celda);
        EXPECT_EQ(d.abierta, std::pair(2, 1));
        tabla.setFocus();
        QTest::keyClick(&tabla, Qt::Key_Down);
        EXPECT_EQ(d.tabla.iSeleccion, 3);
        for (const Qt::Key tecla : {Qt::Key_F2, Qt::Key_Return}) {
            d.abierta = {-1, -1};
            QTest::keyClick(&tabla, tecla);
            EXPECT_EQ(d.abierta, std::pair(3, 1));
            EXPECT_FALSE(d.Terminado());
        }

        // Fewer rows, and nothing chosen: the view follows and tells the dialog nothing.
        nElecciones = 0;
        d.tabla.modelo = std::make_shared<FilasContadas>(2, 1);
        d.tabla.iSeleccion = -1;
        qt::RefrescarVentana(&v);
        EXPECT_EQ(tabla.model()->rowCount(), 2);
        EXPECT_FALSE(tabla.currentIndex().isValid());
        EXPECT_EQ(nElecciones, 0);
    });
}

// Rows with a number, a text and a total at the end.
class FilasSueltas final : public ui::ModeloFilas {
public:
    std::vector<std::array<CString, 2>> celdas{
        {L"9,5", L"ocho"}, {L"10", L"a\tb"}, {L"—", L"Ébano"}, {L"19,5", L"Total"}};
    int Filas() const override { return static_cast<int>(celdas.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        return celdas[static_cast<std::size_t>(iFila)][static_cast<std::size_t>(iColumna)];
    }
};

class Suelta : public ui::Dialogo {
public:
    Suelta() : Dialogo("Suelta", L"Suelta"), lista(Anadir<ui::Lista>("lista", L"", ui::Lista::Forma::tabla))
    {
        lista.acsColumnas = {L"W", L"Qué"};
        lista.nFilasFijas = 1;
        lista.modelo = std::make_shared<FilasSueltas>();
    }
    ui::Lista& lista;
};

TEST(Listas, UnClicEnLaCabeceraOrdenaSinQueElDialogoCambieDeFila)
{
    Suelta d;
    Mostrar(d, [&](QDialog& v) {
        auto& tabla = Hijo<QTableView>(v, "lista");
        const auto filas = [&] {
            QStringList textos;
            for (int i = 0; i < tabla.model()->rowCount(); ++i)
                textos << tabla.model()->index(i, 0).data().toString();
            return textos.join(' ');
        };
        const auto clic = [&](int iColumna) {
            auto& cabecera = *tabla.horizontalHeader();
            QTest::mouseClick(cabecera.viewport(), Qt::LeftButton, {},
                              {cabecera.sectionViewportPosition(iColumna) + 5, cabecera.height() / 2});
        };
        QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {},
                          tabla.visualRect(tabla.model()->index(1, 0)).center());
        ASSERT_EQ(d.lista.iSeleccion, 1);
        // By value, what says nothing last, the total in its place.
        clic(0);
        EXPECT_EQ(filas(), "9,5 10 — 19,5");
        clic(0);
        EXPECT_EQ(filas(), "10 9,5 — 19,5");
        EXPECT_EQ(d.lista.iSeleccion, 1);
        EXPECT_EQ(tabla.currentIndex().data().toString(), "10");
        QTest::mouseClick(tabla.viewport(), Qt::LeftButton, {},
                          tabla.visualRect(tabla.model()->index(1, 0)).center());
        EXPECT_EQ(d.lista.iSeleccion, 0);
        clic(1);
        EXPECT_EQ(filas(), "10 — 9,5 19,5");
        clic(1);
        clic(1);
        EXPECT_EQ(filas(), "9,5 10 — 19,5");
    });
}

TEST(Listas, SeCopianVariasFilasConSusCabecerasYElDialogoVeUna)
{
    Suelta d;
    Mostrar(d, [&](QDialog& v) {
        auto& tabla = Hijo<QTableView>(v, "lista");
        const auto clic = [&](int iFila, Qt::KeyboardModifiers teclas) {
            QTest::mouseClick(tabla.viewport(), Qt::LeftButton, teclas,
                              tabla.visualRect(tabla.model()->index(iFila, 0)).center());
        };
        clic(1, {});
        clic(0, Qt::ControlModifier);
        EXPECT_EQ(d.lista.iSeleccion, 0);
        EXPECT_EQ(tabla.selectionModel()->selectedRows().size(), 2);
        tabla.setFocus();
        QTest::keyClick(&tabla, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), "W\tQué\n9,5\tocho\n10\ta b\n");
        QTest::keyClick(&tabla, Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(d.lista.iSeleccion, 0);
        EXPECT_EQ(tabla.selectionModel()->selectedRows().size(), 4);
    });
}

TEST(Listas, LasFlechasDelCampoQueBuscaMuevenLaLista)
{
    class Buscador : public Suelta {
    public:
        Buscador()
        {
            buscar.lista = &lista;
            foco = &buscar;
        }
        ui::Edicion& buscar = Anadir<ui::Edicion>("buscar", L"Buscar:");
    } d;
    Mostrar(d, [&](QDialog& v) {
        auto& campo = Hijo<QLineEdit>(v, "buscar");
        campo.setFocus();
        QTest::keyClick(&campo, Qt::Key_Down);
        QTest::keyClick(&campo, Qt::Key_Down);
        EXPECT_EQ(d.lista.iSeleccion, 1);
        QTest::keyClick(&campo, Qt::Key_Up);
        EXPECT_EQ(d.lista.iSeleccion, 0);
        EXPECT_TRUE(campo.hasFocus());
        EXPECT_EQ(campo.accessibleDescription(), "9,5, ocho");  // the row is heard where the focus is
    });
}

TEST(Listas, LosNivelesDeLasFilasSonElArbol)
{
    class FilasConNivel final : public ui::ModeloFilas {
    public:
        // The last skips a depth and hangs from what there is.
        std::vector<int> niveles{0, 1, 2, 1, 0, 2};
        int Filas() const override { return static_cast<int>(niveles.size()); }
        CString Celda(int iFila, int /*iColumna*/) const override { return std::to_wstring(iFila); }
        int Nivel(int iFila) const override { return niveles[static_cast<std::size_t>(iFila)]; }
    };
    class Arbol : public ui::Dialogo {
    public:
        Arbol() : Dialogo("Arbol", L"Árbol") { lista.modelo = std::make_shared<FilasConNivel>(); }
        ui::Lista& lista = Anadir<ui::Lista>("lista", L"", ui::Lista::Forma::arbol);
    } d;
    Mostrar(d, [&](QDialog& v) {
        auto& arbol = Hijo<QTreeView>(v, "lista");
        const auto& m = *arbol.model();
        const QModelIndex primera = m.index(0, 0);
        ASSERT_EQ(m.rowCount(), 2);
        ASSERT_EQ(m.rowCount(primera), 2);
        EXPECT_EQ(m.index(0, 0, m.index(0, 0, primera)).data().toString(), "2");
        EXPECT_EQ(m.index(1, 0, primera).data().toString(), "3");
        EXPECT_EQ(m.index(0, 0, m.index(1, 0)).data().toString(), "5");
        EXPECT_EQ(m.parent(m.index(0, 0, m.index(1, 0))), m.index(1, 0));
        // What the person folded stays so when the rows are read again.
        arbol.collapse(primera);
        ++d.lista.uVersion;
        d.lista.iSeleccion = 4;
        qt::RefrescarVentana(&v);
        EXPECT_FALSE(arbol.isExpanded(m.index(0, 0)));
        EXPECT_TRUE(arbol.isExpanded(m.index(1, 0)));
        EXPECT_EQ(arbol.currentIndex().data().toString(), "4");
    });
}

TEST(Graficas, LaSerieSePintaEnSuColor)
{
    Muestra d;
    d.paginas.iSeleccion = 1;
    Mostrar(d, [&](QDialog& v) {
        const QImage imagen = Hijo<QWidget>(v, "grafica").grab().toImage();
        int nRojos = 0;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                nRojos += imagen.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
        EXPECT_GT(nRojos, 100);
    });
}

TEST(Graficas, UnaLineaDePuntosTieneHuecosYUnaContinuaNo)
{
    Muestra d;
    d.paginas.iSeleccion = 1;
    // Above the axis and below the frame's top, so that nothing else is red there.
    d.grafica.datos.aSeries = {{{0, 2}, {2, 2}, ui::kRojo, 1}, {{0, 2}, {1, 1}, ui::kAzul, 3}};
    d.grafica.datos.aSeries[1].iEstilo = 3;
    Mostrar(d, [&](QDialog& v) {
        const QImage imagen = Hijo<QWidget>(v, "grafica").grab().toImage();
        // Most stretches of the colour in one row of pixels.
        const auto trozos = [&](auto es) {
            int nMayor = 0;
            for (int y = 0; y < imagen.height(); ++y) {
                int n = 0;
                for (int x = 1; x < imagen.width(); ++x)
                    n += es(imagen.pixelColor(x, y)) && !es(imagen.pixelColor(x - 1, y)) ? 1 : 0;
                nMayor = std::max(nMayor, n);
            }
            return nMayor;
        };
        EXPECT_EQ(trozos([](const QColor& c) { return c.red() > c.blue() + 40; }), 1);
        EXPECT_GT(trozos([](const QColor& c) { return c.blue() > c.red() + 120; }), 20);
    });
}

TEST(Graficas, LasFlechasLeenPuntoAPunto)
{
    Muestra d;
    d.paginas.iSeleccion = 1;
    d.grafica.datos.csTituloY = L"W";
    d.grafica.datos.aSeries = {{{1, 2}, {5, 7}, ui::kRojo, 1, ui::FormaSerie::linea, 1, L"Roja"},
                               {{1, 2}, {6, 8}, ui::kAzul, 1, ui::FormaSerie::linea, 1, L"Azul"}};
    Mostrar(d, [&](QDialog& v) {
        auto& grafica = Hijo<QWidget>(v, "grafica");
        grafica.setFocus();
        const auto leido = [&](Qt::Key tecla) {
            QTest::keyClick(&grafica, tecla);
            return grafica.accessibleDescription().section(". ", 0, 0);
        };
        EXPECT_EQ(leido(Qt::Key_Right), "Roja, V: 1, W: 5");
        EXPECT_EQ(leido(Qt::Key_Right), "Roja, V: 2, W: 7");
        EXPECT_EQ(leido(Qt::Key_Right), "Roja, V: 2, W: 7");
        EXPECT_EQ(leido(Qt::Key_Down), "Azul, V: 2, W: 8");
        EXPECT_EQ(leido(Qt::Key_Left), "Azul, V: 1, W: 6");
    });
}

// Opens the widget's own menu and takes its entry of that caption.
void ElegirDelMenu(QWidget& widget, const QString& rotulo)
{
    bool bElegido = false;
    QTimer::singleShot(0, &widget, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* entrada : menu->actions()) {
            if (entrada->text() == rotulo) {
                bElegido = true;
                menu->setActiveAction(entrada);
                QTest::keyClick(menu, Qt::Key_Return);
            }
        }
        menu->close();
    });
    QContextMenuEvent pedido(QContextMenuEvent::Keyboard, QPoint(5, 5), widget.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&widget, &pedido);
    EXPECT_TRUE(bElegido) << rotulo.toStdString();
}

TEST(Graficas, SuMenuGuardaYCopiaLaImagen)
{
    const CarpetaTemporal carpeta;
    Muestra d;
    d.paginas.iSeleccion = 1;
    const auto esRojo = [](const QImage& imagen) {
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (imagen.pixelColor(x, y) == QColor(Qt::red))
                    return true;
        return false;
    };
    Mostrar(d, [&](QDialog& v) {
        auto& grafica = Hijo<QWidget>(v, "grafica");
        const auto guardar = [&](const std::string& nombre, int iTipo, QString* aviso = nullptr) {
            CuandoSeAbra([&](QDialog& ventana) {
                auto& selector = dynamic_cast<QFileDialog&>(ventana);
                selector.selectNameFilter(selector.nameFilters().at(iTipo));
                auto& linea = Hijo<QLineEdit>(selector, "fileNameEdit");
                linea.setText(QString::fromStdString((carpeta.Ruta() / nombre).string()));
                if (aviso != nullptr)
                    ResponderCaja("Aceptar", aviso);
                QTest::keyClick(&linea, Qt::Key_Return);
            });
            ElegirDelMenu(grafica, "Guardar imagen…");
        };
        // Without an extension that of the kind chosen counts.
        for (const auto& [nombre, iTipo] : {std::pair("curva.png", 0), {"otra", 0}}) {
            guardar(nombre, iTipo);
            const auto ruta = (carpeta.Ruta() / nombre).replace_extension("png").string();
            const QImage imagen(QString::fromStdString(ruta), "PNG");
            EXPECT_EQ(imagen.size(), 2 * grafica.size()) << ruta;
            EXPECT_TRUE(esRojo(imagen)) << ruta;
        }
        for (const auto& [nombre, iTipo] : {std::pair("curva.SVG", 1), {"tercera", 1}}) {
            guardar(nombre, iTipo);
            std::filesystem::path ruta = carpeta.Ruta() / nombre;
            if (!ruta.has_extension())
                ruta += ".svg";
            std::stringstream documento;
            documento << std::ifstream(ruta).rdbuf();
            EXPECT_EQ(documento.str(), ui::EscribirSvg(d.grafica.datos, grafica.width(), grafica.height()))
                << ruta;
        }
        ElegirDelMenu(grafica, "Copiar imagen");
        EXPECT_TRUE(esRojo(QApplication::clipboard()->image()));

        // What can't be written is said.
        QString aviso;
        guardar("no/existe.png", 0, &aviso);
        EXPECT_TRUE(aviso.startsWith("No se puede escribir el archivo")) << aviso.toStdString();
    });
}

// The screens that pictures are made of open, one and all, on the shipped data.

}  // namespace
