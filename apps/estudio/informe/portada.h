// What the covers of the project's reports say.
#pragma once

#include "proyecto/sesion.h"

namespace efv::estudio {

class DialogoPortada final : public ui::Dialogo {
public:
    explicit DialogoPortada(PortadaProyecto inicial);

    PortadaProyecto portada;
};

/// Lets the person edit them.
void EditarPortada(Sesion& sesion);

}  // namespace efv::estudio
