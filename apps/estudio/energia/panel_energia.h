// Energy of a field at the project's place, month by month, by both methods.
#pragma once

#include <array>
#include <functional>
#include <limits>
#include <vector>

#include <quorvel/solar/energia.h>
#include <quorvel/solar/planos.h>

#include "comun/campos.h"
#include "proyecto/proyecto.h"

namespace efv::estudio {

using solar::kMeses;

/// One month, or the year. What a method has no answer for is not-a-number.
struct FilaEnergia {
    static constexpr double kNada = std::numeric_limits<double>::quiet_NaN();

    CString csNombre;
    double dHorizontal = 0.0;                       ///< kWh/m²·day
    std::array<double, 2> adRI{kNada, kNada};       ///< kWh/m²·day; 0 correlation, 1 table
    std::array<double, 2> adEnergia{kNada, kNada};  ///< kWh
};

class PanelEnergia final : public ui::Dialogo {
public:
    /// @param editarPlanos what the button of the planes does
    explicit PanelEnergia(Lugar lugarInicial, std::function<void()> editarPlanos = {});

    /// The hours come from the loaded climate record, if there is one. With planes the orientation is theirs.
    void Poner(const Lugar& otro, const Situacion& otraSituacion,
               const std::vector<solar::PlanoCampo>& otrosPlanos = {});

    /// @param bVigente false: what the project says of the place is at fault
    void PonerVigente(bool bVigente);
    CamposQueSeDejan& Campos() { return m_campos; }

    double Inclinacion() const { return m_dInclinacion; }
    double Orientacion() const { return m_dOrientacion; }
    void PonerInclinacion(double dInclinacion);
    /// Columns and figures in the units of now.
    void PonerUnidades();
    solar::CampoSolar Campo() const;

    const std::vector<FilaEnergia>& Filas() const { return *m_filas; }

private:
    void AlCambiar();
    /// @return whether all methods reach the place
    bool Calcular();
    void Mostrar();

    CString Orientada() const;

    CamposQueSeDejan m_campos;
    bool m_bVigente = true;
    Lugar m_lugar;
    Situacion m_situacion;
    std::vector<solar::PlanoCampo> m_planos;  // of the project; empty: one of the figures below
    double m_dInclinacion = 30.0;             // degrees toward the equator
    double m_dOrientacion = 0.0;              // degrees, 0 south
    double m_dPotencia = 1.0;                 // kWp
    double m_dPR = 0.8;
    std::shared_ptr<std::vector<FilaEnergia>> m_filas;

    ui::TextoFijo* m_nota = nullptr;
    ui::Edicion *m_inclinacion = nullptr, *m_orientacion = nullptr;
    ui::Lista* m_tabla = nullptr;
    ui::Grafica* m_grafica = nullptr;
};

}  // namespace efv::estudio
