// The world outside the module: files, clock and network. A program takes the system's own; one that wants
// others says so once, before it calls anything else.
#pragma once

#include <quorvel/exportar.h>

namespace efv {

class SistemaFicheros;
class Reloj;
class Red;

struct Mundo {
    SistemaFicheros* ficheros;
    Reloj* reloj;
    Red* red;
};

/// The system's own.
EFV_API Mundo MundoDelSistema();

/// The one in use: the system's, until a program puts another.
EFV_API const Mundo& ElMundo();

/// Puts another, of which no member may be null. What it points to must outlive its use.
/// @return the one in use before
EFV_API Mundo PonerMundo(const Mundo& mundo);

}  // namespace efv
