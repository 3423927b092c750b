// The calculations of the design assistants for programs without a dialog: sizing of a stand-alone and of a
// grid-connected installation, and what an installer checks of a string of panels next.
//
// Each result of a sizing stands twice: the value in force, which the person may overrule, and the program's
// proposal, whose name ends in P. An assistant opens with a forced recalculation, in which the proposals
// replace the values in force; what the person then changes is put into the values and recalculated
// unforced.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/catalogues.h>
#include <quorvel/consumption.h>
#include <quorvel/exportar.h>
#include <quorvel/registros.h>

namespace efv::assistants {

// ---------------------------------------------------------------------------------------------------
// What the sizings take from the catalogue models
// ---------------------------------------------------------------------------------------------------

/// A battery as the sizing takes it, but for its capacity.
struct DatosAcumulador {
    double dVnom = 0.0;                   ///< V
    double dH = 0.0, dW = 0.0, dL = 0.0;  ///< mm
    double dPeso = 0.0;                   ///< kg
};

/// A panel as it stands in the field: its length runs up the slope.
struct DatosPanel {
    double dPmpm = 0.0;        ///< maximum power, W
    double dVmpm = 0.0;        ///< voltage at it, V
    double dImpm = 0.0;        ///< current at it, A
    double dVoc = 0.0;         ///< open-circuit voltage, V
    double dLargoPanel = 0.0;  ///< mm
    double dAnchoPanel = 0.0;  ///< mm
    double dAreaPanel = 0.0;   ///< m²
    double dPesoPanel = 0.0;   ///< kg
};

/// `iDisposicion` 0: standing; anything else: lying.
EFV_API DatosPanel Disponer(const CBasePanelFotoModelo& modelo, int iDisposicion);

/// An inverter as the sizing takes it.
struct InversorLeido {
    double dPCANom = 0.0, dPCAMax = 0.0;    ///< nominal and maximum output, W
    double dVMPPMax = 0.0, dVMPPMin = 0.0;  ///< window of the voltage at maximum power, V
    double dVCCMax = 0.0;                   ///< most input voltage, V
    double dIMaxEntrada = 0.0;              ///< current that each panel field must keep to, A
    int iNumMPPT = 0, iNumEntradas = 0;
    int iUsoPrincipal = 0;  ///< 0: for connection to the grid
    int iTipoSalida = 0;
};

EFV_API InversorLeido LeerInversor(const CBaseInversorModelo& modelo);

// ---------------------------------------------------------------------------------------------------
// Stand-alone
// ---------------------------------------------------------------------------------------------------

/// Working values of the stand-alone assistant. The record's fields stand in it as the person last left
/// them; its lists of loads stay empty here. The ranges that the assistant keeps its fields to are the limits
/// of ValoresPorNombre. Nothing is checked here: a `dTensionSistema` of 0, or a loss of exactly 100, gives
/// infinities.
struct ValoresAislada : CSFVAsistenteAislada {
    // The place
    double dLatitud = 0.0;                 ///< degrees
    int iHemisferio = 1;                   ///< 1 north, else south
    std::array<double, 12> adRadiacion{};  ///< mean daily horizontal radiation of each month, kJ/m²·day

    double dPanelesPorFila = 25.0;  ///< edited as a number with decimals, kept as a whole one

    // Models, as last found
    double dCapacidadAcumulador = 0.0;  ///< rated capacity in force, Ah
    DatosAcumulador acumulador;
    DatosPanel panel;

    // Energy and batteries
    double dEnergiaDiaria = 0.0;     ///< of the loads, Wh a day
    double dEnergiaNecesaria = 0.0;  ///< the same before the losses, Wh a day
    double dEnergiaAcumulador = 0.0, dEnergiaCableado = 0.0, dEnergiaAcoplamiento = 0.0;  ///< lost, Wh a day
    double dCapacidadNecesaria = 0.0;                                                     ///< Ah
    double dCapacidadResultante = 0.0, dCapacidadResultanteP = 0.0;                       ///< Ah
    int iAcumuladoresSerieP = 0, iAcumuladoresParaleloP = 0;
    int iTotalAcumuladores = 0;
    double dPesoAcumuladores = 0.0;  ///< kg

    // Sun
    double dInclinacionP = 0.0, dOrientacionP = 0.0;  ///< degrees
    double dHSP = 0.0, dHSPP = 0.0;                   ///< peak sun hours, kWh/m²·day
    CString csMesReferencia;                          ///< name of the month that they are of
    std::array<double, 12> adRadiacionInclinada{};    ///< at the tilt in force, kJ/m²·day

