// The equipment of the project's designs, from the module's catalogues.
#pragma once

#include <QuorvelEFV.h>

#include "proyecto/proyecto.h"

namespace efv::estudio {

using report::BancoAcumuladores;
using report::CampoPaneles;
using report::Equipo;
using report::GrupoInversores;
using report::HayDiseno;
using Carga = report::CargaDiseno;

/// The module's catalogues, and what the open project keeps where they lack a model of it.
report::Catalogos CatalogosDelModulo();

template <class DISENO>
CampoPaneles PanelesDe(const DISENO& diseno)
{
    return report::PanelesDe(diseno, CatalogosDelModulo());
}
inline BancoAcumuladores AcumuladoresDe(const CSFVAsistenteAislada& diseno)
{
    return report::AcumuladoresDe(diseno, CatalogosDelModulo());
}
inline GrupoInversores InversoresDe(const CSFVAsistenteRed& diseno)
{
    return report::InversoresDe(diseno, CatalogosDelModulo());
}
inline std::vector<Carga> CargasDe(const CSFVAsistenteAislada& diseno)
{
    return report::CargasDe(diseno, CatalogosDelModulo());
}

/// From now on the cables of designs follow the criteria that the project keeps. @throws std::exception
void UsarCriteriosDe(const CProyectoEstudio& proyecto);
/// The cables of a design, by these.
report::Cableado CableadoDe(const CSFVAsistenteRed& diseno);
report::Cableado CableadoDe(const CSFVAsistenteAislada& diseno);

}  // namespace efv::estudio
