#include "assistants/valores_registro.h"

namespace efv::assistants {

namespace {

// The lists of the record stay empty in the working values.
template <class V>
std::vector<CampoRegistro> SinListas(V& v)
{
    std::vector<CampoRegistro> campos = framework::Campos(v);
    std::erase_if(campos, [](const CampoRegistro& campo) {
        return std::holds_alternative<CArray<double, double&>*>(campo.valor) ||
               std::holds_alternative<CStringArray*>(campo.valor);
    });
    return campos;
}

// The references become constant before anybody sees them.
template <class V>
std::vector<CampoRegistroConst> SinListas(const V& v)
{
    return SoloLectura(SinListas(const_cast<V&>(v)));
}

}  // namespace

std::vector<CampoRegistro> ValoresPorNombre(ValoresAislada& v)
{
    return SinListas(v);
}

std::vector<CampoRegistroConst> ValoresPorNombre(const ValoresAislada& v)
{
    return SinListas(v);
}

std::vector<CampoRegistro> ValoresPorNombre(ValoresRed& v)
{
    return SinListas(v);
}

std::vector<CampoRegistroConst> ValoresPorNombre(const ValoresRed& v)
{
    return SinListas(v);
}

}  // namespace efv::assistants
