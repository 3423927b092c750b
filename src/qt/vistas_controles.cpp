// The views of the single controls.
#include <algorithm>

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "qt/iconos.h"
#include "qt/texto.h"
#include "qt/vista_lista.h"
#include "qt/vistas.h"
#include "qt/widget_grafica.h"

namespace efv::qt {

namespace {

constexpr QSize kImagenGrande(96, 96);

// ---------------------------------------------------------------------------------------------------
// Text
// ---------------------------------------------------------------------------------------------------

class VistaTextoFijo final : public Vista {
public:
    VistaTextoFijo(ui::TextoFijo& texto, QWidget* padre) : Vista(texto, new QLabel(padre)), m_texto(texto)
    {
        Etiqueta().setTextFormat(Qt::PlainText);
        Etiqueta().setTextInteractionFlags(Qt::TextSelectableByMouse);
        Etiqueta().setFocusPolicy(Qt::NoFocus);
    }

    // A text that stands alone is a note, whichever of its two texts holds it.
    bool EsAncha() const override { return m_texto.csRotulo.empty() || EsNota(); }
    bool RotulaPorSiMisma() const override { return EsNota(); }

private:
    bool EsNota() const { return m_texto.csTexto.empty() && m_texto.csRotulo.size() > kRotuloLargo; }
    QLabel& Etiqueta() const { return static_cast<QLabel&>(*widget); }

    void RefrescarContenido() override
    {
        QString texto = AQt(m_texto.csTexto);
        if (rotulo == nullptr && texto.isEmpty())
            texto = SinMnemonico(m_texto.csRotulo);
        if (Etiqueta().text() != texto || !m_bEscrito) {
            Etiqueta().setWordWrap(texto.size() > static_cast<qsizetype>(kRotuloLargo));
            Etiqueta().setText(texto);
            m_bEscrito = true;
        }
    }

    static constexpr std::size_t kRotuloLargo = 40;
    const ui::TextoFijo& m_texto;
    bool m_bEscrito = false;
};

// Tells when the person, and not another window, takes the focus away.
class GuardaDeFoco final : public QObject {
public:
    GuardaDeFoco(QWidget* widget, std::function<void()> alSalir)
        : QObject(widget), m_alSalir(std::move(alSalir))
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject* /*objeto*/, QEvent* evento) override
    {
        if (evento->type() == QEvent::FocusOut) {
            const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
            if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason)
                m_alSalir();
        }
        return false;
    }

private:
    std::function<void()> m_alSalir;
};

bool EsNumerica(const ui::Edicion& edicion)
{
    return edicion.limites.Alguno() || std::holds_alternative<int*>(edicion.destino) ||
           std::holds_alternative<double*>(edicion.destino);
}

class VistaLinea final : public Vista {
public:
    VistaLinea(ui::Edicion& edicion, QWidget* padre, Accionador& accionador)
        : Vista(edicion, new QLineEdit(padre)), m_edicion(edicion)
    {
        Campo().setMaxLength(1 << 24);
        if (EsNumerica(edicion))
            Campo().setAlignment(Qt::AlignRight);
        Campo().setMinimumWidth(Campo().fontMetrics().averageCharWidth() * (EsNumerica(edicion) ? 11 : 18));
        QObject::connect(&Campo(), &QLineEdit::textEdited, &Campo(), [&](const QString& texto) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Teclear(edicion, DeQt(texto)); });
        });
        new GuardaDeFoco(widget, [&] { accionador.HaSalido(edicion); });
    }

    void Enfocar() override
    {
        Vista::Enfocar();
        Campo().selectAll();
    }

private:
    QLineEdit& Campo() const { return static_cast<QLineEdit&>(*widget); }

    void RefrescarContenido() override
    {
        Campo().setReadOnly(m_edicion.bSoloLectura);
        // What a line can't show, such as the end of a line, would never compare equal.
        if (m_edicion.csTexto == m_csMostrado && Campo().text() == m_mostrado)
            return;
        const QString texto = AQt(m_edicion.csTexto);
        if (Campo().text() != texto) {
            const int iCursor = Campo().cursorPosition();
            Campo().setText(texto);
            Campo().setCursorPosition(Campo().hasFocus() ? iCursor : 0);
        }
        m_csMostrado = m_edicion.csTexto;
        m_mostrado = Campo().text();
    }

    const ui::Edicion& m_edicion;
    CString m_csMostrado;
    QString m_mostrado;
};

