// The guided study of self-consumption: consumption, tariff, installation, result and sizes, a page each.
#pragma once

#include <memory>
#include <vector>

#include "comun/campos.h"
#include "proyecto/sesion.h"

namespace efv::estudio {

class BorradorAutoconsumo;
struct ResultadoAutoconsumo;

class DialogoAutoconsumo final : public ui::Dialogo {
public:
    /// @param proyecto gives what the study doesn't say; must outlive the dialog
    explicit DialogoAutoconsumo(const CProyectoEstudio& proyecto);
    ~DialogoAutoconsumo() override;

    /// What the pages hold, as the project keeps it; a field at fault has its last value.
    CString Texto();
    /// Tells of a field that was left at fault.
    void AvisarDeFalta() { m_escritos.Avisar(*this); }

private:
    struct CampoPuesto {
        std::size_t iCampo;
        double d, dCargado;  // what the field holds, what the study had
        ui::Edicion* edicion;
    };

    void HacerConsumo();
    void HacerTarifa();
    void HacerInstalacion();
    void HacerResultado();
    void HacerTamanos();
    void AnadirCampos(ui::Pagina& pagina, const wchar_t* csGrupo);
    ui::Boton& AnadirBoton(ui::Pagina& pagina, const char* nombre, const wchar_t* csRotulo,
                           void (DialogoAutoconsumo::*f)());

    /// Study to fields.
    void MostrarBorrador();
    void Habilitar();
    void ContarConsumo();
    /// Fields to study. @return whether none was at fault, which the person was told
    bool Tomar();
    void TomarLoBueno();
    void TomarConsumo();
    bool SeEscribe(const CampoPuesto& puesto) const;

    void Importar();
    void AbrirEstudio();
    void GuardarEstudio();
    void GuardarInforme();
    void Calcular();
    void Barrer();
    std::vector<double> PotenciasDelBarrido() const;
    void Decir(const ResultadoAutoconsumo& resultado);

    const CProyectoEstudio& m_proyecto;
    std::unique_ptr<BorradorAutoconsumo> m_borrador;
    std::vector<CampoPuesto> m_campos;
    CamposQueSeDejan m_escritos{[] {}};
    CString m_csFichero, m_csCups;
    double m_dDesde = 1.0, m_dHasta = 10.0, m_dPaso = 1.0;

    ui::Seleccion *m_origen = nullptr, *m_patron = nullptr, *m_tarifa = nullptr, *m_pago = nullptr,
                  *m_regla = nullptr;
    ui::Casilla *m_lugar = nullptr, *m_prestamo = nullptr, *m_bateria = nullptr;
    ui::TextoFijo *m_consumo = nullptr, *m_nota = nullptr, *m_notaTamanos = nullptr;
    ui::Edicion *m_fichero = nullptr, *m_cups = nullptr;
    ui::Boton *m_importar = nullptr, *m_informe = nullptr;
    ui::Lista* m_meses = nullptr;
    ui::Grafica* m_grafica = nullptr;
};

/// Opens it on the project, which keeps what was written, and tells the project's host of a change.
void EstudiarAutoconsumoGuiado(Sesion& sesion);

}  // namespace efv::estudio
