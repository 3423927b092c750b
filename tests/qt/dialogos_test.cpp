// Dialogs as windows: the person's actions reach the dialog, its state reaches the widgets.
#include "muestra.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCursor>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QWheelEvent>

namespace {

using namespace efv;
using namespace efv::pruebas;

TEST(Ventana, LoQueHaceLaPersonaLlegaAlDialogo)
{
    Muestra d;
    int nPulsaciones = 0, nMenu = 0;
    d.boton.alPulsar = [&] { ++nPulsaciones; };
    d.menu.alElegir = [&] { ++nMenu; };
    const int iResultado = Mostrar(d, [&](QDialog& v) {
        auto& nombre = Hijo<QLineEdit>(v, "csNombre");
        EXPECT_TRUE(nombre.hasFocus());
        QTest::keyClicks(&nombre, "n&<");  // over the selected text
        EXPECT_EQ(d.nombre.csTexto, L"n&<");
        EXPECT_EQ(d.nSalidas, 0);
        QTest::keyClick(&nombre, Qt::Key_Tab);
        QApplication::processEvents();
        EXPECT_EQ(d.nSalidas, 1);

        auto& tipo = Hijo<QComboBox>(v, "iTipo");
        tipo.setFocus();
        QTest::keyClick(&tipo, Qt::Key_Down);
        EXPECT_EQ(d.tipo.iSeleccion, 2);
        emit tipo.activated(2);  // the same entry again
        EXPECT_EQ(d.nElecciones, 2);

        QTest::mouseClick(&Hijo<QCheckBox>(v, "iActivo"), Qt::LeftButton, {}, QPoint(5, 8));
        EXPECT_FALSE(d.activo.bMarcada);
        EXPECT_FALSE(Hijo<QLineEdit>(v, "dPotencia").isEnabled());

        Hijo<QWidget>(v, "iConexion").findChildren<QRadioButton*>()[1]->click();
        EXPECT_EQ(d.conexion.iSeleccion, 1);
        Hijo<QPlainTextEdit>(v, "csTexto").setFocus();
        for (const auto tecla : {Qt::Key_A, Qt::Key_Return, Qt::Key_B})
            QTest::keyClick(&Hijo<QPlainTextEdit>(v, "csTexto"), tecla);
        EXPECT_EQ(d.texto.csTexto, L"a\r\nbuno\r\ndos");
        Hijo<QPushButton>(v, "menu").menu()->actions()[2]->trigger();
        QApplication::processEvents();
        EXPECT_EQ(d.menu.iSeleccion, 2);
        EXPECT_EQ(nMenu, 1);
        Hijo<QPushButton>(v, "boton").click();
        Hijo<QTabWidget>(v, "tab").setCurrentIndex(1);
        EXPECT_EQ(d.paginas.iSeleccion, 1);
        Hijo<QPushButton>(v, "aceptar").click();
    });
    EXPECT_EQ(iResultado, ui::Dialogo::ok);
    EXPECT_EQ(nPulsaciones, 1);
    EXPECT_EQ(d.csNombre, L"n&<");
    EXPECT_EQ(d.iTipo, 2);
    EXPECT_EQ(d.iActivo, 0);
    EXPECT_EQ(d.iConexion, 1);
}

TEST(Ventana, LoQueDiceElDialogoSeVe)
{
    Muestra d;
    d.boton.alPulsar = [&] {
        d.nombre.csTexto = L"Otro";
        d.nombre.bSoloLectura = true;
        d.potencia.bVisible = false;
        d.tipo.acsEntradas = {L"una", L"dos"};
        d.tipo.iSeleccion = -1;
        d.conexion.bVisible = d.nota.bVisible = false;
        d.paginas.iSeleccion = 1;
        d.progreso.dFraccion = std::nan("");
        d.csTitulo = L"Nuevo";
        d.csCancelar = L"&Cerrar";
        d.bAceptarVisible = false;
    };
    Mostrar(d, [&](QDialog& v) {
        EXPECT_EQ(Hijo<QLineEdit>(v, "dPotencia").text(), "300,00");
        EXPECT_EQ(Hijo<QPlainTextEdit>(v, "csTexto").toPlainText(), "uno\ndos");
        EXPECT_EQ(Hijo<QProgressBar>(v, "progreso").value(), 400);
        EXPECT_EQ(Hijo<QLabel>(v, "nota").palette().color(QPalette::WindowText), QColor(Qt::blue));
        EXPECT_FALSE(Hijo<QPushButton>(v, "curvas").icon().isNull());
        EXPECT_EQ(Hijo<QPushButton>(v, "curvas").accessibleName(), "Curvas <I-V>");
        // Escaped: a tool-tip that looks like mark-up would be taken for it.
        EXPECT_TRUE(Hijo<QPushButton>(v, "curvas").toolTip().contains("I-V"));

        Hijo<QPushButton>(v, "boton").click();
        EXPECT_EQ(Hijo<QLineEdit>(v, "csNombre").text(), "Otro");
        EXPECT_TRUE(Hijo<QLineEdit>(v, "csNombre").isReadOnly());
        EXPECT_FALSE(Hijo<QLineEdit>(v, "dPotencia").isVisible());
        for (const QLabel* rotulo : v.findChildren<QLabel*>())
            EXPECT_FALSE(rotulo->isVisible() && rotulo->text().startsWith("Potencia"));
        EXPECT_EQ(Hijo<QComboBox>(v, "iTipo").currentIndex(), -1);
        EXPECT_EQ(Hijo<QComboBox>(v, "iTipo").count(), 2);
        // The frame goes with the last of its controls.
        EXPECT_FALSE(Hijo<QLabel>(v, "nota").parentWidget()->isVisible());
        EXPECT_EQ(Hijo<QTabWidget>(v, "tab").currentIndex(), 1);
        EXPECT_EQ(Hijo<QProgressBar>(v, "progreso").value(), 0);
        EXPECT_EQ(v.windowTitle(), "Nuevo");
        EXPECT_FALSE(Hijo<QPushButton>(v, "aceptar").isVisible());
        EXPECT_EQ(Hijo<QPushButton>(v, "cancelar").text(), "&Cerrar");
        // With OK hidden, Enter closes.
        QTest::keyClick(&v, Qt::Key_Return);
    });
    EXPECT_EQ(d.ResultadoFinal(), ui::Dialogo::cancelado);
}

TEST(Ventana, ElCursorNoSaltaMientrasSeTeclea)
{
    Muestra d;
    d.nombre.alCambiar = [&] { std::ranges::replace(d.nombre.csTexto, L'.', L','); };
    Mostrar(d, [&](QDialog& v) {
        auto& nombre = Hijo<QLineEdit>(v, "csNombre");
        nombre.setCursorPosition(2);
        QTest::keyClicks(&nombre, "1.5");
        EXPECT_EQ(nombre.text(), "Pa1,5nel");
        EXPECT_EQ(nombre.cursorPosition(), 5);
    });
}

TEST(Ventana, UnDeslizadorSeMueveConTeclasYNoConLaRuedaDePaso)
{
    Muestra d;
    d.boton.alPulsar = [&] { d.deslizador.iMaximo = 600; };
    Mostrar(d, [&](QDialog& v) {
        auto& mando = Hijo<QSlider>(v, "deslizador");
        EXPECT_EQ(mando.value(), 480);
        QWheelEvent rueda(QPointF(5, 5), mando.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, {}, {}, {}, false);
        QApplication::sendEvent(&mando, &rueda);
        EXPECT_EQ(d.deslizador.iValor, 480);
        QTest::keyClick(&mando, Qt::Key_Right);
        EXPECT_EQ(d.deslizador.iValor, 485);
        QTest::keyClick(&mando, Qt::Key_PageDown);
        EXPECT_EQ(d.deslizador.iValor, 425);
        EXPECT_EQ(Hijo<QLabel>(v, "hora").text(), "425");
        QTest::keyClick(&mando, Qt::Key_End);
        EXPECT_EQ(d.deslizador.iValor, 1440);

        // A dialog that has the last word, and ends that come nearer.
        d.deslizador.alMover = [&] { d.deslizador.iValor = std::min(d.deslizador.iValor, 700); };
        QTest::keyClick(&mando, Qt::Key_PageDown);
        EXPECT_EQ(mando.value(), 700);
        Hijo<QPushButton>(v, "boton").click();
        EXPECT_EQ(mando.value(), 600);
        EXPECT_EQ(d.deslizador.iValor, 700);  // nobody moved it
        d.PonerSoloLectura();
        qt::RefrescarVentana(&v);
        EXPECT_FALSE(mando.isEnabled());
    });
}

TEST(Ventana, UnaImagenSeDibujaYSinElloSeDice)
{
    Muestra d;
    d.boton.alPulsar = [&] { d.imagen.csImagen = L"no-existe"; };
    Mostrar(d, [&](QDialog& v) {
        const auto& imagen = Hijo<QLabel>(v, "imagen");
        EXPECT_GE(imagen.pixmap(Qt::ReturnByValue).height(), 3 * imagen.fontMetrics().height());
        EXPECT_TRUE(imagen.text().isEmpty());
        Hijo<QPushButton>(v, "boton").click();
        EXPECT_TRUE(imagen.pixmap(Qt::ReturnByValue).isNull());
        EXPECT_EQ(imagen.text(), "Esquema");
    });
}

// Said by the controls, however late they were declared: a second field, a unit, a button, the field of a tick.
TEST(Ventana, LoQueVaJuntoAOtroEstaEnSuLinea)
{
    class Rango : public ui::Dialogo {
    public:
        Rango() : Dialogo("Rango", L"Rango")
        {
            auto& maximo = Anadir<ui::Edicion>("dMaximo", L"Rango de tensiones MPPT (V) [máx - mín]:");
            Anadir<ui::Edicion>("otro", L"Otro:");
            Anadir<ui::Edicion>("solo", L"");
            for (const char* nombre : {"dMinimo", "dMinimoP"})
                Anadir<ui::Edicion>(nombre, L"").colocacion = ui::JuntoA(maximo);
            auto& unidad = Anadir<ui::TextoFijo>("unidad", L"");
            unidad.csTexto = L"V";
            unidad.colocacion = ui::JuntoA(maximo);
            Anadir<ui::Boton>("elegir", L"Elegir un modelo ...").colocacion = ui::JuntoA(maximo);
            auto& casilla = Anadir<ui::Casilla>("bSalida", L"Salida (V):");
            Anadir<ui::Edicion>("dSalida", L"").colocacion = ui::JuntoA(casilla);
        }
    } d;
    Mostrar(d, [](QDialog& v) {
        const auto centro = [&](const char* nombre) {
            auto& w = Hijo<QWidget>(v, nombre);
            return w.mapTo(&v, w.rect().center());
        };
        int iAnterior = centro("dMaximo").x();
        for (const char* nombre : {"dMinimo", "dMinimoP", "unidad", "elegir"}) {
            EXPECT_NEAR(centro(nombre).y(), centro("dMaximo").y(), 2) << nombre;
            EXPECT_GT(centro(nombre).x(), iAnterior) << nombre;
            iAnterior = centro(nombre).x();
        }
        EXPECT_EQ(Hijo<QWidget>(v, "dMinimoP").accessibleName(), Hijo<QWidget>(v, "dMaximo").accessibleName());
        EXPECT_GT(centro("otro").y(), centro("dMaximo").y() + 10);
        EXPECT_GT(centro("solo").y(), centro("otro").y() + 10);
        EXPECT_NEAR(centro("dSalida").y(), centro("bSalida").y(), 2);
        EXPECT_GT(centro("dSalida").x(), centro("bSalida").x());
    });
}

TEST(Ventana, UnaListaOcultaDejaSuSitioALaQueSeVe)
{
    class DosListas : public ui::Dialogo {
    public:
        DosListas() : Dialogo("DosListas", L"Listas")
        {
            bMaximizable = true;  // with more room than the lists ask for
            for (const char* nombre : {"una", "otra"})
                Anadir<ui::Lista>(nombre, L"", ui::Lista::Forma::tabla).colocacion.bEstirar = true;
            Controles()[0]->bVisible = false;
            auto& nota = Anadir<ui::Edicion>("nota", L"");
            nota.bVariasLineas = true;
        }
    } d;
    Mostrar(d, [](QDialog& v) {
        EXPECT_GT(Hijo<QWidget>(v, "otra").height(), v.height() / 2);
        EXPECT_LT(Hijo<QWidget>(v, "nota").height(), v.height() / 4);
    });
}

TEST(Ventana, ElTabuladorSigueElOrdenDeDeclaracion)
{
    Muestra d;
    Mostrar(d, [&](QDialog& v) {
        QStringList orden;
        for (int i = 0; i < 30; ++i) {
            QWidget* conFoco = v.focusWidget();
            const QString nombre = qobject_cast<QRadioButton*>(conFoco) != nullptr
                                       ? conFoco->parentWidget()->objectName()
                                       : conFoco->objectName();
            if (orden.contains(nombre))
                break;
            orden << nombre;
            QTest::keyClick(conFoco, Qt::Key_Tab);
        }
        // The bar of the tabs is Qt's own widget.
        orden.replaceInStrings("qt_tabwidget_tabbar", "tab");
        EXPECT_EQ(orden.join(' ').toStdString(),
                  "csNombre dPotencia iTipo iActivo iConexion tab csTexto tabla boton curvas menu deslizador "
                  "aceptar cancelar");
    });
}

TEST(Ventana, IntroAceptaLoTecleadoYEscapeCancela)
{
    {
        Muestra d;
        EXPECT_EQ(Mostrar(d,
                          [&](QDialog& v) {
                              auto& nombre = Hijo<QLineEdit>(v, "csNombre");
                              QTest::keyClicks(&nombre, "X");
                              QTest::keyClick(&nombre, Qt::Key_Enter);
                          }),
                  ui::Dialogo::ok);
        EXPECT_EQ(d.csNombre, L"X");
        EXPECT_EQ(d.nSalidas, 1);
    }
    {
        Muestra d;
        EXPECT_EQ(Mostrar(d,
                          [&](QDialog& v) {
                              QTest::keyClicks(&Hijo<QLineEdit>(v, "csNombre"), "X");
                              ResponderCaja("Descartar");
                              QTest::keyClick(&Hijo<QLineEdit>(v, "csNombre"), Qt::Key_Escape);
                          }),
                  ui::Dialogo::cancelado);
        EXPECT_EQ(d.csNombre, L"Panel");
        EXPECT_EQ(d.nSalidas, 0);
    }
}

TEST(Ventana, UnRechazoSeExplicaYLlevaAlCampoDeSuPagina)
{
    Muestra d;
    QString aviso;
    Mostrar(d, [&](QDialog& v) {
        auto& seccion = Hijo<QLineEdit>(v, "dSeccion");
        Hijo<QTabWidget>(v, "tab").setCurrentIndex(1);
        seccion.setFocus();
        QTest::keyClick(&seccion, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&seccion, "1,4");
        Hijo<QTabWidget>(v, "tab").setCurrentIndex(0);
        ResponderCaja("Aceptar", &aviso);
        Hijo<QPushButton>(v, "aceptar").click();
        EXPECT_FALSE(d.Terminado());
        EXPECT_EQ(Hijo<QTabWidget>(v, "tab").currentIndex(), 1);
        EXPECT_EQ(v.focusWidget(), &seccion);
        EXPECT_EQ(seccion.selectedText(), "1,4");
        QTest::keyClicks(&seccion, "16");
        QTest::keyClick(&seccion, Qt::Key_Return);
    });
    EXPECT_EQ(aviso, "Introduzca un número entre 1,5 y 300.");
    EXPECT_EQ(d.ResultadoFinal(), ui::Dialogo::ok);
    EXPECT_EQ(d.dSeccion, 16.0);
}

// A field that complains when it is left: once, whatever takes the focus, and Cancel still works.
TEST(Ventana, UnCampoQueProtestaAlSalirLoHaceUnaVez)
{
    Muestra d;
    int nProtestas = 0;
    d.potencia.alSalir = [&] {
        ++nProtestas;
        d.RecogerAvisando();
    };
    const auto estropear = [](QLineEdit& potencia) {
        potencia.setFocus();
        potencia.selectAll();
        QTest::keyClicks(&potencia, "x");
    };
    Mostrar(d, [&](QDialog& v) {
        auto& potencia = Hijo<QLineEdit>(v, "dPotencia");
        estropear(potencia);
        ResponderCaja("Aceptar");
        QTest::keyClick(&potencia, Qt::Key_Tab);
        QTest::qWait(50);
        EXPECT_EQ(nProtestas, 1);
        EXPECT_EQ(v.focusWidget(), &potencia);
        EXPECT_EQ(potencia.selectedText(), "x");
        ResponderCaja("Aceptar");
        QTest::keyClick(&potencia, Qt::Key_Return);  // the complaint of leaving stands for that of OK
        EXPECT_EQ(nProtestas, 2);
        EXPECT_FALSE(d.Terminado());
        QTest::mouseClick(&Hijo<QPushButton>(v, "cancelar"), Qt::LeftButton);
    });
    EXPECT_EQ(nProtestas, 2);
    EXPECT_EQ(d.ResultadoFinal(), ui::Dialogo::cancelado);
}

// Whatever the person does elsewhere leaves the field that they typed into: before it, and once. Only Cancel
// doesn't.
TEST(Ventana, LoQueSeHaceEnOtroSitioDejaElCampoUnaVez)
{
    struct Accion {
        const char* nombre;
        std::function<void(QDialog&)> hacer;
        int nSalidas;
    };
    const auto clic = [](QDialog& v, const char* nombre, QPoint lugar = {6, 8}) {
        QTest::mouseClick(&Hijo<QWidget>(v, nombre), Qt::LeftButton, {}, lugar);
    };
    const std::vector<Accion> acciones{
        {"button", [&](QDialog& v) { clic(v, "boton"); }, 1},
        {"button by its key",
         [&](QDialog& v) {
             QTest::keyClick(v.windowHandle(), Qt::Key_C, Qt::AltModifier);
             QTest::qWait(200);  // the button is seen going down
         },
         1},
        {"tick", [&](QDialog& v) { clic(v, "iActivo"); }, 1},
        {"radio", [&](QDialog& v) { Hijo<QWidget>(v, "iConexion").findChildren<QRadioButton*>()[1]->click(); },
         1},
        {"choice",
         [&](QDialog& v) {
             Hijo<QComboBox>(v, "iTipo").setFocus();
             QTest::keyClick(&Hijo<QComboBox>(v, "iTipo"), Qt::Key_Down);
         },
         1},
        {"menu", [&](QDialog& v) { Hijo<QPushButton>(v, "menu").menu()->actions()[0]->trigger(); }, 1},
        {"slider", [&](QDialog& v) { Hijo<QSlider>(v, "deslizador").setValue(500); }, 1},
        {"list", [&](QDialog& v) { clic(v, "tabla"); }, 1},
        {"tab", [&](QDialog& v) { Hijo<QTabWidget>(v, "tab").setCurrentIndex(1); }, 1},
        {"another field", [&](QDialog& v) { clic(v, "dPotencia"); }, 1},
        {"Enter", [&](QDialog& v) { QTest::keyClick(&Hijo<QLineEdit>(v, "csNombre"), Qt::Key_Return); }, 1},
        {"OK", [&](QDialog& v) { clic(v, "aceptar"); }, 1},
        {"Escape",
         [&](QDialog& v) {
             ResponderCaja("Descartar");
             QTest::keyClick(&Hijo<QLineEdit>(v, "csNombre"), Qt::Key_Escape);
         },
         0},
        {"Cancel", [&](QDialog& v) { clic(v, "cancelar"); }, 0},
    };
    for (const Accion& accion : acciones) {
        Muestra d;
        int nAntes = -1;  // left, when the action came
        const auto anotar = [&] { nAntes = nAntes < 0 ? d.nSalidas : nAntes; };
        d.boton.alPulsar = d.activo.alCambiar = d.conexion.alElegir = d.tipo.alElegir = d.menu.alElegir =
            anotar;
        d.deslizador.alMover = d.paginas.alElegir = anotar;
        Mostrar(d, [&](QDialog& v) {
            QTest::keyClicks(&Hijo<QLineEdit>(v, "csNombre"), "X");
            EXPECT_EQ(d.nSalidas, 0) << accion.nombre;
            const QPointer<QDialog> ventana(&v);
            accion.hacer(v);
            QTest::qWait(20);
            EXPECT_EQ(d.nSalidas, accion.nSalidas) << accion.nombre;
            if (!d.Terminado())
                Hijo<QPushButton>(*ventana, "aceptar").click();
            EXPECT_EQ(d.nSalidas, accion.nSalidas) << accion.nombre;
        });
        EXPECT_NE(nAntes, 0) << accion.nombre;
        EXPECT_EQ(d.csNombre, accion.nSalidas > 0 ? L"X" : L"Panel") << accion.nombre;
    }
}

TEST(Ventana, DentroDeUnaAccionSeAbrenOtrasYSeVuelve)
{
    Muestra d, anidado;
    ui::Respuesta respuesta{};
    d.boton.alPulsar = [&] {
        anidado.Mostrar();
        respuesta = ui::PresentadorActual().MostrarMensaje(
            {L"T", L"¿<b>?", ui::Icono::pregunta, ui::Botones::siNoCancelar});
        d.nombre.csTexto = anidado.csNombre;
    };
    Mostrar(d, [&](QDialog& v) {
        CuandoSeAbra([&](QDialog& otra) {
            EXPECT_EQ(otra.parentWidget(), &v);
            ResponderCaja("Cancelar");
            QTest::keyClicks(&Hijo<QLineEdit>(otra, "csNombre"), "interior");
            Hijo<QPushButton>(otra, "aceptar").click();
        });
        Hijo<QPushButton>(v, "boton").click();
        EXPECT_EQ(Hijo<QLineEdit>(v, "csNombre").text(), "interior");
    });
    EXPECT_EQ(respuesta, ui::Respuesta::cancelar);
}

// Escape and the window's button ask before anything that was filled in goes; the Cancel button doesn't.
TEST(Ventana, EscapePreguntaSiHayCambios)
{
    const auto cerrar = [](QDialog& v) { v.close(); };
    const auto escape = [](QDialog& v) { QTest::keyClick(&v, Qt::Key_Escape); };
    for (const std::function<void(QDialog&)>& salir : {std::function<void(QDialog&)>(cerrar), {escape}}) {
        Muestra sinCambios;
        EXPECT_EQ(Mostrar(sinCambios, salir), ui::Dialogo::cancelado);

        Muestra d;
        EXPECT_EQ(Mostrar(d,
                          [&](QDialog& v) {
                              Hijo<QCheckBox>(v, "iActivo").click();
                              ResponderCaja("Seguir");
                              salir(v);
                              EXPECT_FALSE(d.Terminado());
                              EXPECT_TRUE(v.isVisible());
                              // Back to what it was: nothing to lose.
                              Hijo<QCheckBox>(v, "iActivo").click();
                              salir(v);
                              EXPECT_TRUE(d.Terminado());
                          }),
                  ui::Dialogo::cancelado);
    }
}

// What a catalogue's viewer has changed stands in no field.
TEST(Ventana, EscapePreguntaSiHayAlgoQueDeshacer)
{
    struct ConDeshacer : ui::Dialogo {
        ConDeshacer() : Dialogo("ConDeshacer", L"Prueba"), deshacer(Anadir<ui::Boton>("Deshacer", L"De&shacer"))
        {
            deshacer.bHabilitado = false;
        }
        ui::Boton& deshacer;
    } d;
    EXPECT_EQ(Mostrar(d,
                      [&](QDialog& v) {
                          d.deshacer.bHabilitado = true;
                          ResponderCaja("Seguir");
                          v.close();
                          EXPECT_FALSE(d.Terminado());
                          d.deshacer.bHabilitado = false;
                          v.close();
                          EXPECT_TRUE(d.Terminado());
                      }),
              ui::Dialogo::cancelado);
}

// Yes of two answers deletes or replaces: neither Enter nor Escape gives it.
TEST(Ventana, LasTeclasDeUnaCajaNoHacenDano)
{
    using ui::Botones;
    using ui::Respuesta;
    struct Caso {
        ui::Mensaje mensaje;
        Respuesta conIntro, conEscape;
    };
    const ui::Mensaje dos{L"T", L"¿?", ui::Icono::pregunta, Botones::siNo};
    const ui::Mensaje tres{L"T", L"¿?", ui::Icono::pregunta, Botones::siNoCancelar, L"&Guardar"};
    ui::Mensaje otra = tres;
    otra.intro = Respuesta::cancelar;
    qt::InstalarPresentadorQt();
    for (const Caso& caso :
         {Caso{dos, Respuesta::no, Respuesta::no}, Caso{tres, Respuesta::si, Respuesta::cancelar},
          Caso{otra, Respuesta::cancelar, Respuesta::cancelar}}) {
        for (const auto& [tecla, respuesta] :
             {std::pair(Qt::Key_Return, caso.conIntro), std::pair(Qt::Key_Escape, caso.conEscape)}) {
            CuandoSeAbra([&, tecla = tecla](QDialog& caja) {
                EXPECT_EQ(caja.findChildren<QPushButton*>().at(0)->text(),
                          caso.mensaje.csSi.empty() ? "&Sí" : "&Guardar");
                QTest::keyClick(&caja, tecla);
            });
            EXPECT_EQ(ui::PresentadorActual().MostrarMensaje(caso.mensaje), respuesta);
        }
    }
    ui::InstalarPresentador(nullptr);
}

TEST(Ventana, ElTemporizadorEsperaALaCaja)
{
    class ConReloj : public Muestra {
    public:
        int nVencimientos = 0;
        void AlVencerTemporizador() override
        {
            if (++nVencimientos == 1) {
                nombre.csTexto = L"Vencido";
                ui::MostrarAviso(L"Aviso", ui::Icono::informacion);
            } else {
                Terminar(ok);
            }
        }
    } d;
    int nEnLaCaja = 0;
    EXPECT_EQ(Mostrar(d,
                      [&](QDialog& v) {
                          CuandoSeAbra([&](QDialog& caja) {
                              QTest::qWait(60);
                              nEnLaCaja = d.nVencimientos;
                              caja.accept();
                          });
                          // Not before: its box would be up before anybody waits for it.
                          d.iTemporizador = 10;
                          qt::RefrescarVentana(&v);
                          QTest::qWait(200);
                      }),
              ui::Dialogo::ok);
    EXPECT_EQ(nEnLaCaja, 1);
    EXPECT_EQ(d.nVencimientos, 2);
}

TEST(Ventana, UnaExcepcionSeMuestraYElDialogoSigue)
{
    Muestra d;
    d.boton.alPulsar = [] { throw std::runtime_error("avería ñ"); };
    QString aviso;
    Mostrar(d, [&](QDialog& v) {
        ResponderCaja("Aceptar", &aviso);
        Hijo<QPushButton>(v, "boton").click();
        EXPECT_FALSE(d.Terminado());
        Hijo<QPushButton>(v, "aceptar").click();
    });
    EXPECT_EQ(aviso, "avería ñ");
    EXPECT_EQ(d.ResultadoFinal(), ui::Dialogo::ok);
}

TEST(Ventana, LosColoresSeLeenSobreFondoOscuro)
{
    const QPalette antes = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30), QColor(0x20, 0x20, 0x20)));
    Muestra d;
    Mostrar(d, [&](QDialog& v) {
        const QColor fondo = v.palette().color(QPalette::Window);
        ASSERT_LT(fondo.lightness(), 80);
        const auto& nota = Hijo<QLabel>(v, "nota");
        EXPECT_GT(nota.palette().color(QPalette::WindowText).lightness(), 150);
        EXPECT_GT(nota.palette().color(QPalette::WindowText).blue(),
                  nota.palette().color(QPalette::WindowText).red());
        EXPECT_GT(Hijo<QLineEdit>(v, "csNombre").palette().color(QPalette::Text).lightness(), 150);
    });
    QApplication::setPalette(antes);
}

