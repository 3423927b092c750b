// Texts of one line as a screen reader asks for them: a field's, and what a list that drops down has chosen.
#pragma once

#include <QAccessibleWidget>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace efv::qt {

/// A line that is read and not written. Qt's own answers never come back for the word at the end of a text
/// (Qt 6.4 looks for a boundary behind it for ever), and give attributes to no letter, by which readers leave
/// the last one out.
class LineaAccesible : public QAccessibleTextInterface {
public:
    QString text(int iDesde, int iHasta) const override;
    int characterCount() const override;
    QString textAtOffset(int i, QAccessible::TextBoundaryType limite, int* iDesde, int* iHasta) const override;
    QString attributes(int i, int* iDesde, int* iHasta) const override;

    int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*i*/) override {}
    int selectionCount() const override { return 0; }
    void selection(int i, int* iDesde, int* iHasta) const override;
    void addSelection(int iDesde, int iHasta) override { setSelection(0, iDesde, iHasta); }
    void removeSelection(int /*i*/) override {}
    void setSelection(int /*i*/, int /*iDesde*/, int /*iHasta*/) override {}
    void scrollToSubstring(int /*iDesde*/, int /*iHasta*/) override {}
    int offsetAtPoint(const QPoint& /*punto*/) const override { return 0; }

protected:
    /// As it stands on the screen.
    virtual QString Linea() const = 0;
};

/// A field of one line, in place of Qt's.
class CampoAccesible final : public QAccessibleWidget,
                             public LineaAccesible,
                             public QAccessibleEditableTextInterface {
public:
    explicit CampoAccesible(QLineEdit* campo);

    void* interface_cast(QAccessible::InterfaceType tipo) override;
    QString text(QAccessible::Text que) const override;
    using LineaAccesible::text;
    void setText(QAccessible::Text que, const QString& texto) override;
    QAccessible::State state() const override;

    int cursorPosition() const override;
    void setCursorPosition(int i) override;
    int selectionCount() const override;
    void selection(int i, int* iDesde, int* iHasta) const override;
    void removeSelection(int i) override;
    void setSelection(int i, int iDesde, int iHasta) override;
    QRect characterRect(int /*i*/) const override { return rect(); }

    void deleteText(int iDesde, int iHasta) override { replaceText(iDesde, iHasta, {}); }
    void insertText(int i, const QString& texto) override { replaceText(i, i, texto); }
    void replaceText(int iDesde, int iHasta, const QString& texto) override;

private:
    QString Linea() const override;
    QLineEdit& Campo() const;
};

}  // namespace efv::qt
