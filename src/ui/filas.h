// A dialog's fields and checks as tables over a record: one row each, from which the controls, their
// data exchange and the checks of OK follow.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/ui/dialogo.h>
#include <quorvel/ui/presentador.h>

#include "platform/numero/tolerancia.h"
#include "ui/intercambio.h"

namespace efv::ui {

template <class P>
using Miembro = std::variant<int P::*, double P::*, CString P::*>;

/// One field.
template <class P>
struct Fila {
    const char* nombre;  ///< of the member, as in the code
    Miembro<P> campo;
    std::wstring_view rotulo;
    std::optional<Intervalo> limites = {};
    int decimales = 2;
    std::span<const std::wstring_view> entradas = {};  ///< not empty: a combo over an int
    Intercambio intercambio = Intercambio::automatico;
    Lugar lugar = {};
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
                faltas.push_back(control->csRotulo + L" " + *csFalta);
        return faltas;
    }

protected:
    DialogoFicha(std::string_view nombreClase, std::wstring_view titulo, const P& inicial,
                 std::span<const Comprobacion<P>> comprobaciones)
        : Dialogo(nombreClase, titulo), datos(inicial), m_comprobaciones(comprobaciones)
    {
    }

    /// Adds the control of a row.
    Control& Anadir(const Fila<P>& fila)
    {
        Control& control = fila.entradas.empty() ? AnadirEdicion(fila) : AnadirCombo(fila);
        control.lugar = fila.lugar;
        return control;
    }
    using Dialogo::Anadir;

    /// The edit field of that name; the row must exist.
    Edicion& Campo(std::string_view nombre) const
    {
        for (const auto& control : Controles())
            if (control->nombre == nombre)
                return dynamic_cast<Edicion&>(*control);
        throw std::out_of_range(std::string(nombre));
    }

    bool AlAceptar() override
    {
        for (const auto& c : m_comprobaciones) {
            if (!c.mal(datos))
                continue;
            if (c.foco != nullptr)
                foco = &Campo(c.foco);
            MostrarAviso(c.texto, c.icono);
            return false;
        }
        return true;
    }

private:
    // Why the control doesn't hold its variable's value as it stands.
    static std::optional<CString> Falta(Control& control)
    {
        const auto* combo = dynamic_cast<const Seleccion*>(&control);
        if (combo == nullptr)
            return ui::Recoger(control);
        const bool bElegido = combo->forma != Seleccion::Forma::combo || combo->iSeleccion >= 0;
        return bElegido ? std::nullopt : std::optional<CString>(L"El valor no es ninguno de la lista.");
    }

    Control& AnadirEdicion(const Fila<P>& fila)
    {
        auto& edicion = Anadir<Edicion>(fila.nombre, fila.rotulo);
        edicion.destino = std::visit([&](auto m) { return Destino(&(datos.*m)); }, fila.campo);
        edicion.limites = fila.limites;
        edicion.iDecimales = fila.decimales;
        edicion.intercambio = fila.intercambio;
        return edicion;
    }

    Control& AnadirCombo(const Fila<P>& fila)
    {
        auto& combo = Anadir<Seleccion>(fila.nombre, fila.rotulo, Seleccion::Forma::combo);
        combo.acsEntradas.assign(fila.entradas.begin(), fila.entradas.end());
        combo.destino = &(datos.*std::get<int P::*>(fila.campo));
        combo.intercambio = fila.intercambio;
        return combo;
    }

    std::span<const Comprobacion<P>> m_comprobaciones;
};

}  // namespace efv::ui
