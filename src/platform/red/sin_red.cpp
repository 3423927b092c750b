#include "platform/red/sin_red.h"

namespace efv {

std::variant<RespuestaRed, FalloRed> SinRed::Obtener(const std::string& url,
                                                     const OpcionesDescarga& /*opciones*/,
                                                     const AvanceRed& /*avance*/)
{
    return FalloRed{FalloRed::Causa::sinRed, "No hay red con la que descargar «" + url + "»."};
}

}  // namespace efv
