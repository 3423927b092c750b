// The pages of an array's dialog. They edit the dialog's record.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <vector>

#include <quorvel/catalogues/micro_inversor.h>
#include <quorvel/catalogues/panel_foto.h>
#include <quorvel/ui/pagina.h>

#include "elements/panel_datos.h"

/// The module's values at standard conditions, only to be looked at.
class CTabPanelFotovoltaicoSTC final : public efv::ui::Pagina {
public:
    explicit CTabPanelFotovoltaicoSTC(efv::ui::Dialogo& dialogo);

    void Mostrar(const CBasePanelFotoModelo& modelo);

private:
    CBasePanelFotoModelo m_modelo;
    efv::ui::CamposDeObjeto<CBasePanelFotoModelo> m_campos{m_modelo};
};

/// What each panel does about its losses.
class CTabPanelFotovoltaicoOptimizador final : public efv::ui::Pagina {
public:
    CTabPanelFotovoltaicoOptimizador(efv::ui::Dialogo& dialogo, efv::elements::DatosPanel& datos,
                                     std::span<const CString> acsOptimizadores);

    /// After the dialog has shown its record.
    void Habilitar();

private:
    void AnadirModelo();
    void AnadirMPPT(std::span<const CString> acsOptimizadores);
    bool AlRecoger();

    efv::elements::DatosPanel& m_datos;
    efv::ui::CamposDeObjeto<efv::elements::DatosPanel> m_campos{m_datos};
    efv::ui::Seleccion* m_mppt = nullptr;
};

/// The micro-inverter that stands behind the panels.
class CTabPanelFotovoltaicoMicroInversor final : public efv::ui::Pagina {
public:
    CTabPanelFotovoltaicoMicroInversor(efv::ui::Dialogo& dialogo, efv::elements::DatosPanel& datos,
                                       const efv::catalogues::Bases& bases);

    std::function<void()> alHabilitar;  ///< the person has put micro-inverters on or off
    std::function<void()> alElegir;     ///< the person has chosen a model

    /// After the dialog has shown its record.
    void Habilitar();
    /// Shows the model's data; one that the catalogue doesn't have leaves those that stand there.
    /// @return the model; null without one
    const CBaseMicroInversorModelo* Mostrar();

private:
    static constexpr std::size_t kDatos = 7;

    void AnadirModelo();
    void Elegir();

    efv::elements::DatosPanel& m_datos;
    const efv::catalogues::Bases& m_bases;
    efv::ui::CamposDeObjeto<efv::elements::DatosPanel> m_campos{m_datos};
    efv::ui::Boton* m_elegir = nullptr;
    efv::ui::Edicion *m_id = nullptr, *m_fabricante = nullptr;
    std::array<efv::ui::Edicion*, kDatos> m_hoja{};
};