    // Panels
    double dPotenciaMinima = 0.0, dPotenciaMinimaP = 0.0;  ///< Wp
    int iPanelesNecesarios = 0, iPanelesNecesariosP = 0;   ///< for that power, before branches
    int iPanelesSerieP = 0, iPanelesParaleloP = 0;
    int iRamalesNecesarios = 0;                                  ///< branches at the tilt in force
    double dPotenciaInstalada = 0.0, dPotenciaInstaladaP = 0.0;  ///< Wp
    int iTotalPaneles = 0;
    double dPesoPaneles = 0.0;           ///< kg
    double dDistanciaFilasP = 0.0;       ///< mm
    double dSuperficieTotal = 0.0;       ///< m²
    double dSuperficieProyectada = 0.0;  ///< on the horizontal, m²
};

/// Values out of the record, without its loads.
EFV_API void TomarDelRegistro(ValoresAislada& v, const CSFVAsistenteAislada& registro);
/// Values back into the record; its loads and what the assistant doesn't show stay.
EFV_API void DevolverAlRegistro(const ValoresAislada& v, CSFVAsistenteAislada& registro);
/// The loads into the record's four arrays, in step; what they held before is lost.
EFV_API void GuardarReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores,
                               CSFVAsistenteAislada& registro);

/// What counts of a load.
struct DatosReceptor {
    int iCantidad;
    double dPotencia;  ///< of one unit, W
    double dHorasDia;  ///< h a day
};

/// The twelve factors for a latitude, a hemisphere and an inclination; nothing outside their range.
using ConsultaFactoresK =
    std::function<std::optional<std::array<double, 12>>(double dLatitud, int iHemisferio, double dAlpha)>;

/// What a recalculation asks others for.
struct EntradaAislada {
    const CBaseAcumuladorModelo*
        acumulador;                     ///< null: unknown model; only the radiation row is then worked out
    const CBasePanelFotoModelo* panel;  ///< null: unknown model; the panels then keep their results
    std::span<const DatosReceptor> receptores;
    ConsultaFactoresK factoresK;
};

/// The whole sizing. With `bForzar` the proposals replace the values in force; without, only the batteries
/// a branch follow theirs.
EFV_API void Recalcular(ValoresAislada& v, const EntradaAislada& entrada, bool bForzar);

/// The working values by the names of the code: the record's own without its lists, then the others.
/// Writing through a reference changes the value.
EFV_API std::vector<CampoRegistro> ValoresPorNombre(ValoresAislada& v);
EFV_API std::vector<CampoRegistroConst> ValoresPorNombre(const ValoresAislada& v);

// ---------------------------------------------------------------------------------------------------
// Connected to the grid
// ---------------------------------------------------------------------------------------------------

/// Working values of the grid-connected assistant. The record's fields stand in it as the person last left
/// them. The ranges that the assistant keeps its fields to are the limits of ValoresPorNombre.
struct ValoresRed : CSFVAsistenteRed {
    double dLatitud = 0.0;        ///< degrees
    CString csHemisferio = L"N";  ///< "N" north, else south

    InversorLeido inversor;
    DatosPanel panel;

    int iInversoresP = 0;
    int iPanelesSerieP = 0, iPanelesParaleloP = 0;
    double dInclinacionP = 0.0, dOrientacionP = 0.0;                     ///< degrees
    double dDistanciaFilasP = 0.0;                                       ///< mm
    double dPotenciaInversorCampo = 0.0, dPotenciaInversorCampoP = 0.0;  ///< panels of one inverter, Wp
    double dTensionRamal = 0.0, dTensionRamalP = 0.0;                    ///< V
    int iPanelesInversor = 0, iPanelesInversorP = 0;
    int iTotalPaneles = 0, iTotalPanelesP = 0;
    double dPotenciaTotal = 0.0, dPotenciaTotalP = 0.0;                // of the panels, kW
    double dPotenciaInversores = 0.0, dPotenciaInversoresP = 0.0;      ///< kW
    double dSuperficieTotal = 0.0, dSuperficieTotalP = 0.0;            ///< m²
    double dSuperficieProyectada = 0.0, dSuperficieProyectadaP = 0.0;  ///< on the horizontal, m²
};

/// The whole sizing at standard conditions. With `bForzar` the proposals replace the values in force.
/// `inversor` and `panel` must have been read (LeerInversor, Disponer); a model that isn't known has data
/// of 0, and the results then mean nothing.
EFV_API void RecalcularRed(ValoresRed& v, bool bForzar);

EFV_API std::vector<CampoRegistro> ValoresPorNombre(ValoresRed& v);
EFV_API std::vector<CampoRegistroConst> ValoresPorNombre(const ValoresRed& v);

// ---------------------------------------------------------------------------------------------------
// Strings at the temperatures of the place. It changes no result of the sizing, which works at standard
// conditions.
// ---------------------------------------------------------------------------------------------------

/// A field of panels on one inverter.
struct CampoInversor {
    int iPanelesSerie = 1;     ///< panels a string
    int iPanelesParalelo = 1;  ///< strings, spread over the trackers as evenly as they can be
    double dTemperaturaMinima = -10.0, dTemperaturaMaxima = 70.0;  ///< of the cells, ºC
};

