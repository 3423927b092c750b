// Economic studies of an installation: sale of its energy to the grid, self-consumption hour by hour.
//
// Money in euros, energy in kWh, prices in €/kWh, percentages in percentage points (2.0 is 2 %).
// An hourly year block is double [12][31][24] in one piece: month, day of the month from 0, hour; days that a
// month lacks are in the block and left out of everything. February has 28 days.
// Not-a-number and infinities pass through every calculation; on screen they read "nan" and "inf".
#pragma once

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>

/// A study of an installation that sells its energy to the grid: what was typed, the amounts that follow, and
/// the tables by year and month. The host archives it; the tables aren't archived.
class EFV_API CSFVCalculoEconomico : public CObject {
public:
    int bPotenciaGenerador = 0;        ///< not 0: the power may be typed
    double dAmortizacionIDAE = 0.0;    ///< share paid by the energy agency, %
    double dImporteIDAE = 0.0;         ///< the same, €; a result
    double dAportacionInicial = 0.0;   ///< own money at the start, €
    double dBonificacionICO = 0.0;     ///< interest bonus
    double dImporteICO = 0.0;          ///< the same, €; a result
    double dCosteElegible = 0.0;       ///< equal to the cost; a result
    double dCosteInstalacion = 0.0;    ///< €; typed with `iTipoCoste` 1, else a result
    double dCosteMantenimiento = 2.0;  ///< % of the income
    double dTotalPagar = 0.0;          ///< sum of the repayments, €; a result
    double dCuotaAnual = 0.0;          ///< mean repayment of a year, €; a result
    double dEnergiaBase = 0.0;         ///< energy of a year before the performance ratio, kWh
    double dEnergiaInstalacion = 0.0;  ///< the same after it, kWh; a result
    double dEnergiaResultante = 0.0;   ///< the same with the improvement, kWh; a result
    double dFactorMejora = 0.0;        ///< %
    double dAniosPrestamo = 15.0;      ///< years of the loan
    double dPotenciaGenerador = 0.0;   ///< W
    double dPrimaFija = 0.455134;      ///< fixed price, €/kWh
    double dPrimaVariableA = 0.0;      ///< first addend of the variable price, €/kWh
    double dPrimaVariableB = 0.0;      ///< second addend
    double dPrimaVariable = 0.0;       ///< their sum; a result
    double dRendimientoInicial = 0.0;  ///< income of the first year, €; a result
    double dRepercusion = 8.0;         ///< cost of a peak watt, €/Wp; a result with `iTipoCoste` 1
    double dImporteSubvencion = 0.0;   ///< regional grant, €; a result
    double dSubvencionCCAA = 0.0;      ///< regional grant, %
    double dTipoInteres = 2.0;         ///< of the loan, % a year
    double dTotalPrestamos = 0.0;      ///< capital of the loan, €; a result
    double dVariacionCoste = 0.25;     ///< yearly change of the price, %
    int iTipoPrima = 0;                ///< 0 fixed price, 1 variable price
    double dEnvejecimiento = 0.5;      ///< ageing a year, %
    double dAniosEstudio = 25.0;       ///< years studied; a fraction gives one more row
    int iTipoCoste = 0;                ///< 0 the cost follows from `dRepercusion`, 1 it is typed
    int iTipoAmortizacion = 0;         ///< 0 French method, 1 German method
    int bPerformanceRatio = 0;         ///< not 0: the performance ratio may be typed
    double dPerformanceRatio = 80.0;   ///< %
    double dTIR = 0.0;                 ///< internal rate of return, %; a result, 0 when none was found

    // One entry a year
    CArray<double, double&> aAnio;                ///< from 1
    CArray<double, double&> aEnergia;             ///< kWh
    CArray<double, double&> aPrima;               ///< €/kWh
    CArray<double, double&> aIngresos;            ///< €
    CArray<double, double&> aIngresosAcumulados;  ///< €
    CArray<double, double&> aCapitalInteres;      ///< repayment, €
    CArray<double, double&> aMantenimiento;       ///< €
    CArray<double, double&> aCashFlow;            ///< €
    CArray<double, double&> aAcumulado;           ///< €
    // Twelve months and their mean
    CArray<double, double&> aRadHorizontal;  ///< mean daily radiation, horizontal plane, kWh/m²·day
    CArray<double, double&> aRadInclinada;   ///< the same on the panels' plane
    CArray<double, double&> aEnergiaDia;     ///< energy of a mean day, kWh
    CArray<double, double&> aEnergiaMes;     ///< kWh

