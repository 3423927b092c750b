// Repayment of a loan.
#include <cmath>

#include <quorvel/economics_calculo.h>

namespace efv::economics {

double CuotaAnual(int iMetodo, double dCapital, double dInteres, double dAnos, int iAno)
{
    const double y = iAno;
    if (!(y < dAnos))
        return 0.0;
    if (iMetodo == static_cast<int>(MetodoAmortizacion::frances))
        return dInteres * dCapital / (1.0 - std::pow(1.0 + dInteres, -dAnos));
    if (iMetodo == static_cast<int>(MetodoAmortizacion::aleman)) {
        const double dAmortizado = dCapital / dAnos;
        return (dCapital - dAmortizado * y) * dInteres + dAmortizado;
    }
    return 0.0;
}

}  // namespace efv::economics
