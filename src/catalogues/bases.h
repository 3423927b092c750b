// The catalogues and the table of factors K, as handed to whoever looks something up in them.
#pragma once

#include <functional>

#include <quorvel/framework/CString.h>

template <class MODELO>
class CBaseCatalogo;
class CBasePanelFotoModelo;
class CBaseAcumuladorModelo;
class CBaseInversorModelo;
class CBaseMicroInversorModelo;
class CBaseConvertidorModelo;
class CBaseReceptores;
class CBaseFactorK;

namespace efv::catalogues {

/// Lets the person choose a model of a catalogue, beginning with `csId`, which becomes the one chosen.
/// @return 1 accepted; 0 failed, anything else cancelled, both with `csId` untouched
using Elegir = std::function<int(CString& csId)>;

struct Bases {
    const CBaseCatalogo<CBasePanelFotoModelo>& panelesFoto;
    const CBaseCatalogo<CBaseAcumuladorModelo>& acumuladores;
    const CBaseCatalogo<CBaseInversorModelo>& inversores;
    const CBaseCatalogo<CBaseMicroInversorModelo>& microInversores;
    const CBaseCatalogo<CBaseConvertidorModelo>& convertidores;
    const CBaseReceptores& receptores;
    const CBaseFactorK& factoresK;

    Elegir elegirPanelFoto;
    Elegir elegirAcumulador;
    Elegir elegirInversor;
    Elegir elegirMicroInversor;
    Elegir elegirConvertidor;
    Elegir elegirReceptor;
};

}  // namespace efv::catalogues
