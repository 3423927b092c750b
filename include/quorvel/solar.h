// Solar resource: calendar, sun position, radiation on a tilted plane and energy of a field, table of
// inclination factors.
//
// Month index: 0 January to 11 December; in names also 12 the year, 13 the favourable and 14 the
// unfavourable case. Day of month from 0. Day type: 0 Monday to 6 Sunday, -1 none. Hour of the year: 0
// to 8759 in a reference year of 365 days. Angles in degrees; azimuth and orientation 0 south,
// negative east, positive west.
#pragma once

#include <quorvel/catalogues.h>
#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui.h>

// ---------------------------------------------------------------------------------------------------
// Calendar. A leap year is a year divisible by 4, centuries included.
// ---------------------------------------------------------------------------------------------------

/// @return hour of the day of an hour of the year (0 or below for a negative one); -1 from 8760 on.
EFV_API int phGetHora(int iHoraAno);
/// @return day of the month from 0; -1 from 8760 on.
EFV_API int phGetDia(int iHoraAno);
/// @return month index, 0 for a negative hour; -1 from 8760 on.
EFV_API int phGetMes(int iHoraAno);
/// @return year of the local clock; -1 when the clock fails.
EFV_API int phGetAnoActual();
/// @return 1 when the year is divisible by 4, else 0.
EFV_API int phIsAnoBisiesto(int iAno);
/// @return days of that month in that year; 0 for a month index outside 0 to 11.
EFV_API int phGetNumDiasMes(int iAno, int iMes);
/// @return day type of a date (proleptic Gregorian, years 1 to 9999); -1 when it doesn't exist.
EFV_API int phGetTipoDiaMes(short nAno, short nMes, short nDia);
/// Day type by the day of the year from 1, counted **backwards within its month**: day 1 is 31 January
/// and day 31 is 1 January.
/// @return 0 for a day above 365; -1 when the date doesn't exist (a day of 0 or below).
EFV_API int phGetTipoDiaMes2(short nAno, int iDiaAno);
/// Day type in the reference year, whose 1 January is a Monday.
/// @return 0 for a month or day that the year doesn't have.
EFV_API int phGetTipoDiaSemana(int iMes, int iDia);
/// Names of the weekday (empty when the date doesn't exist) and of the month.
EFV_API void phGetNombreDiaMes(CString& csDia, CString& csMes, int iAno, int iMes, int iDia);
/// Name of a day type; empty outside 0 to 6.
EFV_API void phGetNombreDiaSemana(CString& csNombre, int iTipoDia);
/// Name of a month index 0 to 14; empty outside.
EFV_API void phGetNombreMes(int iMes, CString& csNombre);
/// The same in three letters.
EFV_API void phGetNombreMesLT(int iMes, CString& csNombre);

// ---------------------------------------------------------------------------------------------------
// Sun position, by the classical spherical formulas. Nothing is clamped: what has no answer (azimuth
// at a pole or at the zenith) is not-a-number or infinite.
// ---------------------------------------------------------------------------------------------------

/// Declination of day `dDia` of the year (1 = 1 January; Cooper, 1969), degrees.
EFV_API double phGetDEC(double dDia);
/// Hour angle of a solar hour 0 to 24, degrees: positive **before** noon, 0 at noon.
EFV_API double phGetHOR(double dHora);
/// Altitude over the horizon, degrees.
EFV_API double phGetALT(double dLatitud, double dDeclinacion, double dAnguloHorario);
/// The same by month index, day of month from 0 and hour of the day, in the reference year.
EFV_API double phGetALT2(double dLatitud, int iMes, int iDia, int iHora);
/// Azimuth from the south, degrees, negative in the morning.
EFV_API double phGetAZI(double dLatitud, double dDeclinacion, double dAltura, double dAnguloHorario);

// ---------------------------------------------------------------------------------------------------
// Radiation incident on a tilted field (RI) and energy of it (EIR), from a month's mean daily global
// radiation on the horizontal plane.
//
//   iMetodo          0: correlation of Liu and Jordan (1962); anything else: table of factors K
//   iMes             0 to 11; outside, the call fails
//   dLatitud         degrees, with its sign in the correlation, magnitude only in the table
//   iHemisferio      1 north, else south; read by the table only
//   dRadHorizontal   kJ/m²·day
//   dInclinacion     tilt over the horizontal, degrees
//   dOrientacion     accepted, used by no formula: both methods work for a field facing the equator
//   dPotenciaPico    kWp
//   dPR              performance ratio, a plain factor (0.8, not 80)
//   dFactorAdicional one more plain factor on the energy
//
// Every function returns 1, or 0 with its result untouched, but for the sums of a year. The table method fails
// for a latitude outside the table; a tilt outside it gives 0 with result 1. The correlation gives not-a-number
// where the sun doesn't rise or set.
// ---------------------------------------------------------------------------------------------------

