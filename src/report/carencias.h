// What is said of models whose data sheets are incomplete.
#pragma once

#include <vector>

#include <quorvel/catalogues.h>
#include <quorvel/report/documento.h>

namespace efv::report {

/// What a design takes of a model and the model's file doesn't give.
void AvisarDeCarencias(const CBasePanelFotoModelo& panel, std::vector<Aviso>& avisos);
void AvisarDeCarencias(const CBaseInversorModelo& inversor, std::vector<Aviso>& avisos);
void AvisarDeCarencias(const CBaseAcumuladorModelo& acumulador, std::vector<Aviso>& avisos);

/// A figure whose 0 says that it isn't known, as a number that is written "—".
double SinCero(double d);

}  // namespace efv::report
