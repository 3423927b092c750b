// An array of PV panels in the drawing, as its dialog edits it.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "elements/elemento_dialogo.h"
#include "solar/curvas_inclinacion.h"

namespace efv::elements {

struct DatosPanel : DatosConModelo {
    int nPaneles = 1;
    int bInclinacion = 0;  ///< the tilt may be typed
    double dInclinacion = 0.0;
    double dRendimiento = 100.0;  ///< %
    int iOrientacion = 0;         ///< of each panel: 0 upright, 1 lying
    int iMontaje = 0;             ///< of the group: 0 side by side, 1 one above the other, 2 in a square
    int iConexion = 0;            ///< of the group: 0 series, 1 parallel
    int bNoSombras = 0, bInformarSombra = 0;
    double dSombreado = 25.0;  ///< largest shading of a day, %
    CString csString;          ///< the string that it belongs to
    int bForzado = 0;          ///< the string's colour is `nColor`
    short nColor = ui::kColorPorCapa;

    // Of each panel
    int iOptimizador = 0;  ///< 0 it may switch itself off, 1 it may have an optimizer
    int bAutoDesconexion = 0;
    double dAutoDesconexion = 0.0;  ///< losses from which it does, %
    int bOptimizadorMPPT = 0;
    CString csOptimizadorMPPT;
    int bMicroInversor = 0, bMicroModelo = 0;
    CString csIdMicro;

    // Of a catalogue of optimizers, which there isn't: shown nowhere and handed on to nobody.
    int bOptimizador = 0, bOptModelo = 0;
    CString csIdOpt;
};

template <>
inline constexpr auto kNombresDe<DatosPanel> = std::to_array<ui::NombreCampo<DatosPanel>>({
    {"nPaneles", &DatosPanel::nPaneles},
    {"bInclinacion", &DatosPanel::bInclinacion},
    {"dInclinacion", &DatosPanel::dInclinacion},
    {"dRendimiento", &DatosPanel::dRendimiento},
    {"iOrientacion", &DatosPanel::iOrientacion},
    {"iMontaje", &DatosPanel::iMontaje},
    {"iConexion", &DatosPanel::iConexion},
    {"bNoSombras", &DatosPanel::bNoSombras},
    {"bInformarSombra", &DatosPanel::bInformarSombra},
    {"dSombreado", &DatosPanel::dSombreado},
    {"csString", &DatosPanel::csString},
    {"bForzado", &DatosPanel::bForzado},
    {"nColor", &DatosPanel::nColor},
    {"bAutoDesconexion", &DatosPanel::bAutoDesconexion},
    {"dAutoDesconexion", &DatosPanel::dAutoDesconexion},
    {"bOptimizadorMPPT", &DatosPanel::bOptimizadorMPPT},
    {"csOptimizadorMPPT", &DatosPanel::csOptimizadorMPPT},
    {"bMicroInversor", &DatosPanel::bMicroInversor},
    {"bMicroModelo", &DatosPanel::bMicroModelo},
    {"csIdMicro", &DatosPanel::csIdMicro},
    {"bOptimizador", &DatosPanel::bOptimizador},
    {"bOptModelo", &DatosPanel::bOptModelo},
    {"csIdOpt", &DatosPanel::csIdOpt},
});

/// What the host knows of the place. The hours of the horizontal are those of a block of a year, or none.
struct ClimaPanel {
    bool bHay = false;
    solar::PlanoEstudio plano{solar::FuenteRadiacion::cielo, 0.0, 36.0, 0.0};
    std::span<const double> adHorizontal;
};

}  // namespace efv::elements
