// The pages of the stand-alone assistant that do more than show fields. They hold no values of their own: they
// edit those of the assistant.
#pragma once

#include <quorvel/ui/lista.h>
#include <quorvel/ui/pagina.h>

#include "assistants/aislada_dialogo.h"

namespace efv::assistants {

class PaginaAcumuladores : public ui::Pagina {
public:
    PaginaAcumuladores(ui::Dialogo& dialogo, CDlgAsistenteSFVAislada& asistente);

    /// The chosen model on its button.
    void MostrarModelo();
    /// That and the colour of the capacity.
    void MostrarValores();

private:
    void Elegir();

    CDlgAsistenteSFVAislada& m_asistente;
    ui::Boton& m_modelo;
};

class PaginaPaneles : public ui::Pagina {
public:
    PaginaPaneles(ui::Dialogo& dialogo, CDlgAsistenteSFVAislada& asistente);

    void MostrarModelo();
    /// That, the reference month and the colour of the power.
    void MostrarValores();
    /// The radiation at the tilt in force, in place of all that the list holds.
    void EscribirRadiacion();

private:
    void AnadirCampo();
    void AnadirPosicion();
    void AnadirPanelesPorFila();
    void AnadirRadiacion();
    /// The radiation at the tilts 0 to 90, which the list shows until the first calculation.
    void AbrirRadiacion();

    void Elegir();
    void AlElegirDisposicion();
    void AlEspaciar();

    CDlgAsistenteSFVAislada& m_asistente;
    ui::Boton& m_modelo;
    ui::TextoFijo* m_mesReferencia = nullptr;
    ui::Seleccion* m_disposicion = nullptr;
    ui::Lista* m_radiacion = nullptr;
    CListCtrl m_filasRadiacion;
};

class PaginaRegulacion : public ui::Pagina {
public:
    PaginaRegulacion(ui::Dialogo& dialogo, CDlgAsistenteSFVAislada& asistente);

    /// What the output's tick leaves open.
    void MostrarValores();

private:
    void AnadirTension();
    void AnadirParametros();

    void AlElegirTension();
    void AlMarcarSalida();
    void AlPulsarParametros();

    CDlgAsistenteSFVAislada& m_asistente;
    ui::Seleccion* m_tension = nullptr;
};

}  // namespace efv::assistants
