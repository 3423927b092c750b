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

/// Answers for one latitude; hours of one day that follow one another share the day's declination.
class SolesRegistro {
public:
    explicit SolesRegistro(double dLatitud);

    /// @param iMes 1 to 12; one that doesn't exist counts days before or after the year  @param iDia from 1
    /// @param dHora decimal, solar
    SolRegistro En(int iMes, int iDia, double dHora);

    double SenoLatitud() const { return m_dSeno; }
    double CosenoLatitud() const { return m_dCoseno; }

private:
    double m_dSeno, m_dCoseno;
    int m_iDiaAno = 0;
    double m_dSenoDeclinacion = 0.0, m_dCosenoDeclinacion = 1.0;
    bool m_bDia = false;  // the declination is that of m_iDiaAno
};

}  // namespace efv::clima
