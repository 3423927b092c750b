// A project: the place, one design of each assistant, one consumption element, the economic studies.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <QuorvelEFV.h>

#include "proyecto/aceptacion.h"
#include "proyecto/elementos.h"

namespace efv::estudio {

/// Where the installation stands: a place of the file of places, or the person's own figures.
struct Lugar {
    CString csNombre = L"Sin nombre";
    CString csDetalle;                ///< province or country
    int bPropio = 1;                  ///< not 0: the figures are the person's own
    double dLatitud = 40.0;           ///< degrees, north positive
    int iHemisferio = 1;              ///< 1 north, 0 south
    double adRadHorizontal[12] = {};  ///< mean daily global radiation by month, kJ/m²·day

    /// As the assistants take it: both parts with their mark between them.
    CString Texto() const;

    bool operator==(const Lugar&) const = default;
};

Lugar LugarDe(const Localidad& localidad);

/// What else is known of the place.
struct Situacion {
    double dLongitud = 0.0;  ///< degrees, east positive
    double dAltitud = 0.0;   ///< m
    CString csRegistro;      ///< file of the climate record; empty without one

    bool operator==(const Situacion&) const = default;
};

/// What the cover of a report says besides the project's name; what is empty is left out.
struct PortadaProyecto {
    CString csCliente, csDireccion, csAutor, csFirma, csRevision = {};

    bool operator==(const PortadaProyecto&) const = default;
};

/// Extremes of the cells' temperature at the place, at which strings are checked, ºC.
struct Celulas {
    double dMinima = report::TemperaturasCelulas().Minima(), dMaxima = report::TemperaturasCelulas().Maxima();

    bool operator==(const Celulas&) const = default;
};

/// What a project file of the command says of the calculation of its designs; usually nothing.
struct Calculo {
    double dRendimiento = report::ProyectoRed().Rendimiento();  ///< of a grid-connected one, fraction
    CString csCableado;  ///< criteria of the cables, the file's object; empty: the usual ones

    bool operator==(const Calculo&) const = default;
};

/// The consumption element, as its dialog takes it.
struct Consumo {
    CString csReferencia = L"Consumo";
    CObArrayPropio<CSFVDataReceptor> lReceptores;
    int iTipoEntrada = 0;        ///< 0 hour by hour, 1 by day type and load
    int iPatron = 0;             ///< preset of the last hour-by-hour edit, 0 to 8
    double dPotMaxima = 2500.0;  ///< greatest power at once, W
    double adHoras[8760] = {};   ///< hourly year, Wh
    double adMes[12][6] = {};    ///< energies by month and tariff period, kWh
    int aiPeriodoHora[24] = {};  ///< tariff period of each hour of the day, below kPeriodosTarifa
    int bExcluir = 0;            ///< not 0: left out of the calculation
    int iRotulacion = 0;         ///< choice of labelling
    double dHusoHorario = 15.0;  ///< offset of the official time, degrees
};

/// The economic studies of the grid-connected installation. The prices are the person's; a new project has even
/// ones.
struct Economia {
    static constexpr double kPrecioConsumo = 0.2, kPrecioVertido = 0.06;  ///< €/kWh

    CSFVCalculoEconomico venta;
    CSFVCalculoEconomicoAuto autoconsumo;
    double adPrecioConsumo[12][31][24];  ///< of a kWh bought, €
    double adPrecioVertido[12][31][24];  ///< of a kWh sold, €
    CString csGuiado;                    ///< the guided study as its JSON; empty: none yet

    Economia();
};

inline constexpr std::size_t kPlanosMaximo = 20;
inline constexpr ui::Intervalo kInclinaciones{0.0, 90.0}, kOrientaciones{-180.0, 180.0};  // degrees

inline constexpr ui::Intervalo kCelulasMinimas{-60.0, 60.0}, kCelulasMaximas{0.0, 120.0};  // ºC

/// A section of the file that this program doesn't know, kept for the one that does.
struct SeccionAjena {
    CString csNombre;
    int iSchema = 0;
    std::vector<std::byte> bytes;
};

Situacion SituacionDe(const Localidad& localidad);

class CProyectoEstudio final : public CObject {
public:
    CString csNombre = L"Proyecto";
    Lugar lugar;
    Situacion situacion;
    Celulas celulas;
    CSFVAsistenteAislada aislada;
    CSFVAsistenteRed red;
    Consumo consumo;
    Economia economia;
    /// Where the panels look, at most kPlanosMaximo; empty: as each design says.
    std::vector<solar::PlanoCampo> planos;
    Elementos elementos;
    /// What the designs were accepted with; nothing: never, or by a program that didn't take it down.
    std::optional<Aceptacion<CSFVAsistenteAislada>> aceptadaAislada;
    std::optional<Aceptacion<CSFVAsistenteRed>> aceptadaRed;
    PortadaProyecto portada;
    Calculo calculo;
    std::vector<SeccionAjena> ajenas;

    const CRuntimeClass& GetRuntimeClass() const override;

    /// A mark, the schema number (now 2), then named sections, each with a schema number of its own and its
    /// length; schema 1 had their contents alone. Unknown sections are kept. Reading throws CArchiveException
    /// at a stream that ends too soon, and std::runtime_error with a Spanish text at one that is no project, is
    /// of a later schema or holds what no project can; the project is then half filled.
    void Serialize(CArchive& ar) override;

    static const CRuntimeClass& GetThisClass();
};

/// What a person calls the first section in which two projects differ: "del lugar". Empty when they don't.
/// @param antes, despues what Serialize wrote of them
CString QueCambia(std::span<const std::byte> antes, std::span<const std::byte> despues);

}  // namespace efv::estudio