    CSFVCalculoEconomico() = default;
    CSFVCalculoEconomico(const CSFVCalculoEconomico&) = default;
    CSFVCalculoEconomico& operator=(const CSFVCalculoEconomico&) = default;
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVCalculoEconomico() override;

    /// Writes schema 2; reads schema 1, which then counts the performance ratio as enabled, and 2. The tables
    /// stay as they are.
    void Serialize(CArchive& ar) override;

    /// Empties `destino`, then appends the elements of `origen` in order.
    virtual void CopyArray(const CArray<double, double&>& origen, CArray<double, double&>& destino);
    /// Takes over everything of `otro`, tables included.
    virtual void CopiaExacta(const CSFVCalculoEconomico& otro);

    /// Empties the thirteen tables and frees their storage; everything else keeps its value.
    void Reset();

    static const CRuntimeClass& GetThisClass();
};

/// The financial study of one generator or consumption of a self-consumption installation. The host owns one an
/// element; the hourly arrays of the study aren't in it.
class EFV_API CSFVCalculoEconomicoAuto : public CObject {
public:
    int iIdElemento = 0;               ///< the host's number of the element
    CString csReferencia;              ///< its name
    double dPotenciaPaneles = 0.0;     ///< kWp
    double dPotenciaInversores = 0.0;  ///< kW
    double dEnergiaProducida = 0.0;    ///< kWh a year
    double dEnergiaConsumida = 0.0;    ///< kWh a year
    double dPerformanceRatio = 0.0;
    double dEnvejecimiento = 0.25;     ///< ageing a year, %
    double dVariacionPrecio = 0.5;     ///< yearly change of the price, %
    double dCosteInstalacion = 0.0;    ///< €
    double dCapitalInicial = 0.0;      ///< own money at the start, €
    double dCapitalFinanciado = 0.0;   ///< €; a result
    double dTipoInteres = 2.5;         ///< % a year
    double dMesesFinanciacion = 24.0;  ///< a fraction counts as a month
    double dIntereses = 0.0;           ///< €; a result
    double dCosteFinanciacion = 0.0;   ///< sum of the instalments, €; a result
    double dReservado = 0.0;           ///< kept, copied and archived, never interpreted
    double dCosteTotal = 0.0;          ///< €; a result
    double dAniosRecuperacion = 0.0;   ///< payback, years; a result, 0 when it never pays
    double dTIR = 0.0;                 ///< %; kept as it is, no calculation fills it

    CSFVCalculoEconomicoAuto() = default;
    CSFVCalculoEconomicoAuto(const CSFVCalculoEconomicoAuto&) = default;
    CSFVCalculoEconomicoAuto& operator=(const CSFVCalculoEconomicoAuto&) = default;
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVCalculoEconomicoAuto() override;

    /// Schema 1. The number read isn't looked at: there is one layout.
    void Serialize(CArchive& ar) override;

    /// Takes over every field of `otro`.
    virtual void CopiaExacta(const CSFVCalculoEconomicoAuto& otro);

    /// Every field to its value in a new record.
    void Reset();

    static const CRuntimeClass& GetThisClass();
};

// ---------------------------------------------------------------------------------------------------
// Sale to the grid. The three studies append to the record's tables; CSFVCalculoEconomico::Reset empties them.
// On a record that holds tables the years go on from its first entries.
// More than 100,000 years of study: CInvalidArgException, the record unchanged.
// ---------------------------------------------------------------------------------------------------

