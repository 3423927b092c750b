// Stretches of cable told to people: alone, and those of a design with the inputs of its inverters.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/cables_calculo.h>
#include <quorvel/catalogues.h>
#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv::report {

/// Why no section is enough, or the one that is held isn't; empty where all is well.
EFV_API std::string MotivoDe(const electrical::TramoCable& tramo, const electrical::TramoCalculado& c);

/// "2,5 mm²", "2 × 95 mm²" of several conductors a phase; "—" for none.
EFV_API std::string TextoSeccion(double dSeccion, int iConductoresFase = 1);

// ---------------------------------------------------------------------------------------------------
// Designs
// ---------------------------------------------------------------------------------------------------

/// What a project says of its cables: method, material, limit and so on of all stretches, and of single ones
/// by their keys. Lengths, currents and voltages in them count for nothing, but for the lengths of a
/// stand-alone design, whose record has none.
struct CriteriosCableado {
    electrical::TramoCable todos;
    std::map<std::string, electrical::TramoCable, std::less<>> propios;

    /// The cables of what generates are sized for 125 % of its current (ITC-BT-40), unless it is said.
    CriteriosCableado() { todos.dMargen = 25.0; }
    const electrical::TramoCable& De(std::string_view clave) const
    {
        const auto propio = propios.find(clave);
        return propio == propios.end() ? todos : propio->second;
    }
};

/// Keys of the stretches, in their order.
inline constexpr const char* kTramosRed[] = {"L1", "L2", "L3"};
inline constexpr const char* kTramosAislada[] = {"paneles", "acumuladores", "receptores", "inversor", "salida"};

struct TramoDiseno {
    std::string clave;
    std::string nombre;
    int iCuantos = 1;        ///< alike
    bool bDatos = false;     ///< current and voltage are known; else nothing is calculated
    bool bLongitud = false;  ///< so is the length
    electrical::TramoCable tramo = {};
    electrical::TramoCalculado calculo = {};

    bool Cumple() const { return !bDatos || calculo.Cumple(); }
};

/// The rated currents that the protection of a stretch may have: from what it carries with its margin to what
/// its cable bears (UNE-HD 60364-4-43), A.
struct CalibreProteccion {
    double dMinimo, dMaximo;
};
/// Nothing of a stretch that isn't calculated or whose cable isn't enough.
EFV_API std::optional<CalibreProteccion> CalibreDe(const TramoDiseno& tramo);

/// An input of each inverter, and the strings that hang on it.
struct EntradaDiseno {
    CString csReferencia;
    int iSeguidor = 1;
    int iRamales = 0;
    double dCorriente = 0.0;  ///< A
};

struct Cableado {
    std::vector<TramoDiseno> tramos;
    std::vector<EntradaDiseno> entradas;  ///< none of a stand-alone design
    int iPanelesSerie = 0;
    double dTensionRamal = 0.0;  ///< V
};

/// Of a grid-connected design: L1 panels to inverter, each input by itself; L2 inverter to connection box; L3
/// box to grid. The strings go round the trackers, so that none has two more than another; where there are more
/// strings than inputs, those share inputs. Models that aren't known (null) leave their stretches unknown.
EFV_API Cableado CableadoDe(const CSFVAsistenteRed& diseno, const CBaseInversorModelo* inversor,
                            const CBasePanelFotoModelo* panel, const CriteriosCableado& criterios);

/// Power of all loads, W.
struct PotenciaCargas {
    double dContinua = 0.0, dAlterna = 0.0;
};

/// Of a stand-alone design: panels, batteries (the greater of what charges and what discharges them) and loads,
/// each to the regulator; with an output of alternating current, from there to the inverter and from it to its
/// loads.
EFV_API Cableado CableadoDe(const CSFVAsistenteAislada& diseno, const CBasePanelFotoModelo* panel,
                            const PotenciaCargas& cargas, const CriteriosCableado& criterios);

}  // namespace efv::report
