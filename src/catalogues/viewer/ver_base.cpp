#include "catalogues/viewer/ver_base.h"

#include "catalogues/format/identificacion.h"

namespace efv::catalogues {

std::optional<std::pair<CString, CString>> PartirIdentificacion(const CString& csId)
{
    const ClaveModelo clave(csId);
    if (!clave.Parte())
        return std::nullopt;
    return std::pair(csId.substr(0, csId.find(L'#')), CString(*clave.Parte()));
}

}  // namespace efv::catalogues
