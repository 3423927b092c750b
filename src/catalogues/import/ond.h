// An OND file taken as it is meant: powers in watts, the current of one tracker, each dimension in its
// own field.
#pragma once

#include <string_view>
#include <vector>

#include <quorvel/catalogues/inversor.h>

namespace efv::catalogues {

struct OndLeido {
    CString csModelo;
    CString csFabricante;
    DatosInversor datos;
    std::vector<CString> acsAvisos;  ///< what was corrected, and the keys that the file lacks
};

/// @param csTexto lines of "KEY=value"; a key's case and the blanks around it don't matter
OndLeido LeerOndCorregido(std::wstring_view csTexto);

}  // namespace efv::catalogues
