// Widths of letters where nobody knows the face that they will be shown in.
#pragma once

#include <quorvel/report/hojas.h>

namespace efv::report {

/// Those of DejaVu Sans, which is wider than most faces.
class LetraAproximada final : public MedidorLetra {
public:
    double Ancho(std::wstring_view texto, double dCuerpo, bool bNegrita) const override;
};

/// Of a capital, as part of the size.
inline constexpr double kAlturaMayuscula = 0.729;

}  // namespace efv::report
