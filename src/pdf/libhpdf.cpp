#include "pdf/libhpdf.h"

#include "enlace/traida.h"
#ifdef EFV_LIBHPDF
#include "enlace/biblioteca.h"
#endif

namespace efv::pdf {

bool FuncionesHaru::Tomar()
{
#ifdef EFV_LIBHPDF
    enlace::Biblioteca biblioteca(EFV_LIBHPDF);
#define EFV_TOMAR(funcion) biblioteca.Tomar(funcion, "HPDF_" #funcion);
    EFV_FUNCIONES_HARU(EFV_TOMAR)
    return biblioteca.Completa();
#else
#define EFV_TOMAR(funcion) funcion = &::HPDF_##funcion;
    EFV_FUNCIONES_HARU(EFV_TOMAR)
    return true;
#endif
}

bool CargarHaru()
{
    return enlace::LaTraida<FuncionesHaru>().bHay;
}

const FuncionesHaru& Haru()
{
    return enlace::LaTraida<FuncionesHaru>().funciones;
}

}  // namespace efv::pdf
