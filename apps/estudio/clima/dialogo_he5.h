// The building code's minimum photovoltaic power of a building.
#pragma once

#include <quorvel/solar/he5.h>

#include "comun/campos.h"
#include "proyecto/proyecto.h"

namespace efv::estudio {

class DialogoHE5 final : public ui::Dialogo {
public:
    /// The zone begins with that of the place's radiation.
    explicit DialogoHE5(const Lugar& lugar);

private:
    ui::Seleccion& AnadirUso(const char* nombre, const wchar_t* csRotulo, bool bNinguno);
    ui::Edicion& AnadirSuperficie(const char* nombre, const wchar_t* csRotulo, double& dSuperficie);
    void Calcular();

    CamposQueSeDejan m_campos;
    solar::EdificioHE5 m_edificio;
    double m_dCubierta = 0.0;
    ui::Seleccion *m_zona = nullptr, *m_uso1 = nullptr, *m_uso2 = nullptr;
    ui::Casilla* m_residencial = nullptr;
    ui::TextoFijo* m_resultado = nullptr;
};

}  // namespace efv::estudio
