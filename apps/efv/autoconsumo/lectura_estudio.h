// The file of a study of self-consumption.
#pragma once

#include <string>
#include <vector>

#include <quorvel/report/autoconsumo.h>

#include "diseno/lectura.h"

namespace efv::orden {

/// What a study file asks for; `acsLeidos` are the files that it names.
struct EstudioLeido {
    report::ProyectoAutoconsumo proyecto;
    bool bCostePorPotencia = false;  ///< one figure was given for the cost: it grows with the power
};

/// @param ruta of the study's file: the files that it names stand beside it
/// @param csDatos option --datos @throws rpc::ErrorValor, ErrorEjecucion, CException
EstudioLeido LeerEstudio(const JsonLeido& json, const std::string& ruta, const std::string& csDatos);

/// Paths of the files that a study names, for what a run may not write.
std::vector<std::string> FicherosDelEstudio(const JsonLeido& json, const std::string& ruta);

/// Those that stand beside the study by their whole paths.
void NombrarFicherosEnteros(JsonLeido& json, const std::string& ruta);

}  // namespace efv::orden
