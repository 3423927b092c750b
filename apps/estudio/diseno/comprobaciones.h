// The limits that the field of panels of a design has to keep, line by line, out of what its report calculates.
#pragma once

#include <optional>
#include <vector>

#include "informe/informe.h"
#include "proyecto/proyecto.h"

namespace efv::estudio {

/// What the report of a design calculates, for all who show a part of it.
struct DisenoCalculado {
    report::TemperaturasCelulas temperaturas;
    assistants::ComprobacionCampo comprobacion;
    std::optional<assistants::PropuestaComprobada> propuesta;
    report::Cableado cableado;
    std::optional<report::EnergiaDiseno> energia;
};

/// Nothing without a design, or without one of its models.
std::optional<DisenoCalculado> CalcularDiseno(const CProyectoEstudio& proyecto, Diseno diseno);

/// One limit, as it is read.
struct LineaComprobacion {
    CString csNombre, csValor, csLimite;
    CString csMargen;     ///< what is left to the limit, in per cent of it; negative beyond it
    CString csResultado;  ///< begins with a sign, so that it is told without its colour
    std::optional<bool> bCumple;

    bool operator==(const LineaComprobacion&) const = default;
};

std::vector<LineaComprobacion> ComprobacionesDe(const assistants::ComprobacionCampo& comprobacion);

/// "Propuesta comprobada: 2 × 9 …", or why there is none; empty where the assistant's own proposal will do.
CString TextoPropuesta(const DisenoCalculado& calculado);

/// How the checks went, in a line: "2 comprobaciones no se cumplen", with the cells' temperatures.
CString TextoVeredicto(const DisenoCalculado& calculado);

}  // namespace efv::estudio
