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
    efv::ui::Edicion& AnadirNominal(std::string_view nombre, std::wstring_view rotulo, efv::ui::Color color);
    void AnadirCampo();
    void AnadirResultadosTotales();

    bool LeerInversor();
    bool LeerPanel();
    void ElegirInversor();
    void ElegirPanel();
    void AlElegirDisposicion();
    void AlEspaciar();
    void MostrarModelos();
    void MostrarValores();
    void Calcular(bool bForzar) override;
    bool AntesDeAceptar() override;

    efv::ui::Boton* m_inversor = nullptr;
    efv::ui::Boton* m_panel = nullptr;
    efv::ui::TextoFijo* m_rango = nullptr;
    efv::ui::Edicion* m_nominal = nullptr;
    efv::ui::Edicion* m_nominalP = nullptr;
    efv::ui::Seleccion* m_disposicion = nullptr;
};
