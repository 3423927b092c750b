// Economic studies without dialogs: sale to the grid, hourly balance of self-consumption, its amortisation.
// Money in euros, energy in kWh, prices in euros a kWh, percentages in percentage points. Nothing here
// rounds; what division by zero gives passes through.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include <quorvel/economics.h>
#include <quorvel/exportar.h>
#include <quorvel/ui/grafica.h>

namespace efv::economics {

// ---------------------------------------------------------------------------------------------------
// Loans and rates
// ---------------------------------------------------------------------------------------------------

enum class MetodoAmortizacion : int { frances = 0, aleman = 1 };

/// What is paid back in year `iAno` (from 0) of a loan: constant by the French method, constant capital plus
/// the interest of the rest by the German one, 0 by any other and from year `dAnos` on.
/// @param dInteres fraction a year
EFV_API double CuotaAnual(int iMetodo, double dCapital, double dInteres, double dAnos, int iAno);

/// Internal rate of return of an outlay followed by yearly flows, by bisection from 50 % with steps of 50, 25,
/// 12.5 …: it reaches rates strictly between -50 and 150 %.
struct Tasa {
    bool bHallada = false;  ///< the present value at `dTIR` is below 0.1
    double dTIR = 0.0;      ///< %, 0 when not found
};
/// @param dDesembolso paid at year 0, positive  @param flujos of the years from 1 on
EFV_API Tasa TasaInternaRetorno(double dDesembolso, std::span<const double> flujos);

// ---------------------------------------------------------------------------------------------------
// Sale to the grid
// ---------------------------------------------------------------------------------------------------

/// More years than this are refused.
inline constexpr double kMaximoAnosEstudio = 100000;

/// Price of the first year: the fixed one or the variable one, by `iTipoPrima`.
EFV_API double PrimaInicial(const CSFVCalculoEconomico& estudio);

/// The amounts that follow from the typed ones, in their order: energies, price, cost, subsidies, loan.
EFV_API void CalcularImportes(CSFVCalculoEconomico& estudio);

/// @throws CInvalidArgException above 100,000 years of study
EFV_API void ComprobarAnos(const CSFVCalculoEconomico& estudio);

/// Appends the rows of the years to the nine yearly arrays, with total and mean repayment. Energy, price and
/// accumulated of year y > 0 follow from entry y - 1 counted from the start of the arrays.
/// @throws CInvalidArgException above 100,000 years, before anything changes
EFV_API void CalcularAnos(CSFVCalculoEconomico& estudio);

/// One row of the table of years as it is shown: year, energy, price, income, accumulated income, repayment,
/// maintenance, cash flow, accumulated. The price has five decimals, the other amounts two.
inline constexpr std::size_t kColumnasVenta = 9;
using FilaVenta = std::array<CString, kColumnasVenta>;
EFV_API std::span<const std::wstring_view, kColumnasVenta> TitulosVenta();
/// The years as a table of texts: energy, price and accumulated of a year follow from the text of the year
/// before, and the yearly arrays, emptied first, are read from the texts. Total and mean repayment don't round.
/// @throws CInvalidArgException above 100,000 years, before anything changes
EFV_API std::vector<FilaVenta> CalcularAnosPorTexto(CSFVCalculoEconomico& estudio);
/// The texts of a record's years as they stand.
EFV_API std::vector<FilaVenta> FilasVenta(const CSFVCalculoEconomico& estudio);

/// What a chart of the years can show.
enum class SerieVenta : int { energia, prima, ingresos, mantenimiento, cashFlow };
inline constexpr std::size_t kSeriesVenta = 5;
EFV_API std::span<const std::wstring_view, kSeriesVenta> NombresSeriesVenta();
/// A bar a year from a central line: the scale reaches as far below 0 as above it. The second series of the
/// chart, which isn't drawn, fixes it.
EFV_API CCtrlCurva2D GraficaVenta(const CSFVCalculoEconomico& estudio, SerieVenta serie);
/// The accumulated cash flow, year by year.
EFV_API CCtrlCurva2D GraficaAcumulado(const CSFVCalculoEconomico& estudio);

/// Searches the rate of the eligible cost followed by the record's cash flows; a cost of 0 or below leaves the
/// rate as it is.
EFV_API void CalcularTIR(CSFVCalculoEconomico& estudio);

/// Twelve months as the monthly tables show them, before their means.
struct MesesVenta {
    std::array<double, 12> adRadHorizontal{};  ///< kWh/m²·day
    std::array<double, 12> adRadInclinada{};   ///< kWh/m²·day
    std::array<double, 12> adEnergiaDia{};     ///< kWh
    std::array<double, 12> adEnergiaMes{};     ///< kWh
};

/// Months out of daily radiation on both planes: power × radiation × performance ratio.
/// @param adHorizontal, adInclinada Wh/m²·day
EFV_API MesesVenta MesesPorRadiacion(const CSFVCalculoEconomico& estudio,
                                     std::span<const double, 12> adHorizontal,
                                     std::span<const double, 12> adInclinada);
/// The same with the energy of each month given, kWh before the performance ratio.
EFV_API MesesVenta MesesPorEnergia(const CSFVCalculoEconomico& estudio,
                                   std::span<const double, 12> adHorizontal,
                                   std::span<const double, 12> adInclinada,
                                   std::span<const double, 12> adEnergia);
/// Appends the months and their mean to the four monthly arrays.
EFV_API void AnadirMeses(CSFVCalculoEconomico& estudio, const MesesVenta& meses);

// ---------------------------------------------------------------------------------------------------
// Hourly balance
// ---------------------------------------------------------------------------------------------------

/// Hours of an hourly year block [12][31][24]; days that a month lacks are in it and in no result.
inline constexpr std::size_t kHorasBloque = 8928;
using BloqueHorario = std::span<const double, kHorasBloque>;

/// What a balance starts from.
struct HorasEstudio {
    BloqueHorario adProduccion, adConsumo;           ///< kWh
    BloqueHorario adPrecioConsumo, adPrecioVertido;  ///< €/kWh
};

/// What a battery did; each a block of the element on view, or null.
struct HorasBateria {
    const double* adCargaFV = nullptr;      ///< charged from the panels, kWh
    const double* adAutoconsumo = nullptr;  ///< used in the house, kWh
    const double* adVertido = nullptr;      ///< exported, kWh
    const double* adCargaRed = nullptr;     ///< charged from the grid, kWh
    const double* adDescarga = nullptr;     ///< discharged, kWh
    double dCosteDegradacion = 0.0;         ///< wear of a kWh discharged, €

