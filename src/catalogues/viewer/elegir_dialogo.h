// Choosing a model out of a table.
#pragma once

#include "catalogues/viewer/tabla_modelos.h"

namespace efv::catalogues {

/// Lets the person choose out of a catalogue file, beginning with `csSeleccion`, which becomes the one chosen
/// ("family#model"). @return 1 chosen, 0 the file can't be read, 2 cancelled
int ElegirEnTabla(const TipoCatalogo& tipo, const CString& csRuta, const GraficaDeModelo& grafica,
                  CString& csSeleccion);

}  // namespace efv::catalogues

class CDlgElegirModelo : public efv::catalogues::DialogoDeModelos {
public:
    /// @param base holds the models; must outlive the dialog
    CDlgElegirModelo(const efv::TipoCatalogo& tipo, const CBaseXML& base,
                     efv::catalogues::GraficaDeModelo grafica, const CString& csSeleccion);

    /// "family#model" of the row at hand; empty for none.
    CString Seleccion() const;

private:
    void AlCambiarModelo() override;
    void AlAbrirModelo() override { Terminar(ok); }
    bool AlAceptar() override;

    const efv::TipoCatalogo& m_tipoElegido;
    efv::ui::Boton* m_ver = nullptr;
};
