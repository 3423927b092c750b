// The study of a plane's tilt: the year's curves at the current and at the best tilt, which a simulation finds.
#pragma once

#include <array>
#include <vector>

#include <quorvel/solar/inclinacion.h>

#include "solar/curvas_inclinacion.h"
#include "ui/ficha.h"

namespace efv::solar {

struct DatosInclinacion {
    double dInclinacionActual = 0.0;
    double dInclinacionOptima = 0.0;
    int iOpcion = 0;  ///< 0 the current tilt, 1 the best one
    int iMes = 12;    ///< whose best tilt; 12 the year's

    double Elegida() const { return iOpcion == 1 ? dInclinacionOptima : dInclinacionActual; }
};

inline constexpr auto kNombresInclinacion = std::to_array<ui::NombreCampo<DatosInclinacion>>({
    {"dInclinacionActual", &DatosInclinacion::dInclinacionActual},
    {"dInclinacionOptima", &DatosInclinacion::dInclinacionOptima},
    {"iOpcion", &DatosInclinacion::iOpcion},
    {"iMes", &DatosInclinacion::iMes},
});

}  // namespace efv::solar

template <>
struct efv::ui::CamposDe<efv::solar::DatosInclinacion>
    : CamposDeTabla<efv::solar::DatosInclinacion, efv::solar::kNombresInclinacion> {
};

class CDlgCalculoInclinacionPanel : public efv::ui::DialogoFicha<efv::solar::DatosInclinacion> {
public:
    /// Hourly blocks, which each curve overwrites; the horizontal one is read only if it is the source.
    std::vector<double> radInclinada, radHorizontal;
    std::array<double, 13> aInclinacionOptima{};  ///< by month and year, 0 until the simulation has run
    double dTotal1 = 0.0, dTotal2 = 0.0;          ///< of the curves of the current and of the best tilt

    explicit CDlgCalculoInclinacionPanel(const efv::solar::EstudioInclinacion& estudio);

protected:
    void AlVencerTemporizador() override;

private:
    void AnadirControles();
    void AlElegirOpcion();
    void AlElegirMes();
    void AlSalirDeActual();
    void Simular();
    void MostrarOptima(int iMes);
    void CalcularCurvas();

    efv::solar::PlanoEstudio m_plano;
    efv::ui::Seleccion* m_opcion = nullptr;
    efv::ui::Seleccion* m_mes = nullptr;
    efv::ui::TextoFijo* m_simulacion = nullptr;
    efv::ui::Progreso* m_progreso = nullptr;
    efv::ui::TextoFijo* m_total1 = nullptr;
    efv::ui::TextoFijo* m_total2 = nullptr;
    efv::ui::Grafica* m_grafica = nullptr;
    bool m_bTecleada = false;
};
