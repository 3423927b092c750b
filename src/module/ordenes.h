// Commands of the models' dialogs that belong to a later layer than the dialogs.
#pragma once

#include "catalogues/kinds/ordenes.h"

namespace efv::module {

/// Those of the models M; most have none.
template <class M>
catalogues::OrdenesModelo<M> Ordenes()
{
    return {};
}

/// The module's two charts.
template <>
catalogues::OrdenesModelo<CBasePanelFotoModelo> Ordenes();

}  // namespace efv::module
