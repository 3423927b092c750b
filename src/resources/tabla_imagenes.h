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
    // A proposal into the field at its left
    {L"usar-propuesta", "#2F74C0 M 14 8 L 3 8 M 7 4 L 3 8 L 7 12"},
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
    // How an array's panels stand, upright: alone, in a square, side by side, one above the other
    {L"5023", "#2F74C0 relleno M 5.5 3.5 L 10.5 3.5 L 10.5 12.5 L 5.5 12.5 Z"},
    {L"5104",
     "#2F74C0 relleno M 3.3 0.9 L 6.8 0.9 L 6.8 6.8 L 3.3 6.8 Z "
     "M 9.2 0.9 L 12.7 0.9 L 12.7 6.8 L 9.2 6.8 Z "
     "M 3.3 9.2 L 6.8 9.2 L 6.8 15.1 L 3.3 15.1 Z "
     "M 9.2 9.2 L 12.7 9.2 L 12.7 15.1 L 9.2 15.1 Z"},
    {L"5105",
     "#2F74C0 relleno M 0.9 4.5 L 4.1 4.5 L 4.1 11.5 L 0.9 11.5 Z "
     "M 6.4 4.5 L 9.6 4.5 L 9.6 11.5 L 6.4 11.5 Z "
     "M 11.9 4.5 L 15.1 4.5 L 15.1 11.5 L 11.9 11.5 Z"},
    {L"5106",
     "#2F74C0 relleno M 6.9 0.9 L 9.1 0.9 L 9.1 4.1 L 6.9 4.1 Z "
     "M 6.9 6.4 L 9.1 6.4 L 9.1 9.6 L 6.9 9.6 Z "
     "M 6.9 11.9 L 9.1 11.9 L 9.1 15.1 L 6.9 15.1 Z"},
    // And lying: alone, one above the other, side by side, in a square
    {L"5024", "#2F74C0 relleno M 3.5 5.5 L 12.5 5.5 L 12.5 10.5 L 3.5 10.5 Z"},
    {L"5107",
     "#2F74C0 relleno M 4.5 0.9 L 11.5 0.9 L 11.5 4.1 L 4.5 4.1 Z "
     "M 4.5 6.4 L 11.5 6.4 L 11.5 9.6 L 4.5 9.6 Z "
     "M 4.5 11.9 L 11.5 11.9 L 11.5 15.1 L 4.5 15.1 Z"},
    {L"5108",
     "#2F74C0 relleno M 0.9 6.9 L 4.1 6.9 L 4.1 9.1 L 0.9 9.1 Z "
     "M 6.4 6.9 L 9.6 6.9 L 9.6 9.1 L 6.4 9.1 Z "
     "M 11.9 6.9 L 15.1 6.9 L 15.1 9.1 L 11.9 9.1 Z"},
    {L"5109",
     "#2F74C0 relleno M 0.9 3.3 L 6.8 3.3 L 6.8 6.8 L 0.9 6.8 Z "
     "M 0.9 9.2 L 6.8 9.2 L 6.8 12.7 L 0.9 12.7 Z "
     "M 9.2 3.3 L 15.1 3.3 L 15.1 6.8 L 9.2 6.8 Z "
     "M 9.2 9.2 L 15.1 9.2 L 15.1 12.7 L 9.2 12.7 Z"},
    // Elements of the drawing without a catalogue
    {L"red-electrica",
     "M 5 15 L 8 1.5 L 11 15 M 5.8 11.5 L 10.2 11.5 M 6.5 8.5 L 9.5 8.5 M 2.5 7 L 3.5 5 L 12.5 5 L 13.5 7;"
     "#D0402F M 1 9.5 L 4 9.5 M 12 9.5 L 15 9.5"},
    {L"regulador",
     "M 1.5 3 L 14.5 3 L 14.5 13 L 1.5 13 Z;"
     "#D9A441 M 3.5 9.5 L 6 6 L 8 8.5 L 10 5.5 L 12.5 5.5;"
     "#3C9A46 M 3.5 11 L 12.5 11"},
    {L"caja-conexion",
     "M 4 2 L 12 2 L 12 14 L 4 14 Z;"
     "#2F74C0 M 1 4.5 L 6 4.5 L 8 8 M 1 8 L 8 8 M 1 11.5 L 6 11.5 L 8 8;"
     "#D0402F M 8 8 L 15 8"},
    {L"nudo", "#2F74C0 M 1 8 L 5.5 8 M 10.5 8 L 15 8 M 8 1 L 8 5.5;relleno O 2.5 8 8"},
    {L"elemento-auxiliar", "M 2 2 L 14 2 L 14 14 L 2 14 Z;#D9A441 M 5 8 L 11 8 M 8 5 L 8 11"},
});

}  // namespace efv::recursos
