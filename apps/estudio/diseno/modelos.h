// The catalogue models of designs, those that the open project keeps among them.
#pragma once

#include <string_view>
#include <vector>

#include <quorvel/report/equipos.h>

#include "proyecto/aceptacion.h"

namespace efv::estudio {

/// A model that a design has chosen.
struct EquipoElegido {
    std::string_view tipo;  ///< as TipoCatalogo names it
    CString csId;
    std::wstring_view nombre;  ///< "El panel"
};
/// But for the loads, in one order.
std::vector<EquipoElegido> EquiposDe(const CSFVAsistenteAislada& diseno);
std::vector<EquipoElegido> EquiposDe(const CSFVAsistenteRed& diseno);
/// Loads as well.
std::vector<EquipoElegido> TodosLosEquipos(const CSFVAsistenteAislada& diseno);
std::vector<EquipoElegido> TodosLosEquipos(const CSFVAsistenteRed& diseno);
/// An inverter that no design chooses.
EquipoElegido InversorElegido(const CString& csId);

/// Data of the models, each once; those that are nowhere are left out.
std::vector<ModeloGuardado> ModelosDe(const std::vector<EquipoElegido>& equipos);

/// In the module's own catalogue.
bool EstaEnElCatalogo(const ModeloGuardado& guardado);
/// Names of the figures that the catalogue has otherwise now, up to a few; empty when it has the same or lacks
/// the model.
CString CamposCambiados(const ModeloGuardado& guardado);

/// From now on the catalogues of designs have `equipos` out of `guardados` where the module lacks them.
void PonerModelosGuardados(const std::vector<EquipoElegido>& equipos,
                           const std::vector<const ModeloGuardado*>& guardados);
/// The module's catalogues; of a kind of which it lacks something, those of PonerModelosGuardados.
report::Catalogos CatalogosConGuardados();

}  // namespace efv::estudio
