// Elements of an installation's drawing: what can be written beside each in the plan.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv::elements {

/// What an element can have written beside it, in the order of the bits of its mask: bit i of `iRotulos` says
/// that property i is.
/// @param clase class of the element's dialog, "CDlgDatosAcumulador"; nothing for any other
EFV_API std::optional<std::span<const std::wstring_view>> PropiedadesDe(std::wstring_view clase);

/// Lets the person choose what is written beside an element.
/// @param clase as above; CInvalidArgException for any other
/// @param iRotulos written when accepted, with the bits behind the last property at 0
/// @return 1 accepted, 2 cancelled
EFV_API int EditarRotulos(std::wstring_view clase, int& iRotulos);

}  // namespace efv::elements
