// Plays a script against the dialogs that a call opens.
#pragma once

#include <quorvel/ui.h>

namespace efv::pruebas {

namespace paso = ui::paso;

class Guion {
public:
    Guion() { ui::InstalarPresentador(&presentador); }
    ~Guion() { ui::InstalarPresentador(nullptr); }
    Guion(const Guion&) = delete;
    Guion& operator=(const Guion&) = delete;

    Guion& Dialogo(std::string clase, std::vector<ui::Paso> pasos)
    {
        presentador.guiones.push_back({std::move(clase), std::move(pasos)});
        return *this;
    }

    /// Text of the control in reading `iLectura` of transcript `iDialogo`.
    CString Texto(std::size_t iDialogo, std::size_t iLectura, const std::string& control) const
    {
        return Estado(iDialogo, iLectura, control).csTexto;
    }

    const ui::EstadoControl& Estado(std::size_t iDialogo, std::size_t iLectura,
                                    const std::string& control) const
    {
        for (const auto& [nombre, estado] : presentador.transcripciones.at(iDialogo).lecturas.at(iLectura))
            if (nombre == control)
                return estado;
        throw std::out_of_range(control);
    }

    /// Texts of the boxes shown, in order.
    std::vector<CString> Mensajes() const
    {
        std::vector<CString> textos;
        for (const auto& mostrado : presentador.mostrados)
            textos.push_back(mostrado.mensaje.csTexto);
        return textos;
    }

    ui::PresentadorGuionizado presentador;
};

}  // namespace efv::pruebas
