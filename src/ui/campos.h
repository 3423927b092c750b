// A dialog's fields as tables over an object: one row each, from which the controls, their names and their
// data exchange follow.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <quorvel/ui/dialogo.h>

#include "platform/unidades/unidades.h"
#include "ui/intercambio.h"

namespace efv::ui {

template <class P>
using Miembro = std::variant<int P::*, short P::*, double P::*, CString P::*>;

// ---------------------------------------------------------------------------------------------------
// Names of fields
// ---------------------------------------------------------------------------------------------------

/// What is to be given for each type whose members stand in dialogs, beside the table that declares them:
///   static constexpr std::string_view Nombre(const Miembro<P>& miembro);
/// the member's name as in the code, empty when the table has none. It may also have
///   static std::optional<Intervalo> Limites(const Miembro<P>& miembro);
/// the limits that stand in the table, which hold for rows without limits of their own.
template <class P>
struct CamposDe;

/// A row of a table that does nothing but name members.
template <class P>
struct NombreCampo {
    std::string_view nombre;
    Miembro<P> miembro;
};

/// The row of that member in a table whose rows hold it, as one of several kinds, under `miembro`; null
/// when none does.
template <class TABLA, class P>
constexpr auto* FilaDeMiembro(const TABLA& tabla, const Miembro<P>& miembro)
{
    const auto mismo = [](auto a, auto b) {
        if constexpr (std::is_same_v<decltype(a), decltype(b)>)
            return a == b;
        else
            return false;
    };
    for (const auto& fila : tabla)
        if (std::visit(mismo, miembro, fila.miembro))
            return &fila;
    return static_cast<decltype(&*tabla.begin())>(nullptr);
}

/// Names from a table of rows with `nombre` and `miembro`.
template <class P, const auto& TABLA>
struct CamposDeTabla {
    static constexpr std::string_view Nombre(const Miembro<P>& miembro)
    {
        const auto* fila = FilaDeMiembro(TABLA, miembro);
        return fila != nullptr ? std::string_view(fila->nombre) : std::string_view();
    }
};

/// The member's name. One without a name doesn't compile, or throws where its table is known to the linker
/// only.
template <class P>
constexpr std::string_view NombreDeMiembro(const Miembro<P>& miembro)
{
    const std::string_view nombre = CamposDe<P>::Nombre(miembro);
    if (nombre.empty())
        throw std::logic_error("a dialog's field that its type's table doesn't name");
    return nombre;
}

template <class P, class T>
constexpr std::string_view NombreDeCampo(T P::*miembro)
{
    return NombreDeMiembro<P>(miembro);
}

// ---------------------------------------------------------------------------------------------------
// Rows
// ---------------------------------------------------------------------------------------------------

/// An end of a field's limits: a number, or the object's own value of another field.
template <class P>
struct Extremo {
    constexpr Extremo(int i) : valor(static_cast<double>(i)) {}  // NOLINT(*-explicit-*)
    constexpr Extremo(double d) : valor(d) {}                    // NOLINT(*-explicit-*)
    constexpr Extremo(int P::*miembro) : valor(miembro) {}       // NOLINT(*-explicit-*)
    constexpr Extremo(double P::*miembro) : valor(miembro) {}    // NOLINT(*-explicit-*)

    double En(const P& datos) const
    {
        if (const auto* fijo = std::get_if<double>(&valor))
            return *fijo;
        if (const auto* entero = std::get_if<int P::*>(&valor))
            return datos.*(*entero);
        return datos.*std::get<double P::*>(valor);
    }

    /// The field that it is read from; nothing for a number.
    std::optional<Miembro<P>> DeCampo() const
    {
        if (const auto* entero = std::get_if<int P::*>(&valor))
            return *entero;
        if (const auto* doble = std::get_if<double P::*>(&valor))
            return *doble;
        return std::nullopt;
    }

