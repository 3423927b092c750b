// Lists of an inverter's inputs.
#pragma once

#include <quorvel/entradas.h>

namespace efv::electrical {

using Entradas = CObArrayPropio<CSFVInverterInput>;

/// More inputs than any inverter has: a mistake, which must not take all memory.
inline constexpr int kEntradasMaximas = 10000;

/// Label of an input: tracker and place on it, both from 1.
CString RotuloDeEntrada(int iNumeroInversor, int iSeguidor, int iEntrada);

/// As phAsignArrayInverterInputs. @return the list's count
int AsignarEntradas(int iNumeroInversor, int iNumMPPT, int iNumEntradas, Entradas& entradas, bool bForzar);

/// Replaces what `destino` holds. @return its count
int CopiarEntradas(const Entradas& origen, Entradas& destino);

bool SonIguales(const Entradas& a, const Entradas& b);

}  // namespace efv::electrical
