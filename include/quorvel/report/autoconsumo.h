// A study of self-consumption: hours, tariff, battery and money put together, what must be looked at, and the
// whole told as a document; and the same for many powers and batteries.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <quorvel/autoconsumo.h>
#include <quorvel/report/disenos.h>

namespace efv::report {

/// Cost of an installation by its size.
struct EFV_API CosteAutoconsumo {
    double dFijo = 0.0;           ///< €
    double dPorKWp = 0.0;         ///< €/kWp
    double dPorKWhBateria = 0.0;  ///< €/kWh of capacity
    double dSubvencion = 0.0;     ///< €, at most the cost

    double De(double dPotencia, double dCapacidad) const;
};

struct ProyectoAutoconsumo {
    std::string titulo;
    DatosPortada portada;
    LugarDiseno lugar;
    PlanosDiseno planos;              ///< at least one
    double dPotencia = 0.0;           ///< kWp
    std::optional<double> dInversor;  ///< nominal power, kW; none: nothing is clipped
    double dRendimiento = 0.8;        ///< what the losses leave, fraction
    double dEdad = 0.0;               ///< years that the panels have already aged

    std::vector<double> adConsumo;        ///< 8760 hours, Wh
    std::vector<double> adPrecioConsumo;  ///< €/kWh, with taxes
    std::vector<double> adPrecioVertido;  ///< the same of the surplus
    economics::PagoVertido pago = economics::PagoVertido::compensacion;

    std::optional<economics::Bateria> bateria;
    economics::ReglaBateria regla = economics::ReglaBateria::autoconsumo;
    double dCosteDegradacion = 0.0;  ///< € a kWh discharged

    CosteAutoconsumo coste;
    economics::InversionAutoconsumo inversion;
    CSFVCalculoEconomicoAuto registro;  ///< loan, ageing, price change

    std::vector<Dato> entradas;        ///< where each figure comes from
    std::vector<std::string> notas;    ///< what must be known of the input
    std::vector<std::string> fuentes;  ///< what was taken for granted by whoever read it
};

/// The hours of a study as blocks.
struct EFV_API HorasAutoconsumo {
    std::vector<double> adProduccion, adConsumo, adPrecioConsumo, adPrecioVertido;

    economics::HorasEstudio Horas() const;
};

struct EstudioAutoconsumo {
    HorasAutoconsumo horas;
    std::optional<economics::OperacionBateria> operacion;
    economics::AnoAutoconsumo ano;
    economics::RentabilidadAutoconsumo rentabilidad;
    CSFVCalculoEconomicoAuto registro;
    double dRecortada = 0.0;  ///< kWh that the inverter's power takes away
};

EFV_API EstudioAutoconsumo Calcular(const ProyectoAutoconsumo& proyecto);

EFV_API std::vector<Aviso> Avisos(const ProyectoAutoconsumo& proyecto, const EstudioAutoconsumo& estudio);
EFV_API std::vector<std::string> Supuestos(const ProyectoAutoconsumo& proyecto);

/// One size of a sweep.
struct PuntoBarrido {
    double dPotencia = 0.0, dCapacidad = 0.0;  ///< kWp, kWh
    double dCoste = 0.0, dAhorro = 0.0;        ///< €, € the first year
    double dCobertura = 0.0, dAprovechamiento = 0.0;
    economics::Recuperacion recuperacion;
    economics::Tasa tasa;
    double dGanancia = 0.0;  ///< € at the end of the study, financing included
};

/// Every power with every capacity, powers outermost. The inverter grows with the panels, the battery's power
/// and what is stored at first with its capacity.
/// @param adPotencias kWp  @param adCapacidades kWh; empty: the project's own
EFV_API std::vector<PuntoBarrido> Barrer(const ProyectoAutoconsumo& proyecto,
                                         std::span<const double> adPotencias,
                                         std::span<const double> adCapacidades);

/// @param barrido may be empty
EFV_API Documento EscribirDocumento(const ProyectoAutoconsumo& proyecto, const EstudioAutoconsumo& estudio,
                                    std::vector<Aviso> avisos, std::span<const PuntoBarrido> barrido);

/// Payback and coverage over the power, or over the capacity where that is what varies.
EFV_API CCtrlCurva2D GraficaBarrido(std::span<const PuntoBarrido> barrido);
/// Mean days of the seasons.
EFV_API std::vector<CCtrlCurva2D> GraficasDiasTipicos(const EstudioAutoconsumo& estudio);

}  // namespace efv::report
