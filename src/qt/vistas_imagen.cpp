// What is only looked at: charts, pictures.
#include <QLabel>

#include "qt/iconos.h"
#include "qt/texto.h"
#include "qt/vistas_familias.h"
#include "qt/widget_grafica.h"

namespace efv::qt {

namespace {

class VistaGrafica final : public Vista {
public:
    VistaGrafica(ui::Grafica& grafica, QWidget* padre)
        : Vista(grafica, new WidgetGrafica(grafica.datos, padre)), m_grafica(grafica)
    {
    }

    bool EsAncha() const override { return true; }
    bool QuiereSitio() const override { return true; }
    // It can be read by the keys, but nobody begins there.
    bool AdmiteFoco() const override { return false; }

private:
    QString NombreHablado() const override
    {
        QString hablado = Vista::NombreHablado();
        if (!hablado.isEmpty())
            return hablado;
        return m_grafica.datos.csTitulo.empty() ? QStringLiteral("Gráfica") : AQt(m_grafica.datos.csTitulo);
    }

    void RefrescarContenido() override { static_cast<WidgetGrafica*>(widget)->Refrescar(); }
    // The chart does it itself, with the point that is read.
    void RefrescarDescripcion() override {}

    const ui::Grafica& m_grafica;
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

    // One without words goes by the window that it explains.
    QString NombreHablado() const override
    {
        const QString hablado = Vista::NombreHablado();
        return hablado.isEmpty() ? QStringLiteral("Dibujo: ") + widget->window()->windowTitle() : hablado;
    }

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

}  // namespace

std::unique_ptr<Vista> CrearVistaDe(ui::Grafica& control, QWidget* padre, Accionador& /*accionador*/)
{
    return std::make_unique<VistaGrafica>(control, padre);
}

std::unique_ptr<Vista> CrearVistaDe(ui::Imagen& control, QWidget* padre, Accionador& /*accionador*/)
{
    return std::make_unique<VistaImagen>(control, padre);
}

}  // namespace efv::qt
