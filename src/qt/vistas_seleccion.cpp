// One entry out of several: combos, radio groups, buttons with a menu, rows of tabs.
#include <algorithm>

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QVBoxLayout>

#include "qt/accesible.h"
#include "qt/menus.h"
#include "qt/rueda.h"
#include "qt/texto.h"
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

// The pointer over it says what is longer than the form lets it be read, besides its own tip.
class ComboQueDice final : public QComboBox {
public:
    using QComboBox::QComboBox;

protected:
    bool event(QEvent* evento) override
    {
        if (evento->type() != QEvent::ToolTip)
            return QComboBox::event(evento);
        QStyleOptionComboBox aspecto;
        initStyleOption(&aspecto);
        const QRect sitio =
            style()->subControlRect(QStyle::CC_ComboBox, &aspecto, QStyle::SC_ComboBoxEditField, this);
        QStringList partes;
        if (fontMetrics().horizontalAdvance(currentText()) > sitio.width())
            partes << Indicacion(DeQt(currentText()));
        if (!toolTip().isEmpty())
            partes << toolTip();
        QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(), partes.join('\n'), this);
        return true;
    }
};

class VistaCombo final : public Vista {
public:
    VistaCombo(ui::Seleccion& seleccion, QWidget* padre, Accionador& accionador)
        : Vista(seleccion, new ComboQueDice(padre)), m_seleccion(seleccion)
    {
        Combo().setFocusPolicy(Qt::StrongFocus);
        Combo().setMaxVisibleItems(20);
        // A long entry widens the open list, not the form.
        Combo().setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        // Where there is little room it shows the beginning of what is chosen.
        Combo().setMinimumWidth(Combo().fontMetrics().averageCharWidth() * kLetrasImprescindibles);
        new SinRueda(widget);
        QObject::connect(&Combo(), &QComboBox::activated, &Combo(), [&](int iEntrada) {
            accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, iEntrada); });
        });
    }

private:
    static constexpr int kLetrasImprescindibles = 14;
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
        if (seleccion.csRotulo.empty()) {
            columna->setContentsMargins(0, 0, 0, 0);
            PonerPapel(*widget, QAccessible::Grouping);
        }
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

    // One among several is heard with what it is of.
    QString NombreHablado() const override
    {
        const QString hablado = Vista::NombreHablado();
        return hablado.isEmpty() ? SinMnemonico(CString(control.colocacion.grupo)) : hablado;
    }

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
            m_grupo->button(i)->setAccessibleDescription(NombreHablado());
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
    static constexpr int kAireDeFlecha = 12;
    QPushButton& Pulsador() const { return static_cast<QPushButton&>(*widget); }
    bool Utilizable() const override { return control.bHabilitado && !control.bSoloLectura; }

    void RefrescarContenido() override
    {
        Pulsador().setText(
            ConMnemonico(m_seleccion.csRotulo.empty() ? m_seleccion.Texto() : m_seleccion.csRotulo));
        // The style keeps no distance between caption and arrow.
        Pulsador().setMinimumWidth(Pulsador().sizeHint().width() + kAireDeFlecha);
        if (m_acsEntradas == m_seleccion.acsEntradas)
            return;
        m_acsEntradas = m_seleccion.acsEntradas;
        LlenarMenu(*m_menu, m_seleccion, [this](int iEntrada) {
            auto& seleccion = static_cast<ui::Seleccion&>(control);
            m_accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(seleccion, iEntrada); });
        });
    }

    const ui::Seleccion& m_seleccion;
    Accionador& m_accionador;
    QMenu* m_menu;
    std::vector<CString> m_acsEntradas;
};

}  // namespace

std::unique_ptr<Vista> CrearVistaDe(ui::Seleccion& control, QWidget* padre, Accionador& accionador)
{
    switch (control.forma) {
        case ui::Seleccion::Forma::combo:
        case ui::Seleccion::Forma::pestanas:  // the dialog's pages are made by CrearPaginas
            break;
        case ui::Seleccion::Forma::radio:
            return std::make_unique<VistaRadio>(control, padre, accionador);
        case ui::Seleccion::Forma::menu:
            return std::make_unique<VistaMenu>(control, padre, accionador);
    }
    return std::make_unique<VistaCombo>(control, padre, accionador);
}

}  // namespace efv::qt