class VistaParrafos final : public Vista {
public:
    VistaParrafos(ui::Edicion& edicion, QWidget* padre, Accionador& accionador)
        : Vista(edicion, new QPlainTextEdit(padre)), m_edicion(edicion)
    {
        Campo().setTabChangesFocus(true);
        QObject::connect(&Campo(), &QPlainTextEdit::textChanged, &Campo(), [this, &accionador, &edicion] {
            CString csTexto = DeQt(Campo().toPlainText());
            if (m_bRetornos)
                csTexto = ConRetornos(csTexto);
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Teclear(edicion, csTexto); });
        });
        new GuardaDeFoco(widget, [&] { accionador.HaSalido(edicion); });
    }

    bool EsAncha() const override { return true; }
    bool QuiereSitio() const override { return true; }
    void Enfocar() override
    {
        Vista::Enfocar();
        Campo().selectAll();
    }

private:
    QPlainTextEdit& Campo() const { return static_cast<QPlainTextEdit&>(*widget); }

    static CString ConRetornos(const CString& csTexto)
    {
        CString csConRetornos;
        for (const wchar_t c : csTexto)
            csConRetornos += c == L'\n' ? CString(L"\r\n") : CString(1, c);
        return csConRetornos;
    }

    void RefrescarContenido() override
    {
        Campo().setReadOnly(m_edicion.bSoloLectura);
        CString csTexto = m_edicion.csTexto;
        // A text keeps the ends of line that it came with.
        if (csTexto.find(L'\n') != CString::npos)
            m_bRetornos = csTexto.find(L"\r\n") != CString::npos;
        std::erase(csTexto, L'\r');
        if (DeQt(Campo().toPlainText()) == csTexto)
            return;
        const QSignalBlocker silencio(Campo());
        QTextCursor cursor = Campo().textCursor();
        const int iCursor = cursor.position();
        Campo().setPlainText(AQt(csTexto));
        cursor.setPosition(std::min(iCursor, static_cast<int>(Campo().toPlainText().size())));
        Campo().setTextCursor(cursor);
    }

    const ui::Edicion& m_edicion;
    bool m_bRetornos = false;
};

// ---------------------------------------------------------------------------------------------------
// Ticks, buttons
// ---------------------------------------------------------------------------------------------------

class VistaCasilla final : public Vista {
public:
    VistaCasilla(ui::Casilla& casilla, QWidget* padre, Accionador& accionador)
        : Vista(casilla, new QCheckBox(padre)), m_casilla(casilla)
    {
        QObject::connect(&Cuadro(), &QCheckBox::clicked, &Cuadro(), [&](bool bMarcada) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Marcar(casilla, bMarcada); });
        });
    }

    bool EsAncha() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }

private:
    QCheckBox& Cuadro() const { return static_cast<QCheckBox&>(*widget); }
    bool Utilizable() const override { return control.bHabilitado && !control.bSoloLectura; }

    void RefrescarContenido() override
    {
        Cuadro().setText(ConMnemonico(m_casilla.csRotulo));
        Cuadro().setChecked(m_casilla.bMarcada);
    }

    const ui::Casilla& m_casilla;
};

class VistaBoton final : public Vista {
public:
    VistaBoton(ui::Boton& boton, QWidget* padre, Accionador& accionador)
        : Vista(boton, new QPushButton(padre)), m_boton(boton)
    {
        QObject::connect(&Pulsador(), &QPushButton::clicked, &Pulsador(),
                         [&] { accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Pulsar(boton); }); });
    }

    bool EsAncha() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }

