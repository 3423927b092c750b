// Texts: fixed ones, and fields of one line or of several.
#include <algorithm>
#include <utility>

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include <quorvel/ui/campo.h>

#include "qt/colores.h"
#include "qt/iconos.h"
#include "qt/texto.h"
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

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

    // With what it says, which a name alone would hide.
    QString NombreHablado() const override
    {
        const QString texto = Etiqueta().text();
        const QString suyo = Vista::NombreHablado();
        if (texto.isEmpty() || suyo.isEmpty() || suyo == texto)
            return suyo.isEmpty() ? texto : suyo;
        return suyo + QStringLiteral(": ") +
               (texto == QStringLiteral("—") ? QStringLiteral("sin dato") : texto);
    }

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

// The keys that move from row to row go to the list that a field searches, and the focus stays.
class TeclasDeLista final : public QObject {
public:
    TeclasDeLista(QLineEdit& campo, QString lista, Accionador& accionador)
        : QObject(&campo), m_campo(campo), m_lista(std::move(lista)), m_accionador(accionador)
    {
        campo.installEventFilter(this);
    }

    bool eventFilter(QObject* /*objeto*/, QEvent* evento) override
    {
        if (evento->type() != QEvent::KeyPress)
            return false;
        switch (static_cast<QKeyEvent*>(evento)->key()) {
            case Qt::Key_Up:
            case Qt::Key_Down:
            case Qt::Key_PageUp:
            case Qt::Key_PageDown:
                break;
            default:
                return false;
        }
        auto* const rejas = m_campo.parentWidget()->findChild<QAbstractItemView*>(m_lista);
        if (rejas == nullptr || !QCoreApplication::sendEvent(rejas, evento))
            return false;
        AnunciarFila(rejas->currentIndex());
        return true;
    }

private:
    // The focus isn't on the row, so the row isn't heard by itself.
    void AnunciarFila(const QModelIndex& actual)
    {
        if (!actual.isValid())
            return;
        QStringList celdas;
        for (int i = 0; i < actual.model()->columnCount(actual.parent()); ++i)
            if (const QString celda = actual.siblingAtColumn(i).data().toString(); !celda.isEmpty())
                celdas << celda;
        m_accionador.Anunciar(celdas.join(QStringLiteral(", ")));
    }

    QLineEdit& m_campo;
    QString m_lista;
    Accionador& m_accionador;
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
        Campo().setMinimumWidth(AnchoMinimo());
        QObject::connect(&Campo(), &QLineEdit::textEdited, &Campo(), [&](const QString& texto) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Teclear(edicion, DeQt(texto)); });
        });
        new GuardaDeFoco(widget, [&] { accionador.HaSalido(edicion); });
        OfrecerPropuesta(accionador);
        if (edicion.lista != nullptr)
            new TeclasDeLista(Campo(), QString::fromStdString(edicion.lista->nombre), accionador);
    }

    void Enfocar() override
    {
        Vista::Enfocar();
        Campo().selectAll();
    }

private:
    QLineEdit& Campo() const { return static_cast<QLineEdit&>(*widget); }

    // A proposal has its button inside, on the side of its field.
    void OfrecerPropuesta(Accionador& accionador)
    {
        const ui::Control* campo = ui::CampoDeLaPropuesta(m_edicion);
        if (dynamic_cast<const ui::Edicion*>(campo) == nullptr || campo->bSoloLectura)
            return;
        m_usar = Campo().addAction(IconoDe(L"usar-propuesta", widget->palette()), QLineEdit::LeadingPosition);
        m_usar->setText(QStringLiteral("Usar propuesta"));
        m_usar->setToolTip(QStringLiteral("Usar propuesta (F9)"));
        Campo().setMinimumWidth(AnchoMinimo() + Campo().fontMetrics().height());
        QObject::connect(m_usar, &QAction::triggered, &Campo(), [this, &accionador] {
            accionador.Actuar([this](ui::Dialogo& dialogo) { ui::UsarPropuesta(dialogo, m_edicion); });
        });
    }

    bool Falta() const { return m_edicion.color == ui::kRojo && !m_edicion.bSoloLectura; }

    void RefrescarIndicacion()
    {
        if (const QString texto = Indicacion(ui::IndicacionDeCampo(m_edicion)); Campo().toolTip() != texto)
            Campo().setToolTip(texto);
        if (m_usar != nullptr)
            m_usar->setVisible(ui::PuedeUsarse(m_edicion));
    }

    // What a person hears of the field, with what is wrong with it.
    QString Descripcion() const override
    {
        QStringList partes = AQt(ui::IndicacionDeCampo(m_edicion)).split('\n').mid(1);
        if (Falta())
            partes.prepend(QStringLiteral("Valor no válido"));
        if (!m_edicion.csEjemplo.empty())
            partes << QStringLiteral("Ejemplo: ") + AQt(m_edicion.csEjemplo);
        if (m_usar != nullptr && ui::PuedeUsarse(m_edicion))
            partes << QStringLiteral("F9 la pasa al valor");
        return partes.join(QStringLiteral(". "));
    }

    // A text that it opens with is read whole, unless it is long.
    int AnchoMinimo() const
    {
        const QFontMetrics letra = Campo().fontMetrics();
        if (EsNumerica(m_edicion))
            return letra.averageCharWidth() * 11;
        const int iTexto = letra.horizontalAdvance(AQt(m_edicion.csTexto)) + kMarcoDeLinea;
        return std::clamp(iTexto, letra.averageCharWidth() * 18, letra.averageCharWidth() * 34);
    }

    static constexpr int kMarcoDeLinea = 16;  // and the cursor

    // What can be written and is red has something wrong: a thick frame tells it without its colour.
    void RefrescarMarco()
    {
        const bool bFalta = Falta();
        RefrescarIndicacion();
        const QPalette paleta = Campo().parentWidget()->palette();
        const qint64 marco = bFalta ? paleta.cacheKey() : 0;
        if (std::exchange(m_marco, marco) == marco)
            return;
        const QColor fondo = paleta.color(QPalette::Base);
        const QColor rojo = Legible(DeColor(ui::kRojo), fondo);
        // A style sheet goes before the palette: it has the theme's colours too.
        Campo().setStyleSheet(
            bFalta ? QStringLiteral("QLineEdit { border: 2px solid %1; color: %1; background: %2; }")
                         .arg(rojo.name(), fondo.name())
                   : QString());
    }

    void RefrescarContenido() override
    {
        Campo().setReadOnly(m_edicion.bSoloLectura);
        Campo().setPlaceholderText(AQt(m_edicion.csEjemplo));
        RefrescarMarco();
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
    QAction* m_usar = nullptr;  // of a proposal whose field can be typed into
    qint64 m_marco = 0;         // theme of the frame; 0: none
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

}  // namespace

std::unique_ptr<Vista> CrearVistaDe(ui::TextoFijo& control, QWidget* padre, Accionador& /*accionador*/)
{
    return std::make_unique<VistaTextoFijo>(control, padre);
}

std::unique_ptr<Vista> CrearVistaDe(ui::Edicion& control, QWidget* padre, Accionador& accionador)
{
    if (control.bVariasLineas)
        return std::make_unique<VistaParrafos>(control, padre, accionador);
    return std::make_unique<VistaLinea>(control, padre, accionador);
}

}  // namespace efv::qt
