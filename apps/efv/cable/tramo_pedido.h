// A stretch of cable as it is asked for: each figure by its name, as an option of the command or a column of a
// list.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <quorvel/cables_calculo.h>

namespace efv::orden {

struct TramoPedido {
    std::string referencia;
    electrical::TramoCable tramo;
    std::optional<double> dLongitud, dTension, dCorriente, dPotencia;

    /// The stretch with its current. @throws ErrorUso for what is missing or is there twice
    electrical::TramoCable Completo() const;
};

/// A figure of a stretch.
struct CampoPedido {
    const char* nombre;
    const char* unidad;  ///< as in the help; null for a tick
    const char* ayuda;
    void (*poner)(TramoPedido&, const CampoPedido&, const std::string& texto);  ///< @throws ErrorUso
    double dMinimo = 0.0, dMaximo = 0.0;
};

std::span<const CampoPedido> CamposPedidos();

/// The figure of that name, whatever its case and accents; null without one.
const CampoPedido* BuscarCampo(const std::string& nombre);

/// Sets a figure. An empty text leaves it as it is. @throws ErrorUso with the figure's name
void Poner(TramoPedido& pedido, const CampoPedido& campo, const std::string& texto);

}  // namespace efv::orden
