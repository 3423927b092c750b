// The views by kind of control, each kind made where its family is.
#pragma once

#include <memory>

#include "qt/vistas.h"

namespace efv::qt {

std::unique_ptr<Vista> CrearVistaDe(ui::TextoFijo& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Edicion& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Casilla& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Seleccion& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Boton& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::BotonColor& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Hora& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Lista& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Grafica& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Progreso& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Deslizador& control, QWidget* padre, Accionador& accionador);
std::unique_ptr<Vista> CrearVistaDe(ui::Imagen& control, QWidget* padre, Accionador& accionador);

}  // namespace efv::qt
