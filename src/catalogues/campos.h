// A model's fields, declared once in the reading order of its file: the reader, the write-back of an
// element and the attributes of a new one follow from the table.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include <quorvel/framework/CString.h>

namespace efv::catalogues {

template <class M>
using MiembroModelo = std::variant<int M::*, short M::*, double M::*, CString M::*>;

template <class M>
struct CampoModelo {
    const char* atributo;  ///< name in the file, and of the field
    MiembroModelo<M> miembro;
};

/// What a catalogue is called.
struct NombresCatalogo {
    const char* claseBase;
    const char* claseFamilia;
    const char* claseModelo;
    std::wstring_view rotulo;  ///< label in the viewer
    std::wstring_view titulo;  ///< title of the viewer
};

/// To be given for each model class M:
///   static std::span<const CampoModelo<M>> Campos();
///   static NombresCatalogo Nombres();
///   static void Preparar(M& retenido);   what the held record starts with besides zeros
///   static void AntesDeModelo(M& retenido);   what isn't carried over from the model before
template <class M>
struct Catalogo;

/// All of the file's fields to 0 and empty.
template <class M>
void Anular(M& modelo)
{
    for (const auto& campo : Catalogo<M>::Campos())
        std::visit([&](auto m) { modelo.*m = {}; }, campo.miembro);
}

/// Copies members of a model to the outputs of a getter, one for one: count and types are checked by
/// the compiler.
template <auto... MIEMBROS, class M, class... SALIDAS>
void CopiarSalidas(const M& modelo, SALIDAS&... salidas)
{
    static_assert(sizeof...(MIEMBROS) == sizeof...(SALIDAS));
    ((salidas = modelo.*MIEMBROS), ...);
}

}  // namespace efv::catalogues
