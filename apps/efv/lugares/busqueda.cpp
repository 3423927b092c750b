#include "lugares/busqueda.h"

#include <algorithm>

#include <fmt/format.h>

#include "comun/consola.h"
#include "comun/datos.h"
#include "comun/numeros.h"
#include "comun/parecidos.h"

namespace efv::orden {

namespace {

std::string Enumeradas(const std::vector<const Localidad*>& lugares)
{
    std::string texto;
    for (const Localidad* lugar : lugares)
        texto += fmt::format("{}{}", texto.empty() ? "" : ", ", CadenaUtf8(NombreConProvincia(*lugar)));
    return texto;
}

}  // namespace

std::vector<Localidad> LeerLugares(const std::string& csDatos)
{
    return efv::LeerLugares(RutaDatos(csDatos, ""), CarpetaPropia(csDatos));
}

std::vector<Localidad> LeerLugaresMayores(const std::string& csDatos)
{
    return efv::LeerLugares(RutaDatos(csDatos, ""), CarpetaPropia(csDatos), AlcanceLugares::sinMunicipios);
}

Localidad BuscarLugar(const std::string& nombre, const std::string& csDatos)
{
    const CString csNombre = CadenaDesdeUtf8(nombre);
    const auto lugares = LeerLugaresLlamados(RutaDatos(csDatos, ""), CarpetaPropia(csDatos), csNombre);
    const auto hallados = BuscarLocalidades(lugares, csNombre);
    if (hallados.size() == 1 || (!hallados.empty() && hallados.front()->bMayor))
        return *hallados.front();
    if (!hallados.empty())
        throw ErrorEjecucion(
            fmt::format("hay {} lugares «{}»: {}", hallados.size(), nombre, Enumeradas(hallados)));
    throw ErrorEjecucion(fmt::format("no hay ningún lugar «{}»{} (todos: efv lugares)", nombre,
                                     Parecidos(NombresParecidos(LeerLugares(csDatos), csNombre, kParecidos))));
}

std::string TextoZonas(const Localidad& lugar)
{
    if (lugar.csZonaHE5.empty())
        return {};
    const std::string he1 =
        lugar.csZonaHE1.empty() ? std::string() : fmt::format("HE1 {}, ", CadenaUtf8(lugar.csZonaHE1));
    return fmt::format("{}HE5 {}. {}", he1, CadenaUtf8(lugar.csZonaHE5), kReservaZonas);
}

}  // namespace efv::orden
