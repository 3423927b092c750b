// Charge rules of a battery: what a host without rules of its own hands to the study of self-consumption.
//
// The rules are ours and replaceable: the study takes five finished arrays, whoever makes them. Energy in kWh
// at the battery's terminals unless said otherwise, prices in €/kWh. Hours run on from 1 January to 31
// December; hours of days that a month lacks stay 0.
//
// In every hour, with the self-consumed energy A, the charges and the discharge:
//   production  = self-consumed directly + charged from the panels + exported
//   consumption = A + bought for use, where A = self-consumed directly + discharged
//   stored      = stored before + efficiency of charge × both charges − discharge / efficiency of discharge
// so that charges from the grid are bought besides what is bought for use.
#pragma once

#include <vector>

#include <quorvel/economics_calculo.h>
#include <quorvel/exportar.h>

namespace efv::economics {

struct Bateria {
    double dCapacidad = 0.0;            ///< usable, kWh; 0 stores nothing
    double dPotenciaCarga = 0.0;        ///< kW
    double dPotenciaDescarga = 0.0;     ///< kW
    double dRendimientoCarga = 1.0;     ///< fraction of what is charged that is stored, above 0
    double dRendimientoDescarga = 1.0;  ///< fraction of what is drawn that arrives, above 0
    double dEstadoInicial = 0.0;        ///< stored before the first hour, kWh, at most the capacity
};

enum class ReglaBateria {
    /// Charges what the house leaves of the production, gives whatever the house lacks.
    autoconsumo,
    /// Besides, keeps for the dearer of the next 24 hours what they will lack, and buys it in a cheaper hour
    /// when
    /// the price of the dear hour, less the wear, pays for it after both efficiencies. It knows those 24 hours'
    /// production and consumption. With one price it is the rule above.
    arbitraje
};

/// What a battery did, each a block [12][31][24].
struct EFV_API OperacionBateria {
    std::vector<double> adCargaFV;      ///< charged from the panels
    std::vector<double> adAutoconsumo;  ///< used in the house: directly and discharged
    std::vector<double> adVertido;      ///< exported
    std::vector<double> adCargaRed;     ///< charged from the grid
    std::vector<double> adDescarga;     ///< discharged
    std::vector<double> adEstado;       ///< stored at the end of each hour

    /// As the balance takes it; this object must outlive it. @param dCosteDegradacion € a kWh discharged
    HorasBateria Horas(double dCosteDegradacion) const;
};

/// A year of a battery. Fills `operacion`, keeping its storage.
/// @param dCosteDegradacion € a kWh discharged, for the rule of prices
/// @throws CInvalidArgException for a size, power or efficiency that no battery has
EFV_API void OperarBateria(const HorasEstudio& horas, const Bateria& bateria, ReglaBateria regla,
                           double dCosteDegradacion, OperacionBateria& operacion);

}  // namespace efv::economics
