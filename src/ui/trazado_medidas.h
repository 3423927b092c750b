// Lengths of a chart's parts, in sizes of its letters.
#pragma once

namespace efv::ui {

inline constexpr double kInterlinea = 1.35;
inline constexpr double kMargen = 0.8;  // around everything
inline constexpr double kCuerpoTitulo = 1.1;
inline constexpr double kMuestra = 2.4;        // sample of a legend's entry
inline constexpr double kTrasMuestra = 0.5;    // to its text
inline constexpr double kEntreEntradas = 1.3;  // of a legend
inline constexpr double kRadioMarca = 0.33;    // of a point's shape
inline constexpr double kEntreRayas = 0.5;     // of a bar's hatch
inline constexpr double kFraccionBarra = 0.8;  // of the distance between bars
inline constexpr double kRayita = 0.35;        // tick below a band's middle

}  // namespace efv::ui
