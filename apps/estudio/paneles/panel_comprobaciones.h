// The checks of a design beside it, and what would pass them.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "diseno/comprobaciones.h"

namespace efv::estudio {

class PanelComprobaciones final : public ui::Dialogo {
public:
    PanelComprobaciones();

    /// @param bVigente false: a field that it depends on is at fault
    void Poner(const std::optional<DisenoCalculado>& calculado, bool bVigente = true);
    const std::vector<LineaComprobacion>& Lineas() const { return *m_lineas; }

private:
    std::shared_ptr<std::vector<LineaComprobacion>> m_lineas;
    ui::TextoFijo *m_veredicto = nullptr, *m_propuesta = nullptr;
    ui::Lista* m_tabla = nullptr;
};

}  // namespace efv::estudio
