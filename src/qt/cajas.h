// Message boxes and file choosers, in Spanish whatever Qt's own translation.
#pragma once

#include <QWidget>

#include <quorvel/ui/presentador.h>

namespace efv::qt {

/// The window over which the next one opens: the innermost dialog that is open, else `padre`.
QWidget* PadreActual(QWidget* padre);

/// Title of a box: what the module says for itself goes by the program's name.
QString TituloDeCaja(std::wstring_view csTitulo);

ui::Respuesta MostrarCaja(QWidget* padre, const ui::Mensaje& mensaje);

/// An error box; throws nothing.
void MostrarFallo(QWidget* padre, const char* texto) noexcept;

std::optional<CString> ElegirFichero(QWidget* padre, const ui::PeticionFichero& peticion);

/// How many boxes and dialogs have been shown since the start: whoever runs something of a dialog learns
/// whether the person was told anything meanwhile.
int CajasMostradas();
void ContarCaja();

}  // namespace efv::qt
