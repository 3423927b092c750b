#include "catalogues/format/elementos_modelo.h"

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

}  // namespace efv::catalogues
