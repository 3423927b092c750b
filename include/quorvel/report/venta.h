// A sale to the grid as a study: energy of the year from the place or as given, the years in full precision,
// what must be looked at, and the whole told as a document.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include <quorvel/economics_calculo.h>
#include <quorvel/report/disenos.h>

namespace efv::report {

struct ProyectoVenta {
    std::string titulo;
    DatosPortada portada;
    std::optional<LugarDiseno> lugar;    ///< needed unless the energy is given
    std::optional<double> dInclinacion;  ///< of the panels toward the equator, degrees
    CSFVCalculoEconomico registro;       ///< its `dEnergiaBase` counts when it is among those fixed
    std::set<std::string> fijados;       ///< fields of the record that the project gives
    std::vector<std::string> notas;      ///< what must be known of the project's file; not on pages

    double Inclinacion() const { return dInclinacion.value_or(30.0); }
    bool EnergiaDada() const { return fijados.contains("dEnergiaBase"); }
};

struct EstudioVenta {
    CSFVCalculoEconomico estudio;       ///< amounts, years and, with a place, months
    bool bTasaHallada = false;          ///< false also when nothing is paid at the start
    bool bPlano = true;                 ///< the table of factors K reaches the place
    std::optional<int> iAnoRecuperado;  ///< first year, from 1, from which the accumulated flow stays above 0
};

/// @throws CInvalidArgException above 100,000 years of study
EFV_API EstudioVenta Calcular(const ProyectoVenta& proyecto, const CBaseFactorK& tabla);

EFV_API std::vector<Aviso> Avisos(const ProyectoVenta& proyecto, const EstudioVenta& estudio);

/// What the study takes for granted, values left at their default among it.
EFV_API std::vector<std::string> Supuestos(const ProyectoVenta& proyecto, const EstudioVenta& estudio);

EFV_API Documento EscribirDocumento(const ProyectoVenta& proyecto, const EstudioVenta& estudio,
                                    std::vector<Aviso> avisos);

}  // namespace efv::report
