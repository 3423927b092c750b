// Energy of planes that look where they look, beside the methods that take a field to face the equator.
#pragma once

#include <span>
#include <string>
#include <vector>

#include <quorvel/clima.h>
#include <quorvel/exportar.h>
#include <quorvel/solar/energia.h>

namespace efv::solar {

/// A plane with its share of the field's power.
struct PlanoCampo {
    double dInclinacion = 0.0;  ///< 0 to 90 degrees
    double dOrientacion = 0.0;  ///< degrees, 0 south, negative east
    double dParte = 1.0;        ///< fraction

    bool operator==(const PlanoCampo&) const = default;
};

/// Together, fraction; 1 of a whole field, for which LleganAlTotal leaves room for rounding.
EFV_API double SumaDePartes(std::span<const PlanoCampo> planos);
EFV_API bool LleganAlTotal(std::span<const PlanoCampo> planos);

/// Where the hours come from.
enum class OrigenHoras {
    cielo,    ///< the climate library's clear sky, scaled month by month to the place's radiations
    registro  ///< the climate record that the climate library has loaded
};

struct EFV_API EnergiaPlanos {
    struct Plano {
        PlanoCampo plano;
        AnoEnergia ano;        ///< of its share
        AnoEnergia alEcuador;  ///< the same at the same tilt, facing the equator
    };

    OrigenHoras origen = OrigenHoras::cielo;
    std::vector<Plano> planos;

    double Energia() const;           ///< of the year, kWh
    double EnergiaAlEcuador() const;  ///< kWh
    /// What the orientations take away, fraction of what the planes would give facing the equator.
    double Perdida() const;
};

/// The year of a field's planes: radiation on each by hours, then power × share, performance ratio and factor,
/// as the other methods have it. The clear sky, at 25 ºC and a humidity of 0.5, says only which part of the
/// month's horizontal radiation each plane gets.
/// @param campo its own tilt isn't used  @param dAltitud m
EFV_API EnergiaPlanos CalcularPlanos(const CampoSolar& campo, double dAltitud,
                                     std::span<const PlanoCampo> planos, OrigenHoras origen);

/// "cielo despejado ajustado a las doce radiaciones" or "registro climático".
EFV_API std::string NombreDeOrigen(OrigenHoras origen);

}  // namespace efv::solar
