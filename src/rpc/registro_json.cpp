#include "rpc/registro_json.h"

#include <fmt/format.h>

#include "rpc/errores.h"
#include "rpc/valores.h"

namespace efv::rpc {

const Json& Miembro(const Json& params, std::string_view nombre, std::string_view esperado)
{
    const auto miembro = params.is_object() ? params.find(nombre) : params.end();
    if (miembro == params.end())
        throw ErrorValor(fmt::format("{}: se esperaba {}", nombre, esperado));
    return *miembro;
}

std::unique_ptr<CObject> CrearRegistro(const Json& nombre)
{
    if (!nombre.is_string())
        Esperaba("el nombre de un registro", nombre);
    const CRuntimeClass* clase = CRuntimeClass::FromName(nombre.get_ref<const std::string&>());
    if (clase == nullptr || clase->m_pTabla == nullptr)
        Esperaba("el nombre de un registro", nombre);
    return clase->CreateObject();
}

}  // namespace efv::rpc
