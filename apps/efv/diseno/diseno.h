// The two designs and the sale to the grid: a project file in, a document, the values and the record's archive
// out.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include <quorvel/report/documento.h>
#include <quorvel/report/plano.h>

#include "diseno/lectura.h"
#include "proyecto/aceptacion.h"

namespace efv::orden {

struct Diseno {
    report::Documento documento;
    nlohmann::ordered_json valores;         ///< what --json writes
    std::vector<std::byte> archivo;         ///< the record's items alone
    std::string csv;                        ///< what --csv writes, of those that have it
    std::vector<report::Esquema> esquemas;  ///< its schematic in the forms that sheets of paper may have
    report::Cajetin cajetin;
    CObArrayPropio<CSFVDataReceptor> receptores;   ///< of a stand-alone one, as the project gives them
    std::vector<estudio::ModeloGuardado> modelos;  ///< that the project brings, loads among them
    bool bCumple = true;                           ///< no check fails and nothing falls short
};

/// A stand-alone installation. As in the assistant, a forced recalculation first; then the values that the
/// project fixes are put in, and all is recalculated unforced. @param csDatos option --datos
/// @throws rpc::ErrorValor, ErrorEjecucion, CException
Diseno DisenarAislada(const JsonLeido& proyecto, const std::string& csDatos);

/// A grid-connected installation, in the same way.
Diseno DisenarRed(const JsonLeido& proyecto, const std::string& csDatos);

/// A sale to the grid, in full precision: the energy of the year as the file gives it, or from place, plane and
/// power.
Diseno EstudiarVenta(const JsonLeido& proyecto, const std::string& csDatos);

}  // namespace efv::orden
