#include "qt/texto_accesible.h"

#include <algorithm>

#include <QLineEdit>

namespace efv::qt {

// ---------------------------------------------------------------------------------------------------
// A line that is read
// ---------------------------------------------------------------------------------------------------

QString LineaAccesible::text(int iDesde, int iHasta) const
{
    const int iPrimera = std::max(iDesde, 0);
    return Linea().mid(iPrimera, std::max(iHasta - iPrimera, 0));
}

int LineaAccesible::characterCount() const
{
    return static_cast<int>(Linea().size());
}

QString LineaAccesible::textAtOffset(int i, QAccessible::TextBoundaryType limite, int* iDesde,
                                     int* iHasta) const
{
    const int n = characterCount();
    const int iDonde = i == -1 ? n : i == -2 ? cursorPosition() : i;
    if (iDonde < n)
        return QAccessibleTextInterface::textAtOffset(iDonde, limite, iDesde, iHasta);
    // Behind the last letter: no letter, and the last word or sentence.
    if (limite != QAccessible::CharBoundary && iDonde == n && n > 0)
        return QAccessibleTextInterface::textAtOffset(n - 1, limite, iDesde, iHasta);
    *iDesde = *iHasta = n;
    return {};
}

QString LineaAccesible::attributes(int /*i*/, int* iDesde, int* iHasta) const
{
    *iDesde = 0;
    *iHasta = characterCount();
    return {};
}

void LineaAccesible::selection(int /*i*/, int* iDesde, int* iHasta) const
{
    *iDesde = *iHasta = 0;
}

// ---------------------------------------------------------------------------------------------------
// A field
// ---------------------------------------------------------------------------------------------------

CampoAccesible::CampoAccesible(QLineEdit* campo) : QAccessibleWidget(campo, QAccessible::EditableText)
{
    addControllingSignal(QLatin1String("textChanged(const QString&)"));
    addControllingSignal(QLatin1String("returnPressed()"));
}

void* CampoAccesible::interface_cast(QAccessible::InterfaceType tipo)
{
    if (tipo == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (tipo == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(tipo);
}

QString CampoAccesible::text(QAccessible::Text que) const
{
    if (que == QAccessible::Value)
        return Linea();
    QString texto = QAccessibleWidget::text(que);
    return que == QAccessible::Name && texto.isEmpty() ? Campo().placeholderText() : texto;
}

void CampoAccesible::setText(QAccessible::Text que, const QString& texto)
{
    if (que == QAccessible::Value)
        return replaceText(0, characterCount(), texto);
    QAccessibleWidget::setText(que, texto);
}

QAccessible::State CampoAccesible::state() const
{
    QAccessible::State estado = QAccessibleWidget::state();
    estado.readOnly = Campo().isReadOnly();
    estado.editable = !Campo().isReadOnly();
    estado.passwordEdit = Campo().echoMode() != QLineEdit::Normal;
    estado.selectableText = true;
    return estado;
}

int CampoAccesible::cursorPosition() const
{
    return Campo().cursorPosition();
}

void CampoAccesible::setCursorPosition(int i)
{
    Campo().setCursorPosition(i);
}

int CampoAccesible::selectionCount() const
{
    return Campo().hasSelectedText() ? 1 : 0;
}

void CampoAccesible::selection(int i, int* iDesde, int* iHasta) const
{
    *iDesde = *iHasta = 0;
    if (i != 0 || !Campo().hasSelectedText())
        return;
    *iDesde = Campo().selectionStart();
    *iHasta = Campo().selectionEnd();
}

void CampoAccesible::removeSelection(int i)
{
    if (i == 0)
        Campo().deselect();
}

void CampoAccesible::setSelection(int i, int iDesde, int iHasta)
{
    if (i == 0)
        Campo().setSelection(iDesde, iHasta - iDesde);
}

void CampoAccesible::replaceText(int iDesde, int iHasta, const QString& texto)
{
    if (Campo().isReadOnly())
        return;
    Campo().setSelection(iDesde, iHasta - iDesde);
    if (iDesde == iHasta)
        Campo().setCursorPosition(iDesde);
    Campo().insert(texto);
}

QString CampoAccesible::Linea() const
{
    return Campo().displayText();
}

QLineEdit& CampoAccesible::Campo() const
{
    return *static_cast<QLineEdit*>(object());
}

}  // namespace efv::qt
