// A dialog's fields and checks as tables over a record: one row each, from which the controls, their
// data exchange and the checks of OK follow.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <quorvel/ui/dialogo.h>
#include <quorvel/ui/presentador.h>

#include "platform/numero/tolerancia.h"
#include "platform/unidades/unidades.h"
#include "ui/intercambio.h"

namespace efv::ui {

template <class P>
using Miembro = std::variant<int P::*, double P::*, CString P::*>;

/// An end of a field's limits: a number, or the record's own value of another field.
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

    std::variant<double, int P::*, double P::*> valor;
};

/// Limits of a field, in stored units; empty ones let any number pass. They hold when `cuando` says so.
template <class P>
struct LimitesFila {
    constexpr LimitesFila() = default;
    constexpr LimitesFila(Extremo<P> minimo, Extremo<P> maximo, bool (*siempreQue)(const P&) = nullptr)
        : extremos(std::pair(minimo, maximo)), cuando(siempreQue)
    {
    }

    std::optional<std::pair<Extremo<P>, Extremo<P>>> extremos;
    bool (*cuando)(const P& datos) = nullptr;
};

/// One field.
template <class P>
struct Fila {
    const char* nombre;  ///< of the member, as in the code
    Miembro<P> campo;
    std::wstring_view rotulo;
    LimitesFila<P> limites = {};
    int decimales = 2;
    std::span<const std::wstring_view> entradas = {};  ///< not empty: a combo over an int
    std::wstring_view magnitud = {};                   ///< of a decimal that is shown in the person's unit
    bool casilla = false;                              ///< a check box over an int, 0 or 1
};

/// One check of OK: the first that `mal` finds shows its text and keeps the dialog open.
template <class P>
struct Comprobacion {
    const char* foco;  ///< field that gets the focus; null leaves it where it is
    bool (*mal)(const P& datos);
    std::wstring_view texto;
    Icono icono = Icono::advertencia;
};

/// Within the tolerance of 0, or negative.
constexpr bool EsNulo(double d)
{
    return numero::MenorIgual(d, 0.0);
}

template <auto MIEMBRO, class P>
bool Nulo(const P& datos)
{
    return EsNulo(datos.*MIEMBRO);
}

template <auto MIEMBRO, class P>
bool Vacio(const P& datos)
{
    return (datos.*MIEMBRO).empty();
}

/// A dialog over a copy of a record: what the person accepts stands in `datos`.
template <class P>
class DialogoFicha : public Dialogo {
public:
    P datos;

    /// Everything that keeps the record from being accepted: the checks of OK, then the fields outside
    /// their limits, each with its caption.
    std::vector<CString> Faltas()
    {
        std::vector<CString> faltas;
        for (const auto& c : m_comprobaciones)
            if (c.mal(datos))
                faltas.emplace_back(c.texto);
        for (const auto& control : Controles())
            if (auto csFalta = Falta(*control))
                faltas.push_back(NombreVisible(*control) + L" " + *csFalta);
        return faltas;
    }

protected:
    DialogoFicha(std::string_view nombreClase, std::wstring_view titulo, P inicial,
                 std::span<const Comprobacion<P>> comprobaciones)
        : Dialogo(nombreClase, titulo), datos(std::move(inicial)), m_comprobaciones(comprobaciones)
    {
    }

    /// Adds the controls of rows, all of them at the same place.
    template <std::size_t N>
    void Anadir(const std::array<Fila<P>, N>& filas, const Lugar& lugar = {})
    {
        for (const Fila<P>& fila : filas)
            AnadirControl(fila).lugar = lugar;
    }
    using Dialogo::Anadir;

    bool AlAceptar() override
    {
        for (const auto& c : m_comprobaciones) {
            if (!c.mal(datos))
                continue;
            if (c.foco != nullptr)
                foco = &ControlDe<Control>(c.foco);
            MostrarAviso(c.texto, c.icono);
            return false;
        }
        return true;
    }

private:
    // A field may stand on the line of the one before it, without a caption of its own.
    static CString NombreVisible(const Control& control)
    {
        return control.csRotulo.empty() ? CadenaDesdeUtf8(control.nombre) + L":" : control.csRotulo;
    }

    // Why the control doesn't hold its variable's value as it stands.
    static std::optional<CString> Falta(Control& control)
    {
        const auto* combo = dynamic_cast<const Seleccion*>(&control);
        if (combo == nullptr)
            return ui::Recoger(control);
        const bool bElegido = combo->forma != Seleccion::Forma::combo || combo->iSeleccion >= 0;
        return bElegido ? std::nullopt : std::optional<CString>(L"El valor no es ninguno de la lista.");
    }

    Control& AnadirControl(const Fila<P>& fila)
    {
        if (fila.casilla)
            return AnadirCasilla(fila);
        return fila.entradas.empty() ? AnadirEdicion(fila) : AnadirCombo(fila);
    }

    Control& AnadirEdicion(const Fila<P>& fila)
    {
        auto& edicion = Anadir<Edicion>(fila.nombre, unidades::cuCompletarEtiquetas(fila.rotulo));
        edicion.destino = std::visit([&](auto m) { return Destino(&(datos.*m)); }, fila.campo);
        edicion.magnitud = fila.magnitud;
        edicion.iDecimales = fila.decimales;
        if (fila.limites.extremos)
            edicion.limites = Limites([this, limites = fila.limites] { return IntervaloDe(limites); });
        return edicion;
    }

    std::optional<Intervalo> IntervaloDe(const LimitesFila<P>& limites) const
    {
        if (limites.cuando != nullptr && !limites.cuando(datos))
            return std::nullopt;
        return Intervalo{limites.extremos->first.En(datos), limites.extremos->second.En(datos)};
    }

    Control& AnadirCasilla(const Fila<P>& fila)
    {
        auto& casilla = Anadir<Casilla>(fila.nombre, fila.rotulo);
        casilla.destino = &(datos.*std::get<int P::*>(fila.campo));
        return casilla;
    }

    Control& AnadirCombo(const Fila<P>& fila)
    {
        auto& combo = Anadir<Seleccion>(fila.nombre, fila.rotulo, Seleccion::Forma::combo);
        combo.acsEntradas.assign(fila.entradas.begin(), fila.entradas.end());
        combo.destino = &(datos.*std::get<int P::*>(fila.campo));
        return combo;
    }

    std::span<const Comprobacion<P>> m_comprobaciones;
};

}  // namespace efv::ui
