// The symbols of a schematic's elements.
#pragma once

#include <vector>

#include <quorvel/report/lamina.h>

namespace efv::report {

struct Recuadro {
    double x = 0.0, y = 0.0, dAncho = 0.0, dAlto = 0.0;
};

/// Room that the symbol of an element takes. @param iParalelo strings that are drawn at most
double AltoDeSimbolo(const Elemento& elemento, int iParalelo);

/// Paints it in the middle of its room.
void PintarSimbolo(std::vector<Trazo>& trazos, const Elemento& elemento, const Recuadro& sitio, int iParalelo);

}  // namespace efv::report
