// Charts and schematics on a sheet.
#pragma once

#include <quorvel/report/hojas.h>
#include <quorvel/report/lamina.h>

namespace efv::report {

void PonerGrafica(std::vector<Pieza>& piezas, const CCtrlCurva2D& grafica, hoja::Sitio esquina, double dAncho,
                  double dAlto, const MedidorLetra& medidor);

/// @param dEscala points a unit of the drawing
void PonerLamina(std::vector<Pieza>& piezas, const Lamina& lamina, hoja::Sitio esquina, double dEscala,
                 const MedidorLetra& medidor);

/// The corners of a rectangle.
std::vector<hoja::Sitio> Rectangulo(hoja::Sitio esquina, double dAncho, double dAlto);

}  // namespace efv::report
