// The pictures of buttons and rows by name, as figures that whoever shows a dialog draws (see
// quorvel/ui/figuras.h).
#pragma once

#include <array>
#include <string_view>

namespace efv::recursos {

struct Imagen {
    std::wstring_view nombre;
    std::string_view figuras;
};

inline constexpr auto kImagenes = std::to_array<Imagen>({
    // Curves of a module: at each temperature, at each irradiance
    {L"curvas-t",
     "M 2 1 L 2 14 L 15 14;"
     "#D0402F M 2 4 L 9 4 L 11 6 L 12 13;"
     "#2F74C0 M 2 7 L 8 7 L 10 9 L 11 13;"
     "#3C9A46 M 2 10 L 8 10 L 10 13"},
    {L"curvas-g",
     "M 2 1 L 2 14 L 15 14;"
     "#D0402F M 2 4 L 7 4 L 9 6 L 10 13;"
     "#2F74C0 M 2 4 L 9 4 L 11 6 L 12 13;"
     "#3C9A46 M 2 4 L 11 4 L 13 6 L 14 13"},
    // Kinds of installation
    {L"instalacion-aislada",
     "#2F74C0 M 2 9 L 5 3 L 14 3 L 11 9 Z;"
     "#3C9A46 M 3 11 L 12 11 L 12 14 L 3 14 Z M 12 12 L 14 12"},
    {L"instalacion-red",
     "#2F74C0 M 2 8 L 5 2 L 14 2 L 11 8 Z;"
     "M 5 15 L 8 9 L 11 15 M 6 12 L 10 12 M 4 10 L 12 10"},
    // Azimuth of the panels
    {L"coordenadas",
     "O 6 8 8;"
     "M 8 1 L 8 8 M 1 8 L 15 8;"
     "#D0402F M 8 8 L 8 15 M 6 12 L 8 15 L 10 12"},
    // Rows of the catalogues
    {L"familia", "#D9A441 relleno M 1 13 L 1 3 L 6 3 L 7 5 L 15 5 L 15 13 Z"},
    {L"panel", "#2F74C0 M 2 3 L 14 3 L 14 13 L 2 13 Z M 6 3 L 6 13 M 10 3 L 10 13 M 2 8 L 14 8"},
    {L"acumulador",
     "#3C9A46 M 2 5 L 14 5 L 14 14 L 2 14 Z M 4 5 L 4 2.5 L 6 2.5 L 6 5 M 10 5 L 10 2.5 L 12 2.5 L 12 5;"
     "M 3.7 9.5 L 6.3 9.5 M 9.7 9.5 L 12.3 9.5 M 11 8.2 L 11 10.8"},
    {L"inversor",
     "M 1.5 1.5 L 14.5 1.5 L 14.5 14.5 L 1.5 14.5 Z M 14.5 1.5 L 1.5 14.5;"
     "#2F74C0 M 3.5 4 L 7.5 4 M 3.5 6 L 7.5 6;"
     "#D0402F M 8 12 L 9 10.6 L 10 10.6 L 11 12 L 12 12 L 13 10.6"},
    {L"microinversor",
     "#2F74C0 M 4 1.5 L 14 1.5 L 12 6 L 2 6 Z;"
     "M 3 8 L 13 8 L 13 14.5 L 3 14.5 Z;"
     "#D0402F M 5 11.8 L 6 10.6 L 7 10.6 L 8.5 11.8 L 10 11.8 L 11 10.6"},
    {L"convertidor",
     "M 1.5 1.5 L 14.5 1.5 L 14.5 14.5 L 1.5 14.5 Z M 14.5 1.5 L 1.5 14.5;"
     "#2F74C0 M 3.5 4 L 7.5 4 M 3.5 6 L 7.5 6 M 8.5 10 L 12.5 10 M 8.5 12 L 12.5 12"},
    {L"receptor",
     "#D9A441 M 5 9.5 L 3.5 6.5 L 4.5 3.5 L 8 1.8 L 11.5 3.5 L 12.5 6.5 L 11 9.5 L 10.2 11 L 5.8 11 Z;"
     "M 6 12.8 L 10 12.8 M 7 14.6 L 9 14.6"},
});

}  // namespace efv::recursos
