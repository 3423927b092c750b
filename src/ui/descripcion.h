// A chart in words, for who doesn't see it.
#pragma once

#include <cstddef>

#include <quorvel/exportar.h>
#include <quorvel/ui/grafica.h>

#include "ui/ejes.h"

namespace efv::ui {

/// A value along the horizontal axis, of that series, with what stands along the axis: "Enero", "Tensión (V):
/// 30", "x = 30".
CString LecturaX(const CCtrlCurva2D& grafica, const Eje& ejeX, const SerieCurva& serie, double dX);
/// The same along the vertical axis.
CString LecturaY(const CCtrlCurva2D& grafica, double dY);

/// Whether the chart draws point `i` of that series: both exist, it is a number and the series is visible.
EFV_API bool SeDibuja(const CCtrlCurva2D& grafica, std::size_t iSerie, std::size_t i);

/// Such a point in words: the series' name, if it has one, and its values, with ", " between them.
EFV_API CString LecturaDePunto(const CCtrlCurva2D& grafica, std::size_t iSerie, std::size_t i);

/// Title, what stands along the axes, and of each series its name with its least and greatest value and where
/// they are.
EFV_API CString DescripcionDe(const CCtrlCurva2D& grafica);

}  // namespace efv::ui
