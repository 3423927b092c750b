// The module's dialogs on a Qt 6 Widgets host: one call, and they open as windows of the host.
#pragma once

#include <QtCore/qglobal.h>

#if defined(EFV_QT_COMPILANDO)
#define EFV_QT_API Q_DECL_EXPORT
#else
#define EFV_QT_API Q_DECL_IMPORT
#endif

QT_BEGIN_NAMESPACE
class QDialog;
class QWidget;
QT_END_NAMESPACE

namespace efv::ui {
class Dialogo;
}

namespace efv::qt {

/// Makes Qt the module's presenter: its dialogs, message boxes and file choosers open as windows, over
/// `padre` when no other dialog is open. Needs a QApplication; without one a dialog counts as cancelled.
EFV_QT_API void InstalarPresentadorQt(QWidget* padre = nullptr);

/// The window that shows `dialogo`, without showing it. It belongs to the caller or to `padre`; `dialogo`
/// must outlive it.
EFV_QT_API QDialog* CrearVentana(ui::Dialogo& dialogo, QWidget* padre = nullptr);

/// `dialogo` as a part of the host's own window: its controls without OK and Cancel, and without the keys
/// that end a dialog. Ownership as above.
EFV_QT_API QWidget* CrearPanel(ui::Dialogo& dialogo, QWidget* padre = nullptr);

/// Redraws a window or panel of these after its dialog changed by other ways than the person's actions.
EFV_QT_API void RefrescarVentana(QWidget* ventana);

}  // namespace efv::qt