TEST(Ventana, UnTemaQueCambiaLlegaATodosSusColores)
{
    const QPalette antes = QApplication::palette();
    Muestra d;
    d.seccion.bSoloLectura = true;
    Mostrar(d, [&](QDialog& v) {
        QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30), QColor(0x20, 0x20, 0x20)));
        const auto& seccion = Hijo<QLineEdit>(v, "dSeccion");
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return seccion.palette().color(QPalette::Base).lightness() < 80; }, 1000));
        EXPECT_GT(Hijo<QLabel>(v, "nota").palette().color(QPalette::WindowText).lightness(), 150);
    });
    QApplication::setPalette(antes);
}

TEST(Presentador, LasCajasHablanEspanolYElCursorDeEsperaSeApila)
{
    qt::InstalarPresentadorQt();
    ui::Presentador& presentador = ui::PresentadorActual();
    ResponderCaja("Sí");
    EXPECT_TRUE(ui::Preguntar(L"¿Seguro?"));
    CuandoSeAbra([](QDialog& caja) { QTest::keyClick(&caja, Qt::Key_Escape); });
    EXPECT_FALSE(ui::Preguntar(L"¿Seguro?"));

    presentador.Esperar(true);
    presentador.Esperar(true);
    CuandoSeAbra([](QDialog& caja) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);  // a question is answered with a normal pointer
        caja.accept();
    });
    ui::MostrarAviso(L"Aviso", ui::Icono::error);
    presentador.Esperar(false);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    presentador.Esperar(false);
    presentador.Esperar(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    // As many lines as a report of faults may have stay on the screen.
    CuandoSeAbra([](QDialog& caja) {
        EXPECT_LT(caja.height(), 700);
        for (QAbstractButton* boton : static_cast<QMessageBox&>(caja).buttons())
            EXPECT_TRUE(boton->text() == "Aceptar" || boton->text() == "&Detalles")
                << boton->text().toStdString();
        caja.accept();
    });
    CString csLargo;
    for (int i = 0; i < 3000; ++i)
        csLargo += L"falta un dato\n";
    ui::MostrarAviso(csLargo, ui::Icono::error);

    presentador.EscribirPortapapeles(L"1,5\tñ");
    EXPECT_EQ(presentador.LeerPortapapeles(), L"1,5\tñ");
    ui::InstalarPresentador(nullptr);
}

TEST(Presentador, UnPanelDelAnfitrionNoSeCierraConTeclas)
{
    Muestra d;
    const std::unique_ptr<QWidget> panel(qt::CrearPanel(d));
    panel->show();
    EXPECT_EQ(panel->findChild<QPushButton*>("aceptar"), nullptr);
    QTest::keyClick(panel.get(), Qt::Key_Escape);
    QTest::keyClick(&Hijo<QLineEdit>(*panel, "csNombre"), Qt::Key_Return);
    EXPECT_FALSE(d.Terminado());
    d.nombre.csTexto = L"Cambiado";
    qt::RefrescarVentana(panel.get());
    EXPECT_EQ(Hijo<QLineEdit>(*panel, "csNombre").text(), "Cambiado");
}

}  // namespace