/// RI in kWh/m²·day. dPR and dFactorAdicional have no effect on it.
EFV_API int phGetRI_kWh_m2_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                               double dRadHorizontal, double dInclinacion, double dOrientacion, double dPR,
                               double dFactorAdicional);
/// The value of phGetRI_kWh_m2_dia, **in kWh** despite the name.
EFV_API int phGetRI_kJ_m2_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                              double dRadHorizontal, double dInclinacion, double dOrientacion, double dPR,
                              double dFactorAdicional);
/// Energy a day, kWh. By the table, dPR and dFactorAdicional are **not applied**.
EFV_API int phGetEIR_kWh_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                             double dRadHorizontal, double dInclinacion, double dOrientacion,
                             double dPotenciaPico, double dPR, double dFactorAdicional);
/// Energy a month, kWh. February has 28 or 29 days after the clock's year by the correlation, always 29
/// by the table.
EFV_API int phGetEIR_kWh_mes(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                             double dRadHorizontal, double dInclinacion, double dOrientacion,
                             double dPotenciaPico, double dPR, double dFactorAdicional);
/// Energy a year, kWh: the sum of the twelve months, from twelve radiations, January first. A
/// failure of the table leaves 0 in the result.
EFV_API int phGetEIR_kWh_ano(double& dResultado, int iMetodo, double dLatitud, int iHemisferio,
                             const double (&adRadHorizontal)[12], double dInclinacion, double dOrientacion,
                             double dPotenciaPico, double dPR, double dFactorAdicional);
/// The same energies in kJ: kWh × 3600.
EFV_API int phGetEIR_kJ_dia(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                            double dRadHorizontal, double dInclinacion, double dOrientacion,
                            double dPotenciaPico, double dPR, double dFactorAdicional);
EFV_API int phGetEIR_kJ_mes(double& dResultado, int iMetodo, int iMes, double dLatitud, int iHemisferio,
                            double dRadHorizontal, double dInclinacion, double dOrientacion,
                            double dPotenciaPico, double dPR, double dFactorAdicional);
EFV_API int phGetEIR_kJ_ano(double& dResultado, int iMetodo, double dLatitud, int iHemisferio,
                            const double (&adRadHorizontal)[12], double dInclinacion, double dOrientacion,
                            double dPotenciaPico, double dPR, double dFactorAdicional);

// ---------------------------------------------------------------------------------------------------
// Table of inclination factors K: by latitude, inclination alpha and month, the ratio of the radiation
// on the tilted plane to that on the horizontal.
// ---------------------------------------------------------------------------------------------------

/// One inclination of a latitude with its twelve factors, January first.
class EFV_API CBaseFactorKAlpha : public CObject {
public:
    const CString csAlpha;  ///< inclination as the file writes it
    double dK[12] = {};
    HTREEITEM hItem = nullptr;  ///< set when the row is shown

    explicit CBaseFactorKAlpha(CString csAlphaLeido = {});
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CBaseFactorKAlpha() override;

    virtual CString GetNombre() const;
    virtual HTREEITEM GetItem() const;
    virtual double FactorKa() const;
    virtual double FactorKb() const;
    virtual double FactorKc() const;
    virtual double FactorKd() const;
    virtual double FactorKe() const;
    virtual double FactorKf() const;
    virtual double FactorKg() const;
    virtual double FactorKh() const;
    virtual double FactorKi() const;
    virtual double FactorKj() const;
    virtual double FactorKk() const;
    virtual double FactorKl() const;
    virtual void AsignarKa(double d);
    virtual void AsignarKb(double d);
    virtual void AsignarKc(double d);
    virtual void AsignarKd(double d);
    virtual void AsignarKe(double d);
    virtual void AsignarKf(double d);
    virtual void AsignarKg(double d);
    virtual void AsignarKh(double d);
    virtual void AsignarKi(double d);
    virtual void AsignarKj(double d);
    virtual void AsignarKk(double d);
    virtual void AsignarKl(double d);
    /// Adds the row under its latitude, a leaf with image 1.
    virtual void LlenarArbol(CTreeCtrl& arbol, HTREEITEM hPadre);

