#include "frame/control.h"

#include <array>

#include <quorvel/framework/CException.h>

IBIMCtrl::~IBIMCtrl() = default;

namespace efv::frame {

namespace {

// Class of the smart blocks that have feed and distribution positions.
constexpr int kClaseBloque = 27;

using Argumento = IBIMCtrl::Argumento;

// The result as T; T's zero when the control gave something else.
template <class T, std::size_t N>
T Preguntar(IBIMCtrl& ctrl, IBIMCtrl::Metodo metodo, const std::array<Argumento, N>& argumentos)
{
    const IBIMCtrl::Resultado resultado = ctrl.Invocar(metodo, argumentos);
    const T* valor = std::get_if<T>(&resultado);
    return valor != nullptr ? *valor : T{};
}

int TipoDe(int iPalabra)
{
    return (iPalabra >> 16) & 0xFF;
}

}  // namespace

int PrimeraPosicion(IBIMCtrl* ctrl, int iBloque, TipoPosicion tipo)
{
    if (ctrl == nullptr)
        throw CInvalidArgException("No hay control del anfitrión (phSetQuorvelBIMCtrl)");
    if (!Preguntar<bool, 2>(*ctrl, IBIMCtrl::bloqueEsDeClase, {iBloque, kClaseBloque}))
        return 0;
    const int n = Preguntar<int, 1>(*ctrl, IBIMCtrl::numeroDePosiciones, {iBloque});
    for (int i = 0; i < n; ++i) {
        double dDato = 0.0;
        int iPalabra = 0;
        if (Preguntar<bool, 4>(*ctrl, IBIMCtrl::posicionDeBloque, {iBloque, i, &dDato, &iPalabra}) &&
            TipoDe(iPalabra) == static_cast<int>(tipo))
            return i;
    }
    return 0;
}

SimboloElegido ElegirSimbolo(IBIMCtrl& ctrl, const CString& csCategoria, int iActual)
{
    const int iCategoria = Preguntar<int, 1>(ctrl, IBIMCtrl::numeroDeCategoria, {csCategoria});
    SimboloElegido elegido{iActual, true, {}};
    Preguntar<bool, 2>(ctrl, IBIMCtrl::elegirSimbolo, {iCategoria, &elegido.iSimbolo});
    if (Preguntar<int, 1>(ctrl, IBIMCtrl::categoriaDeSimbolo, {elegido.iSimbolo}) != iCategoria) {
        elegido.bValido = false;
        elegido.csNombre = Preguntar<CString, 1>(ctrl, IBIMCtrl::nombreDeSimbolo, {elegido.iSimbolo});
    }
    return elegido;
}

}  // namespace efv::frame
