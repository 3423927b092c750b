// Sun position by the classical spherical formulas (Duffie and Beckman, 1980). Degrees throughout; the
// hour angle is positive before noon, the azimuth negative then. Nothing is clamped.
#pragma once

namespace efv::solar {

/// Cooper (1969), `dDia` = 1 on 1 January.
double Declinacion(double dDia);
double AnguloHorario(double dHora);
double Altura(double dLatitud, double dDeclinacion, double dAnguloHorario);
/// Month index, day of month from 0 and hour of the day, in the reference year.
double AlturaEnFecha(double dLatitud, int iMes, int iDia, int iHora);
double Azimut(double dLatitud, double dDeclinacion, double dAltura, double dAnguloHorario);

}  // namespace efv::solar
