// One load: its model, its units and its bands of use.
#pragma once

#include <array>

#include <quorvel/consumption.h>

#include "catalogues/bases.h"
#include "ui/filas.h"

namespace efv::consumption {

struct DatosReceptor {
    CString csReferencia;
    int bModelo = 1;             ///< not 0: the model may be chosen
    int bPedirCantidad = 1;      ///< not 0: units are asked for, and the model may always be chosen
    int iMes = 0, iDiaTipo = 0;  ///< on view
    CSFVDataReceptor receptor;   ///< model, units, exclusion and bands; the rest comes from the catalogue
};

/// Opens the load's dialog on one that has no reference of its own. On acceptance model, units, power,
/// exclusion and bands are taken back. @return 1 when the person accepted, 2 when not
int EditarReceptor(CSFVDataReceptor& receptor, int iMes, const catalogues::Bases& bases);

}  // namespace efv::consumption

class CDlgDatosReceptor : public efv::ui::Dialogo {
public:
    efv::consumption::DatosReceptor datos;

    CDlgDatosReceptor(efv::consumption::DatosReceptor inicial, const efv::catalogues::Bases& bases);

protected:
    bool AlAceptar() override;

private:
    // A bound of a band: where it is dragged, and how it reads.
    struct Limite {
        efv::ui::Deslizador* deslizador = nullptr;
        efv::ui::TextoFijo* lectura = nullptr;
    };

    void AnadirModelo();
    void AnadirDatosCatalogo();
    void AnadirPlanificacion();
    void AnadirLimites();
    void MostrarCatalogo();
    void MostrarFranjas();
    void MostrarHoras();
    void AlElegirModelo();
    void AlElegirMes();
    void AlElegirDiaTipo();
    void AlMover(std::size_t i);
    void AlUnificar();
    CString DiasSinUso() const;
    double (&FranjasVisibles())[6] { return datos.receptor.dHorario[datos.iMes][datos.iDiaTipo]; }

    const efv::catalogues::Bases& m_bases;
    std::array<Limite, 6> m_limites;
    efv::ui::Boton* m_elegir = nullptr;
    efv::ui::Seleccion* m_unificar = nullptr;
};
