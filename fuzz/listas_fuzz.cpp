// The first byte chooses a study of a sale, a list of loads or a list of cables, the rest is its file: a result
// or a reason.
#include <cstdint>
#include <string_view>

#include "cable/lista.h"
#include "comun/consola.h"
#include "consumo/ano.h"
#include "diseno/diseno.h"
#include "exigir.h"
#include "fichero_en_memoria.h"

namespace {

using namespace efv::orden;

void ProbarVenta(std::string_view bytes)
{
    const Diseno venta = EstudiarVenta(AnalizarJson(bytes), "");
    Exigir(!DocumentoTexto(venta.documento).empty() && !venta.csv.empty());
}

void ProbarReceptores(const FicheroEnMemoria& fichero)
{
    const AnoConsumo ano = AnoDeListaDeReceptores(efv::CadenaUtf8(fichero.Ruta()), {});
    Exigir(ano.horas != nullptr);
}

void ProbarCables(std::string_view bytes)
{
    int iLinea = 0;
    for (const FilaLista& fila : AnalizarLista(bytes)) {
        Exigir(fila.iLinea >= iLinea);
        iLinea = fila.iLinea;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    if (tamano == 0)
        return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(datos) + 1, tamano - 1);
    try {
        if (datos[0] % 3 == 0)
            ProbarVenta(bytes);
        else if (datos[0] % 3 == 1)
            ProbarReceptores(FicheroEnMemoria(datos + 1, tamano - 1));
        else
            ProbarCables(bytes);
    } catch (const std::runtime_error& error) {
        Exigir(error.what()[0] != '\0');
    }
    return 0;
}
