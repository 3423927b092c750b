#include "qt/vistas.h"

#include <algorithm>
#include <utility>

#include <QLabel>
#include <QPalette>
#include <QStyle>

#include <quorvel/ui/campo.h>

#include "qt/accesible.h"
#include "qt/colores.h"
#include "qt/texto.h"

namespace efv::qt {

namespace {

bool SeLee(const CString& csTexto)
{
    return std::ranges::any_of(csTexto,
                               [](wchar_t c) { return QChar::isLetterOrNumber(static_cast<uint>(c)); });
}

// A control without a caption of its own goes by that of the one on whose line it stands.
QString RotuloHablado(const ui::Control& control)
{
    const ui::Control* junto = control.colocacion.junto;
    if (SeLee(control.csRotulo) || junto == nullptr)
        return AQt(ui::NombreDeCampo(control)).trimmed();
    const bool bPropuesta = ui::CampoDeLaPropuesta(control) != nullptr;
    return (bPropuesta ? QStringLiteral("Propuesta: ") : QString()) + RotuloHablado(*junto);
}

}  // namespace

Vista::Vista(ui::Control& controlVisto, QWidget* widgetPropio) : control(controlVisto), widget(widgetPropio)
{
    const QString nombre =
        control.nombre.empty() ? SinMnemonico(control.csRotulo) : QString::fromStdString(control.nombre);
    widget->setObjectName(nombre);
}

Vista::~Vista() = default;

QString Vista::NombreHablado() const
{
    QString hablado = RotuloHablado(control);
    if (!hablado.isEmpty())
        return hablado;
    if (!control.csIndicacion.empty())
        return AQt(control.csIndicacion);
    // A text that fills its group goes by it.
    const bool bTexto = dynamic_cast<const ui::Edicion*>(&control) != nullptr;
    QString grupo = bTexto ? SinMnemonico(CString(control.colocacion.grupo)) : QString();
    return grupo.isEmpty() && bTexto ? QStringLiteral("Texto") : grupo;
}

void Vista::Refrescar()
{
    RefrescarContenido();
    if (const QString nombre = NombreHablado(); widget->accessibleName() != nombre)
        widget->setAccessibleName(nombre);
    RefrescarIndicacion();
    RefrescarDescripcion();
    RefrescarColores();
    const bool bUtilizable = Utilizable();
    if (widget->isEnabledTo(widget->parentWidget()) != bUtilizable)
        widget->setEnabled(bUtilizable);
    if (widget->isHidden() == control.bVisible)
        widget->setVisible(control.bVisible);
    if (rotulo == nullptr)
        return;
    const QString texto =
        rotulo->buddy() != nullptr ? ConMnemonico(control.csRotulo) : SinMnemonico(control.csRotulo);
    if (rotulo->text() != texto)
        rotulo->setText(texto);
    if (rotulo->toolTip() != widget->toolTip())
        rotulo->setToolTip(widget->toolTip());
    rotulo->setEnabled(control.bHabilitado);
    rotulo->setVisible(control.bVisible);
}

// Beside what the kind of view says itself, which it writes anew with each change of it.
void Vista::RefrescarIndicacion()
{
    if (control.csIndicacion.empty())
        return;
    const bool bBoton = dynamic_cast<const ui::Boton*>(&control) != nullptr;
    const QString indicacion = Indicacion(control.csIndicacion);
    if (!bBoton && !widget->toolTip().startsWith(indicacion))
        widget->setToolTip(widget->toolTip().isEmpty() ? indicacion : indicacion + '\n' + widget->toolTip());
}

void Vista::RefrescarDescripcion()
{
    QString texto = m_anuncio;
    if (texto.isEmpty()) {
        QStringList partes;
        // "Invierno: Inicio … Final …": several on one line have its caption in common.
        const auto* linea = dynamic_cast<const ui::TextoFijo*>(control.colocacion.junto);
        const QString dicha = linea != nullptr ? AQt(ui::NombreDeCampo(*linea)) : QString();
        for (const QString& parte : {dicha, m_detras, AQt(control.csIndicacion), Descripcion()})
            if (!parte.isEmpty() && parte != widget->accessibleName())
                partes << parte;
        texto = partes.join(QStringLiteral(". "));
    }
    if (widget->accessibleDescription() != texto)
        widget->setAccessibleDescription(texto);
}

// Said now, and again when the focus comes back or a reader asks.
void Vista::Anunciar(const QString& texto)
{
    m_anuncio = texto;
    RefrescarDescripcion();
    Avisar(*widget, texto);
}

void Vista::RefrescarColores()
{
    const QPalette base = widget->parentWidget()->palette();
    const Aspecto aspecto{base.cacheKey(), control.color, control.bSoloLectura};
    if (std::exchange(m_aspecto, aspecto) == aspecto)
        return;
    QPalette paleta;
    const QColor fondo = base.color(QPalette::Window);
    for (const auto grupo : {QPalette::Active, QPalette::Inactive}) {
        if (control.color != ui::kNegro) {
            for (const auto papel : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
                paleta.setColor(grupo, papel, Legible(DeColor(control.color), fondo));
        }
        // What can only be read looks like the background, as a field that is written on doesn't.
        if (control.bSoloLectura)
            paleta.setColor(grupo, QPalette::Base, fondo);
    }
    widget->setPalette(paleta);
    // A text of a caption alone has its colour there.
    if (rotulo != nullptr && dynamic_cast<const ui::TextoFijo*>(&control) != nullptr)
        rotulo->setPalette(paleta);
}

void Vista::Enfocar()
{
    widget->setFocus(Qt::OtherFocusReason);
}

bool Vista::AdmiteFoco() const
{
    return control.bVisible && Utilizable() && widget->focusPolicy() != Qt::NoFocus;
}

}  // namespace efv::qt
