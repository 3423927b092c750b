// Text of "key=value" lines, each key at the beginning of its line and in any case.
#pragma once

#include <string_view>
#include <unordered_map>

#include <quorvel/framework/CString.h>

namespace efv::catalogues {

/// Values by key; of a key that comes twice the first. They point into the text, which outlives it.
class Claves {
public:
    explicit Claves(std::wstring_view texto);

    /// Without blanks around it; empty when it isn't there.
    std::wstring_view Texto(std::wstring_view clave) const;
    bool Falta(std::wstring_view clave) const { return Texto(clave).empty(); }
    /// The number at its beginning; 0 when it isn't there or is none.
    double Numero(std::wstring_view clave) const;

private:
    std::unordered_map<CString, std::wstring_view> m_valores;
};

}  // namespace efv::catalogues
