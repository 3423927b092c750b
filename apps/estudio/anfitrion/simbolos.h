// The host's drawing symbols: what the assistants let the person choose, and how the schematic draws it.
#pragma once

#include <span>
#include <string_view>

#include <quorvel/frame.h>

namespace efv::estudio {

struct Simbolo {
    int iNumero;
    int iCategoria;
    std::wstring_view csNombre;
    bool bUnifilar;  ///< one symbol for the whole field instead of one for each piece
};

/// The symbols of a category.
std::span<const Simbolo> SimbolosDe(int iCategoria);

/// 0 stands for a symbol never chosen: drawn piece by piece.
bool EsUnifilar(int iSimbolo);

/// What the module asks the host for. The host's drawing has no blocks.
class ControlAnfitrion final : public IBIMCtrl {
public:
    Resultado Invocar(int iMetodo, std::span<const Argumento> argumentos) override;
};

}  // namespace efv::estudio
