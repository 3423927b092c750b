// The program's window: the project's place at one side, its energy, designs, consumption and
// economic studies at the other.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <QMainWindow>
#include <QTimer>

#include "energia/panel_energia.h"
#include "esquema/vista_esquema.h"
#include "informe/informe.h"
#include "ordenes.h"
#include "paneles/panel_comprobaciones.h"
#include "paneles/panel_inicio.h"
#include "paneles/panel_lugar.h"
#include "paneles/panel_resumen.h"
#include "preferencias/preferencias.h"
#include "proyecto/recuperacion.h"
#include "proyecto/sesion.h"
#include "proyecto/vigia.h"

QT_BEGIN_NAMESPACE
class QLabel;
class QTabWidget;
class QToolButton;
QT_END_NAMESPACE

namespace efv::estudio {

class VentanaPrincipal final : public QMainWindow {
public:
    explicit VentanaPrincipal(const std::vector<Localidad>& localidades);
    ~VentanaPrincipal() override;

    Sesion& LaSesion() { return m_sesion; }
    const Sesion& LaSesion() const { return m_sesion; }
    /// The screen has no room for its usual size.
    bool EsMenorDeLoUsual() const;
    /// Names of the tabs, in their order.
    static std::vector<const char*> Pestanas();
    void MostrarPestana(std::string_view nombre);
    /// Brings the tab of a design that was accepted to the front.
    void MostrarDisenado(std::optional<Diseno> diseno);
    /// The same for what changes the project.
    void MostrarSiCambia(std::string_view pestana, const std::function<void()>& accion);
    /// Brings the checks of the designs before their summaries, or these.
    void MostrarComprobaciones(bool bMostrar);
    /// The schematic of the tab on view; null when it has none.
    VistaEsquema* EsquemaALaVista() const;
    /// The name of the tab on view.
    std::string_view PestanaALaVista() const;
    /// The design of the tab on view; nothing when it has none.
    std::optional<Diseno> DisenoALaVista() const;
    /// The help for the part that has the focus.
    void Ayudar();
    /// Units and decimal mark, in use from now on.
    void PonerPreferencias(const Preferencias& preferencias);
    void EditarPreferencias();
    /// Told what the person prefers from now on.
    std::function<void(const Preferencias&)> alPreferir;
    /// To the next of the window's parts, or the one before: place, tab, summary.
    void CambiarDeParte(bool bSiguiente);
    /// The study of the tilt on the plane of the energy's panel, which takes the tilt that is accepted.
    void EstudiarInclinacion();
    /// The planes of the field, with the power of the energy's panel.
    void EditarPlanos();
    /// From now on unsaved work is copied into the folder every few seconds.
    void CopiarEn(const std::string& carpeta);
    /// Offers what a run that died left there. @param bAvisar says so when there is nothing
    void OfrecerCopias(bool bAvisar);
    /// Takes what is being written in a panel.
    void TomarLoEscrito();
    /// The same. False when a field is at fault: the person is told which, and the focus is there.
    bool CamposValidos();
    /// Runs it and tells the person what went wrong: an exception must not pass through Qt's loop.
    void Atender(const std::function<void()>& accion);

protected:
    void closeEvent(QCloseEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct FilaPestana;
    static std::span<const FilaPestana> FilasPestanas();

    void CrearMenus();
    void CrearEstado();
    void CrearTeclas();
    std::vector<PanelInicio::Paso> PrimerosPasos();
    std::vector<QWidget*> Partes() const;
    void ActualizarEstado();
    void GuardarInformeDelDiseno();
    QWidget* CrearPanel(ui::Dialogo& dialogo, QWidget* padre);
    QWidget* CrearPestana(const FilaPestana& fila);
    void Actualizar();
    void ActualizarOrdenes();
    void MostrarDiseno(int iPestana, Diseno diseno);
    void CrearListaDePestanas();
    void RotularPestanas();
    void GuardarCopia();
    void MirarFichero();
    /// Panels of fields, and the tab that each stands in; empty outside them.
    struct PanelDeCampos {
        ui::Dialogo& dialogo;
        CamposQueSeDejan& campos;
        std::string_view pestana;
    };
    std::array<PanelDeCampos, 2> PanelesDeCampos();
    const std::optional<DisenoCalculado>& Calculado(Diseno diseno) const
    {
        return m_calculados.at(static_cast<std::size_t>(diseno));
    }

    Sesion m_sesion;
    VigiaFichero m_vigia;
    std::optional<Recuperacion> m_recuperacion;
    QTimer m_copia;    // to the next copy of unsaved work
    QTimer m_soltado;  // to the next turn of the loop, after a file was dropped
    CString m_csSoltado;
    QTimer m_rotulos;  // to the next turn of the loop, after the tabs have another size
    QTimer m_frente;   // to the next turn of the loop, after the window came to the front
    struct OrdenConNombre {
        QAction* accion;
        const Orden* orden;
    };
    std::vector<OrdenConNombre> m_conNombre;
    bool m_bMirando = false;
    Preferencias m_preferencias;
    PanelInicio m_inicio;
    PanelLugar m_lugar;
    PanelEnergia m_energia;
    // By design, in its order.
    std::array<std::optional<DisenoCalculado>, 2> m_calculados;
    std::array<PanelComprobaciones, 2> m_comprobaciones;
    PanelResumen m_aislada, m_red, m_consumo, m_venta, m_autoconsumo;
    QTabWidget* m_pestanas = nullptr;
    QToolButton* m_listaDePestanas = nullptr;
    std::array<QString, 2> m_avisos;         // why a design is out of date; empty: it isn't
    std::array<QTabWidget*, 2> m_cuentas{};  // below the schematics, by design
    std::vector<VistaEsquema*> m_esquemas;   // by tab; null for one without
    std::vector<QWidget*> m_paneles;
    QLabel *m_estado = nullptr, *m_ultima = nullptr;
    const CProyectoEstudio* m_mostrado = nullptr;
};

}  // namespace efv::estudio
