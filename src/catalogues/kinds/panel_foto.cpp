#include "catalogues/kinds/panel_foto.h"

#include "catalogues/format/catalogo.h"
#include "platform/numero/tolerancia.h"

namespace efv::catalogues {

using M = CBasePanelFotoModelo;

int CelulasPorRamal(int iTipoCelula, int iNs)
{
    return iTipoCelula >= 3 ? 200 : iNs;
}

double CoeficienteAPorciento(double dCoeficiente, double dReferencia)
{
    const double referencia = numero::MenorIgual(dReferencia, 0.0) ? 1.0 : dReferencia;
    return (100 / referencia) * (dCoeficiente / 1000);
}

double CoeficienteDePorciento(double dPorciento, double dReferencia)
{
    return (dReferencia / 100) * (dPorciento * 1000);
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBasePanelFotoModelo>;
template class CFamiliaCatalogo<CBasePanelFotoModelo>;
template class CBaseCatalogo<CBasePanelFotoModelo>;
