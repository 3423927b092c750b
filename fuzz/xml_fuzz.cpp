// Any bytes as the factor table's file: loads or doesn't, and what loaded answers.
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include <quorvel/solar.h>

#include "fichero_en_memoria.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const FicheroEnMemoria fichero(datos, tamano);
    const int iCargada = phCargarBaseFactorK(fichero.Ruta());
    CBaseFactorK& tabla = phGetBaseFactorK();
    if (iCargada == 1 && tabla.GetCargada() == 0)
        std::abort();
    double adK[12] = {-7, -7, -7, -7, -7, -7, -7, -7, -7, -7, -7, -7};
    if (phGetDataFactorK(40.5, 1, 33, adK) == 0 && adK[0] != -7)
        std::abort();
    CTreeCtrl arbol;
    tabla.LlenarArbol(arbol);
    if (static_cast<std::ptrdiff_t>(arbol.Raices().size()) != tabla.aFamilias.GetSize())
        std::abort();
    return 0;
}
