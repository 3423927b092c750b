// The equipment of a design by its models, which may be null.
#pragma once

#include <quorvel/report/equipos.h>

namespace efv::report {

CampoPaneles CampoDe(const CString& csPanel, int iSerie, int iParalelo, const CBasePanelFotoModelo* modelo);
BancoAcumuladores BancoDe(const CSFVAsistenteAislada& diseno, const CBaseAcumuladorModelo* modelo);
GrupoInversores GrupoDe(const CSFVAsistenteRed& diseno, const CBaseInversorModelo* modelo);

/// Name and family, from the model or, without it, from the identification itself.
void Identificar(Equipo& equipo, const CString& csId, const CModelo* modelo);

}  // namespace efv::report