    std::variant<double, int P::*, double P::*> valor;
};

/// Limits of a field, in stored units; empty ones let any number pass. They hold when `cuando` says so, and
/// not while a field that they are read from is hidden.
template <class P>
struct LimitesFicha {
    constexpr LimitesFicha() = default;
    constexpr LimitesFicha(Extremo<P> minimo, Extremo<P> maximo, bool (*siempreQue)(const P&) = nullptr)
        : extremos(std::pair(minimo, maximo)), cuando(siempreQue)
    {
    }

    std::optional<std::pair<Extremo<P>, Extremo<P>>> extremos;
    bool (*cuando)(const P& datos) = nullptr;
};

/// One field; its name is its member's.
template <class P>
struct Campo {
    Miembro<P> miembro;
    std::wstring_view rotulo;
    LimitesFicha<P> limites = {};
    int decimales = 2;
    std::span<const std::wstring_view> entradas = {};  ///< not empty: a combo over an int
    std::wstring_view magnitud = {};                   ///< of a decimal that is shown in the person's unit
    bool casilla = false;                              ///< a check box over an int, 0 or 1
    std::optional<Miembro<P>> junto = {};              ///< the field, further up, on whose line it stands
    std::wstring_view indicacion = {};                 ///< what the caption doesn't tell
};

/// Of ticks that more than one layer has: with a model, left out.
inline constexpr std::wstring_view kDelCatalogo = L"Con los datos de un modelo del catálogo";
inline constexpr std::wstring_view kFueraDelCalculo = L"Sigue en el dibujo y no cuenta en el cálculo";

/// A table of rows; each member must have a name.
template <class P, std::size_t N>
constexpr std::array<Campo<P>, N> Campos(Campo<P> (&&campos)[N])  // NOLINT(*-avoid-c-arrays)
{
    for (const Campo<P>& campo : campos)
        NombreDeMiembro<P>(campo.miembro);
    return std::to_array(std::move(campos));
}

// ---------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------

/// The controls that show one object's members, found by member. The object and the controls' owners must
/// outlive it.
template <class P>
class CamposDeObjeto {
public:
    explicit CamposDeObjeto(P& objeto) : m_objeto(objeto) {}
    CamposDeObjeto(const CamposDeObjeto&) = delete;
    CamposDeObjeto& operator=(const CamposDeObjeto&) = delete;

    /// Adds the controls of rows to a dialog or page, all of them at the same place.
    template <std::size_t N>
    void Anadir(Contenedor& donde, const std::array<Campo<P>, N>& campos, const Colocacion& colocacion = {})
    {
        for (const Campo<P>& campo : campos)
            Anadir(donde, campo, colocacion);
    }

    Control& Anadir(Contenedor& donde, const Campo<P>& campo, const Colocacion& colocacion = {})
    {
        return Anadir(donde, NombreDeMiembro<P>(campo.miembro), campo, colocacion);
    }

    Control& Anadir(Contenedor& donde, std::string_view nombre, const Campo<P>& campo,
                    const Colocacion& colocacion)
    {
        Control& control = Crear(donde, nombre, campo);
        control.colocacion = colocacion;
        control.csIndicacion = campo.indicacion;
        if (campo.junto)
            control.colocacion.junto = &De(*campo.junto);
        return control;
    }

    /// The control of a member, which must have one.
    Control& De(const Miembro<P>& miembro) const
    {
        return std::visit([](auto* control) -> Control& { return *control; }, Hallar(miembro).mando);
    }
    Edicion& De(double P::*miembro) const { return De<Edicion>(miembro); }
    Edicion& De(CString P::*miembro) const { return De<Edicion>(miembro); }

    /// The same as the kind that its row asks for: Edicion, Casilla or Seleccion.
    template <class C>
    C& De(const Miembro<P>& miembro) const
    {
        return *std::get<C*>(Hallar(miembro).mando);
    }

    /// The object into its controls, and no others.
    void Volcar() const
    {
        for (const Enlace& enlace : m_enlaces)
            std::visit([](auto* control) { ui::Volcar(*control); }, enlace.mando);
    }

