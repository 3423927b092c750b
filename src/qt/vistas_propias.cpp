// A colour of the host's, a time of day.
#include <QMenu>
#include <QPushButton>
#include <QTimeEdit>

#include "qt/paleta.h"
#include "qt/rueda.h"
#include "qt/texto.h"
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

class VistaColor final : public Vista {
public:
    VistaColor(ui::BotonColor& color, QWidget* padre, Accionador& accionador)
        : Vista(color, new QPushButton(padre)), m_color(color), m_accionador(accionador)
    {
        Pulsador().setMenu(new QMenu(&Pulsador()));
        // The keyboard begins at the colour that it has.
        QObject::connect(
            Pulsador().menu(), &QMenu::aboutToShow, &Pulsador(),
            [this] {
                for (QAction* entrada : Pulsador().menu()->actions())
                    if (entrada->text() == Pulsador().text())
                        Pulsador().menu()->setActiveAction(entrada);
            },
            Qt::QueuedConnection);
    }

private:
    QPushButton& Pulsador() const { return static_cast<QPushButton&>(*widget); }
    bool Utilizable() const override { return control.bHabilitado && !control.bSoloLectura; }

    // The colour is heard together with what it is of.
    QString NombreHablado() const override
    {
        const QString hablado = Vista::NombreHablado();
        return hablado.isEmpty() ? AQt(m_color.Texto()) : hablado + QStringLiteral(": ") + AQt(m_color.Texto());
    }

    void RefrescarContenido() override
    {
        if (const auto entradas = m_color.Entradas(); entradas != m_acsEntradas) {
            m_acsEntradas = entradas;
            LlenarEntradas();
        }
        Pulsador().setText(AQt(m_color.Texto()));
        Pulsador().setIcon(Muestra(m_color.iColor, Pulsador().iconSize(), *widget));
    }

    void LlenarEntradas()
    {
        QMenu& menu = *Pulsador().menu();
        menu.clear();
        const QSize tamano = Pulsador().iconSize();
        for (int i = 0; i < static_cast<int>(m_acsEntradas.size()); ++i) {
            if (i == ui::kEntradaOtroColor)
                menu.addSeparator();
            QAction* entrada = menu.addAction(AQt(m_acsEntradas[static_cast<std::size_t>(i)]));
            if (i < ui::kEntradaOtroColor)
                entrada->setIcon(Muestra(i + 1, tamano, *widget));
            // From the loop, once the menu has closed: the choice may open a window.
            QObject::connect(
                entrada, &QAction::triggered, widget,
                [this, i] {
                    auto& color = static_cast<ui::BotonColor&>(control);
                    m_accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(color, i); });
                },
                Qt::QueuedConnection);
        }
    }

    const ui::BotonColor& m_color;
    Accionador& m_accionador;
    std::vector<CString> m_acsEntradas;
};

class VistaHora final : public Vista {
public:
    VistaHora(ui::Hora& hora, QWidget* padre, Accionador& accionador)
        : Vista(hora, new QTimeEdit(padre)), m_hora(hora)
    {
        Reloj().setDisplayFormat(QStringLiteral("HH:mm"));
        new SinRueda(widget);
        QObject::connect(&Reloj(), &QTimeEdit::timeChanged, &Reloj(), [&](QTime tiempo) {
            accionador.Actuar(
                [&](ui::Dialogo& dialogo) { dialogo.PonerHora(hora, tiempo.hour() * 60 + tiempo.minute()); });
        });
    }

private:
    QTimeEdit& Reloj() const { return static_cast<QTimeEdit&>(*widget); }

    void RefrescarContenido() override
    {
        const QSignalBlocker silencio(Reloj());
        Reloj().setReadOnly(m_hora.bSoloLectura);
        // Written again, what is being typed would lose its place.
        if (const QTime tiempo(m_hora.iMinutos / 60, m_hora.iMinutos % 60); Reloj().time() != tiempo)
            Reloj().setTime(tiempo);
    }

    const ui::Hora& m_hora;
};

}  // namespace

std::unique_ptr<Vista> CrearVistaDe(ui::BotonColor& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<VistaColor>(control, padre, accionador);
}

std::unique_ptr<Vista> CrearVistaDe(ui::Hora& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<VistaHora>(control, padre, accionador);
}

}  // namespace efv::qt
