// The schematics of the project's designs: the library's, with the models of the module's catalogues and the
// symbols of this host.
#pragma once

#include <quorvel/report/esquema.h>

#include "anfitrion/simbolos.h"
#include "diseno/equipos.h"

namespace efv::estudio {

using report::Conexion;
using report::Elemento;
using report::Esquema;
using report::kInversoresDibujados;

using report::MarcarFallos;

/// Empty while there is no accepted design.
inline Esquema EsquemaDe(const CSFVAsistenteAislada& diseno)
{
    return report::EsquemaDe(diseno, CatalogosDelModulo(), CableadoDe(diseno), &EsUnifilar);
}
inline Esquema EsquemaDe(const CSFVAsistenteRed& diseno, report::Detalle detalle = report::Detalle::extremos)
{
    return report::EsquemaDe(diseno, CatalogosDelModulo(), CableadoDe(diseno), &EsUnifilar, detalle);
}

}  // namespace efv::estudio
