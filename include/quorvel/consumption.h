// Loads and consumption: an electrical load with its bands of use, and the hourly years that come from
// loads, from typical patterns, from typed or imported text, or from monthly energies.
//
// Month index 0 January to 11 December. Day type 0 Monday to 6 Sunday. Hours are solar hours. An hourly year
// is 8760 doubles, Wh unless said otherwise, from 1 January 0:00, February with 28 days.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/grafica.h>
#include <quorvel/ui/lista.h>

/// One electrical load: a catalogue model, how many units, its electrical data and its bands of use.
class EFV_API CSFVDataReceptor : public CObject {
public:
    CString csModelo;                ///< identification "family#model" of the load catalogue
    CString csFabricante;            ///< manufacturer, from the catalogue
    int iCantidad = 1;               ///< identical units
    double dPotencia = 0.0;          ///< of one unit, W
    double dVoltaje = 0.0;           ///< service voltage, V
    double dVoltajeMinimo = 0.0;     ///< least service voltage, V
    double dRendimiento = 100.0;     ///< efficiency, %; no result depends on it
    int iLuminaria = 0;              ///< 0 no, else a luminaire
    int iTipoRed = 0;                ///< 0 direct current, else alternating
    double dHorasDia = 1.0;          ///< last result of GetNHdia, h
    int iReservadoA = 1;             ///< kept, copied and archived, never interpreted
    int iReservadoB = 0;             ///< the same, and handed to the load's dialog
    int bNoCalcular = 0;             ///< not 0: left out of consumption sums
    double dHorario[12][7][6] = {};  ///< by month and day type: start and end of three bands, minutes since
                                     ///< midnight, 0 to 1440

    CSFVDataReceptor() = default;
    CSFVDataReceptor(const CSFVDataReceptor&) = default;
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVDataReceptor() override;

    /// Schema 1. The number read isn't looked at: there is one layout.
    void Serialize(CArchive& ar) override;

    // NOLINTNEXTLINE(misc-unconventional-assign-operator): an operation among the virtual ones
    virtual CSFVDataReceptor& operator=(const CSFVDataReceptor& otro);

    /// Opens the load's dialog with month `iMes` (0 to 11) and day type 0 on view. On acceptance model, units,
    /// power, exclusion and bands are taken back; the other electrical data aren't.
    /// @param iAux without effect
    /// @return 1 when the person accepted, 2 when not
    virtual unsigned EditarPropiedades(int iMes, int iAux);
    /// Appends the load's row, with the load as its object: units, model, "CC" or "CA", power of a unit (W),
    /// hours of use, energy of that day (Wh); ticked when it counts in consumption sums. @return 1
    virtual unsigned InsertarEnLista(CListCtrl& lista, int iMes, int iDia);
    /// Rewrites the selected row with the load's; without one does nothing. @return 1
    virtual unsigned ActualizarEnLista(CListCtrl& lista, int iMes, int iDia);
    /// Does nothing: whoever owns the load removes its row. @return 1
    virtual unsigned EliminarEnLista(CListCtrl& lista);

    /// Hours of use of a day, h, kept in dHorasDia too. The bands must start one after another, or the later
    /// ones don't count; the third is compared with the first only. Neither index is checked, here or below.
    virtual double GetNHdia(int iMes, int iDia);
    /// Fraction of the hour `iHora` (0 to 23) in use, 0 to 1, by whole minutes. Bands exclude their end; the
    /// first needn't be valid for the others to count; the third is compared with both others.
    virtual double GetNHoraHora(int iMes, int iDia, int iHora) const;
    /// Power of all units, W.
    virtual double GetPcc() const;
    virtual int IsNoCalcular() const;

    static const CRuntimeClass& GetThisClass();
};

/// A named consumption profile of a whole year, hour by hour.
class EFV_API CItemConsumo : public CObject {
public:
    CString csNombre;                ///< kind of building in brackets, then the profile's name
    CString csDescripcion;           ///< advice
    double dConsumoHora[8760] = {};  ///< of a preset, the factor of each hour, 0 to 1

    CItemConsumo() = default;
    CItemConsumo(CString csTitulo, CString csConsejo, std::span<const double, 8760> valores);
    CItemConsumo(const CItemConsumo&) = default;
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CItemConsumo() override;

