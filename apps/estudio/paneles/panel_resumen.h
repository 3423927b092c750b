// What a part of the project amounts to, and the button that opens its dialog.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "diseno/resumen.h"

namespace efv::estudio {

class PanelResumen final : public ui::Dialogo {
public:
    struct Contenido {
        std::vector<LineaResumen> lineas;
        std::optional<CCtrlCurva2D> grafica = {};
    };

    /// @param leer what to show now; a panel with a chart has one from the start
    PanelResumen(std::string_view nombreClase, std::wstring_view csBoton, std::function<Contenido()> leer,
                 std::function<void()> accion);

    void Actualizar();
    const std::vector<LineaResumen>& Lineas() const { return *m_lineas; }

private:
    std::function<Contenido()> m_leer;
    std::shared_ptr<std::vector<LineaResumen>> m_lineas;
    ui::Lista* m_tabla = nullptr;
    ui::Grafica* m_grafica = nullptr;
};

}  // namespace efv::estudio
