// Dialogs of what converts: an inverter with its inputs, a DC/DC converter.
#pragma once

#include <quorvel/catalogues/inversor.h>

#include "catalogues/dialogs/inversor_paginas.h"
#include "electrical/entradas.h"
#include "elements/elemento_dialogo.h"

namespace efv::elements {

struct DatosConvertidorCC : DatosConModelo {};

struct DatosInversor : DatosConModelo {
    int bEscala = 0;  ///< drawn to scale
};

template <>
inline constexpr auto kNombresDe<DatosInversor> = std::to_array<ui::NombreCampo<DatosInversor>>({
    {"bEscala", &DatosInversor::bEscala},
});

}  // namespace efv::elements

class CDlgDatosConvertidorCC final : public efv::elements::DialogoConModelo<efv::elements::DatosConvertidorCC> {
public:
    CDlgDatosConvertidorCC(const efv::elements::DatosConvertidorCC& inicial,
                           const efv::catalogues::Bases& bases);
};

/// The inputs that were accepted stand in `entradas`. They are made anew, with their labels, when the model's
/// counts aren't those that the inverter had.
class CDlgDatosInversor final : public efv::elements::DialogoConModelo<efv::elements::DatosInversor> {
public:
    CDlgDatosInversor(const efv::elements::DatosInversor& inicial,
                      const efv::electrical::Entradas& entradasIniciales, int iNumMPPT, int iNumEntradas,
                      const efv::catalogues::Bases& bases);

    efv::electrical::Entradas entradas;

private:
    void AnadirPaginas();
    bool CargarModelo();
    void AlElegirModelo() override;

    const efv::catalogues::Bases& m_bases;
    int m_iNumMPPT, m_iNumEntradas;
    CBaseInversorModelo m_modelo;
    efv::catalogues::PaginasInversor m_paginas{m_modelo};
    efv::ui::TextoFijo* m_uso = nullptr;
};
