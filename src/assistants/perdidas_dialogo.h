// Dialog of the losses that batteries are sized with.
#pragma once

#include "ui/filas.h"

namespace efv::assistants {

/// Percentages.
struct PerdidasAislada {
    double dPerdidaCableado = 0.0;
    double dPerdidaAcumulador = 0.0;
    double dPerdidaAcoplamiento = 0.0;
};

/// The three fields, for whoever edits them among others.
template <class V>
inline constexpr auto kFilasPerdidas = std::to_array<ui::Fila<V>>({
    {"dPerdidaCableado", &V::dPerdidaCableado, L"Pérdidas en el cableado (%):", {0, 100}},
    {"dPerdidaAcumulador", &V::dPerdidaAcumulador, L"Pérdidas en el acumulador (%):", {0, 100}},
    {"dPerdidaAcoplamiento", &V::dPerdidaAcoplamiento, L"Pérdidas por acoplamiento (%):", {0, 100}},
});

}  // namespace efv::assistants

class CDlgDatosPerdidasSolarAislada : public efv::ui::DialogoFicha<efv::assistants::PerdidasAislada> {
public:
    explicit CDlgDatosPerdidasSolarAislada(const efv::assistants::PerdidasAislada& inicial);

private:
    bool AlAceptar() override;
};
