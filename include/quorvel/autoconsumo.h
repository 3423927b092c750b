// A year of self-consumption out of hours and prices: energy, money by month, simplified compensation of the
// surplus, payback and rate.
//
// Energy in kWh, money in euros, prices in €/kWh.
#pragma once

#include <array>
#include <span>
#include <vector>

#include <quorvel/bateria.h>
#include <quorvel/economics_calculo.h>
#include <quorvel/exportar.h>

namespace efv::economics {

/// An hourly year as a block [12][31][24]; days that a month lacks are 0. @param ad 8760 values
EFV_API std::vector<double> BloqueDeAno(std::span<const double> ad);
/// The other way round.
EFV_API std::vector<double> AnoDeBloque(BloqueHorario bloque);

/// Energy and money of a month or of the year.
struct EFV_API SumaAutoconsumo {
    double dProducida = 0.0, dConsumida = 0.0;
    double dAutoconsumida = 0.0;  ///< directly and out of the battery
    double dVertida = 0.0;
    double dComprada = 0.0;  ///< for use and for the battery
    double dCargaFV = 0.0, dCargaRed = 0.0, dDescarga = 0.0;

    double dGastoSin = 0.0;      ///< what the consumption would cost without the installation
    double dCompra = 0.0;        ///< energy term of what is bought
    double dValorVertido = 0.0;  ///< surplus at its price
    double dCompensado = 0.0;    ///< what of it counts
    double dDegradacion = 0.0;   ///< wear of the battery
    double dAhorro = 0.0;        ///< spent without less compra, plus compensated, less wear

    SumaAutoconsumo& operator+=(const SumaAutoconsumo& otra);
    /// Share of the consumption that isn't bought. @return 0 without consumption
    double Cobertura() const;
    /// Share of the production that isn't exported. @return 0 without production
    double Aprovechamiento() const;
};

enum class PagoVertido {
    compensacion,  ///< simplified: each month at most the energy term of what is bought
    venta          ///< all of it
};

struct AnoAutoconsumo {
    std::array<SumaAutoconsumo, 12> meses{};
    SumaAutoconsumo total;
};

/// A year without a battery, or with what one did.
/// @param operacion null without a battery
EFV_API AnoAutoconsumo EstudiarAno(const HorasEstudio& horas, const OperacionBateria* operacion,
                                   double dCosteDegradacion, PagoVertido pago);

/// What the installation costs and how it is paid.
struct InversionAutoconsumo {
    double dMantenimiento = 0.0;  ///< € a year, taken off the saving
    int iAnos = 25;               ///< of the study
};

struct RentabilidadAutoconsumo {
    Recuperacion recuperacion;
    Tasa tasa;                     ///< of the cost without its financing
    std::vector<double> adFlujos;  ///< saving of each year less maintenance
    double dAcumulado = 0.0;       ///< all of them less the total cost
};

/// Writes financing and payback into the record, whose cost, loan, ageing and price change are set. Each year's
/// saving, maintenance taken off, is the one before times the yearly factor.
EFV_API RentabilidadAutoconsumo CalcularRentabilidad(const AnoAutoconsumo& ano,
                                                     const InversionAutoconsumo& inversion,
                                                     CSFVCalculoEconomicoAuto& registro);

/// Mean day of a season, hour by hour, kWh.
struct DiaTipico {
    std::array<double, 24> adProduccion{}, adConsumo{}, adAutoconsumo{}, adVertido{};
};
/// Winter (December to February), spring, summer, autumn.
EFV_API std::array<DiaTipico, 4> DiasTipicos(const HorasEstudio& horas, const OperacionBateria* operacion);

}  // namespace efv::economics
