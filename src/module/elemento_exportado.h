// An element's data as the arguments of the function that opens its dialog.
#pragma once

#include "catalogues/format/campos.h"
#include "ui/ficha.h"

namespace efv::module {

/// The members of D that stand for the arguments, one for one and in their order.
template <class D, auto... MIEMBROS>
struct Argumentos {
    template <class... A>
    static D Tomar(const A&... argumentos)
    {
        static_assert(sizeof...(MIEMBROS) == sizeof...(A));
        D datos;
        ((datos.*MIEMBROS = argumentos), ...);
        return datos;
    }

    /// Shows the dialog; accepted, the arguments take what was edited. @return 1 accepted, 2 not
    template <class... A>
    static int Editar(ui::DialogoFicha<D>& dialogo, A&... argumentos)
    {
        if (dialogo.Mostrar() != ui::Dialogo::ok)
            return ui::Dialogo::cancelado;
        catalogues::CopiarSalidas<MIEMBROS...>(dialogo.datos, argumentos...);
        return ui::Dialogo::ok;
    }
};

}  // namespace efv::module
