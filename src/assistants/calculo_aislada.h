// Sizing of a stand-alone installation: a steady-state balance between loads, batteries and panels.
//
// Each result stands twice: the value in force, which the person may overrule, and the program's proposal,
// whose name ends in P.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>

#include <quorvel/assistants.h>

#include "assistants/equipos.h"

namespace efv::assistants {

/// Working values of the assistant. The record's fields stand in it as the person last left them; its lists
/// of loads stay empty here.
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
void TomarDelRegistro(ValoresAislada& v, const CSFVAsistenteAislada& registro);
/// Values back into the record; its loads and what the assistant doesn't show stay.
void DevolverAlRegistro(const ValoresAislada& v, CSFVAsistenteAislada& registro);

/// What counts of a load.
struct Carga {
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
    std::span<const Carga> cargas;
    ConsultaFactoresK factoresK;
};

/// The whole sizing. With `bForzar` the proposals replace the values in force; without, only the batteries
/// a branch follow theirs.
void Recalcular(ValoresAislada& v, const EntradaAislada& entrada, bool bForzar);

/// The shorter calculation of row spacing and areas at the tilt in force, from the panel's own length,
/// however it is disposed.
void EspaciarFilas(ValoresAislada& v, const CBasePanelFotoModelo& panel);

/// The battery's self-discharge at its temperature (`dKaAjustado`) and overall performance (`dR`), from
/// its coefficients. No other result depends on them.
void CalcularCoeficientes(CSFVAsistenteAislada& v);

}  // namespace efv::assistants
