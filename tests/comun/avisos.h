// Captures the message boxes that a test provokes.
#pragma once

#include <quorvel/ui.h>

namespace efv::pruebas {

class Avisos {
public:
    Avisos() { ui::InstalarPresentador(&m_presentador); }
    ~Avisos() { ui::InstalarPresentador(nullptr); }
    Avisos(const Avisos&) = delete;
    Avisos& operator=(const Avisos&) = delete;

    const std::vector<ui::PresentadorGuionizado::Mostrado>& Mostrados() const
    {
        return m_presentador.mostrados;
    }

private:
    ui::PresentadorGuionizado m_presentador;
};

}  // namespace efv::pruebas
