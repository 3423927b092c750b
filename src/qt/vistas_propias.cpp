// A colour of the host's, a time of day.
#include <QMenu>
#include <QPushButton>
#include <QTimeEdit>

#include "qt/rueda.h"
#include "qt/texto.h"
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

class VistaColor final : public Vista {
public:
    VistaColor(ui::BotonColor& color, QWidget* padre, Accionador& accionador)
        : Vista(color, new QPushButton(padre)), m_color(color)
    {
        auto* menu = new QMenu(&Pulsador());
        Pulsador().setMenu(menu);
        const auto entradas = color.Entradas();
        for (int i = 0; i < static_cast<int>(entradas.size()); ++i) {
            if (i == ui::kEntradaOtroColor)
                menu->addSeparator();
            menu->addAction(AQt(entradas[static_cast<std::size_t>(i)]), &Pulsador(), [&color, &accionador, i] {
                accionador.Actuar([&](ui::Dialogo& dialogo) { dialogo.Elegir(color, i); });
            });
        }
    }

private:
    QPushButton& Pulsador() const { return static_cast<QPushButton&>(*widget); }

    void RefrescarContenido() override
    {
        Pulsador().setText(AQt(m_color.Texto()));
        QPixmap muestra(Pulsador().iconSize());
        const auto color = ui::ColorDePaleta(m_color.iColor);
        muestra.fill(color ? QColor(*color & 0xFF, *color >> 8 & 0xFF, *color >> 16 & 0xFF) : Qt::transparent);
        Pulsador().setIcon(muestra);
    }

    const ui::BotonColor& m_color;
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
        Reloj().setTime(QTime(m_hora.iMinutos / 60, m_hora.iMinutos % 60));
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
