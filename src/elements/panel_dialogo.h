// Dialog of an array of PV panels.
#pragma once

#include <span>
#include <vector>

#include "elements/panel_datos.h"

class CTabPanelFotovoltaicoSTC;
class CTabPanelFotovoltaicoOptimizador;
class CTabPanelFotovoltaicoMicroInversor;

class CDlgDatosPanelFotovoltaico final : public efv::elements::DialogoConModelo<efv::elements::DatosPanel> {
public:
    /// @param acsOptimizadores those that may be chosen
    /// @param iUltimaPagina page that was open at the last OK of such a dialog; this one's becomes it
    CDlgDatosPanelFotovoltaico(const efv::elements::DatosPanel& inicial, const efv::elements::ClimaPanel& clima,
                               std::span<const CString> acsOptimizadores, const efv::catalogues::Bases& bases,
                               int& iUltimaPagina);

protected:
    bool AlAceptar() override;
    void AlElegirModelo() override;

private:
    using D = efv::elements::DatosPanel;

    void AnadirPaneles();
    void AnadirMontaje();
    void AnadirSombras();
    void AnadirString();
    void AnadirPaginas(std::span<const CString> acsOptimizadores);
    void Habilitar();

    void CargarModelo();
    void MostrarMicro();
    void MostrarMontaje();
    void Simular();

    void AlHabilitarMicro();
    void AlSalirDePaneles();
    void AlSalirDeInclinacion();
    void EstudiarInclinacion();

    efv::elements::ClimaPanel m_clima;
    const efv::catalogues::Bases& m_bases;
    int& m_iUltimaPagina;
    std::vector<double> m_adHorizontal, m_adPanel;
    CTabPanelFotovoltaicoSTC* m_stc = nullptr;
    CTabPanelFotovoltaicoOptimizador* m_optimizador = nullptr;
    CTabPanelFotovoltaicoMicroInversor* m_micro = nullptr;
    efv::ui::Imagen* m_imagen = nullptr;
    efv::ui::BotonColor* m_color = nullptr;
    efv::ui::Grafica* m_grafica = nullptr;
};