    /// The controls show the object and never change it: none is at fault, whatever stands in it.
    void SoloMostrar() const
    {
        const auto mostrar = [](auto* control) {
            control->PonerSoloLectura();
            if constexpr (requires { control->intercambio; })
                control->intercambio = Intercambio::soloMuestra;
        };
        for (const Enlace& enlace : m_enlaces)
            std::visit(mostrar, enlace.mando);
    }

private:
    struct Enlace {
        Miembro<P> miembro;
        std::variant<Edicion*, Casilla*, Seleccion*> mando;
    };

    const Enlace& Hallar(const Miembro<P>& miembro) const
    {
        if (const Enlace* enlace = FilaDeMiembro(m_enlaces, miembro))
            return *enlace;
        throw std::out_of_range("a member without a control");
    }

    Control& Crear(Contenedor& donde, std::string_view nombre, const Campo<P>& campo)
    {
        if (campo.casilla)
            return Enlazar(campo, CrearCasilla(donde, nombre, campo));
        if (!campo.entradas.empty())
            return Enlazar(campo, CrearCombo(donde, nombre, campo));
        return Enlazar(campo, CrearEdicion(donde, nombre, campo));
    }

    template <class C>
    Control& Enlazar(const Campo<P>& campo, C& control)
    {
        m_enlaces.push_back({campo.miembro, &control});
        return control;
    }

    Edicion& CrearEdicion(Contenedor& donde, std::string_view nombre, const Campo<P>& campo)
    {
        auto& edicion = donde.Anadir<Edicion>(nombre, unidades::cuCompletarEtiquetas(campo.rotulo));
        edicion.destino = std::visit([&](auto m) { return Destino(&(m_objeto.*m)); }, campo.miembro);
        edicion.magnitud = campo.magnitud;
        edicion.iDecimales = campo.decimales;
        if (campo.limites.extremos)
            edicion.limites = Limites([this, limites = campo.limites] { return IntervaloDe(limites); });
        else if constexpr (requires { CamposDe<P>::Limites(campo.miembro); })
            if (const auto intervalo = CamposDe<P>::Limites(campo.miembro))
                edicion.limites = *intervalo;
        return edicion;
    }

    Casilla& CrearCasilla(Contenedor& donde, std::string_view nombre, const Campo<P>& campo)
    {
        auto& casilla = donde.Anadir<Casilla>(nombre, unidades::cuCompletarEtiquetas(campo.rotulo));
        casilla.destino = &(m_objeto.*std::get<int P::*>(campo.miembro));
        return casilla;
    }

    Seleccion& CrearCombo(Contenedor& donde, std::string_view nombre, const Campo<P>& campo)
    {
        auto& combo = donde.Anadir<Seleccion>(nombre, campo.rotulo, Seleccion::Forma::combo);
        combo.acsEntradas.assign(campo.entradas.begin(), campo.entradas.end());
        combo.destino = &(m_objeto.*std::get<int P::*>(campo.miembro));
        return combo;
    }

    std::optional<Intervalo> IntervaloDe(const LimitesFicha<P>& limites) const
    {
        const auto& [minimo, maximo] = *limites.extremos;
        if ((limites.cuando != nullptr && !limites.cuando(m_objeto)) || EstaOculto(minimo) ||
            EstaOculto(maximo))
            return std::nullopt;
        return Intervalo{minimo.En(m_objeto), maximo.En(m_objeto)};
    }

    bool EstaOculto(const Extremo<P>& extremo) const
    {
        const auto campo = extremo.DeCampo();
        const Enlace* enlace = campo ? FilaDeMiembro(m_enlaces, *campo) : nullptr;
        return enlace != nullptr && std::visit([](auto* control) { return !control->bVisible; }, enlace->mando);
    }

    P& m_objeto;
    std::vector<Enlace> m_enlaces;
};

}  // namespace efv::ui
