#include "platform/red/libcurl.h"

#include "enlace/traida.h"
#ifdef EFV_LIBCURL
#include "enlace/biblioteca.h"
#endif

namespace efv {

bool FuncionesCurl::Tomar()
{
#ifdef EFV_LIBCURL
    enlace::Biblioteca biblioteca(EFV_LIBCURL);
#define EFV_TOMAR(funcion) biblioteca.Tomar(funcion, "curl_" #funcion);
    EFV_FUNCIONES_CURL(EFV_TOMAR)
    return biblioteca.Completa();
#else
#define EFV_TOMAR(funcion) funcion = &::curl_##funcion;
    EFV_FUNCIONES_CURL(EFV_TOMAR)
    return true;
#endif
}

bool CargarCurl()
{
    return enlace::LaTraida<FuncionesCurl>().bHay;
}

const FuncionesCurl& Curl()
{
    return enlace::LaTraida<FuncionesCurl>().funciones;
}

}  // namespace efv
