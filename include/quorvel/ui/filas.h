// Rows that say more than texts, and rows as text.
#pragma once

#include <span>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>

namespace efv::ui {

/// Rows with a colour each; a presenter asks of a list's rows whether they are such.
class EFV_API FilasConColor : public ModeloFilas {
public:
    /// Of all texts of the row.
    virtual Color ColorDeFila(int iFila) const = 0;
};

enum class Cabeceras : bool { sin, con };

/// Rows of a list for a spreadsheet: a line each with tabs between the cells, as they read; tabs and line ends
/// within a cell become blanks.
EFV_API CString TextoDeFilas(const Lista& lista, std::span<const int> filas, Cabeceras cabeceras);

}  // namespace efv::ui
