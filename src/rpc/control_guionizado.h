// The host's control that a request describes, in place of a drawing.
#pragma once

#include <deque>
#include <map>
#include <vector>

#include <quorvel/frame.h>

#include "rpc/json.h"

namespace efv::rpc {

/// What the control knows. Whatever it doesn't know is 0, empty or false.
struct DibujoAnfitrion {
    struct Posicion {
        bool bResultado = false;
        int iTipo = 0;  ///< type word
    };
    struct Bloque {
        bool bCalifica = false;
        std::vector<Posicion> posiciones;
    };
    struct Simbolo {
        int iCategoria = 0;
        CString csNombre;
    };

    std::map<int, Bloque> bloques;      ///< by block reference
    std::map<CString, int> categorias;  ///< number by name
    std::map<int, Simbolo> simbolos;    ///< by symbol number
};

/// Reads the member `control` of a request; an unknown member is an error, since a misspelt one would
/// silently answer 0. @throws ErrorValor
DibujoAnfitrion LeerDibujo(const Json& j);

class ControlGuionizado final : public IBIMCtrl {
public:
    void Fijar(DibujoAnfitrion dibujo) { m_dibujo = std::move(dibujo); }

    /// Symbols that the next choices of a symbol answer, in order, taken out as they are used. Without one
    /// the choice is cancelled. Not owned.
    std::deque<int>* simbolosElegidos = nullptr;

    Resultado Invocar(int iMetodo, std::span<const Argumento> argumentos) override;

private:
    Resultado PosicionDeBloque(std::span<const Argumento> argumentos) const;
    Resultado ElegirSimbolo(std::span<const Argumento> argumentos);

    DibujoAnfitrion m_dibujo;
};

}  // namespace efv::rpc
