// One load: its model, its units and its bands of use.
#pragma once

#include <array>
#include <vector>

#include <quorvel/consumption.h>

#include "catalogues/bases.h"
#include "ui/ficha.h"

namespace efv::consumption {

struct DatosReceptor {
    CString csReferencia;
    int bModelo = 1;             ///< not 0: the model may be chosen
    int bPedirCantidad = 1;      ///< not 0: units are asked for, and the model may always be chosen
    int iMes = 0, iDiaTipo = 0;  ///< on view
    CSFVDataReceptor receptor;   ///< model, units, exclusion and bands; the rest comes from the catalogue
};

inline constexpr auto kNombresReceptor = std::to_array<ui::NombreCampo<DatosReceptor>>({
    {"csReferencia", &DatosReceptor::csReferencia},
    {"bModelo", &DatosReceptor::bModelo},
    {"iMes", &DatosReceptor::iMes},
    {"iDiaTipo", &DatosReceptor::iDiaTipo},
});

/// Opens the load's dialog on one that has no reference of its own. On acceptance model, units, power,
/// exclusion and bands are taken back. @return 1 when the person accepted, 2 when not
int EditarReceptor(CSFVDataReceptor& receptor, int iMes, const catalogues::Bases& bases);

}  // namespace efv::consumption

template <>
struct efv::ui::CamposDe<efv::consumption::DatosReceptor>
    : CamposDeTabla<efv::consumption::DatosReceptor, efv::consumption::kNombresReceptor> {
};

class CDlgDatosReceptor : public efv::ui::DialogoFicha<efv::consumption::DatosReceptor> {
public:
    CDlgDatosReceptor(const efv::consumption::DatosReceptor& inicial, const efv::catalogues::Bases& bases);

protected:
    bool AlAceptar() override;

private:
    // A bound of a band: where it is dragged, and how it reads.
    struct Limite {
        efv::ui::Deslizador* deslizador = nullptr;
        efv::ui::TextoFijo* lectura = nullptr;
    };

    void AnadirModelo();
    void AnadirDatosCatalogo();
    efv::ui::Seleccion& AnadirCombo(int efv::consumption::DatosReceptor::*miembro, std::wstring_view rotulo,
                                    std::vector<CString> acsEntradas, void (CDlgDatosReceptor::*alElegir)());
    void AnadirPlanificacion();
    void AnadirFranjas();
    void AnadirLimites();
    void MostrarCatalogo();
    void MostrarFranjas();
    void MostrarHoras();
    void Dibujar();
    void AlElegirModelo();
    void AlElegirMes();
    void AlElegirDiaTipo();
    void AlTeclearCantidad();
    void AlMover(std::size_t i);
    void AlTeclearFranjas();
    bool AvisarDeFranjas();
    void Repartir();
    void AlUnificar();
    CString DiasSinUso() const;
    double (&FranjasVisibles())[6] { return datos.receptor.dHorario[datos.iMes][datos.iDiaTipo]; }

    const efv::catalogues::Bases& m_bases;
    efv::ui::CamposDeObjeto<CSFVDataReceptor> m_receptor{datos.receptor};
    std::array<Limite, 6> m_limites;
    efv::ui::Boton* m_elegir = nullptr;
    efv::ui::TextoFijo *m_tipoRed = nullptr, *m_luminaria = nullptr;
    efv::ui::Seleccion *m_mes = nullptr, *m_diaTipo = nullptr, *m_unificar = nullptr;
    efv::ui::Edicion* m_franjas = nullptr;
    efv::ui::Casilla *m_todosLosMeses = nullptr, *m_todosLosDias = nullptr;
    efv::ui::Grafica* m_grafica = nullptr;
};
