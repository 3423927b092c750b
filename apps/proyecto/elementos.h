// What the elements of both schematics have that no design says: references, labels, strings and their colours,
// mounting.
#pragma once

#include <QuorvelEFV.h>

namespace efv::estudio {

struct DatosElemento {
    CString csReferencia;
    int bExcluir = 0;  ///< not 0: not calculated with
    int iRotulos = 0;  ///< what is written beside it, a bit each
};

/// One whose model, and how many there are of it, the design says.
struct DatosConModelo : DatosElemento {
    int bModelo = 1;  ///< not 0: the model may be chosen
    int bEscala = 0;  ///< not 0: drawn to scale
};

/// A string of panels. Fields of phShowPropertyPanelFoto; module, panels and tilt are the design's.
struct DatosPaneles : DatosElemento {
    int bModelo = 1;
    int bInclinacion = 1;
    int iMontaje = 0, iConexion = 0;
    double dRendimiento = 100.0;
    int bAutoDesconexion = 0;
    double dAutoDesconexion = 10.0;
    int bOptimizadorMPPT = 0;
    CString csOptimizadorMPPT;
    int bInformarSombra = 0;
    double dSombreado = 25.0;
    int bNoSombras = 0;
    int bMicroInversor = 0, bMicroModelo = 0;
    CString csIdMicro;
    int bForzado = 0;  ///< not 0: all strings have the colour `nColor`
    short nColor = ui::kColorPorCapa;
};

struct DatosInversor : DatosConModelo {
    int iNumMPPT = 0, iNumEntradas = 0;  ///< of the model that the inputs were made for
    CObArrayPropio<CSFVInverterInput> entradas;

    /// Palette code of the string at an input, from 0.
    int ColorDeString(std::size_t i) const;
};

struct Elementos {
    // Of the stand-alone installation
    DatosPaneles panelesAislada;
    DatosElemento regulador;
    double dPerdidasRegulador = 0.0;  ///< fraction
    DatosConModelo acumuladores;
    DatosInversor salida;
    CString csIdSalida;  ///< inverter of its alternating output: no design says it
    // Of the grid-connected one
    DatosPaneles panelesRed;
    DatosInversor inversor;
    DatosElemento caja;
    int bCajaTrifasica = 0;
    DatosElemento red;
};

}  // namespace efv::estudio
