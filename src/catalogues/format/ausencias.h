// What a model's data sheet doesn't say: attributes that its file lacks, zeros that stand for what isn't known.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

#include "catalogues/format/campos.h"

namespace efv::catalogues {

// Whether a value of a field whose zeros say so tells that nothing is known; a list of numbers, when all are 0.
inline bool DiceSinDato(double d)
{
    return d == 0.0;
}
inline bool DiceSinDato(int i)
{
    return i == 0;
}
inline bool DiceSinDato(const CString& cs)
{
    return cs.find_first_of(L"123456789") == CString::npos;
}

/// The bit of a field in CModelo::uAusentes.
template <class M>
constexpr std::uint64_t MarcaDe(const MiembroModelo<M>& miembro)
{
    std::uint64_t uMarca = 1;
    for (const auto& campo : FormatoCatalogo<M>::kCampos) {
        if (campo.miembro == miembro)
            return uMarca;
        uMarca <<= 1U;
    }
    return 0;
}

/// Whether the model's file lacks the attribute.
template <class M>
bool Omitido(const M& modelo, const std::type_identity_t<MiembroModelo<M>>& miembro)
{
    return (modelo.uAusentes & MarcaDe<M>(miembro)) != 0;
}

/// A field of which the model's data sheet says nothing.
struct SinDato {
    std::string_view campo;
    bool bAusente;  ///< the file lacks it; else it holds a 0 for what isn't known
};

template <class M>
std::vector<SinDato> CamposSinDato(const M& modelo)
{
    std::vector<SinDato> campos;
    std::uint64_t uMarca = 1;
    for (const auto& campo : FormatoCatalogo<M>::Campos()) {
        const bool bAusente = campo.omision == Omision::falta && (modelo.uAusentes & uMarca) != 0;
        AlMiembro(modelo, campo, [&](const auto& valor) {
            if (bAusente || (campo.cero == Cero::sinDato && DiceSinDato(valor)))
                campos.push_back({campo.atributo, bAusente});
        });
        uMarca <<= 1U;
    }
    return campos;
}

/// The model with 0 and empty in all that isn't its own.
template <class M>
M SinHeredar(const M& modelo)
{
    M propio = modelo;
    std::uint64_t uMarca = 1;
    for (const auto& campo : FormatoCatalogo<M>::Campos()) {
        if (campo.omision == Omision::falta && (modelo.uAusentes & uMarca) != 0)
            AlMiembro(propio, campo, [](auto& valor) { valor = {}; });
        uMarca <<= 1U;
    }
    FormatoCatalogo<M>::SinHeredar(propio);
    propio.uAusentes = 0;
    return propio;
}

}  // namespace efv::catalogues