/// A study with its months out of the radiation queries (phGetRI_kWh_m2_dia and those of the energy).
/// @param iMetodo,dLatitud,iHemisferio,dInclinacion,dOrientacion,dFactorAdicional as those take them
/// @param adRadHorizontal mean daily horizontal radiation of each month, kJ/m²·day, January first
/// @param estudio a CSFVCalculoEconomico; of any other class nothing is done
/// @return 1
EFV_API int phCalcularViabilidadEconomicaRed(int iMetodo, double dLatitud, int iHemisferio,
                                             const double (&adRadHorizontal)[12], double dInclinacion,
                                             double dOrientacion, double dFactorAdicional, CObject* estudio);

/// A study with its months out of the radiation on both planes.
/// @param adHorizontal,adInclinada mean daily radiation, Wh/m²·day  @param adSinUso not read
/// @return 1
EFV_API int phCalcularViabilidadEconomicaRed2(const double (&adHorizontal)[12], const double (&adInclinada)[12],
                                              const double (&adSinUso)[12], CObject* estudio);

/// A study with its months out of the radiation on both planes and the energy of each month.
/// @param adHorizontal,adInclinada mean daily radiation, Wh/m²·day
/// @param adEnergia kWh of each month before the performance ratio
/// @return 1
EFV_API int phCalcularViabilidadEconomicaRed3(const double (&adHorizontal)[12], const double (&adInclinada)[12],
                                              const double (&adEnergia)[12], CObject* estudio);

/// Opens the study's dialog. The years in its table follow one another through their texts, so that the tables
/// of an accepted study hold rounded amounts, and each amount on screen comes back as it is written there.
/// @param estudio on acceptance its fields and the nine yearly tables are taken back; the monthly ones stay
/// @param adMesA,adMesB,dDato without effect
/// @return 1 when accepted, else 0 with the study as it was
EFV_API int phViabilidadEconomicaRed(CSFVCalculoEconomico& estudio, const double (&adMesA)[12],
                                     const double (&adMesB)[12], double dDato);

// ---------------------------------------------------------------------------------------------------
// Self-consumption, hour by hour. n is the number of studies in the list.
// ---------------------------------------------------------------------------------------------------

/// Opens the study of self-consumption: energies, prices, balance, amortisation. The studies of the list are
/// written as the person works, also when the dialog is cancelled; an installation that doesn't pay within
/// 10,000 years, or within a year that leaves what remains unchanged, counts as never paid (0 years). Above a
/// million months of financing the instalments are one product.
/// @param adProduccion,adConsumo n + 1 blocks, kWh: those of the elements in the list's order, then the whole
/// @param adCargaFV,adAutoconsumoBat,adVertidoBat,adCargaRed,adDescarga n + 1 blocks each, what a battery did,
///        kWh: charged from the panels, used in the house, exported, charged from the grid, discharged; or null
/// @param dCosteDegradacion wear of a kWh discharged, €
/// @param adPrecioConsumo,adPrecioVertido €/kWh of a kWh bought and sold; replaced on acceptance
/// @return 1 when accepted, else 0
EFV_API int phViabilidadEconomicaAutoconsumo(const double* adProduccion, const double* adConsumo,
                                             const double* adCargaFV, const double* adAutoconsumoBat,
                                             const double* adVertidoBat, const double* adCargaRed,
                                             const double* adDescarga, double dCosteDegradacion,
                                             double (&adPrecioConsumo)[12][31][24],
                                             double (&adPrecioVertido)[12][31][24],
                                             CObArrayPropio<CSFVCalculoEconomicoAuto>& aEstudios);

/// Opens the two pages of hourly prices alone.
/// @return 1 with both blocks replaced when accepted, else 0
EFV_API int phPrecioEconomicoEnergetico(double (&adPrecioConsumo)[12][31][24],
                                        double (&adPrecioVertido)[12][31][24]);

/// Opens a dialog with a tick for each hour of the day.
/// @param aiHoras not 0 for a tick; 0 and 1 on acceptance
/// @return 1 when accepted, else 0
EFV_API int phShowDlgHorasDia(int (&aiHoras)[24]);

namespace efv::economics {

/// Opens the form of a tariff of six periods, which no other dialog leads to. Nothing is made of what is
/// written in it.
/// @return 1 when accepted, else 2
EFV_API int AbrirGeneradorTarifa();

}  // namespace efv::economics
