// The records that the design assistants keep between two runs.
#pragma once

#include <quorvel/exportar.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>

/// What the grid-connected assistant remembers. The host owns one a project and archives it.
class EFV_API CSFVAsistenteRed : public CObject {
public:
    int iSimboloInversor = 0;        ///< the host's symbol for an inverter
    int iSimboloPanel = 0;           ///< the host's symbol for a panel
    double dPotenciaObjetivo = 5.0;  ///< least power to install, kW
    int iTipoSalida = 1;             ///< output of the chosen inverter, from its catalogue model
    double dLongitudL1 = 5.0;        ///< cable generator to inverter, the host's length unit
    double dLongitudL2 = 5.0;        ///< cable inverter to connection box
    double dLongitudL3 = 5.0;        ///< cable connection box to grid
    CString csInversor;              ///< identification "family#model"
    int iInversores = 1;
    CString csPanel;                 ///< identification "family#model"
    int iPanelesSerie = 1;           ///< panels a string
    int iPanelesParalelo = 1;        ///< strings in parallel, an inverter
    double dInclinacion = 0.0;       ///< degrees
    double dOrientacion = 0.0;       ///< degrees, 0 south
    int iDisposicion = 0;            ///< 0 vertical, 1 horizontal
    double dPanelesPorFila = 25.0;   ///< most panels a row
    double dDistanciaPaneles = 0.0;  ///< panel to panel, mm
    double dDistanciaFilas = 0.0;    ///< row to row, mm

    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVAsistenteRed() override;

    /// Writes schema 3; reads schemas 1 to 3, and later ones as far as it knows them.
    void Serialize(CArchive& ar) override;

    static const CRuntimeClass& GetThisClass();
};
