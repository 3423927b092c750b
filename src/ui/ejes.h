// Axes that people can read: where their marks stand and what is written at them.
#pragma once

#include <vector>

#include <quorvel/framework/CString.h>
#include <quorvel/ui/grafica.h>

namespace efv::ui {

/// One axis with the places of its marks.
struct Eje {
    double dMin = 0.0, dMax = 1.0;
    double dPaso = 0.1;
    std::vector<double> adMarcas;
    ClaseEje clase = ClaseEje::numero;

    /// Each mark stands in the middle of a band of width 1.
    bool DeBandas() const { return clase == ClaseEje::mes || clase == ClaseEje::diaSemana; }
};

/// `d` within what an axis tells apart; 0 for what isn't a number.
double Acotado(double d);

/// The axis of numbers from `dMin` to `dMax` with about `iDivisiones` divisions, 1 to 50, at multiples of 1, 2
/// or 5 times a power of ten. With `bAmpliar` it reaches to the marks around its ends; without, it ends where
/// told and the marks lie inside. Ends in the wrong order are exchanged, what isn't a number counts as 0, and
/// equal ends are put apart by at least 1.
Eje CalcularEje(double dMin, double dMax, int iDivisiones, bool bAmpliar);

/// The axis of a class. Months and days of the week show whole bands, and all of them if they hold the values
/// of one year or week; dates are marked at the first of each month once they span more than two. An extent
/// that can't be of the class gets numbers.
Eje CalcularEje(ClaseEje clase, double dMin, double dMax, int iDivisiones);

/// A mark's label: "1,5", "Ene", "Lun" ("Lunes" if `bLargo`), "8 h", "1 ene". A number has a decimal comma and
/// as many decimals as the step needs.
CString RotuloMarca(const Eje& eje, double d, bool bLargo = false);

/// Any value along the axis, as a person says it: "Enero", "Lunes" or "Lunes, 13 h", "8:30 h", "3 de enero".
CString RotuloLectura(const Eje& eje, double d, bool bConHora = false);

/// A value in six significant digits.
CString RotuloValor(double d);

}  // namespace efv::ui
