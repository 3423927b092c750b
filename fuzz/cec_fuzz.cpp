// Any bytes as a CEC library: refused, or rows that each have a sound model or a reason.
#include <cstdint>
#include <cstdlib>

#include <quorvel/framework/CException.h>
#include <quorvel/importacion_catalogo.h>

#include "fichero_en_memoria.h"

namespace {

using namespace efv;

void Exigir(bool bCumple)
{
    if (!bCumple)
        std::abort();
}

void Comprobar(const BibliotecaCec& biblioteca)
{
    std::size_t nLinea = 1;
    for (const FilaCec& fila : biblioteca.filas) {
        Exigir(fila.nLinea > nLinea);
        nLinea = fila.nLinea;
        Exigir((fila.modelo != nullptr) == fila.csMotivo.empty());
        if (!fila.modelo)
            continue;
        Exigir(biblioteca.tipo->Faltas(*fila.modelo).empty());
        Exigir(!fila.modelo->csModelo.empty() && !fila.modelo->csFamilia.empty());
        Exigir((fila.modelo->csFamilia + fila.modelo->csModelo).find(L'#') == CString::npos);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const FicheroEnMemoria fichero(datos, tamano);
    try {
        OpcionesCec opciones;
        Comprobar(LeerCec(fichero.Ruta(), opciones));
        opciones.bMicro = true;
        opciones.dProporcion = 1.7;
        opciones.csFamilia = L"F";
        opciones.csSolo = L"a";
        Comprobar(LeerCec(fichero.Ruta(), opciones));
    } catch (const CFileException&) {
        return 0;
    }
    return 0;
}