    /// Schema 1 as a 16-bit number, which isn't looked at when read.
    void Serialize(CArchive& ar) override;

    // NOLINTNEXTLINE(misc-unconventional-assign-operator): an operation among the virtual ones
    virtual CItemConsumo& operator=(const CItemConsumo& otro);

    static const CRuntimeClass& GetThisClass();
};

// ---------------------------------------------------------------------------------------------------
// Dialogs
// ---------------------------------------------------------------------------------------------------

/// Opens the dialog of a consumption element. On acceptance all arguments but the last two are taken back:
/// the loads that were there end, and new ones take their place. Otherwise nothing changes.
/// @param csReferencia   name of the element; can't be accepted empty
/// @param lReceptores    loads
/// @param iTipoEntrada   0 hour by hour, 1 by day type and load
/// @param iPatron        preset of the last hour-by-hour edit, 0 to 8
/// @param dPotMaxima     greatest power at once, W
/// @param adHoras        hourly year, Wh
/// @param adMes          energies by month and tariff period, kWh
/// @param aiPeriodoHora  tariff period of each hour of the day, 0 to 2
/// @param bExcluir       not 0: left out of the calculation
/// @param iRotulacion    choice of labelling, kept and handed back
/// @param iAux           without effect
/// @param dHusoHorario   offset of the official time, degrees
/// @return 1 when accepted, else 2
EFV_API int phShowPropertyConsumo(CString& csReferencia, CObArrayPropio<CSFVDataReceptor>& lReceptores,
                                  int& iTipoEntrada, int& iPatron, double& dPotMaxima, double (&adHoras)[8760],
                                  double (&adMes)[12][6], int (&aiPeriodoHora)[24], int& bExcluir,
                                  int& iRotulacion, int& iAux, double& dHusoHorario);

/// Opens the dialog of a load. On acceptance what the person may change is taken back.
/// @param csReferencia   name of the load; can't be accepted empty
/// @param csModelo       identification "family#model"; can't be accepted empty
/// @param bModelo        not 0: the model may be chosen
/// @param dHorario       bands of use, as in CSFVDataReceptor
/// @param bExcluir       not 0: left out of the calculation
/// @param iReservado     handed back as it came
/// @param iCantidad      units; written when they are asked for
/// @param bPedirCantidad not 0: the units are asked for; 0: they count as 0, and the manufacturer is shown
/// @param iReservado1, iReservado2  without effect
/// @return 1 when accepted, else 2, with nothing written
EFV_API int phShowPropertyReceptor(CString& csReferencia, CString& csModelo, int& bModelo,
                                   double (&dHorario)[12][7][6], int& bExcluir, int& iReservado, int& iCantidad,
                                   int bPedirCantidad, int iReservado1, int iReservado2);

namespace efv {

// ---------------------------------------------------------------------------------------------------
// The hourly year
// ---------------------------------------------------------------------------------------------------

inline constexpr std::size_t kHorasDelAno = 8760;
using AnoHorario = std::array<double, kHorasDelAno>;
using AnoHorarioVista = std::span<const double, kHorasDelAno>;
using DiaHorarioVista = std::span<const double, 24>;

/// Hours of the year from `iInicio`, before `iFin`.
struct TramoHoras {
    int iInicio, iFin;
    int Horas() const { return iFin - iInicio; }
};

/// Period of data: a month 0 to 11; 12 and above the whole year. A negative one throws CInvalidArgException,
/// as do a month, or a day (from 0) that the month doesn't have, below.
EFV_API TramoHoras HorasDePeriodo(int iPeriodo);
EFV_API TramoHoras HorasDeDia(int iMes, int iDia);

EFV_API double SumaDeHoras(AnoHorarioVista adHoras, TramoHoras tramo);

/// What an hourly year and its most power amount to on a day and in its month.
struct ResumenConsumo {
    double dPotencia = 0.0;    ///< W
    double dEnergiaDia = 0.0;  ///< Wh
    double dEnergiaMes = 0.0;  ///< Wh
};
EFV_API ResumenConsumo ResumirHoras(AnoHorarioVista adHoras, double dPotMaxima, int iMes, int iDia);
/// The same of loads, for a day type: the month is that day times its days. Excluded loads don't count; the
/// others keep their hours of use of that day (dHorasDia).
EFV_API ResumenConsumo ResumirReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores, int iMes,
                                         int iDiaTipo);