private:
    QPushButton& Pulsador() const { return static_cast<QPushButton&>(*widget); }

    void RefrescarContenido() override
    {
        if (m_csImagen != m_boton.csImagen || m_paleta != widget->palette().cacheKey()) {
            m_csImagen = m_boton.csImagen;
            m_paleta = widget->palette().cacheKey();
            Pulsador().setIcon(IconoDe(m_csImagen, widget->palette()));
            if (m_boton.bImagenGrande)
                Pulsador().setIconSize(kImagenGrande);
        }
        const bool bConImagen = !Pulsador().icon().isNull();
        const CString& csRotulo = m_boton.csRotulo.empty() ? m_boton.csIndicacion : m_boton.csRotulo;
        Pulsador().setText(bConImagen ? QString() : ConMnemonico(csRotulo));
        Pulsador().setToolTip(
            Indicacion(m_boton.csIndicacion.empty() && bConImagen ? m_boton.csRotulo : m_boton.csIndicacion));
        // A few letters don't need a whole button's width.
        const bool bBreve = bConImagen || Pulsador().text().size() <= 3;
        if (bBreve && !m_boton.bImagenGrande)
            Pulsador().setFixedWidth(Pulsador().sizeHint().height() + (bConImagen ? 8 : 6));
    }

    const ui::Boton& m_boton;
    CString m_csImagen;
    qint64 m_paleta = 0;
};

// ---------------------------------------------------------------------------------------------------
// One out of several
// ---------------------------------------------------------------------------------------------------

// A turn of the wheel over a combo on the way down a form must not change it.
class SinRueda final : public QObject {
public:
    explicit SinRueda(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() != QEvent::Wheel || static_cast<QWidget*>(objeto)->hasFocus())
            return false;
        evento->ignore();
        return true;
    }
};

class VistaCombo final : public Vista {
public:
    VistaCombo(ui::Seleccion& seleccion, QWidget* padre, Accionador& accionador)
        : Vista(seleccion, new QComboBox(padre)), m_seleccion(seleccion)
    {
        Combo().setFocusPolicy(Qt::StrongFocus);
        Combo().setMaxVisibleItems(20);
        // A long entry widens the open list, not the form.
        Combo().setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        new SinRueda(widget);
        QObject::connect(&Combo(), &QComboBox::activated, &Combo(), [&](int iEntrada) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, iEntrada); });
        });
    }

private:
    QComboBox& Combo() const { return static_cast<QComboBox&>(*widget); }
    bool Utilizable() const override { return control.bHabilitado && !control.bSoloLectura; }

    void RefrescarContenido() override
    {
        if (m_acsEntradas != m_seleccion.acsEntradas) {
            m_acsEntradas = m_seleccion.acsEntradas;
            Combo().clear();
            QStringList entradas;
            std::size_t nLetras = 4;
            for (const CString& entrada : m_acsEntradas) {
                entradas << AQt(entrada);
                nLetras = std::max(nLetras, entrada.size());
            }
            Combo().addItems(entradas);
            Combo().setMinimumContentsLength(static_cast<int>(std::min<std::size_t>(nLetras, 28)));
            Combo().view()->setMinimumWidth(std::min(Combo().view()->sizeHintForColumn(0) + 24, 600));
        }
        Combo().setCurrentIndex(m_seleccion.iSeleccion);
    }

    const ui::Seleccion& m_seleccion;
    std::vector<CString> m_acsEntradas;
};

class VistaRadio final : public Vista {
public:
    VistaRadio(ui::Seleccion& seleccion, QWidget* padre, Accionador& accionador)
        : Vista(seleccion, Caja(seleccion, padre)),
          m_seleccion(seleccion),
          m_accionador(accionador),
          m_grupo(new QButtonGroup(widget))
    {
        auto* columna = new QVBoxLayout(widget);
        if (seleccion.csRotulo.empty())
            columna->setContentsMargins(0, 0, 0, 0);
        columna->addStretch();
        PonerEntradas();
    }

    bool EsAncha() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }
    bool AdmiteFoco() const override
    {
        return control.bVisible && Utilizable() && !m_grupo->buttons().isEmpty();
    }

    void Encadenar(const std::function<void(QWidget*)>& siguiente) override
    {
        for (QAbstractButton* boton : m_grupo->buttons())
            siguiente(boton);
    }

    void Enfocar() override
    {
        QAbstractButton* boton = m_grupo->checkedButton();
        if (boton == nullptr && !m_grupo->buttons().isEmpty())
            boton = m_grupo->buttons().constFirst();
        if (boton != nullptr)
            boton->setFocus(Qt::OtherFocusReason);
    }

