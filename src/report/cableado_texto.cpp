#include <vector>

#include <fmt/format.h>

#include <quorvel/report/cableado.h>
#include <quorvel/report/texto.h>

namespace efv::report {

namespace {

// Why none of the table's sections is enough.
std::string MotivoDeNinguna(const electrical::TramoCable& tramo, const electrical::TramoCalculado& c)
{
    if (c.dFactor <= 0.0)
        return fmt::format("el aislamiento no admite {} con ese método de instalación",
                           Con(c.dTemperatura, 1, "ºC"));
    if (c.dPorCorriente <= 0.0)
        return fmt::format("ninguna sección de la tabla admite {} por conductor",
                           Con(c.dCorrienteCalculo, 2, "A"));
    return fmt::format("ninguna sección de la tabla mantiene la caída en {}: harían falta {}",
                       Con(tramo.dLimiteCaida, 2, "%"), Con(c.dMinimaPorCaida, 1, "mm²"));
}

}  // namespace

std::string MotivoDe(const electrical::TramoCable& tramo, const electrical::TramoCalculado& c)
{
    if (c.dSeccion <= 0.0)
        return MotivoDeNinguna(tramo, c);
    std::vector<std::string> motivos;
    if (c.dAdmisible <= 0.0)
        motivos.push_back(fmt::format("la tabla no da corriente para {} con ese método y temperatura",
                                      TextoSeccion(c.dSeccion)));
    else if (!c.bCorriente)
        motivos.push_back(fmt::format("admite {} y hacen falta {}", Con(c.dAdmisible, 2, "A"),
                                      Con(c.dAdmisible - c.dReserva, 2, "A")));
    if (!c.bCaida)
        motivos.push_back(fmt::format("la caída es {} y el límite {}", Con(c.dCaidaPct, 2, "%"),
                                      Con(tramo.dLimiteCaida, 2, "%")));
    return fmt::format("{}", fmt::join(motivos, "; "));
}

std::string TextoSeccion(double dSeccion, int iConductoresFase)
{
    if (!(dSeccion > 0.0))
        return "—";
    const std::string varios = iConductoresFase > 1 ? fmt::format("{} × ", iConductoresFase) : "";
    return varios + DecimalExacto(dSeccion) + " mm²";
}

}  // namespace efv::report
