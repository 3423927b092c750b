// Amounts shown as a length: progress, sliders.
#include <algorithm>

#include <QProgressBar>
#include <QSignalBlocker>
#include <QSlider>

#include "qt/rueda.h"
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

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

}  // namespace

std::unique_ptr<Vista> CrearVistaDe(ui::Progreso& control, QWidget* padre, Accionador& /*accionador*/)
{
    return std::make_unique<VistaProgreso>(control, padre);
}

std::unique_ptr<Vista> CrearVistaDe(ui::Deslizador& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<VistaDeslizador>(control, padre, accionador);
}

}  // namespace efv::qt
