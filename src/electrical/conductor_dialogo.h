// Dialog of a conductor, or of several edited together.
#pragma once

#include <quorvel/framework/CString.h>

#include "ui/ficha.h"

namespace efv::electrical {

/// What the dialog edits. Lengths in m, sections in mm².
struct DatosConductor {
    CString csReferencia;
    int iTipoTramo = 0;
    int bForzarLongitud = 0;
    double dLongitudForzada = 0.0, dLongitudAdicional = 0.0;
    int bNoContabilizar = 0;
    int bForzarSeccion = 0;
    double dSeccionForzada = 1.5, dSeccionMaxima = 300.0;
    int bConductoresFase = 0, iConductoresFase = 1;
    double dFactorCorrector = 0.0;  ///< %
    int iTipoInstalacion = 0, iTipoAislante = 0;
    int bTipoCable = 0, iTipoCable = 0;
    int bExcluir = 0;
};

/// Which conductors those are, in the drawing.
struct ConductorDibujado {
    int iModo = 0;  ///< 0 the data of new ones, 1 one conductor, else how many are edited together
    int iIdGrafico = 0;
    double dLongitud = 0.0, dDesnivel = 0.0;  ///< m
};

}  // namespace efv::electrical

class CDlgDatosConductor : public efv::ui::DialogoFicha<efv::electrical::DatosConductor> {
public:
    CDlgDatosConductor(const efv::electrical::ConductorDibujado& conductor,
                       const efv::electrical::DatosConductor& inicial);

private:
    using D = efv::electrical::DatosConductor;

    void AnadirSeccion();
    void AnadirInstalacion();
    efv::ui::Seleccion& AnadirCombo(std::string_view nombre, std::wstring_view rotulo, int* destino,
                                    std::vector<CString> acsEntradas, const efv::ui::Colocacion& colocacion);
    efv::ui::Seleccion& AnadirSecciones(double D::*miembro, std::wstring_view rotulo, int& iElegida,
                                        const efv::ui::Colocacion& colocacion);
    void Habilitar();
    bool AlAceptar() override;

    efv::ui::Seleccion *m_forzada = nullptr, *m_material = nullptr;
    // Entries of the two lists of sections.
    int m_iForzada = 0, m_iMaxima = 0;
};
