// The grid-connected assistant.
#pragma once

#include "assistants/calculo_red.h"
#include "assistants/dialogo_asistente.h"
#include "assistants/lugar.h"

class CDlgAsistenteSFVRed : public efv::assistants::DialogoAsistente<efv::assistants::ValoresRed> {
public:
    CDlgAsistenteSFVRed(const efv::assistants::ValoresRed& inicial, const efv::assistants::TextoLugar& lugar,
                        const efv::catalogues::Bases& bases);

private:
    void AnadirEquipos();
    void AnadirCampo();
    void AnadirResultadosTotales();

    bool LeerInversor();
    bool LeerPanel();
    void ElegirInversor();
    void ElegirPanel();
    void AlElegirDisposicion();
    void AlEspaciar();
    void MostrarValores();
    void Recalcular(bool bForzar) override;
    bool AntesDeAceptar() override;

    efv::ui::Boton* m_inversor = nullptr;
    efv::ui::Boton* m_panel = nullptr;
    efv::ui::TextoFijo* m_rango = nullptr;
    bool m_bAbierto = false;
};
