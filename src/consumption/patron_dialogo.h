// The week of a typical pattern.
#pragma once

#include <optional>

#include <quorvel/consumption.h>

#include "consumption/controles_horas.h"

class CDlgConfigPatronConsumo : public efv::ui::Dialogo {
public:
    efv::SemanaFactores semana;

    explicit CDlgConfigPatronConsumo(const efv::SemanaFactores& inicial);

protected:
    bool AlAceptar() override;

private:
    void AlElegirDia();
    void AlCopiar();
    void MostrarDia(int iDia);

    efv::ui::Seleccion& m_dia;
    efv::ui::Seleccion& m_copiar;
    efv::consumption::ControlesHoras m_horas;
    int m_iDia = 0;
};
