// Hours of the day to be ticked.
#pragma once

#include <array>
#include <span>

#include <quorvel/ui/dialogo.h>

class CDlgDetalleHoras : public efv::ui::Dialogo {
public:
    std::array<int, 24> aiHoras{};  ///< 1 where ticked, once accepted

    explicit CDlgDetalleHoras(std::span<const int, 24> inicial);

private:
    void AnadirBoton(std::wstring_view rotulo, bool bMarcar);

    std::array<efv::ui::Casilla*, 24> m_casillas{};
};