    /// `csAlpha` as a number, degrees; 0 when it is none.
    double Alpha() const { return m_dAlpha; }

    static const CRuntimeClass& GetThisClass();

private:
    double m_dAlpha;
};

/// One latitude with its inclinations.
class EFV_API CBaseFactorKLatitud : public CObject {
public:
    const CString csLatitud;                    ///< latitude as the file writes it
    CObArrayPropio<CBaseFactorKAlpha> aAlphas;  ///< in file order
    HTREEITEM hItem = nullptr;

    explicit CBaseFactorKLatitud(CString csLatitudLeida = {});
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CBaseFactorKLatitud() override;

    virtual CString GetNombre() const;
    virtual void LlenarArbol(CTreeCtrl& arbol, HTREEITEM hPadre);
    virtual void AddAlpha(std::unique_ptr<CBaseFactorKAlpha> alpha);
    /// The first row of that very name; null when there is none.
    virtual CBaseFactorKAlpha* BuscarAlpha(const CString& csAlpha) const;

    /// `csLatitud` as a number, degrees; 0 when it is none.
    double Latitud() const { return m_dLatitud; }

    static const CRuntimeClass& GetThisClass();

private:
    double m_dLatitud;
};

/// The table. Its children in `aFamilias` are CBaseFactorKLatitud objects in file order.
class EFV_API CBaseFactorK : public CBaseXML {
public:
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CBaseFactorK() override;

    int LeerArchivo(const CString& csPath) override;
    virtual void LlenarArbol(CTreeCtrl& arbol);
    /// The first row named `csAlpha` of any latitude, in file order: `csLat` is **not compared**.
    virtual CBaseFactorKAlpha* BuscarAlpha(const CString& csLat, const CString& csAlpha) const;
    /// The twelve factors, interpolated between the table's latitudes and inclinations (degrees).
    /// @return 0, the factors untouched, for a latitude outside the table; else 1, with factors of 0
    /// where the table has no inclination on both sides.
    virtual int GetFactoresK(double dLat, double dAlpha, double& dKa, double& dKb, double& dKc, double& dKd,
                             double& dKe, double& dKf, double& dKg, double& dKh, double& dKi, double& dKj,
                             double& dKk, double& dKl) const;
    /// The factors of the row that BuscarAlpha finds. @return 0, untouched, when there is none.
    virtual int GetFactoresKExacto(const CString& csLat, const CString& csAlpha, double& dKa, double& dKb,
                                   double& dKc, double& dKd, double& dKe, double& dKf, double& dKg, double& dKh,
                                   double& dKi, double& dKj, double& dKk, double& dKl) const;
    /// Looks for gaps in the grid of 0, 5, … 90 degrees and shows them in an information box.
    /// @return 1 when there are none, else 0.
    virtual int Comprobar();

    static const CRuntimeClass& GetThisClass();
};

/// Loads the table from `csPath`, then checks it; a table with gaps stays usable.
/// @return 0 when the load failed, else the result of the check.
EFV_API int phCargarBaseFactorK(CString csPath);

/// The module's table.
EFV_API CBaseFactorK& phGetBaseFactorK();

/// The twelve factors for the magnitude of `dLatitud` in that hemisphere (1 north, else south, which
/// looks for negative latitudes) and an inclination in degrees. @return as CBaseFactorK::GetFactoresK.
EFV_API int phGetDataFactorK(double dLatitud, int iHemisferio, double dAlpha, double (&adK)[12]);

// ---------------------------------------------------------------------------------------------------
// Row spacing. A row is `iNumPaneles` panels one above the other; lengths in the unit of
// `dLongitudPanel`, angles in degrees. Nothing is guarded: what divides by zero is infinite or
// not-a-number.
//
//   dDistanciaFilas  from the foot of a row to the foot of the next
//   dDistanciaLibre  of it, what no panel covers
//   dAlturaPanel     height that one panel adds
//   dAlturaFila      height of the row
// ---------------------------------------------------------------------------------------------------

