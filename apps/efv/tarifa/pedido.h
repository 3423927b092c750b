// A tariff as `efv tarifa` and the study of self-consumption ask for it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include <quorvel/tarifas.h>

namespace efv::orden {

struct PedidoTarifa {
    std::string tarifa = "2.0TD";  ///< "2.0TD", "plana", or a file of periods
    std::string zona = "peninsula";
    std::string festivos;  ///< file of holidays; empty: the shipped one
    std::array<std::optional<double>, economics::kMaximoPeriodos> adPrecio;  ///< €/kWh before taxes
    std::optional<double> dExcedente;                                        ///< €/kWh before taxes
    std::string excedentes;                                                  ///< or a file of 8760 of them
    double dImpuestos = 1.0;                                                 ///< factor on the energy bought
    double dImpuestosExcedente = 1.0;                                        ///< and on the surplus
};

/// @param csDatos option --datos @throws ErrorEjecucion with file and line
economics::Tarifa HacerTarifa(const PedidoTarifa& pedido, const std::string& csDatos);

/// Price of a surplus kWh in each hour of the year, with taxes; zeros without one. @throws ErrorEjecucion
std::vector<double> PreciosDeExcedente(const PedidoTarifa& pedido);

}  // namespace efv::orden
