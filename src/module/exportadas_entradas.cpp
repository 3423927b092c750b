// Exported functions of an inverter's inputs.
#include <quorvel/entradas.h>

#include "electrical/entradas.h"
#include "frame/recursos.h"

namespace electrical = efv::electrical;
using efv::frame::AmbitoRecursos;

int phAsignArrayInverterInputs(int iNumeroInversor, int iNumMPPT, int iNumEntradas,
                               CObArrayPropio<CSFVInverterInput>& aEntradas, int bForzar)
{
    const AmbitoRecursos ambito;
    return electrical::AsignarEntradas(iNumeroInversor, iNumMPPT, iNumEntradas, aEntradas, bForzar != 0);
}

int phCopyArrayInverterInputs(const CObArrayPropio<CSFVInverterInput>& aOrigen,
                              CObArrayPropio<CSFVInverterInput>& aDestino)
{
    const AmbitoRecursos ambito;
    return electrical::CopiarEntradas(aOrigen, aDestino);
}

int phIsChangedArrayInverterInputs(const CObArrayPropio<CSFVInverterInput>& aA,
                                   const CObArrayPropio<CSFVInverterInput>& aB)
{
    const AmbitoRecursos ambito;
    return electrical::SonIguales(aA, aB) ? 1 : 0;
}
