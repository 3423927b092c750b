// The program's window: the project's place at one side, its energy, designs and consumption at the other.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QMainWindow>

#include "energia/panel_energia.h"
#include "esquema/vista_esquema.h"
#include "informe/informe.h"
#include "paneles/panel_lugar.h"
#include "paneles/panel_resumen.h"
#include "proyecto/sesion.h"

QT_BEGIN_NAMESPACE
class QTabWidget;
QT_END_NAMESPACE

namespace efv::estudio {

class VentanaPrincipal final : public QMainWindow {
public:
    enum Pestana : int { energia, aislada, red, consumo };
    static constexpr int kPestanas = 4;

    explicit VentanaPrincipal(const std::vector<Localidad>& localidades);
    ~VentanaPrincipal() override;

    Sesion& LaSesion() { return m_sesion; }
    void MostrarPestana(int iPestana);
    /// The schematic of the tab on view; null when it has none.
    VistaEsquema* EsquemaALaVista() const;
    /// The design of the tab on view; nothing when it has none.
    std::optional<Diseno> DisenoALaVista() const;
    /// Runs it and tells the person what went wrong: an exception must not pass through Qt's loop.
    void Atender(const std::function<void()>& accion);

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void CrearMenus();
    void Actualizar();

    Sesion m_sesion;
    PanelLugar m_lugar;
    PanelEnergia m_energia;
    PanelResumen m_aislada, m_red, m_consumo;
    QTabWidget* m_pestanas = nullptr;
    VistaEsquema* m_esquemaAislada = nullptr;
    VistaEsquema* m_esquemaRed = nullptr;
    std::vector<QWidget*> m_paneles;
};

}  // namespace efv::estudio
