// The first steps: what is done in which order, with a button for each and how far it is.
#pragma once

#include <functional>
#include <vector>

#include <quorvel/ui/dialogo.h>

namespace efv::estudio {

class PanelInicio final : public ui::Dialogo {
public:
    struct Accion {
        const char* nombre;
        std::wstring_view csRotulo;
        std::function<void()> hacer;
    };
    struct Paso {
        std::wstring_view csTitulo;  ///< stays as long as the panel
        std::vector<Accion> acciones;
        std::function<CString()>
            hecho;  ///< what is there of it; empty: nothing yet. None: a step without an end
    };

    explicit PanelInicio(std::vector<Paso> pasos);

    void Actualizar();

private:
    struct Marca {
        ui::TextoFijo* texto;
        std::function<CString()> hecho;
    };

    std::vector<Marca> m_marcas;
};

}  // namespace efv::estudio
