// The yearly simulation behind an array of panels: what falls each day on the horizontal and on its plane.
#pragma once

#include "solar/curvas_inclinacion.h"

namespace efv::elements {

/// The source that the host's number means: 0 the climate record, 1 the standard sky, any other the hours of
/// the horizontal.
solar::FuenteRadiacion FuenteDe(int iFuente);

struct DiasPanel {
    solar::CurvaDiaria horizontal, panel;
};

/// Fills both blocks of hours as solar::RadiarPlano does, but no hour that the climate library gives is below
/// 0.
DiasPanel SimularPanel(clima::BibliotecaClima& biblioteca, const solar::PlanoEstudio& plano,
                       double dInclinacion, solar::BloqueHoras adPanel, solar::BloqueHoras adHorizontal);

/// Both curves; the title also says what falls on the panel in the year.
CCtrlCurva2D GraficaPanel(const solar::PlanoEstudio& plano, const DiasPanel& dias);

}  // namespace efv::elements
