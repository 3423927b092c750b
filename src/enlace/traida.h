// The functions of a library that are taken once, at their first use.
#pragma once

namespace efv::enlace {

/// `Funciones` has `bool Tomar()`, which fills it and says whether all were found.
template <class Funciones>
struct Traida {
    Funciones funciones;
    bool bHay = funciones.Tomar();
};

template <class Funciones>
const Traida<Funciones>& LaTraida()
{
    static const Traida<Funciones> traida;
    return traida;
}

}  // namespace efv::enlace
