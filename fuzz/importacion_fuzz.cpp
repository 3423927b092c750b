// Any bytes as a PAN and as an OND file: refused, or a model that its dialog can look at.
#include <cstdint>
#include <cstdlib>

#include <quorvel/catalogues.h>
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

template <class Leer>
void Probar(const TipoCatalogo& tipo, Leer leer)
{
    try {
        const ModeloImportado importado = leer();
        Exigir(importado.modelo != nullptr);
        tipo.Faltas(*importado.modelo);
        if (const auto* datos = dynamic_cast<const DatosInversor*>(importado.modelo.get()))
            Exigir(datos->iNumMPPT >= 1 && datos->iNumEntradas >= 1);
    } catch (const CFileException&) {
        return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const FicheroEnMemoria fichero(datos, tamano);
    Probar(*BuscarTipoCatalogo("modulos"), [&] { return LeerPan(fichero.Ruta()); });
    for (const char* nombre : {"inversores", "microinversores"}) {
        const TipoCatalogo& tipo = *BuscarTipoCatalogo(nombre);
        for (const ModoOnd modo : {ModoOnd::corregido, ModoOnd::comoDialogo})
            Probar(tipo, [&] { return LeerOnd(fichero.Ruta(), tipo, modo); });
    }
    return 0;
}
