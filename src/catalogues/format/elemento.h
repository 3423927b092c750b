// An element of a document as the viewer hands it to a catalogue: a name and a list of attributes.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::catalogues {

/// Value of an attribute by its kind; a kind that has no text form is none.
using ValorAtributo = std::variant<std::monostate, short, int, float, double, CString>;

class CXMLAttribute {
public:
    CXMLAttribute(CString csNombreAtributo, CString csValorAtributo);
    virtual ~CXMLAttribute();

    CString csNombre;
    CString csValor;

    /// 16-bit integers "%d", 32-bit ones "%ld", decimals "%f" with a point, text as it stands; another
    /// kind changes nothing. Always 1.
    int SetVariant(const ValorAtributo& valor);
};

/// Names compare case-sensitively; the first match counts.
class CXMLElemento {
public:
    explicit CXMLElemento(CString csNombreElemento) : csNombre(std::move(csNombreElemento)) {}

    CString csNombre;
    std::vector<std::unique_ptr<CXMLAttribute>> aAtributos;

    CXMLAttribute* BuscarAtributo(std::wstring_view nombre) const;
    /// Appends the attribute when the name is absent; an old value stays.
    void AddAtributo(std::wstring_view nombre, std::wstring_view valor);
    void AddAtributoInt(std::wstring_view nombre, int iValor);
    /// The value as text, empty when absent.
    CString GetAtributo(std::wstring_view nombre) const;
    // 1 when the attribute exists, 0 otherwise: nothing is added.
    int SetAtributoInt(std::wstring_view nombre, int iValor);
    int SetAtributoDouble(std::wstring_view nombre, double dValor);
    int SetAtributoVariant(std::wstring_view nombre, const ValorAtributo& valor);
};

}  // namespace efv::catalogues
