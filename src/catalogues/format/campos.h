// A model's fields, declared once in the reading order of its file: the reader, the write-back of an
// element and the attributes of a new one follow from the table.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include <quorvel/catalogues/base.h>

namespace efv::catalogues {

/// Without a member: the attribute belongs to the file's models, and no field holds it.
template <class M>
using MiembroModelo = std::variant<std::monostate, int M::*, short M::*, double M::*, CString M::*>;

/// What a 0 in a data sheet says.
enum class Cero {
    esValor,
    sinDato,  ///< that the figure isn't known
};

enum class Omision {
    falta,     ///< without its attribute the field has a value that isn't the model's
    derivada,  ///< its value then follows from the model's other fields
};

template <class M>
struct CampoModelo {
    const char* atributo;  ///< name in the file, and of the field
    MiembroModelo<M> miembro;
    std::wstring_view columna = {};  ///< heading in lists of models; empty: not shown there
    Cero cero = Cero::esValor;
    Omision omision = Omision::falta;
};

/// What a catalogue is called.
struct NombresCatalogo {
    const char* claseBase;
    const char* claseFamilia;
    const char* claseModelo;
    std::wstring_view rotulo;  ///< label in the viewer
    std::wstring_view titulo;  ///< title of the viewer
    int iCadenaFichero;        ///< number of the text that names its file
    std::wstring_view imagen;  ///< name of the picture of a model
};

/// What is to be given for each model class M, derived from ReglasCatalogo<M>:
///   static constexpr NombresCatalogo kNombres;
///   static constexpr auto kCampos;   an array of CampoModelo<M>, in the order of reading
template <class M>
struct FormatoCatalogo;

/// What a catalogue may have of its own in reading and editing; most have nothing.
template <class M>
struct ReglasCatalogo {
    using Base = CBaseCatalogo<M>;

    static std::span<const CampoModelo<M>> Campos() { return FormatoCatalogo<M>::kCampos; }
    static const NombresCatalogo& Nombres() { return FormatoCatalogo<M>::kNombres; }

    /// What the held record of a file starts with besides zeros.
    static void Preparar(M& /*retenido*/) {}
    /// What isn't carried over from the model before.
    static void AntesDeModelo(M& /*retenido*/) {}
    /// After the attributes of a model were read.
    static void Sanear(M& /*leido*/) {}
    /// After an element of the document was read for editing.
    static void PrepararEdicion(M& /*modelo*/, bool /*bNuevo*/) {}
    /// After all that the model's file doesn't give was set to 0.
    static void SinHeredar(M& /*propio*/) {}
    /// A chart of what the model's data say by themselves.
    static std::optional<CCtrlCurva2D> Grafica(const M& /*modelo*/) { return std::nullopt; }
    /// Attributes that an accepted element gets when it lacks them.
    static std::span<const char* const> AnadirSiFaltan() { return {}; }
};

template <class M>
bool EsNumerico(const CampoModelo<M>& campo)
{
    return !std::holds_alternative<CString M::*>(campo.miembro);
}

/// Calls `accion` with the model's field of that row; not when it has none.
template <class MODELO, class M, class ACCION>
void AlMiembro(MODELO& modelo, const CampoModelo<M>& campo, ACCION accion)
{
    std::visit(
        [&](auto miembro) {
            if constexpr (!std::is_same_v<decltype(miembro), std::monostate>)
                accion(modelo.*miembro);
        },
        campo.miembro);
}

/// All of the file's fields to 0 and empty.
template <class M>
void Anular(M& modelo)
{
    for (const auto& campo : FormatoCatalogo<M>::Campos())
        AlMiembro(modelo, campo, [](auto& valor) { valor = {}; });
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
