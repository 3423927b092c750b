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
        CString csAviso = {};  ///< why it has to be worked out again; empty: it hasn't
    };

    /// @param leer what to show now; a panel with a chart has one from the start
    /// @param recalcular what the button beside a warning does; none: there are no warnings
    PanelResumen(std::string_view nombreClase, std::wstring_view csBoton, std::function<Contenido()> leer,
                 std::function<void()> accion, std::function<void()> recalcular = {});

    /// @param bVigente false: a field that it depends on is at fault
    void Actualizar(bool bVigente = true);
    const std::vector<LineaResumen>& Lineas() const { return *m_lineas; }

private:
    std::function<Contenido()> m_leer;
    std::shared_ptr<std::vector<LineaResumen>> m_lineas;
    ui::Lista* m_tabla = nullptr;
    ui::TextoFijo* m_aviso = nullptr;
    ui::Boton* m_recalcular = nullptr;
    ui::Grafica* m_grafica = nullptr;
};

}  // namespace efv::estudio
