#include "diseno/ayuda_campos.h"

#include <fmt/format.h>

#include <quorvel/registros.h>

#include "comun/numeros.h"

namespace efv::orden {

std::string AyudaDeCampos(const CRuntimeClass& clase)
{
    std::string texto = "Límites de los campos del registro:";
    const auto registro = clase.CreateObject();
    for (const CampoRegistro& campo : CamposDeRegistro(*registro))
        if (campo.limites.Alguno())
            texto += fmt::format("\n  {:<24}{} a {}", campo.nombre, DecimalExacto(campo.limites.dMinimo),
                                 DecimalExacto(campo.limites.dMaximo));
    return texto;
}

}  // namespace efv::orden
