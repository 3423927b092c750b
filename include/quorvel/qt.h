// The module's dialogs on a Qt 6 Widgets host: one call, and they open as windows of the host.
#pragma once

#include <functional>

#include <QtCore/qglobal.h>

#if defined(EFV_QT_COMPILANDO)
#define EFV_QT_API Q_DECL_EXPORT
#else
#define EFV_QT_API Q_DECL_IMPORT
#endif

QT_BEGIN_NAMESPACE
class QDialog;
class QIcon;
class QPalette;
class QSettings;
class QString;
class QWidget;
QT_END_NAMESPACE

namespace efv::ui {
class Dialogo;
}

namespace efv::qt {

/// Makes Qt the module's presenter: its dialogs, message boxes and file choosers open as windows, over
/// `padre` when no other dialog is open. Needs a QApplication; without one a dialog counts as cancelled.
EFV_QT_API void InstalarPresentadorQt(QWidget* padre = nullptr);

/// Gives the picture of that name in a theme's colours; a null icon for a name it doesn't know.
using FuenteIconos = std::function<QIcon(const QString& nombre, const QPalette& paleta)>;

/// From now on pictures of the host's own go before those that come with the dialogs, in windows and panels
/// made afterwards.
EFV_QT_API void PonerIconos(FuenteIconos fuente);

/// The window that shows `dialogo`, without showing it. It belongs to the caller or to `padre`; `dialogo`
/// must outlive it.
EFV_QT_API QDialog* CrearVentana(ui::Dialogo& dialogo, QWidget* padre = nullptr);

/// `dialogo` as a part of the host's own window: its controls without OK and Cancel, and without the keys
/// that end a dialog. Ownership as above.
EFV_QT_API QWidget* CrearPanel(ui::Dialogo& dialogo, QWidget* padre = nullptr);

/// Lets a panel's columns go below each other as far as that width asks for, and back again.
EFV_QT_API void PlegarPanel(QWidget* panel, int iAncho);

/// The width that a panel needs with all its columns below each other.
EFV_QT_API int AnchoMinimoDePanel(QWidget* panel);

/// From now on dialogs open as large and where the person left them, by their class's names, with the columns
/// of their lists as wide; null, as at the start: as they are made. `ajustes` belongs to the host, and may go
/// first.
EFV_QT_API void RecordarVentanas(QSettings* ajustes);

/// The same for a window of the host's own, by its object name: its place, whether it is maximised, its
/// dividers that have an object name. Never off the screen, nor larger.
/// @return whether there was a place to restore
EFV_QT_API bool RestaurarVentana(QWidget& ventana);
EFV_QT_API void GuardarVentana(const QWidget& ventana);

/// Says it to whoever hears the screen, as a part of the control of these dialogs that has the focus, until
/// that loses it. Nothing without one.
EFV_QT_API void Anunciar(const QString& texto);

/// The palette's selected text and examples are made as legible as other text: 4.5 to 1.
EFV_QT_API void AclararTextos(QPalette& paleta);

/// A widget of the host's is a picture, told by its accessible name and description. Before it has a name.
EFV_QT_API void EsDibujo(QWidget& widget);

/// Redraws a window or panel of these after its dialog changed by other ways than the person's actions.
EFV_QT_API void RefrescarVentana(QWidget* ventana);

}  // namespace efv::qt
