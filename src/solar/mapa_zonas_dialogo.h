// The map of the building code's climate zones: a dot for each municipality.
#pragma once

#include <span>

#include <quorvel/localidades.h>
#include <quorvel/ui/dialogo.h>

namespace efv::solar {

/// The places that have a zone as dots over longitude and latitude, one series a zone.
CCtrlCurva2D MapaDeZonas(std::span<const Localidad> localidades);

}  // namespace efv::solar

class CDlgMapaZonas : public efv::ui::Dialogo {
public:
    /// @param csFalta why there are no places; empty when there are
    CDlgMapaZonas(std::span<const efv::Localidad> localidades, const CString& csFalta);
};
