// The hours of one day: what every dialog that edits them has in common.
#pragma once

#include <quorvel/consumption.h>

#include "consumption/asignacion_dia.h"
#include "consumption/controles_horas.h"

namespace efv::consumption {

/// Twenty-four fields with their curve, the paste button and the choice of the days that get them on
/// acceptance.
class DialogoDia : public ui::Dialogo {
protected:
    /// @param iMes,iDia a day that exists, from 0  @param horas of any day of the year; must outlive the dialog
    DialogoDia(std::string_view nombreClase, std::wstring_view titulo, const AspectoHoras& aspecto, int iMes,
               int iDia, HorasDelDia horas);

    /// Only to be looked at.
    void SoloConsultar();

    bool AlAceptar() override;

private:
    void AlPegar();

    int m_iMes, m_iDia;
    HorasDelDia m_horasDelDia;
    ControlesHoras m_horas;
    ui::Boton& m_pegar;
    int m_iAlcance = 0;
};

}  // namespace efv::consumption
