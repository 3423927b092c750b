// A model's identification, "family#model", as the fields of a dialog show it.
#pragma once

#include <quorvel/framework/CString.h>

namespace efv::elements {

/// The two fields. A text of other than two parts stands whole in the model's, with no-break spaces for its
/// "#".
struct CamposIdentificacion {
    CString csModelo;
    CString csFabricante;

    bool operator==(const CamposIdentificacion&) const = default;
};

CamposIdentificacion PartirIdentificacion(const CString& csId);

/// "manufacturer#model" out of the fields: "#model" without a manufacturer, "#" of empty ones.
CString ComponerIdentificacion(const CString& csModelo, const CString& csFabricante);

/// An identification that a field shows whole: each "#" is a no-break space there.
CString EnPantalla(CString csId);
/// And back.
CString DePantalla(CString csTexto);

}  // namespace efv::elements
