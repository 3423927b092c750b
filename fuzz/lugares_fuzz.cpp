// The first byte chooses places or municipalities, the rest is the file: refused, or places that can be found.
#include <cstdint>

#include <quorvel/framework/CException.h>
#include <quorvel/localidades.h>

#include "exigir.h"
#include "fichero_en_memoria.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    if (tamano == 0)
        return 0;
    const FicheroEnMemoria fichero(datos + 1, tamano - 1);
    std::vector<efv::Localidad> lugares;
    try {
        lugares =
            datos[0] % 2 == 0 ? efv::LeerLocalidades(fichero.Ruta()) : efv::LeerMunicipios(fichero.Ruta());
    } catch (const CFileException& error) {
        Exigir(error.what()[0] != '\0');
        return 0;
    }
    for (const efv::Localidad& lugar : lugares) {
        Exigir(lugar.dLatitud >= -90.0 && lugar.dLatitud <= 90.0);
        for (const double d : lugar.adRadHorizontal)
            Exigir(d >= 0.0);
    }
    if (!lugares.empty()) {
        const CString& csNombre = lugares.back().csNombre;
        efv::BuscarLocalidades(lugares, csNombre);
        Exigir(efv::BuscarLocalidad(lugares, csNombre) != nullptr);
        Exigir(efv::NombresParecidos(lugares, csNombre + L"x", 3).size() <= 3);
    }
    return 0;
}
