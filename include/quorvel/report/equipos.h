// The equipment of a design with the figures of its catalogue models: what schematics, summaries and reports
// show of it.
#pragma once

#include <vector>

#include <quorvel/assistants.h>
#include <quorvel/catalogues.h>
#include <quorvel/exportar.h>

namespace efv::report {

/// The catalogues that designs draw on.
struct Catalogos {
    const CBasePanelFoto& paneles;
    const CBaseAcumuladores& acumuladores;
    const CBaseInversores& inversores;
    const CBaseReceptores& receptores;
};

/// What a design says of a model: the figures are 0 when the catalogue doesn't have it.
struct Equipo {
    CString csModelo;  ///< name without its family; empty when none was chosen
    CString csFamilia;
    bool bHallado = false;
};

struct CampoPaneles : Equipo {
    int iSerie = 0, iParalelo = 0;                             ///< panels a string, strings
    double dPmpm = 0.0, dVmpm = 0.0, dImpm = 0.0, dVoc = 0.0;  ///< of a panel: W, V, A, V

    long long Paneles() const { return static_cast<long long>(iSerie) * iParalelo; }
    double Potencia() const { return static_cast<double>(Paneles()) * dPmpm; }  ///< Wp
    double Tension() const { return iSerie * dVmpm; }                           ///< V
    double TensionVacio() const { return iSerie * dVoc; }                       ///< V
    double Corriente() const { return iParalelo * dImpm; }                      ///< A
};

struct BancoAcumuladores : Equipo {
    int iSerie = 0, iParalelo = 0;
    double dVnom = 0.0;       ///< of a battery, V
    double dCapacidad = 0.0;  ///< of a battery, the rated one that the sizing takes, Ah; 0 when there is none
    CString csRegimen;        ///< at which it has that one: "C100"

    long long Acumuladores() const { return static_cast<long long>(iSerie) * iParalelo; }
    double Tension() const { return iSerie * dVnom; }            ///< V
    double Capacidad() const { return iParalelo * dCapacidad; }  ///< Ah
    double Energia() const { return Tension() * Capacidad(); }   ///< Wh
};

struct GrupoInversores : Equipo {
    int iCuantos = 0;
    double dPCANom = 0.0, dVCANom = 0.0;    ///< of one, W and V
    double dVMPPMin = 0.0, dVMPPMax = 0.0;  ///< V
    int iNumMPPT = 0, iNumEntradas = 0;
    int iTipoSalida = 0;  ///< 0 single-phase, 1 three-phase

    double Potencia() const { return iCuantos * dPCANom; }  ///< W
};

/// A load of the stand-alone design.
struct CargaDiseno : Equipo {
    double dCantidad = 0.0, dHorasDia = 0.0;
    double dPotencia = 0.0;  ///< of one, W
    bool bAlterna = false;

    double Potencia() const { return dCantidad * dPotencia; }  ///< W
    double Energia() const { return Potencia() * dHorasDia; }  ///< Wh a day
};

EFV_API CampoPaneles PanelesDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos);
/// Of one inverter.
EFV_API CampoPaneles PanelesDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos);
EFV_API BancoAcumuladores AcumuladoresDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos);
EFV_API GrupoInversores InversoresDe(const CSFVAsistenteRed& diseno, const Catalogos& catalogos);
/// As many as the shortest of the record's arrays.
EFV_API std::vector<CargaDiseno> CargasDe(const CSFVAsistenteAislada& diseno, const Catalogos& catalogos);

/// Whether the assistant has been accepted: a fresh record has no such counts, or no inverter.
EFV_API bool HayDiseno(const CSFVAsistenteAislada& diseno);
EFV_API bool HayDiseno(const CSFVAsistenteRed& diseno);

}  // namespace efv::report
