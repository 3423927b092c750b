// A control as the kind that it is.
#pragma once

#include <type_traits>

#include <quorvel/ui/controles.h>

namespace efv::ui {

namespace interno {

template <class C>
class Reconocedor final : public VisitanteControl {
public:
    C* hallado = nullptr;

    void Ver(TextoFijo& control) override { Tomar(control); }
    void Ver(Edicion& control) override { Tomar(control); }
    void Ver(Casilla& control) override { Tomar(control); }
    void Ver(Seleccion& control) override { Tomar(control); }
    void Ver(Boton& control) override { Tomar(control); }
    void Ver(BotonColor& control) override { Tomar(control); }
    void Ver(Hora& control) override { Tomar(control); }
    void Ver(Lista& control) override { Tomar(control); }
    void Ver(Grafica& control) override { Tomar(control); }
    void Ver(Progreso& control) override { Tomar(control); }
    void Ver(Deslizador& control) override { Tomar(control); }
    void Ver(Imagen& control) override { Tomar(control); }

private:
    template <class D>
    void Tomar(D& control)
    {
        if constexpr (std::is_same_v<C, D>)
            hallado = &control;
    }
};

}  // namespace interno

/// The control as a C; null when it is of another kind.
template <class C>
C* Como(Control& control)
{
    interno::Reconocedor<C> reconocedor;
    control.Visitar(reconocedor);
    return reconocedor.hallado;
}

}  // namespace efv::ui
