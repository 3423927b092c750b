// The loads of a project file.
#pragma once

#include <memory>

#include <quorvel/assistants.h>
#include <quorvel/consumption.h>

#include "diseno/lectura.h"
#include "diseno/modelos.h"

namespace efv::orden {

/// A list of loads, each an object with its `csModelo`, other fields of the load and its bands: as
/// `dHorario`, or as `franjas` (for all days) and `horario` (a list of `franjas` for `meses` and `dias`, a
/// later one over an earlier). Voltages, power and so on come from the catalogue where the object doesn't
/// give them. A load that gives its power needs no model, nor one that the catalogue knows.
/// @throws rpc::ErrorValor
CObArrayPropio<CSFVDataReceptor> LeerReceptores(const JsonLeido& lista, const CatalogoDatos& catalogo);

/// The loads that a record keeps in its arrays, in step. @throws rpc::ErrorValor
CObArrayPropio<CSFVDataReceptor> ReceptoresDelRegistro(const CSFVAsistenteAislada& registro,
                                                       const CatalogoDatos& catalogo);

}  // namespace efv::orden
