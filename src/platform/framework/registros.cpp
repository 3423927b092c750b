#include <quorvel/registros.h>

namespace efv {

namespace {

struct Constante {
    template <class T>
    ReferenciaCampoConst operator()(T* valor) const
    {
        return static_cast<const T*>(valor);
    }
    ReferenciaCampoConst operator()(std::span<double> valores) const
    {
        return std::span<const double>(valores);
    }
    ReferenciaCampoConst operator()(const ListaRegistros& lista) const { return ListaRegistrosConst(lista); }
};

}  // namespace

TablaRegistro::~TablaRegistro() = default;

std::vector<CampoRegistro> CamposDeRegistro(CObject& registro)
{
    for (const CRuntimeClass* clase = &registro.GetRuntimeClass(); clase != nullptr;
         clase = clase->m_pBaseClass)
        if (clase->m_pTabla != nullptr)
            return clase->m_pTabla->Campos(registro);
    return {};
}

std::vector<CampoRegistroConst> CamposDeRegistro(const CObject& registro)
{
    // Nothing writes through the references before they are constant.
    return SoloLectura(CamposDeRegistro(const_cast<CObject&>(registro)));
}

std::vector<CampoRegistroConst> SoloLectura(const std::vector<CampoRegistro>& campos)
{
    std::vector<CampoRegistroConst> constantes;
    constantes.reserve(campos.size());
    for (const CampoRegistro& campo : campos)
        constantes.push_back({campo.nombre, std::visit(Constante{}, campo.valor), campo.limites});
    return constantes;
}

}  // namespace efv
