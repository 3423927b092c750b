// The planes of the project's field: what each gives, and the dialog that edits them.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include <quorvel/solar/planos.h>

#include "comun/campos.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

/// The loaded climate record, or the clear sky without one.
solar::OrigenHoras OrigenDeLasHoras();

/// "Con los planos (origen): 1,0 kWh al año; hacia el ecuador, 2,0 kWh."
CString TextoDeEnergia(std::wstring_view csCon, const solar::EnergiaPlanos& energia);

class DialogoPlanos final : public ui::Dialogo {
public:
    /// @param campo whose power is shared out
    DialogoPlanos(std::vector<solar::PlanoCampo> iniciales, const solar::CampoSolar& campo, double dAltitud);

    std::vector<solar::PlanoCampo> planos;

private:
    ui::Edicion& AnadirCampo(const char* nombre, const wchar_t* csRotulo, double& d, ui::Intervalo limites);
    void AlElegir();
    void AlDejar();
    /// Whether the row may be left; else its field at fault is told.
    bool PuedeDejarse();
    void AnadirPlano();
    void QuitarPlano();
    /// Shows the plane of row `iFila`, or none.
    void IrAFila(std::ptrdiff_t iFila);
    void Refrescar();
    bool AlAceptar() override;

    solar::CampoSolar m_campo;
    double m_dAltitud;
    double m_dInclinacion = 0.0, m_dOrientacion = 0.0, m_dParte = 0.0;  // of the row; the share in per cent
    std::shared_ptr<std::vector<std::vector<CString>>> m_filas;
    int m_iFila = -1;  // whose fields are shown
    ui::Lista* m_lista = nullptr;
    CamposQueSeDejan m_escritos;
    std::vector<ui::Edicion*> m_campos;
    ui::Boton *m_anadir = nullptr, *m_quitar = nullptr;
    ui::TextoFijo* m_nota = nullptr;
};

/// Lets the person edit the project's planes. @param campo whose energy is shown meanwhile
void EditarPlanos(Sesion& sesion, const solar::CampoSolar& campo);

}  // namespace efv::estudio