private:
    static QWidget* Caja(const ui::Seleccion& seleccion, QWidget* padre)
    {
        if (seleccion.csRotulo.empty())
            return new QWidget(padre);
        return new QGroupBox(SinMnemonico(seleccion.csRotulo), padre);
    }
    bool Utilizable() const override { return control.bHabilitado && !control.bSoloLectura; }

    void PonerEntradas()
    {
        const auto nEntradas = static_cast<qsizetype>(m_seleccion.acsEntradas.size());
        while (m_grupo->buttons().size() > nEntradas)
            delete m_grupo->buttons().constLast();
        while (m_grupo->buttons().size() < nEntradas)
            AnadirEntrada(static_cast<int>(m_grupo->buttons().size()));
    }

    void RefrescarContenido() override
    {
        PonerEntradas();
        // Without this, none chosen couldn't be shown.
        m_grupo->setExclusive(m_seleccion.iSeleccion >= 0);
        for (int i = 0; i < static_cast<int>(m_seleccion.acsEntradas.size()); ++i) {
            m_grupo->button(i)->setText(ConMnemonico(m_seleccion.acsEntradas[static_cast<std::size_t>(i)]));
            m_grupo->button(i)->setChecked(i == m_seleccion.iSeleccion);
        }
    }

    void AnadirEntrada(int i)
    {
        auto* boton = new QRadioButton(widget);
        m_grupo->addButton(boton, i);
        static_cast<QVBoxLayout*>(widget->layout())->insertWidget(i, boton);
        QObject::connect(boton, &QRadioButton::clicked, boton, [this, i] {
            auto& seleccion = static_cast<ui::Seleccion&>(control);
            m_accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, i); });
        });
    }

    const ui::Seleccion& m_seleccion;
    Accionador& m_accionador;
    QButtonGroup* m_grupo;
};

class VistaMenu final : public Vista {
public:
    VistaMenu(ui::Seleccion& seleccion, QWidget* padre, Accionador& accionador)
        : Vista(seleccion, new QPushButton(padre)),
          m_seleccion(seleccion),
          m_accionador(accionador),
          m_menu(new QMenu(widget))
    {
        Pulsador().setMenu(m_menu);
    }

    bool EsAncha() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }

private:
    QPushButton& Pulsador() const { return static_cast<QPushButton&>(*widget); }
    bool Utilizable() const override { return control.bHabilitado && !control.bSoloLectura; }

    void RefrescarContenido() override
    {
        Pulsador().setText(
            ConMnemonico(m_seleccion.csRotulo.empty() ? m_seleccion.Texto() : m_seleccion.csRotulo));
        if (m_acsEntradas == m_seleccion.acsEntradas)
            return;
        m_acsEntradas = m_seleccion.acsEntradas;
        m_menu->clear();
        int iEntrada = -1;
        for (const CString& entrada : m_acsEntradas) {
            ++iEntrada;
            if (entrada.empty() || entrada == L"-") {
                m_menu->addSeparator();
                continue;
            }
            // From the loop, once the menu has closed: what follows may open another dialog.
            QObject::connect(
                m_menu->addAction(ConMnemonico(entrada)), &QAction::triggered, widget,
                [this, iEntrada] {
                    auto& seleccion = static_cast<ui::Seleccion&>(control);
                    m_accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, iEntrada); });
                },
                Qt::QueuedConnection);
        }
    }

    const ui::Seleccion& m_seleccion;
    Accionador& m_accionador;
    QMenu* m_menu;
    std::vector<CString> m_acsEntradas;
};

// A row of tabs whose page the dialog changes itself.
class VistaPestanas final : public Vista {
public:
    VistaPestanas(ui::Seleccion& seleccion, QWidget* padre, Accionador& accionador)
        : Vista(seleccion, new QTabBar(padre)), m_seleccion(seleccion)
    {
        Barra().setExpanding(false);
        QObject::connect(&Barra(), &QTabBar::currentChanged, &Barra(), [&](int iEntrada) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, iEntrada); });
        });
    }

    bool EsAncha() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }

private:
    QTabBar& Barra() const { return static_cast<QTabBar&>(*widget); }

    void RefrescarContenido() override
    {
        const QSignalBlocker silencio(Barra());
        const auto nEntradas = static_cast<int>(m_seleccion.acsEntradas.size());
        while (Barra().count() > nEntradas)
            Barra().removeTab(Barra().count() - 1);
        while (Barra().count() < nEntradas)
            Barra().addTab(QString());
        for (int i = 0; i < nEntradas; ++i)
            Barra().setTabText(i, ConMnemonico(m_seleccion.acsEntradas[static_cast<std::size_t>(i)]));
        Barra().setCurrentIndex(m_seleccion.iSeleccion);
    }

    const ui::Seleccion& m_seleccion;
};

