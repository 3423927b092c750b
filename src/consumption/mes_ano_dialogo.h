// Which months get a copy of another one's data.
#pragma once

#include <array>

#include <quorvel/ui/dialogo.h>

class CDlgMesAno : public efv::ui::Dialogo {
public:
    std::array<int, 12> abMeses{};  ///< 1: chosen

    /// The month at hand is ticked and stays so.
    explicit CDlgMesAno(int iMesActual);
};
