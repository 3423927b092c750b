// The dialog that shows the two charts of a module.
#pragma once

#include <quorvel/ui/dialogo.h>

#include "electrical/graficas_modulo.h"

class CDlgItemDatosGraficaPanelFoto : public efv::ui::Dialogo {
public:
    explicit CDlgItemDatosGraficaPanelFoto(efv::GraficasPanel graficas);
};