class PaginasConPestanas final : public VistaPaginas {
public:
    PaginasConPestanas(ui::Seleccion& seleccion, QWidget* padre, Accionador& accionador)
        : VistaPaginas(seleccion, new QTabWidget(padre)), m_seleccion(seleccion)
    {
        for (const CString& entrada : seleccion.acsEntradas)
            Pestanas().addTab(new QWidget, ConMnemonico(entrada));
        QObject::connect(&Pestanas(), &QTabWidget::currentChanged, &Pestanas(), [&](int iPagina) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, iPagina); });
        });
    }

    bool EsAncha() const override { return true; }
    bool QuiereSitio() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }

    QWidget* Pagina(int iPagina) override
    {
        while (Pestanas().count() <= iPagina)
            Pestanas().addTab(new QWidget, QString());
        return Pestanas().widget(iPagina);
    }

    void Mostrar(int iPagina) override
    {
        const QSignalBlocker silencio(Pestanas());
        Pestanas().setCurrentIndex(iPagina);
    }

private:
    QTabWidget& Pestanas() const { return static_cast<QTabWidget&>(*widget); }

    void RefrescarContenido() override
    {
        const QSignalBlocker silencio(Pestanas());
        for (int i = 0; i < Pestanas().count(); ++i) {
            const bool bExiste = static_cast<std::size_t>(i) < m_seleccion.acsEntradas.size();
            Pestanas().setTabVisible(i, bExiste);
            if (bExiste)
                Pestanas().setTabText(i, ConMnemonico(m_seleccion.acsEntradas[static_cast<std::size_t>(i)]));
        }
        if (m_seleccion.iSeleccion >= 0)
            Pestanas().setCurrentIndex(m_seleccion.iSeleccion);
    }

    const ui::Seleccion& m_seleccion;
};

// ---------------------------------------------------------------------------------------------------
// Charts, progress, sliders, pictures
// ---------------------------------------------------------------------------------------------------

class VistaGrafica final : public Vista {
public:
    VistaGrafica(ui::Grafica& grafica, QWidget* padre) : Vista(grafica, new WidgetGrafica(grafica.datos, padre))
    {
    }

    bool EsAncha() const override { return true; }
    bool QuiereSitio() const override { return true; }

private:
    void RefrescarContenido() override { widget->update(); }
};

class VistaProgreso final : public Vista {
public:
    VistaProgreso(ui::Progreso& progreso, QWidget* padre)
        : Vista(progreso, new QProgressBar(padre)), m_progreso(progreso)
    {
        Barra().setRange(0, kPasos);
    }

    bool EsAncha() const override { return m_progreso.csRotulo.empty(); }

private:
    static constexpr int kPasos = 1000;
    QProgressBar& Barra() const { return static_cast<QProgressBar&>(*widget); }

    void RefrescarContenido() override
    {
        // Not-a-number fails both comparisons and counts as nothing done.
        const double d = m_progreso.dFraccion > 0.0 ? std::min(m_progreso.dFraccion, 1.0) : 0.0;
        Barra().setValue(static_cast<int>(d * kPasos));
    }

    const ui::Progreso& m_progreso;
};

class VistaDeslizador final : public Vista {
public:
    VistaDeslizador(ui::Deslizador& deslizador, QWidget* padre, Accionador& accionador)
        : Vista(deslizador, new QSlider(Qt::Horizontal, padre)), m_deslizador(deslizador)
    {
        Mando().setFocusPolicy(Qt::StrongFocus);
        Mando().setMinimumWidth(Mando().fontMetrics().averageCharWidth() * 20);
        new SinRueda(widget);
        QObject::connect(&Mando(), &QSlider::valueChanged, &Mando(), [&](int iValor) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Mover(deslizador, iValor); });
        });
    }

private:
    QSlider& Mando() const { return static_cast<QSlider&>(*widget); }
    bool Utilizable() const override { return control.bHabilitado && !control.bSoloLectura; }

    void RefrescarContenido() override
    {
        const QSignalBlocker silencio(Mando());
        Mando().setRange(m_deslizador.iMinimo, m_deslizador.iMaximo);
        Mando().setSingleStep(m_deslizador.iPaso);
        Mando().setPageStep(m_deslizador.iPasoGrande);
        Mando().setValue(m_deslizador.iValor);
    }

    const ui::Deslizador& m_deslizador;
};

