// The hourly year of a consumption as text: typed, imported, of a pattern or of monthly energies. All
// sources end up as text in the editor, and the hours are read from that text on acceptance.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <vector>

#include <quorvel/consumption.h>

#include "ui/ficha.h"

namespace efv::consumption {

struct DatosHoraHora {
    int iPeriodo = 12;           ///< month, or 12 for the year
    int iOrigen = 0;             ///< 0 the person, 1 a pattern
    int iPatron = 0;             ///< preset
    double dPotMaxima = 2500.0;  ///< scale of the pattern, W
    double dHusoHorario = 0.0;   ///< offset of the official time, degrees; for a label only
    int iSeparador = 0;          ///< 0 ';', 1 tab, 2 blank
    int iUnidad = 0;             ///< of the text since the last import: 0 Wh, 1 kWh
    int iTiempo = 0;             ///< 0 values of an hour, 1 of a quarter
    double adMes[12][6] = {};    ///< kWh
    int aiPeriodoHora[24] = {};  ///< tariff period of each hour of the day
};

inline constexpr auto kNombresHoraHora = std::to_array<ui::NombreCampo<DatosHoraHora>>({
    {"iPeriodo", &DatosHoraHora::iPeriodo},
    {"iOrigen", &DatosHoraHora::iOrigen},
    {"iPatron", &DatosHoraHora::iPatron},
    {"dPotMaxima", &DatosHoraHora::dPotMaxima},
    {"iSeparador", &DatosHoraHora::iSeparador},
});

/// "Horario oficial (GMT+1)" of 15 degrees.
CString RotuloHorarioOficial(double dHusoHorario);

}  // namespace efv::consumption

template <>
struct efv::ui::CamposDe<efv::consumption::DatosHoraHora>
    : CamposDeTabla<efv::consumption::DatosHoraHora, efv::consumption::kNombresHoraHora> {
};

class CDlgDatosConsumoHoraHora : public efv::ui::DialogoFicha<efv::consumption::DatosHoraHora> {
public:
    /// The result: hours of the chosen period, Wh. Others are what the sources have left there.
    std::unique_ptr<efv::AnoHorario> adHoras = std::make_unique<efv::AnoHorario>();

    /// @param patrones the table of patterns; what was edited goes back to it on acceptance
    CDlgDatosConsumoHoraHora(const efv::consumption::DatosHoraHora& inicial,
                             std::span<efv::PatronConsumo> patrones);

protected:
    bool AlAceptar() override;

private:
    efv::ui::Seleccion& AnadirEleccion(int efv::consumption::DatosHoraHora::*miembro, std::wstring_view rotulo,
                                       efv::ui::Seleccion::Forma forma, std::vector<CString> acsEntradas);
    void AnadirControles();
    void AnadirHorario();
    void ConectarControles();
    void Habilitar();
    void RedactarPatron();
    void PonerTexto(double dEscala, efv::AnoHorarioVista ano);
    void PonerUnidad();
    const CItemConsumo& Patron() const;
    std::vector<CString> Titulos() const;
    void AlElegirOrigen();
    void AlElegirPatron();
    void AlSalirDePotencia();
    void AlEditarPatron();
    void AlPedirMeses();
    void AlImportar();
    void AlExportar();

    std::span<efv::PatronConsumo> m_patrones;
    std::vector<CItemConsumo> m_items;  // the presets as years
    efv::ui::Seleccion *m_periodo = nullptr, *m_origen = nullptr, *m_patron = nullptr;
    efv::ui::Edicion* m_texto = nullptr;
    efv::ui::Edicion* m_consejo = nullptr;
    efv::ui::Boton* m_editar = nullptr;
    efv::ui::Boton* m_importar = nullptr;
    efv::ui::Boton* m_meses = nullptr;
    bool m_bCambioPotencia = false;
};
