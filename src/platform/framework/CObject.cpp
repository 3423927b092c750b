#include <quorvel/framework/CObject.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include <quorvel/registros.h>

#include "platform/framework/registro_clases.h"

namespace {

std::vector<const CRuntimeClass*>& Clases()
{
    static std::vector<const CRuntimeClass*> clases;
    return clases;
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
    if (CRuntimeClass::FromName(clase.m_szClassName) == nullptr)
        Clases().push_back(&clase);
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
    const auto hallada =
        std::ranges::find(Clases(), nombre, [](const CRuntimeClass* c) { return c->m_szClassName; });
    return hallada == Clases().end() ? nullptr : *hallada;
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
