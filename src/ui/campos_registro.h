// Names and limits of a record's members in dialogs: those of the record's rows.
#pragma once

#include "platform/framework/tabla_registro.h"
#include "ui/campos.h"

namespace efv::ui {

template <class P>
requires framework::ConFilas<P>
struct CamposDe<P> {
    static constexpr std::string_view Nombre(const Miembro<P>& miembro) { return Fila(miembro).nombre; }

    static constexpr std::optional<Intervalo> Limites(const Miembro<P>& miembro)
    {
        const auto limites = Fila(miembro).limites;
        return limites.Alguno() ? std::optional(Intervalo{limites.dMinimo, limites.dMaximo}) : std::nullopt;
    }

private:
    static constexpr framework::NombreYLimites Fila(const Miembro<P>& miembro)
    {
        return std::visit([](auto m) { return framework::BuscarFila<P>(m); }, miembro);
    }
};

}  // namespace efv::ui
