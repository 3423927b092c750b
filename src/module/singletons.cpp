#include "module/singletons.h"

#include "catalogues/kinds/acumulador.h"
#include "catalogues/kinds/convertidor.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/micro_inversor.h"
#include "catalogues/kinds/panel_foto.h"
#include "catalogues/kinds/receptor.h"

namespace {

// Constructed with the library, before the first call that can reach them.
CBasePanelFoto gBasePanelFoto;
CBaseAcumuladores gBaseAcumuladores;
CBaseInversores gBaseInversores;
CBaseMicroInversores gBaseMicroInversores;
CBaseConvertidores gBaseConvertidores;
CBaseReceptores gBaseReceptores;
CBaseFactorK gBaseFactorK;

}  // namespace

namespace efv::module {

template <>
CBasePanelFoto& Base<CBasePanelFotoModelo>()
{
    return gBasePanelFoto;
}

template <>
CBaseAcumuladores& Base<CBaseAcumuladorModelo>()
{
    return gBaseAcumuladores;
}

template <>
CBaseInversores& Base<CBaseInversorModelo>()
{
    return gBaseInversores;
}

template <>
CBaseMicroInversores& Base<CBaseMicroInversorModelo>()
{
    return gBaseMicroInversores;
}

template <>
CBaseConvertidores& Base<CBaseConvertidorModelo>()
{
    return gBaseConvertidores;
}

template <>
CBaseReceptores& Base<CBaseReceptorModelo>()
{
    return gBaseReceptores;
}

CBaseFactorK& BaseFactorK()
{
    return gBaseFactorK;
}

namespace {

template <class M>
int ElegirModelo(CString& csId)
{
    auto& base = Base<M>();
    base.csSeleccion = csId;
    const int iResultado = base.VerBase(1);
    if (iResultado == 1)
        csId = base.csSeleccion;
    return iResultado;
}

}  // namespace

const catalogues::Bases& Bases()
{
    static const catalogues::Bases bases{
        .panelesFoto = gBasePanelFoto,
        .acumuladores = gBaseAcumuladores,
        .inversores = gBaseInversores,
        .microInversores = gBaseMicroInversores,
        .convertidores = gBaseConvertidores,
        .receptores = gBaseReceptores,
        .factoresK = gBaseFactorK,
        .elegirPanelFoto = &ElegirModelo<CBasePanelFotoModelo>,
        .elegirAcumulador = &ElegirModelo<CBaseAcumuladorModelo>,
        .elegirInversor = &ElegirModelo<CBaseInversorModelo>,
        .elegirMicroInversor = &ElegirModelo<CBaseMicroInversorModelo>,
        .elegirConvertidor = &ElegirModelo<CBaseConvertidorModelo>,
        .elegirReceptor = &ElegirModelo<CBaseReceptorModelo>,
    };
    return bases;
}

Recuerdo& RecuerdoDialogos()
{
    static Recuerdo recuerdo{.patrones{PatronesConsumo().begin(), PatronesConsumo().end()}};
    return recuerdo;
}

}  // namespace efv::module
