// Sections and warnings that the designs write alike.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <quorvel/report/disenos.h>
#include <quorvel/report/documento.h>
#include <quorvel/report/esquema.h>
#include <quorvel/report/ficha.h>

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/format/ausencias.h"
#include "catalogues/kinds/acumulador.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/panel_foto.h"

namespace efv::report {

/// Name of a month, "Enero"; also 12 to 14, the year and its two cases.
std::string NombreMes(int iMes);

/// A chart in the units chosen: axes whose title is a unit, or ends with one in brackets.
CCtrlCurva2D EnUnidades(CCtrlCurva2D grafica);

/// A value in force beside its proposal.
Dato DatoDoble(std::string rotulo, double dEnVigor, double dPropuesta, int iDecimales, std::string_view unidad);
Dato DatoDoble(std::string rotulo, int iEnVigor, int iPropuesta);

/// A model by its identification; pages say maker and model.
Dato DatoModelo(std::string rotulo, const CString& csId);

/// Where the place stands and where its radiation comes from.
Seccion SeccionLugar(const LugarDiseno& lugar);

inline constexpr const char* kTituloMeses = "Radiación y energía mensual";
inline constexpr const char* kTituloComprobacion = "Comprobación a las temperaturas del lugar";

/// Table and charts of a year. @param necesaria kWh of each month; null without loads
Seccion SeccionMeses(const LugarDiseno& lugar, const solar::AnoEnergia& ano, const solar::DoceMeses* necesaria);

/// The schematic, for pages.
/// @param esquemas of one design, such as with each of kDetallesDePlano
Seccion SeccionEsquema(std::vector<Esquema> esquemas);

/// The limits that the field was held against, and what keeps to them instead of the assistant's proposal.
/// @param bAlcanza whether the design reaches the power that is asked for
Seccion SeccionComprobacion(const TemperaturasCelulas& temperaturas,
                            const assistants::ComprobacionCampo& comprobacion,
                            const std::optional<assistants::PropuestaComprobada>& propuesta, bool bAlcanza);
/// Which temperatures those are.
std::string SupuestoTemperaturas(const TemperaturasCelulas& temperaturas);
/// What is said of a limit that is passed, and of coefficients that the module lacks.
void AvisarDeLimites(const assistants::ComprobacionCampo& comprobacion, const CBasePanelFotoModelo& panel,
                     std::vector<Aviso>& avisos);

/// Stretches of cable and inputs of the inverters.
Seccion SeccionCableado(const Cableado& cableado);
/// What is said of a stretch that breaks a limit.
void AvisarDelCableado(const Cableado& cableado, std::vector<Aviso>& avisos);

/// The year of the design's planes as they look.
solar::EnergiaPlanos CalcularPlanos(const PlanosDiseno& planos, const LugarDiseno& lugar,
                                    const solar::CampoSolar& campo, double dOrientacion);
/// What the orientation does, plane by plane.
Seccion SeccionOrientacion(const solar::EnergiaPlanos& energia);
/// What is said of planes that give clearly less than facing the equator.
void AvisarDeOrientacion(const solar::EnergiaPlanos& energia, std::vector<Aviso>& avisos);

/// The data sheets of the chosen models, for the page.
struct ModeloElegido {
    std::string_view titulo;
    const CModelo* modelo;
    FilasFicha ficha;
};
template <class M>
ModeloElegido Elegido(std::string_view titulo, const M& modelo)
{
    std::vector<CampoSinDato> sinDato;
    for (const auto& [campo, bAusente] : catalogues::CamposSinDato(modelo))
        sinDato.push_back({std::string(campo), bAusente, {}});
    return {titulo, &modelo,
            FilasDeFicha(*catalogues::CrearDialogo(modelo, true, catalogues::OrdenesModelo<M>()), sinDato)};
}
Seccion SeccionModelos(std::initializer_list<ModeloElegido> modelos);

/// What is said of a tilt outside 0 to 90 degrees, of a place outside the table of factors K.
void AvisarDelPlano(const LugarDiseno& lugar, bool bPlano, double dInclinacion, std::vector<Aviso>& avisos);

/// Rows of panels as they are laid out.
struct FilasPaneles {
    int iPaneles;
    double dPanelesPorFila;
    double dDistancia;    ///< row to row, mm
    double dLargo;        ///< of a panel up the slope, mm
    double dInclinacion;  ///< degrees
};
/// What is said of rows that shade each other on level ground.
void AvisarDeFilas(const LugarDiseno& lugar, const FilasPaneles& filas, std::vector<Aviso>& avisos);

}  // namespace efv::report
