// Dialog of the batteries of an installation.
#pragma once

#include <quorvel/catalogues/acumulador.h>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/kinds/acumulador.h"
#include "elements/elemento_dialogo.h"

namespace efv::elements {

struct DatosAcumulador : DatosConModelo {
    int nSerie = 1, nParalelo = 1;  ///< batteries of a branch, branches
    int bEscala = 0;                ///< drawn to scale
};

template <>
inline constexpr auto kNombresDe<DatosAcumulador> = std::to_array<ui::NombreCampo<DatosAcumulador>>({
    {"nSerie", &DatosAcumulador::nSerie},
    {"nParalelo", &DatosAcumulador::nParalelo},
    {"bEscala", &DatosAcumulador::bEscala},
});

}  // namespace efv::elements

class CDlgDatosAcumulador final : public efv::elements::DialogoConModelo<efv::elements::DatosAcumulador> {
public:
    CDlgDatosAcumulador(const efv::elements::DatosAcumulador& inicial, const efv::catalogues::Bases& bases);

private:
    void AnadirDatosModelo();
    void MostrarModelo();
    void AlElegirModelo() override { MostrarModelo(); }

    const efv::catalogues::Bases& m_bases;
    CBaseAcumuladorModelo m_modelo;
    efv::ui::CamposDeObjeto<CBaseAcumuladorModelo> m_campos{m_modelo};
    efv::ui::TextoFijo* m_tipo = nullptr;
    efv::ui::Lista* m_regimenes = nullptr;
};