class VistaImagen final : public Vista {
public:
    VistaImagen(ui::Imagen& imagen, QWidget* padre) : Vista(imagen, new QLabel(padre)), m_imagen(imagen)
    {
        Etiqueta().setTextFormat(Qt::PlainText);
        Etiqueta().setAlignment(Qt::AlignCenter);
    }

    bool EsAncha() const override { return true; }
    bool RotulaPorSiMisma() const override { return true; }

private:
    static constexpr int kLineas = 4;  // of text, as high as the picture
    QLabel& Etiqueta() const { return static_cast<QLabel&>(*widget); }

    void RefrescarContenido() override
    {
        if (m_csImagen == m_imagen.csImagen && m_paleta == widget->palette().cacheKey())
            return;
        m_csImagen = m_imagen.csImagen;
        m_paleta = widget->palette().cacheKey();
        const QIcon dibujo = IconoDe(m_csImagen, widget->palette());
        const int iLado = kLineas * widget->fontMetrics().height();
        if (dibujo.isNull())
            Etiqueta().setText(SinMnemonico(m_imagen.csRotulo));
        else
            Etiqueta().setPixmap(dibujo.pixmap(QSize(iLado, iLado), widget->devicePixelRatioF()));
    }

    const ui::Imagen& m_imagen;
    CString m_csImagen;
    qint64 m_paleta = 0;
};

class Fabrica final : public ui::VisitanteControl {
public:
    Fabrica(QWidget* padre, Accionador& accionador) : m_padre(padre), m_accionador(accionador) {}
    std::unique_ptr<Vista> vista;

    void Ver(ui::TextoFijo& c) override { vista = std::make_unique<VistaTextoFijo>(c, m_padre); }
    void Ver(ui::Casilla& c) override { vista = std::make_unique<VistaCasilla>(c, m_padre, m_accionador); }
    void Ver(ui::Boton& c) override { vista = std::make_unique<VistaBoton>(c, m_padre, m_accionador); }
    void Ver(ui::Lista& c) override { vista = CrearVistaLista(c, m_padre, m_accionador); }
    void Ver(ui::Grafica& c) override { vista = std::make_unique<VistaGrafica>(c, m_padre); }
    void Ver(ui::Progreso& c) override { vista = std::make_unique<VistaProgreso>(c, m_padre); }
    void Ver(ui::Deslizador& c) override
    {
        vista = std::make_unique<VistaDeslizador>(c, m_padre, m_accionador);
    }
    void Ver(ui::Imagen& c) override { vista = std::make_unique<VistaImagen>(c, m_padre); }

    void Ver(ui::Edicion& c) override
    {
        if (c.bVariasLineas)
            vista = std::make_unique<VistaParrafos>(c, m_padre, m_accionador);
        else
            vista = std::make_unique<VistaLinea>(c, m_padre, m_accionador);
    }

    void Ver(ui::Seleccion& c) override
    {
        switch (c.forma) {
            case ui::Seleccion::Forma::combo:
                vista = std::make_unique<VistaCombo>(c, m_padre, m_accionador);
                break;
            case ui::Seleccion::Forma::radio:
                vista = std::make_unique<VistaRadio>(c, m_padre, m_accionador);
                break;
            case ui::Seleccion::Forma::menu:
                vista = std::make_unique<VistaMenu>(c, m_padre, m_accionador);
                break;
            case ui::Seleccion::Forma::pestanas:
                vista = std::make_unique<VistaPestanas>(c, m_padre, m_accionador);
                break;
        }
    }

private:
    QWidget* m_padre;
    Accionador& m_accionador;
};

}  // namespace

std::unique_ptr<Vista> CrearVista(ui::Control& control, QWidget* padre, Accionador& accionador)
{
    Fabrica fabrica(padre, accionador);
    control.Visitar(fabrica);
    return std::move(fabrica.vista);
}

std::unique_ptr<VistaPaginas> CrearPaginas(ui::Seleccion& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<PaginasConPestanas>(control, padre, accionador);
}

}  // namespace efv::qt
