// Requests to PVGIS at the terminal: how far they are, an interrupt, what the service answered.
#pragma once

#include <optional>
#include <string>

#include <quorvel/localidades.h>
#include <quorvel/solar/pvgis.h>

namespace CLI {
class App;
}

namespace efv::orden {

/// Takes the service from EFV_PVGIS_URL and EFV_PVGIS_CA. @throws ErrorUso
void PonerServicioDelEntorno();

/// A place to ask for.
struct PuntoPedido {
    std::optional<Localidad> lugar;
    double dLatitud = 0.0, dLongitud = 0.0;

    std::string Nombre() const;
};

class OpcionesServicio {
public:
    void Declarar(CLI::App& linea);

    /// @throws ErrorUso, ErrorEjecucion
    PuntoPedido LeerPunto() const;

    /// The body of a good answer. The environment's service is asked. @throws ErrorEjecucion for what went
    /// wrong, with what the service said; an interrupt is one
    std::string Consultar(solar::ConsultaPVGIS consulta, const PuntoPedido& punto) const;

private:
    std::optional<std::string> m_lugar, m_latitud, m_longitud;
    std::string m_espera = "8", m_datos;
};

}  // namespace efv::orden