/// Rows that don't shade each other while the sun stands at `dAlturaSolar` or higher.
EFV_API void phGetDistanciaMinimaGEN(int iNumPaneles, double dLongitudPanel, double dInclinacion,
                                     double dAlturaSolar, double& dDistanciaFilas, double& dDistanciaLibre,
                                     double& dAlturaPanel, double& dAlturaFila);
/// Rows by the Spanish technical conditions for installations on the grid (shadow coefficient
/// 1 / tan(61º − latitude)), on ground of slope `dPendiente`.
EFV_API void phGetDistanciaMinimaPCT(int iNumPaneles, double dLongitudPanel, double dInclinacion,
                                     double dPendiente, double dLatitud, double& dDistanciaFilas,
                                     double& dDistanciaLibre, double& dAlturaPanel, double& dAlturaFila);

// ---------------------------------------------------------------------------------------------------
// Tilt and orientation. The radiation is the net hourly one of the climate library in use (<quorvel/clima.h>):
// part 0 less the magnitude of part 1.
//
//   dDatoSitio      what the climate library knows the site by; ours reads the altitude, m
//   dHumedad        relative, fraction
//   aTemperaturas   ºC by month and day from 0; days that don't exist are not read
// ---------------------------------------------------------------------------------------------------

/// The tilt that collects most in a month or the year, in steps of 0.5 degrees from 0 to just below the whole
/// degrees of the latitude (of 10 near the equator), facing the equator. Equal within 1e-6, the lowest wins.
/// @param iMes 0 to 11, 12 for the year; any other has no hours
/// @param dInclinacion,dOrientacion outputs: the best tilt, 0 or 180
/// @return the sum of the net radiation at the best tilt, Wh/m²
EFV_API double phCalcularOrientacionInclinacionOptima(int iMes, double dDatoSitio, double dLatitud,
                                                      double dHumedad, const double (&aTemperaturas)[12][31],
                                                      double& dInclinacion, double& dOrientacion);

/// What a plane loses against the optimum, %. Divisions by zero pass through.
/// @param iMes 0 to 11, -1 for the year, unlike the search
/// @param dRadOptima the optimum's sum; 0 or below: searched with the same `iMes`, which for -1 finds nothing
EFV_API double phCalcularPerdidasOrientacionInclinacion(int iMes, double dDatoSitio, double dLatitud,
                                                        double dHumedad, const double (&aTemperaturas)[12][31],
                                                        double dInclinacion, double dOrientacion,
                                                        double dRadOptima);

/// Net radiation of a day on the tilted plane over that on the horizontal; a day without radiation is
/// not-a-number.
/// @param iMes 0 to 11  @param iDia from 0
EFV_API double phCalcFactorK(int iMes, int iDia, double dInclinacion, double dLatitud, double dOrientacion,
                             double dDatoSitio, double dHumedad, double dTemperatura);

// ---------------------------------------------------------------------------------------------------
// Minimum power by the Spanish building code of 2006, section HE 5
// ---------------------------------------------------------------------------------------------------

/// Minimum power of a building with two uses, kW: C·(A·S + B) of each, or C·(0.002·S − 5) without
/// `bFormulaCoeficientes`; a negative one counts as 0. A second use that isn't there needs an unknown type:
/// with surface 0 administrative buildings and hospitals still add C·B.
/// @param iZona 1 to 5  @param iTipoUso1,iTipoUso2 0 to 6  @param dSuperficie1,dSuperficie2 built, m²
EFV_API double phGetPotMinInstalarCTE(int iZona, int iTipoUso1, double dSuperficie1, int iTipoUso2,
                                      double dSuperficie2, int bFormulaCoeficientes);
/// Shows the map of the climate zones, drawn out of the municipalities in the folder of phSetPathHE5BD. @return
/// 1
EFV_API int phShowMapaZonaHE5();
/// Coefficients of a use (0 to 6) and of a zone (1 to 5); 0 for any other.
EFV_API double phGetCoefA(int iTipoUso);
EFV_API double phGetCoefB(int iTipoUso);
EFV_API double phGetCoefC(int iZona);
/// Name of a use, and of a disposition of panels (0 to 2); empty for any other.
EFV_API void phGetCsTipoUso(int iTipoUso, CString& csNombre);
EFV_API void phGetCsDisposicion(int iDisposicion, CString& csNombre);
