// Ticks, buttons.
#include <algorithm>

#include <QCheckBox>
#include <QPushButton>

#include "qt/iconos.h"
#include "qt/texto.h"
#include "qt/vistas_familias.h"

namespace efv::qt {

namespace {

constexpr QSize kImagenGrande(96, 96);

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

    QString NombreHablado() const override
    {
        const bool bDice = std::ranges::any_of(m_boton.csRotulo,
                                               [](wchar_t c) { return QChar::isLetter(static_cast<uint>(c)); });
        return (bDice && m_boton.csImagen.empty()) || m_boton.csIndicacion.empty()
                   ? Vista::NombreHablado()
                   : SinMnemonico(m_boton.csIndicacion);
    }

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
        // A few letters don't need a whole button's width; a name that comes later does.
        const bool bBreve = bConImagen || Pulsador().text().size() <= 3;
        if (bBreve && !m_boton.bImagenGrande)
            Pulsador().setFixedWidth(Pulsador().sizeHint().height() + (bConImagen ? 8 : 6));
        else if (Pulsador().minimumWidth() == Pulsador().maximumWidth()) {
            Pulsador().setMinimumWidth(0);
            Pulsador().setMaximumWidth(QWIDGETSIZE_MAX);
        }
    }

    const ui::Boton& m_boton;
    CString m_csImagen;
    qint64 m_paleta = 0;
};

}  // namespace

std::unique_ptr<Vista> CrearVistaDe(ui::Casilla& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<VistaCasilla>(control, padre, accionador);
}

std::unique_ptr<Vista> CrearVistaDe(ui::Boton& control, QWidget* padre, Accionador& accionador)
{
    return std::make_unique<VistaBoton>(control, padre, accionador);
}

}  // namespace efv::qt
