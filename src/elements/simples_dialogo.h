// Dialogs of the elements that have no model: grid, node, connection box, auxiliary element.
#pragma once

#include "elements/elemento_dialogo.h"

class IBIMCtrl;

namespace efv::elements {

struct DatosRedElectrica : DatosElemento {};
struct DatosElementoAuxiliar : DatosElemento {};

struct DatosNudo : DatosElemento {
    int bCaja = 0;  ///< it behaves like a connection box
};

struct DatosCajaConexion : DatosElemento {
    int nEntradas = 1;  ///< pairs of connections that come in
    int bTrifasica = 0;
};

template <>
inline constexpr auto kNombresDe<DatosNudo> = std::to_array<ui::NombreCampo<DatosNudo>>({
    {"bCaja", &DatosNudo::bCaja},
});
template <>
inline constexpr auto kNombresDe<DatosCajaConexion> = std::to_array<ui::NombreCampo<DatosCajaConexion>>({
    {"nEntradas", &DatosCajaConexion::nEntradas},
    {"bTrifasica", &DatosCajaConexion::bTrifasica},
});

}  // namespace efv::elements

/// Without the host's control it ends before it shows, with -1.
class CDlgDatosRedElectrica final : public efv::elements::DialogoElemento<efv::elements::DatosRedElectrica> {
public:
    CDlgDatosRedElectrica(const efv::elements::DatosRedElectrica& inicial, const IBIMCtrl* ctrl);
};

class CDlgDatosElementoAuxiliar final
    : public efv::elements::DialogoElemento<efv::elements::DatosElementoAuxiliar> {
public:
    explicit CDlgDatosElementoAuxiliar(const efv::elements::DatosElementoAuxiliar& inicial);
};

class CDlgDatosNudo final : public efv::elements::DialogoElemento<efv::elements::DatosNudo> {
public:
    explicit CDlgDatosNudo(const efv::elements::DatosNudo& inicial);
};

class CDlgDatosCajaConexion final : public efv::elements::DialogoElemento<efv::elements::DatosCajaConexion> {
public:
    explicit CDlgDatosCajaConexion(const efv::elements::DatosCajaConexion& inicial);
};