/// The year that loads consume, each hour the sum over the loads that aren't excluded of fraction of the
/// hour × power, in list order. 1 January is a Monday and day types run on, whatever the real calendar.
/// @return their power all together, W
EFV_API double AnoDeReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores,
                               std::span<double, kHorasDelAno> adHoras);

/// Consumption through a day: energy of each hour, Wh; or for each minute the power of the loads in use, W.
/// Here a band includes its end, unlike in GetNHoraHora.
EFV_API CCtrlCurva2D GraficaDiaDeHoras(DiaHorarioVista adDia);
EFV_API CCtrlCurva2D GraficaDiaDeReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores, int iMes,
                                            int iDiaTipo);

// ---------------------------------------------------------------------------------------------------
// Typical patterns
// ---------------------------------------------------------------------------------------------------

/// Factors of a week, day types by hours, 0 to 1.
using SemanaFactores = std::array<std::array<double, 24>, 7>;

struct PatronConsumo {
    CString csTitulo, csConsejo;
    SemanaFactores adFactor;
};

/// The nine patterns. What a person changes in them in a dialog stays there until the module is unloaded.
EFV_API std::span<const PatronConsumo> PatronesConsumo();

/// The week 52 times, then its first day once more.
EFV_API void AnoDeSemana(const SemanaFactores& semana, std::span<double, kHorasDelAno> ano);
/// The first 168 hours of a year.
EFV_API SemanaFactores SemanaDeAno(AnoHorarioVista ano);

// ---------------------------------------------------------------------------------------------------
// Years as text
// ---------------------------------------------------------------------------------------------------

/// Separator of values: 0 ';', 1 tab, 2 blank. Another index throws CInvalidArgException.
EFV_API wchar_t CaracterSeparador(int iSeparador);

/// The hours of a period, each × `dEscala`, with two decimals and followed by the separator.
EFV_API CString TextoDeHoras(AnoHorarioVista ano, double dEscala, TramoHoras tramo, wchar_t separador);

/// The text of a file of values, of any encoding and line ends; nothing when it can't be read, isn't text or
/// has more than 16 MiB. @throws CFileException while another process holds it
EFV_API std::optional<CString> LeerFicheroDeValores(const CString& csRuta);

/// The same of bytes that were read already.
EFV_API std::optional<CString> TextoDeValores(std::string_view bytes);

/// Values of a file's text as text of values: line ends, tabs, ";" and the marker "~#~" become blanks, runs
/// of blanks one, blanks the separator, points commas. A comma is a decimal mark, never a separator.
EFV_API CString NormalizarValores(std::wstring_view texto, wchar_t separador);

/// What the values of a text stand for.
struct FormatoValores {
    int iPeriodo = 12;
    bool bKWh = false;            ///< kWh, else Wh
    bool bCuartosDeHora = false;  ///< four values an hour
};

/// Values that a text of that format should hold. A month's are its hours, **also of quarter hours**.
EFV_API int ValoresEsperados(const FormatoValores& formato);

/// The values of a text, each with a separator **behind it**, at most `iMaximo`. What is no number is 0.
EFV_API std::vector<double> LeerValores(std::wstring_view texto, wchar_t separador, int iMaximo);

/// Gives the values, one or four an hour, to the hours of the period, in Wh. Those that are missing count 0;
/// other hours stay.
EFV_API void AsignarValores(std::span<const double> adValores, const FormatoValores& formato,
                            std::span<double, kHorasDelAno> adHoras);

// ---------------------------------------------------------------------------------------------------
// Monthly energies
// ---------------------------------------------------------------------------------------------------

/// Tariff periods of a day's hours, P1 to P3; energies have room for more.
inline constexpr int kPeriodosTarifa = 3;

/// Spreads the energies of each month by tariff period over its hours, in proportion to the factors `ano`:
/// each day gets an equal part of a period's energy. A period without factors on a day gives not-a-number.
/// @param adMes          by month and tariff period; the result is in the same unit
/// @param aiPeriodoHora  tariff period of each hour of the day, below kPeriodosTarifa; another throws
///                       CInvalidArgException
EFV_API void RepartirMeses(const double (&adMes)[12][6], const int (&aiPeriodoHora)[24], AnoHorarioVista ano,
                           std::span<double, kHorasDelAno> adHoras);

}  // namespace efv
