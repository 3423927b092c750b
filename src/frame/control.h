// Questions to the host's control.
#pragma once

#include <quorvel/frame.h>

namespace efv::frame {

/// Types of a position of a smart block, as bits 16 to 23 of its type word hold them.
enum class TipoPosicion : int { alimentacion = 0x1F, distribucion = 0x20 };

/// Index of the first position of that type in the block; 0 also when the block doesn't qualify or has
/// none.
/// @throws CInvalidArgException when `ctrl` is null.
int PrimeraPosicion(IBIMCtrl* ctrl, int iBloque, TipoPosicion tipo);

struct SimboloElegido {
    int iSimbolo;
    bool bValido;      ///< false: the symbol is of another category
    CString csNombre;  ///< then its name
};

/// Lets the person choose a symbol of a category, beginning with `iActual`. The host's answer whether one
/// was chosen isn't looked at: the symbol that stands afterwards counts, also the one before.
SimboloElegido ElegirSimbolo(IBIMCtrl& ctrl, const CString& csCategoria, int iActual);

}  // namespace efv::frame
