// Exported functions of the electrical models.
#include <quorvel/electrical.h>

#include "electrical/curvas.h"
#include "frame/recursos.h"

using efv::frame::AmbitoRecursos;

namespace {

void Escribir(double* pdDestino, double dValor)
{
    if (pdDestino != nullptr)
        *pdDestino = dValor;
}

}  // namespace

int phCalcValoresTipicos(double dIsc, double dVoc, double dImpm, double dVmpm, double dPmpm, double dG,
                         double dT, double dCTVoc, double dCTIsc, double dCTPmpm, double* pdIsc, double* pdVoc,
                         double* pdImp, double* pdVmp, double* pdPmp)
{
    const AmbitoRecursos ambito;
    const efv::electrical::ValoresTipicos v = efv::electrical::CalcularValoresTipicos({.dPmpm = dPmpm,
                                                                                       .dVmpm = dVmpm,
                                                                                       .dImpm = dImpm,
                                                                                       .dVoc = dVoc,
                                                                                       .dIsc = dIsc,
                                                                                       .dCTVoc = dCTVoc,
                                                                                       .dCTIsc = dCTIsc,
                                                                                       .dCTPmpm = dCTPmpm},
                                                                                      dG, dT);
    Escribir(pdIsc, v.dIsc);
    Escribir(pdVoc, v.dVoc);
    Escribir(pdImp, v.dImp);
    Escribir(pdVmp, v.dVmp);
    Escribir(pdPmp, v.dPmp);
    return 1;
}

int phCalcCurve(CArray<double, double&>& aI, CArray<double, double&>& aV, CArray<double, double&>& aP,
                double dIsc, double dVoc, double dImp, double dVmp, double dT, double dNs, double dNp,
                double dN, int iN)
{
    const AmbitoRecursos ambito;
    const efv::electrical::Curva curva =
        efv::electrical::CalcularCurva({dIsc, dVoc, dImp, dVmp, dT, dNs, dNp, dN}, iN);
    const auto poner = [](const std::vector<double>& adPuntos, CArray<double, double&>& lista,
                          std::ptrdiff_t iDesde) {
        lista.SetSize(iDesde + std::ssize(adPuntos));
        std::ranges::copy(adPuntos, lista.begin() + iDesde);
    };
    poner(curva.adI, aI, 0);
    poner(curva.adV, aV, 0);
    poner(curva.adP, aP, aP.GetSize());
    return 1;
}
