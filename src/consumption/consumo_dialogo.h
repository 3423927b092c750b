// The consumption element: an hourly year, or a list of loads.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <vector>

#include <quorvel/consumption.h>

#include "catalogues/bases.h"
#include "ui/ficha.h"

namespace efv::consumption {

struct DatosConsumo {
    CString csReferencia;
    int iTipoEntrada = 0;        ///< 0 hour by hour, 1 by day type and load
    double dPotMaxima = 2500.0;  ///< W
    double dHusoHorario = 0.0;   ///< offset of the official time, degrees; for a label only
    int iPatron = 0;             ///< last preset
    double adMes[12][6] = {};    ///< kWh by month and tariff period
    int aiPeriodoHora[24] = {};  ///< tariff period of each hour of the day
    int bExcluir = 0;
    int iRotulacion = 0;                             ///< kept and handed back
    int iMes = 0, iDiaMes = 0, iDiaTipo = 0;         ///< month, day of it and day type on view
    int iPeriodo = 12, iOrigen = 0, iSeparador = 0;  ///< of the last hour-by-hour edit
};

/// Copies of the loads, in order.
CObArrayPropio<CSFVDataReceptor> CopiarReceptores(const CObArrayPropio<CSFVDataReceptor>& lReceptores);

inline constexpr auto kNombresConsumo = std::to_array<ui::NombreCampo<DatosConsumo>>({
    {"csReferencia", &DatosConsumo::csReferencia},
    {"iTipoEntrada", &DatosConsumo::iTipoEntrada},
    {"dPotMaxima", &DatosConsumo::dPotMaxima},
    {"bExcluir", &DatosConsumo::bExcluir},
    {"iRotulacion", &DatosConsumo::iRotulacion},
    {"iMes", &DatosConsumo::iMes},
    {"iDiaMes", &DatosConsumo::iDiaMes},
    {"iDiaTipo", &DatosConsumo::iDiaTipo},
});

}  // namespace efv::consumption

template <>
struct efv::ui::CamposDe<efv::consumption::DatosConsumo>
    : CamposDeTabla<efv::consumption::DatosConsumo, efv::consumption::kNombresConsumo> {
};

class CDlgDatosConsumo : public efv::ui::DialogoFicha<efv::consumption::DatosConsumo> {
public:
    CObArrayPropio<CSFVDataReceptor> lReceptores;  ///< copies of those that came
    const std::shared_ptr<efv::AnoHorario> adHoras = std::make_shared<efv::AnoHorario>();  ///< Wh

    /// @param patrones the table of patterns, in which the person may change factors
    CDlgDatosConsumo(const efv::consumption::DatosConsumo& inicial,
                     const CObArrayPropio<CSFVDataReceptor>& receptores, efv::AnoHorarioVista horas,
                     const efv::catalogues::Bases& bases, std::span<efv::PatronConsumo> patrones);

private:
    void AnadirSelectores();
    efv::ui::Seleccion& AnadirCombo(int efv::consumption::DatosConsumo::*miembro, std::wstring_view rotulo,
                                    std::vector<CString> acsEntradas, void (CDlgDatosConsumo::*alElegir)());
    void AnadirBotones();
    void AnadirTablaDeDias();
    void AnadirReceptores();
    bool PorHoras() const { return datos.iTipoEntrada == 0; }
    efv::ui::Boton& AnadirBoton(std::wstring_view rotulo, void (CDlgDatosConsumo::*alPulsar)());
    void PonerDiasDelMes();
    void MostrarModo();
    void MostrarReceptores();
    void MostrarDia();
    void MostrarTodo();
    CSFVDataReceptor* Seleccionado() const;
    void AlElegirTipo();
    void AlElegirMes();
    void AlElegirDia();
    void AlTeclearPotencia();
    void AlEditarTabla();
    void AlAbrirDia(int iFila, int iColumna);
    void AlAnadirReceptor();
    void AlEditarReceptor();
    void AlEliminarReceptor();

    const efv::catalogues::Bases& m_bases;
    std::span<efv::PatronConsumo> m_patrones;
    CListCtrl m_filas;
    efv::ui::Seleccion *m_mes = nullptr, *m_diaMes = nullptr, *m_diaTipo = nullptr;
    efv::ui::Boton *m_tabla = nullptr, *m_anadir = nullptr, *m_editar = nullptr, *m_eliminar = nullptr;
    efv::ui::Lista *m_dias = nullptr, *m_receptores = nullptr;
    efv::ui::Edicion* m_resumen = nullptr;
    efv::ui::Grafica* m_grafica = nullptr;
};