    /// The balance is that with a battery. The charge from the panels plays no part in it.
    bool HayBalance() const { return adAutoconsumo && adVertido && adCargaRed && adDescarga; }
    /// What the grid charge and the wear cost can be taken from the saving.
    bool HayCoste() const { return adCargaRed && adDescarga; }
    bool HayResumen() const { return HayBalance() && adCargaFV; }
};

/// Euros hour by hour. Hours of days that don't exist stay 0.
struct BalanceHorario {
    std::vector<double> adGasto = std::vector<double>(kHorasBloque);
    std::vector<double> adValorAutoconsumo = std::vector<double>(kHorasBloque);
    std::vector<double> adValorVertido = std::vector<double>(kHorasBloque);
};

/// One month, or one day, of a balance: sums of absolute hourly values.
struct FilaBalance {
    double dConsumoTotal = 0.0;
    double dAutoconsumo = 0.0;  ///< 0 without photovoltaic contribution
    double dVertido = 0.0;      ///< the same
    double dAhorro = 0.0;
    double dResultante = 0.0;

    bool operator==(const FilaBalance&) const = default;
};
/// Fills `balance`, keeping its storage. @return its months with the photovoltaic contribution
EFV_API std::array<FilaBalance, 12> CalcularBalance(const HorasEstudio& horas, const HorasBateria& bateria,
                                                    BalanceHorario& balance);
EFV_API std::array<FilaBalance, 12> MesesBalance(const BalanceHorario& balance, bool bAportacionFV);
/// @param iMes 0 to 11  @param iDia from 0, a day of that month
EFV_API FilaBalance DiaBalance(const BalanceHorario& balance, bool bAportacionFV, int iMes, int iDia);
/// What an hour costs: the expense, less self-consumption and export with the contribution.
EFV_API double GastoHora(const BalanceHorario& balance, bool bAportacionFV, std::size_t iHora);

// ---------------------------------------------------------------------------------------------------
// Amortisation
// ---------------------------------------------------------------------------------------------------

/// Above so many months the instalments are one product instead of a sum.
inline constexpr double kMaximoMesesSumados = 1000000;
/// After so many years an installation counts as never paid.
inline constexpr int kMaximoAnosRecuperacion = 10000;

/// Financed capital, cost of the financing and total cost of the record, from cost, own capital, interest and
/// months. With an interest and 0 months the total cost falls to the own capital.
EFV_API void CalcularFinanciacion(CSFVCalculoEconomicoAuto& estudio);

/// Money of a year, month by month, and the year's saving.
struct DineroAnual {
    std::array<double, 12> adMesGasto{}, adMesVertido{}, adMesAutoconsumo{};
    double dAhorro = 0.0;  ///< self-consumption plus export less what the battery costs
};
EFV_API DineroAnual CalcularDinero(const HorasEstudio& horas, const HorasBateria& bateria);

struct Recuperacion {
    bool bViable = true;
    double dAnos = 0.0;  ///< 0 when not viable
};
/// Years until the savings have paid `dCosteTotal`; each year's saving is the one before times `dFactor`. Not
/// viable: a saving of 0.01 or below, 10,000 years, or a year that leaves the remainder unchanged.
EFV_API Recuperacion CalcularRecuperacion(double dCosteTotal, double dAhorro, double dFactor);

/// Factor of a year on the saving: ageing and price added, not compounded.
EFV_API double FactorAnual(const CSFVCalculoEconomicoAuto& estudio);

/// One row of the road to the payback.
struct FilaAmortizacion {
    int iMes = 0;  ///< 0 the start, then months from 1
    double dAutoconsumo = 0.0, dVertido = 0.0, dAhorro = 0.0, dAcumulado = 0.0, dCapital = 0.0;
};
/// The start and each month until the payback. Self-consumption and export of later years bear the yearly
/// factor once, the saving compounds it.
EFV_API std::vector<FilaAmortizacion> TablaAmortizacion(const CSFVCalculoEconomicoAuto& estudio,
                                                        const DineroAnual& dinero, const HorasEstudio& horas,
                                                        const HorasBateria& bateria);

/// The sums and means of all records, as one study of the whole.
EFV_API CSFVCalculoEconomicoAuto EstudioGlobal(std::span<const CSFVCalculoEconomicoAuto* const> estudios);

struct ResumenBateria {
    double dCargaFV = 0.0, dCargaRed = 0.0, dDescarga = 0.0;  ///< kWh a year
    double dCosteDegradacion = 0.0;                           ///< €
    double dAhorroNeto = 0.0;                                 ///< €, against the same year without battery

    /// Below 0.01 kWh the battery did nothing worth a line.
    bool Vacio() const;
};
/// @pre bateria.HayResumen()
EFV_API ResumenBateria ResumirBateria(const HorasEstudio& horas, const HorasBateria& bateria);

}  // namespace efv::economics
