#include "catalogues/format/elemento.h"

#include <algorithm>

#include <fmt/format.h>

namespace efv::catalogues {

namespace {

CString Ancho(const std::string& texto)
{
    return {texto.begin(), texto.end()};
}

}  // namespace

CXMLAttribute::CXMLAttribute(CString csNombreAtributo, CString csValorAtributo)
    : csNombre(std::move(csNombreAtributo)), csValor(std::move(csValorAtributo))
{
}

CXMLAttribute::~CXMLAttribute() = default;

int CXMLAttribute::SetVariant(const ValorAtributo& valor)
{
    struct Escritor {
        CString& csValor;
        void operator()(std::monostate) const {}
        void operator()(short n) const { csValor = std::to_wstring(n); }
        void operator()(int n) const { csValor = std::to_wstring(n); }
        void operator()(float f) const { csValor = Ancho(fmt::format("{:f}", f)); }
        void operator()(double d) const { csValor = Ancho(fmt::format("{:f}", d)); }
        void operator()(const CString& cs) const { csValor = cs; }
    };
    std::visit(Escritor{csValor}, valor);
    return 1;
}

CXMLAttribute* CXMLElemento::BuscarAtributo(std::wstring_view nombre) const
{
    const auto hallado =
        std::ranges::find(aAtributos, nombre, [](const auto& a) { return std::wstring_view(a->csNombre); });
    return hallado == aAtributos.end() ? nullptr : hallado->get();
}

void CXMLElemento::AddAtributo(std::wstring_view nombre, std::wstring_view valor)
{
    if (BuscarAtributo(nombre) == nullptr)
        aAtributos.push_back(std::make_unique<CXMLAttribute>(CString(nombre), CString(valor)));
}

void CXMLElemento::AddAtributoInt(std::wstring_view nombre, int iValor)
{
    AddAtributo(nombre, std::to_wstring(iValor));
}

CString CXMLElemento::GetAtributo(std::wstring_view nombre) const
{
    const CXMLAttribute* atributo = BuscarAtributo(nombre);
    return atributo != nullptr ? atributo->csValor : CString();
}

int CXMLElemento::SetAtributoInt(std::wstring_view nombre, int iValor)
{
    return SetAtributoVariant(nombre, iValor);
}

int CXMLElemento::SetAtributoDouble(std::wstring_view nombre, double dValor)
{
    return SetAtributoVariant(nombre, dValor);
}

int CXMLElemento::SetAtributoVariant(std::wstring_view nombre, const ValorAtributo& valor)
{
    CXMLAttribute* atributo = BuscarAtributo(nombre);
    return atributo != nullptr ? atributo->SetVariant(valor) : 0;
}

}  // namespace efv::catalogues
