// A dialog over a copy of a record, told by tables: its fields, and the checks of OK.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <quorvel/ui/como.h>
#include <quorvel/ui/dialogo.h>
#include <quorvel/ui/presentador.h>

#include "platform/numero/tolerancia.h"
#include "ui/campos.h"
#include "ui/intercambio.h"

namespace efv::ui {

/// Where the focus goes: a field of the dialog, or nowhere else than it is.
template <class P>
class Foco {
public:
    constexpr Foco(std::nullptr_t) {}  // NOLINT(*-explicit-*)
    template <class T>
    constexpr Foco(T P::*miembro) : m_miembro(Miembro<P>(miembro))
    {
    }  // NOLINT(*-explicit-*)

    const std::optional<Miembro<P>>& Campo() const { return m_miembro; }

private:
    std::optional<Miembro<P>> m_miembro;
};

/// One check of OK: the first that `mal` finds shows its text and keeps the dialog open.
template <class P>
struct Comprobacion {
    Foco<P> foco;  ///< field that gets the focus; null leaves it where it is
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
    void Anadir(const std::array<Campo<P>, N>& campos, const Colocacion& colocacion = {})
    {
        m_campos.Anadir(*this, campos, colocacion);
    }
    template <std::size_t N>
    void Anadir(Pagina& pagina, const std::array<Campo<P>, N>& campos, const Colocacion& colocacion = {})
    {
        m_campos.Anadir(pagina, campos, colocacion);
    }
    using Dialogo::Anadir;

    /// The control of a member of `datos`: `De(&P::dVsmax)`, `De<Seleccion>(&P::iTipo)`.
    Control& De(const Miembro<P>& miembro) const { return m_campos.De(miembro); }
    Edicion& De(double P::*miembro) const { return m_campos.De(miembro); }
    Edicion& De(CString P::*miembro) const { return m_campos.De(miembro); }
    template <class C>
    C& De(const Miembro<P>& miembro) const
    {
        return m_campos.template De<C>(miembro);
    }

    bool AlAceptar() override
    {
        for (const auto& c : m_comprobaciones) {
            if (!c.mal(datos))
                continue;
            if (c.foco.Campo())
                foco = &De(*c.foco.Campo());
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
        const Seleccion* const combo = Como<Seleccion>(control);
        if (combo == nullptr)
            return ui::Recoger(control);
        const bool bElegido = combo->forma != Seleccion::Forma::combo || combo->iSeleccion >= 0;
        return bElegido ? std::nullopt : std::optional<CString>(L"El valor no es ninguno de la lista.");
    }

    CamposDeObjeto<P> m_campos{datos};
    std::span<const Comprobacion<P>> m_comprobaciones;
};

}  // namespace efv::ui
