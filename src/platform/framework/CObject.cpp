#include <quorvel/framework/CObject.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/registros.h>

#include "platform/framework/registro_clases.h"

namespace {

std::vector<const CRuntimeClass*>& Registro()
{
    static std::vector<const CRuntimeClass*> clases;
    return clases;
}

const std::vector<const CRuntimeClass*>& Clases()
{
    static const bool kRegistradas = (efv::framework::RegistrarClasesDelModulo(), true);
    static_cast<void>(kRegistradas);
    return Registro();
}

const CRuntimeClass* Buscar(const std::vector<const CRuntimeClass*>& clases, std::string_view nombre)
{
    const auto hallada =
        std::ranges::find(clases, nombre, [](const CRuntimeClass* c) { return c->m_szClassName; });
    return hallada == clases.end() ? nullptr : *hallada;
}

void ExigirTabla(const CRuntimeClass& clase)
{
    if (clase.m_pTabla == nullptr || clase.m_pfnCreate == nullptr)
        throw std::logic_error("El registro " + std::string(clase.m_szClassName) +
                               " no tiene tabla de campos o no se puede crear");
}

}  // namespace

namespace efv::framework {

void RegistrarClase(const CRuntimeClass& clase, bool bRegistro)
{
    if (bRegistro) {
        ExigirTabla(clase);
        const auto muestra = clase.CreateObject();
        for (const CampoRegistro& campo : CamposDeRegistro(*muestra))
            if (const auto* lista = std::get_if<ListaRegistros>(&campo.valor))
                ExigirTabla(lista->GetClase());
    }
    if (Buscar(Registro(), clase.m_szClassName) == nullptr)
        Registro().push_back(&clase);
}

}  // namespace efv::framework

std::unique_ptr<CObject> CRuntimeClass::CreateObject() const
{
    return m_pfnCreate != nullptr ? m_pfnCreate() : nullptr;
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass& base) const
{
    for (const CRuntimeClass* clase = this; clase != nullptr; clase = clase->m_pBaseClass)
        if (clase == &base)
            return true;
    return false;
}

const CRuntimeClass* CRuntimeClass::FromName(std::string_view nombre)
{
    return Buscar(Clases(), nombre);
}

std::span<const CRuntimeClass* const> CRuntimeClass::Registradas()
{
    return Clases();
}

const CRuntimeClass& CObject::GetThisClass()
{
    static const CRuntimeClass clase{"CObject", nullptr, nullptr};
    return clase;
}

const CRuntimeClass& CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

CObject::~CObject() = default;

void CObject::Serialize(CArchive& /*ar*/) {}

bool CObject::IsKindOf(const CRuntimeClass& clase) const
{
    return GetRuntimeClass().IsDerivedFrom(clase);
}