/// A limit that a field of panels has to keep. Voltages and currents at 1000 W/m².
enum class Limite {
    tensionVacioInversor,    ///< open circuit at the lowest temperature, V: at most the inverter's input
    tensionVacioModulo,      ///< the same: at most the module's system voltage
    tensionMppMaxima,        ///< maximum power at the lowest temperature, V: at most the end of the window
    tensionMppMinima,        ///< maximum power at the highest temperature, V: at least its beginning
    corrienteMpp,            ///< maximum power on the busiest tracker, A: at most its input current
    corrienteCortocircuito,  ///< short circuit at the highest temperature there, A: at most the inverter's
    potenciaCC,              ///< peak power, W: at most the inverter's
    ramales,                 ///< strings: at most the inverter's inputs
    tensionVacioRegulador,   ///< open circuit at the lowest temperature, V: at most the regulator's
    tensionMppRegulador,     ///< maximum power at the highest temperature, V: at least the regulator's
    corrienteRegulador,      ///< short circuit at the highest temperature, A: at most the regulator's
};

struct Comprobacion {
    Limite limite;
    double dValor;                ///< not a number when a figure of the module that it hangs on isn't known
    double dLimite;               ///< 0 when the catalogue doesn't give it
    std::optional<bool> bCumple;  ///< nothing when the catalogue doesn't give the limit or those figures
};

struct ComprobacionCampo {
    std::vector<Comprobacion> limites;  ///< one of each that the field has, in the order of the enumeration
    double dRatioCCCA = 0.0;            ///< peak power over the inverter's nominal output; infinite without it

    bool Incumple() const;  ///< whether any limit is passed
};

/// Holds the field against the limits of module and inverter. The module's values at a temperature are
/// those of phCalcValoresTipicos; of maximum power, the voltage follows the power and the current stays. What a
/// model's file doesn't give (CModelo::uAusentes) and a 0 count as unknown, and leave what hangs on them open;
/// of a temperature coefficient that is unknown, a limit that the values at 25 ºC keep to.
EFV_API ComprobacionCampo Comprobar(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                                    const CBaseInversorModelo& inversor);

/// What a regulator of charge takes from the panels; 0 isn't known.
struct LimitesRegulador {
    double dTensionMaxima = 0.0, dTensionMinima = 0.0;  ///< of the panels' circuit, V
    double dCorrienteMaxima = 0.0;                      ///< A
};

/// The same for a field on a regulator; without ratio.
EFV_API ComprobacionCampo Comprobar(const CampoInversor& campo, const CBasePanelFotoModelo& panel,
                                    const LimitesRegulador& regulador);

/// Why no field of a module fits an inverter or a regulator.
enum class SinPropuesta {
    ninguna,             ///< there is one
    usoAislado,          ///< the inverter isn't meant for the grid
    sinDatos,            ///< no limit of voltage is known, or no power
    tension,             ///< no count of panels in series keeps within the voltages
    corriente,           ///< a single string has too much current for a tracker
    potenciaCC,          ///< the shortest string has too much power for an inverter
    tensionRegulador,    ///< no count of panels in series keeps within the regulator's voltages
    corrienteRegulador,  ///< a single string has too much current for the regulator
    potenciaRegulador,   ///< no field that keeps to the regulator's limits reaches the power
    reparto,             ///< no even division of a given count of panels passes its checks
};

struct PropuestaComprobada {
    SinPropuesta falta = SinPropuesta::ninguna;
    int iInversores = 0;                  ///< 0 on a regulator
    int iPanelesSerie = 0, iRamales = 0;  ///< strings of one inverter
    double dPotencia = 0.0;               ///< of all panels, kW
    bool bSeguidoresIguales = true;       ///< all trackers have the same count of strings
    ComprobacionCampo comprobacion;
};

/// The field that reaches a power and passes every check that can be made: the fewest inverters, no fewer than
/// their nominal output asks for, on which a field with equal trackers reaches it; of these the least power,
/// then the fewest strings. Fields with unequal trackers count only where no other fits.
/// @param dPotencia kW @param campo its temperatures count
EFV_API PropuestaComprobada ProponerComprobada(double dPotencia, const CampoInversor& campo,
                                               const CBasePanelFotoModelo& panel,
                                               const CBaseInversorModelo& inversor);

/// The same on one regulator: of the fields that reach the power, the least, then that of fewest strings.
EFV_API PropuestaComprobada ProponerComprobada(double dPotencia, const CampoInversor& campo,
                                               const CBasePanelFotoModelo& panel,
                                               const LimitesRegulador& regulador);

/// So many panels on so many inverters, all alike: of the divisions in strings that pass every check that can
/// be made, one with equal trackers before others, then that of fewest strings. Where none does (`falta`
/// reparto) the figures are those of the division that passes the fewest limits.
/// @param iPaneles a multiple of `iInversores`, both positive @param campo its temperatures count
EFV_API PropuestaComprobada RepartirComprobada(int iPaneles, int iInversores, const CampoInversor& campo,
                                               const CBasePanelFotoModelo& panel,
                                               const CBaseInversorModelo& inversor);

}  // namespace efv::assistants
