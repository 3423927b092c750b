// The program's window: the menus and the energy of a field at a place.
#pragma once

#include <filesystem>

#include <QMainWindow>

#include "energia/panel_energia.h"

namespace efv::estudio {

class VentanaPrincipal final : public QMainWindow {
public:
    explicit VentanaPrincipal(const std::filesystem::path& datos);

private:
    void CrearMenus();

    PanelEnergia m_energia;
};

}  // namespace efv::estudio
