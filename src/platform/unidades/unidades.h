// Values and captions in the person's units.
#pragma once

#include <string_view>

#include <quorvel/unidades.h>

namespace efv::unidades {

/// Symbol of the unit in use.
CString cuSimbolo(std::wstring_view magnitud);

/// A stored value as the person reads it, with its symbol: "25 ºC".
CString cuCadena(std::wstring_view magnitud, double d, int iDecimales);

/// A caption with the marks in it ("~DIM~") replaced by the symbols of the units in use.
CString cuCompletarEtiquetas(std::wstring_view rotulo);

/// A stored value in the unit in use, and back. In the stored unit both are the value itself.
double AlUsuario(std::wstring_view magnitud, double d);
double DelUsuario(std::wstring_view magnitud, double d);

}  // namespace efv::unidades
