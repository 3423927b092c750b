// The host's colour codes: an index of its palette, or what the drawing says.
#pragma once

#include <optional>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/grafica.h>

namespace efv::ui {

inline constexpr int kColorPorCapa = 256;
inline constexpr int kColorPorBloque = 257;

/// "Rojo" of 1 to "Gris claro" of 9, "Por capa", "Por bloque"; of any other code its number.
EFV_API CString NombreDeColor(int iColor);

/// The colour that a code of the palette, 1 to 255, shows; nothing for any other code.
EFV_API std::optional<Color> ColorDePaleta(int iColor);

/// Entries of a menu of colours: the nine that have a name, "Elegir otro..." and, where they are offered,
/// "Por capa" and "Por bloque".
EFV_API std::vector<CString> MenuDeColores(bool bDelDibujo);

/// Entry of the menu that opens the host's choice; a line stands before it.
inline constexpr int kEntradaOtroColor = 9;

/// The code that an entry of the menu stands for. "Elegir otro..." asks the host, beginning with `iActual`;
/// nothing when the person cancels.
EFV_API std::optional<int> ColorDeEntrada(int iEntrada, int iActual);

}  // namespace efv::ui
