// The stand-alone assistant.
#pragma once

#include "assistants/cargas_aislada.h"
#include "assistants/dialogo_asistente.h"
#include "assistants/lugar.h"

class CDlgAsistenteSFVAislada : public efv::assistants::DialogoAsistente<efv::assistants::ValoresAislada> {
public:
    /// @param registro gives the loads, and gets them back at OK, also at one that is refused afterwards
    /// @param iUltimaPagina page to begin on; then the one that was open at OK
    CDlgAsistenteSFVAislada(const efv::assistants::ValoresAislada& inicial,
                            const efv::assistants::TextoLugar& lugar, CSFVAsistenteAislada& registro,
                            const efv::catalogues::Bases& bases, int& iUltimaPagina);

private:
    void AnadirCargas();
    void AnadirPaginaAcumuladores();
    void AnadirPaginaPaneles();
    void AnadirPaginaRegulacion();
    void AnadirPaginaPerdidas();
    void AnadirPaginaSolucion();

    void NuevaCarga();
    void EditarCarga();
    void EliminarCarga();
    void EscribirCargas();
    CSFVDataReceptor* CargaElegida();

    void ElegirAcumulador();
    void ElegirPanel();
    void AlElegirTension();
    void AlElegirDisposicion();
    void AlMarcarSalida();
    void AlEspaciar();
    void AlPulsarRegulacion();

    void AbrirRadiacion();
    void EscribirRadiacion();
    void MostrarValores();
    void Recalcular(bool bForzar) override;
    bool AntesDeAceptar() override;
    bool AlAceptar() override;

    CSFVAsistenteAislada& m_registro;
    int& m_iUltimaPagina;
    efv::assistants::ListaCargas m_cargas;
    CListCtrl m_filasCargas, m_filasRadiacion;

    efv::ui::Seleccion* m_paginas = nullptr;
    efv::ui::Lista* m_lista = nullptr;
    efv::ui::Lista* m_radiacion = nullptr;
    efv::ui::Boton* m_acumulador = nullptr;
    efv::ui::Boton* m_panel = nullptr;
    efv::ui::Seleccion* m_tension = nullptr;
    efv::ui::TextoFijo* m_mesReferencia = nullptr;
    bool m_bAbierto = false;
};
