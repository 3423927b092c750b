// `efv consumo importar`: a plain list of values, or a meter's file as a distributor delivers it.
#pragma once

#include <optional>
#include <string>

#include "consumo/ano.h"

namespace CLI {
class App;
}

namespace efv::orden {

/// The options of the command and what they read.
class ImportacionConsumo {
public:
    void Declarar(CLI::App& orden);
    /// @throws ErrorUso, ErrorEjecucion
    AnoConsumo Leer(const std::string& ruta) const;

private:
    void ComprobarSinContador() const;
    LecturaContador OpcionesDeContador() const;

    std::optional<std::string> m_unidad, m_tiempo, m_periodo, m_cups, m_etiqueta, m_lugar, m_longitud, m_huso;
    std::string m_datos;
    bool m_bIncompleto = false, m_bEstricto = false, m_bReloj = false;
};

}  // namespace efv::orden
