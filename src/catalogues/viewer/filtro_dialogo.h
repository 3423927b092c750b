// A condition on the models of a catalogue, put together by choosing.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <quorvel/catalogues/consulta.h>
#include <quorvel/ui/dialogo.h>

class CDlgFiltroModelos : public efv::ui::Dialogo {
public:
    /// @param datos the figures that can be asked for @param iCampo that to begin with
    CDlgFiltroModelos(const efv::TipoCatalogo& tipo, const std::vector<const CModelo*>& modelos,
                      const std::vector<efv::ColumnaCatalogo>& datos, std::optional<std::size_t> iCampo);

    /// "Pmpm >= 495", as efv::CondicionCatalogo reads it.
    CString csCondicion;

private:
    const efv::ColumnaCatalogo& Dato() const;
    void AlCambiarDato();
    CString Valores() const;
    bool AlAceptar() override;

    const efv::TipoCatalogo& m_tipo;
    const std::vector<const CModelo*>& m_modelos;
    const std::vector<efv::ColumnaCatalogo>& m_datos;
    efv::ui::Seleccion& m_dato;
    efv::ui::Seleccion& m_comparacion;
    efv::ui::Edicion& m_valor;
    efv::ui::TextoFijo& m_nota;
};

namespace efv::catalogues {

/// The condition that the person makes; nothing when they cancel.
std::optional<CString> PedirCondicion(const TipoCatalogo& tipo, const std::vector<const CModelo*>& modelos,
                                      const std::vector<ColumnaCatalogo>& datos,
                                      std::optional<std::size_t> iCampo);

}  // namespace efv::catalogues
