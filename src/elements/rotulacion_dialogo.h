// Dialog of what is written beside an element in the plan.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include <quorvel/ui/dialogo.h>

/// A box for each property; the mask that was accepted stands in `iRotulos`.
class CDlgRotulacion final : public efv::ui::Dialogo {
public:
    static constexpr std::size_t kPropiedades = 8;  ///< at most

    CDlgRotulacion(std::span<const std::wstring_view> propiedades, int iMascara);

    int iRotulos;

private:
    bool AlAceptar() override;

    std::array<efv::ui::Casilla*, kPropiedades> m_casillas{};
};
