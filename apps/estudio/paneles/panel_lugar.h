// The project's name and place.
#pragma once

#include <vector>

#include "comun/campos.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

class PanelLugar final : public ui::Dialogo {
public:
    PanelLugar(Sesion& sesion, std::vector<Localidad> localidades);

    /// Shows the session's project; what the person is typing stays when it says the same.
    void Actualizar();
    /// Captions and figures in the units of now.
    void PonerUnidades();
    /// Its fields; what is at fault there isn't in the project.
    CamposQueSeDejan& Campos() { return m_campos; }
    /// Takes the place that answers best to what is searched. False when none does.
    bool ElegirPrimero();

private:
    void AnadirLugar();
    void AnadirRadiaciones();
    void Ofrecer();
    void DecirHallados();
    void Situar(const Localidad& localidad);
    void PedirRadiacion();
    void AnadirCelulas();
    void AlElegir();
    void AlElegirHemisferio();
    void AlCambiar();
    void Mostrar();

    Sesion& m_sesion;
    CamposQueSeDejan m_campos;
    std::vector<Localidad> m_localidades;
    CString m_csProyecto;
    Lugar m_lugar;
    Situacion m_situacion;
    Situacion m_delProyecto;  // as the project said it last
    Celulas m_celulas;
    const CProyectoEstudio* m_mostrado = nullptr;  // the project whose figures these are
    CString m_csBuscar;
    std::vector<const Localidad*> m_ofrecidas;  // entries of the choice behind one's own figures
    std::size_t m_nResponden = 0;               // of them, the first ones
    int m_iLugar = 0;                           // 0: own figures; then the places that are offered

    ui::Edicion* m_buscar = nullptr;
    ui::Seleccion* m_seleccion = nullptr;
    ui::Seleccion* m_hemisferio = nullptr;
    ui::Edicion *m_latitud = nullptr, *m_altitud = nullptr;
    std::vector<ui::Edicion*> m_radiaciones;
    std::vector<ui::Edicion*> m_figuras;  // what can be written of a place of one's own
    ui::TextoFijo* m_hallados = nullptr;  // how many answer to what is searched
    ui::TextoFijo* m_zona = nullptr;
    ui::TextoFijo* m_nota = nullptr;
};

}  // namespace efv::estudio
