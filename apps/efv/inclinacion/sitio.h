// Where a sky is asked for: options that the commands of tilt and climate share.
#pragma once

#include <array>
#include <optional>
#include <string>

#include <quorvel/clima.h>
#include <quorvel/localidades.h>

namespace CLI {
class App;
}

namespace efv::orden {

/// A site with what it stands on.
struct SitioPedido {
    std::optional<Localidad> lugar;
    double dLatitud = 0.0;
    double dAltitud = 0.0;
    double dHumedad = 0.5;
    std::array<std::array<double, 31>, 12> adTemperaturas{};

    clima::SitioCielo Cielo() const;
    /// 0, in the south 180.
    double OrientacionAlEcuador() const { return dLatitud < 0.0 ? 180.0 : 0.0; }
};

class OpcionesSitio {
public:
    void Declarar(CLI::App& linea);

    /// Reads the options, looks the place up and loads the horizon. @throws ErrorUso, ErrorEjecucion
    SitioPedido Leer() const;

private:
    std::optional<std::string> m_lugar, m_latitud, m_altitud, m_horizonte;
    std::string m_humedad = "0.5", m_temperatura = "25", m_datos;
};

}  // namespace efv::orden
