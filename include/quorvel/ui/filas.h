// Rows that say more than texts.
#pragma once

#include <quorvel/exportar.h>
#include <quorvel/ui/controles.h>

namespace efv::ui {

/// Rows with a colour each; a presenter asks of a list's rows whether they are such.
class EFV_API FilasConColor : public ModeloFilas {
public:
    /// Of all texts of the row.
    virtual Color ColorDeFila(int iFila) const = 0;
};

}  // namespace efv::ui
