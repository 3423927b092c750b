// The loads of a stand-alone installation between the record's arrays and the list that the person edits.
#pragma once

#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/catalogues.h>
#include <quorvel/consumption.h>

#include "assistants/calculo_aislada.h"

namespace efv::assistants {

using ListaReceptores = CObArrayPropio<CSFVDataReceptor>;

/// Loads out of the record. One whose model the catalogue doesn't have is dropped, and the next takes its
/// bands of use; bands that the record lacks are empty.
/// @throws CInvalidArgException when the arrays of models or hours are shorter than that of units
ListaReceptores LeerReceptores(const CSFVAsistenteAislada& registro, const CBaseReceptores& base);

/// What the sizing needs of them. Whether a load is excluded from consumption sums plays no part.
std::vector<DatosReceptor> ReceptoresParaCalculo(const ListaReceptores& receptores);

}  // namespace efv::assistants
