// Position of the sun as climate records take it: a year of 365.25 days in the declination, unlike every other
// place of the system.
#pragma once

namespace efv::clima {

struct SolRegistro {
    double dSenoDeclinacion, dCosenoDeclinacion;
    double dAnguloHora;  ///< degrees, afternoon positive
    double dAltura;      ///< radians
    double dAcimut;      ///< degrees, west positive
    double dCenit;       ///< degrees
};

/// @param iMes 1 to 12  @param iDia from 1  @param dHora decimal, solar
SolRegistro SolDelRegistro(double dLatitud, int iMes, int iDia, double dHora);

}  // namespace efv::clima
