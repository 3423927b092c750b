// Frame and title block of a sheet.
#pragma once

#include <quorvel/report/plano.h>

namespace efv::report {

/// Size of the smallest letters.
double CuerpoPlano();

struct Banda {
    double dAncho = 0.0, dAlto = 0.0;
};
/// Of the title block, which stands at the lower right corner of the frame.
Banda BandaDelCajetin(const Cajetin& cajetin, const Pagina& pagina);

void PonerMarco(Lamina& hoja, const Pagina& pagina);
/// @param iHoja from 1
void PonerCajetin(Lamina& hoja, const Cajetin& cajetin, const Pagina& pagina, int iHoja, int iHojas);

}  // namespace efv::report
