// A model's figures as questions to a catalogue see them.
#pragma once

#include <string_view>
#include <vector>

#include <quorvel/catalogues/consulta.h>

#include "platform/texto/recortar.h"

namespace efv::catalogues {

inline std::wstring_view Llano(std::wstring_view texto)
{
    return efv::texto::Recortar<wchar_t>(texto, L" \t\u00a0");
}

/// Whether the model's own file gives it a figure in that field.
inline bool Conocido(const TipoCatalogo& tipo, const CModelo& modelo, std::size_t iCampo)
{
    return iCampo == kCampoFamilia ||
           (!Ausente(modelo, tipo.Campos()[iCampo]) && !Desconocido(tipo, modelo, iCampo));
}

inline ValorCampo ValorDe(const TipoCatalogo& tipo, const CModelo& modelo, std::size_t iCampo)
{
    return iCampo == kCampoFamilia ? ValorCampo(modelo.csFamilia) : tipo.Valor(modelo, iCampo);
}

/// The magnitude in whose unit lists show the field; empty: as stored.
std::wstring_view MagnitudDe(const TipoCatalogo& tipo, std::size_t iCampo);

/// Entries of a field that is a choice, or a tick; none of any other.
std::vector<CString> EntradasDe(const TipoCatalogo& tipo, std::size_t iCampo);

}  // namespace efv::catalogues
