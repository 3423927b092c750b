#include "catalogues/ver_base.h"

#include "catalogues/identificacion.h"
#include "platform/numero/conversion.h"

namespace efv::catalogues {

CString NombreAncho(const char* nombre)
{
    const std::string_view estrecho = nombre;
    return {estrecho.begin(), estrecho.end()};
}

double NumeroDe(const CString& csTexto)
{
    return numero::LeerDoble(std::wstring_view(csTexto));
}

int EnteroDe(const CString& csTexto)
{
    return numero::LeerEntero(CadenaUtf8(csTexto));
}

std::optional<std::pair<CString, CString>> PartirIdentificacion(const CString& csId)
{
    const ClaveModelo clave(csId);
    if (!clave.Parte())
        return std::nullopt;
    return std::pair(csId.substr(0, csId.find(L'#')), CString(*clave.Parte()));
}

}  // namespace efv::catalogues
