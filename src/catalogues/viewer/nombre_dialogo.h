// The name of a new or renamed element of a document.
#pragma once

#include <optional>
#include <string_view>

#include <quorvel/ui/dialogo.h>

/// Asks for a name.
class CDlgVisorNombre : public efv::ui::Dialogo {
public:
    CDlgVisorNombre(std::wstring_view titulo, CString csInicial);
    CString csNombre;

private:
    bool AlAceptar() override;
};

namespace efv::catalogues {

/// A name that the person gives; nothing when they cancel.
std::optional<CString> PedirNombre(std::wstring_view titulo, const CString& csInicial);

}  // namespace efv::catalogues
