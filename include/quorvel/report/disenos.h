// The two kinds of design as studies: sized as the assistants do, with the energy of the year, what must be
// looked at, and the whole told as a document.
//
// A forced recalculation comes first, in which the program's proposals replace the values; then the fields that
// the project fixes are put in, and all is recalculated unforced.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include <quorvel/assistants_calculo.h>
#include <quorvel/localidades.h>
#include <quorvel/report/cableado.h>
#include <quorvel/report/documento.h>
#include <quorvel/report/equipos.h>
#include <quorvel/report/esquema.h>
#include <quorvel/solar/energia.h>
#include <quorvel/solar/planos.h>

namespace efv::report {

/// Where the installation stands.
struct LugarDiseno {
    std::optional<Localidad> localidad;  ///< none when it was given by its figures
    std::string nombre;                  ///< without a place of the list; may be empty
    double dLatitud = 0.0;               ///< degrees
    double dAltitud = 0.0;               ///< m, without a place of the list
    bool bNorte = true;
    std::optional<solar::DoceMeses> adRadiacion;  ///< on the horizontal, kJ/m²·day

    int Hemisferio() const { return bNorte ? 1 : 0; }
    double Altitud() const { return localidad ? localidad->dAltitud : dAltitud; }  ///< m
};

/// Where the panels look, for the energy of their true orientation.
struct PlanosDiseno {
    std::vector<solar::PlanoCampo> planos;  ///< empty: one, of the design's tilt and orientation
    solar::OrigenHoras origen = solar::OrigenHoras::cielo;
};

/// Extremes of the cells' temperature at the place, ºC, as the project gives them.
struct TemperaturasCelulas {
    std::optional<double> dMinima, dMaxima;

    double Minima() const { return dMinima.value_or(-10.0); }
    double Maxima() const { return dMaxima.value_or(70.0); }
};

// ---------------------------------------------------------------------------------------------------
// Stand-alone
// ---------------------------------------------------------------------------------------------------

struct ProyectoAislada {
    std::string titulo;
    DatosPortada portada;
    LugarDiseno lugar;
    CSFVAsistenteAislada registro;
    std::set<std::string> fijados;  ///< fields of the record that the project gives
    CObArrayPropio<CSFVDataReceptor> receptores;
    std::vector<std::string> notas;  ///< what must be known of the project's file; not on pages
    CriteriosCableado cableado;
    PlanosDiseno planos;
    // Catalogue models, which outlive it.
    const CBaseAcumuladorModelo* acumulador = nullptr;
    const CBasePanelFotoModelo* panel = nullptr;
    TemperaturasCelulas temperaturas;
};

struct EstudioAislada {
    assistants::ValoresAislada v;
    assistants::ComprobacionCampo comprobacion;
    /// Instead of the assistant's proposal, where that falls short of the power or passes a limit.
    std::optional<assistants::PropuestaComprobada> propuesta;
    bool bPlano = false;                ///< the table of factors K reaches the latitude
    solar::AnoEnergia ano;              ///< of the field, after the losses; zeros where the table doesn't reach
    solar::DoceMeses adNecesaria = {};  ///< by the loads on the days of each month, kWh
    Cableado cableado;
    solar::EnergiaPlanos orientada;  ///< of the planes as they look
};

/// The project of a design that the assistant accepted: every value of it stays, and the loads have the models
/// of their catalogue. Models that the catalogues don't have are null; such a project can't be calculated.
EFV_API ProyectoAislada ProyectoDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos);

/// @param proyecto with its models; the loads take their hours of use of the sizing
EFV_API EstudioAislada Calcular(ProyectoAislada& proyecto, const CBaseFactorK& tabla);

/// Where a value in force falls short or a limit is passed, and what else must be known.
EFV_API std::vector<Aviso> Avisos(const ProyectoAislada& proyecto, const EstudioAislada& estudio);

/// The schematic of the values in force.
EFV_API Esquema EsquemaDe(const ProyectoAislada& proyecto, const EstudioAislada& estudio);

EFV_API Documento EscribirDocumento(const ProyectoAislada& proyecto, const EstudioAislada& estudio,
                                    std::vector<Aviso> avisos);

// ---------------------------------------------------------------------------------------------------
// Connected to the grid
// ---------------------------------------------------------------------------------------------------

struct ProyectoRed {
    std::string titulo;
    DatosPortada portada;
    LugarDiseno lugar;
    CSFVAsistenteRed registro;
    std::set<std::string> fijados;   ///< fields of the record that the project gives
    std::vector<std::string> notas;  ///< what must be known of the project's file; not on pages
    CriteriosCableado cableado;
    PlanosDiseno planos;
    // Catalogue models, which outlive it.
    const CBaseInversorModelo* inversor = nullptr;
    const CBasePanelFotoModelo* panel = nullptr;
    TemperaturasCelulas temperaturas;
    std::optional<double> dRendimiento;  ///< of the whole installation, fraction

    double Rendimiento() const { return dRendimiento.value_or(0.8); }
};

struct EstudioRed {
    assistants::ValoresRed v;
    assistants::ComprobacionCampo comprobacion;
    /// Instead of the assistant's proposal, where that falls short of the power or passes a limit.
    std::optional<assistants::PropuestaComprobada> propuesta;
    bool bPlano = false;                            ///< the table of factors K reaches the latitude
    std::optional<solar::AnoEnergia> ano;           ///< nothing without radiations or outside the table
    std::optional<solar::EnergiaPlanos> orientada;  ///< of the planes as they look; nothing without radiations
    Cableado cableado;
};

EFV_API ProyectoRed ProyectoDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos);

EFV_API EstudioRed Calcular(const ProyectoRed& proyecto, const CBaseFactorK& tabla);
EFV_API std::vector<Aviso> Avisos(const ProyectoRed& proyecto, const EstudioRed& estudio);
EFV_API Esquema EsquemaDe(const ProyectoRed& proyecto, const EstudioRed& estudio,
                          Detalle detalle = Detalle::extremos);
EFV_API Documento EscribirDocumento(const ProyectoRed& proyecto, const EstudioRed& estudio,
                                    std::vector<Aviso> avisos);

/// What the ratio of the panels' power to the inverters' nominal output usually is: below, the inverter idles;
/// above, it cuts off much of a clear day.
inline constexpr double kRatioMinimo = 0.8, kRatioMaximo = 1.35;

/// A limit told to people and to programs.
struct TextoLimite {
    const char* rotulo;
    const char* clave;
    const char* unidad;
    int iDecimales;
    bool bMinimo;  ///< else the limit is a maximum
};
EFV_API const TextoLimite& TextoDe(assistants::Limite limite);

/// "máx. 500,0 V"; "—" where the catalogue doesn't give it.
EFV_API std::string LimiteDe(const assistants::Comprobacion& comprobacion);

/// "cumple", "no cumple", "sin dato"
EFV_API const char* ResultadoDe(const assistants::Comprobacion& comprobacion);

/// What a design takes of a load's model and the model's file doesn't give, told; empty when it lacks nothing.
EFV_API std::string CarenciasDe(const CBaseReceptorModelo& modelo);

/// Why there is no checked proposal, or what it does besides passing the checks; may be empty.
EFV_API std::string MotivoDe(const assistants::PropuestaComprobada& propuesta);

/// "2 inversores de 9 × 2 paneles, 10,26 kW", or "no la hay" and why.
EFV_API std::string TextoDe(const assistants::PropuestaComprobada& propuesta);

}  // namespace efv::report
