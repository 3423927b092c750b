// The two design assistants, and the records that they keep between two runs.
#pragma once

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>

/// What the stand-alone assistant remembers. The host owns one a project and archives it.
///
/// The four arrays run in step: load i has entry i of the first three and the entries 504·i to 504·i + 503
/// of `adHorario`, its bands of use by month, day type, and start and end of three bands (12 × 7 × 6,
/// minutes since midnight).
class EFV_API CSFVAsistenteAislada : public CObject {
public:
    CArray<double, double&> adCantidad;    ///< units of each load
    CStringArray acsModelo;                ///< identification "family#model" of each load
    CArray<double, double&> adHorasDia;    ///< hours of use a day of each load
    CArray<double, double&> adHorario;     ///< bands of use of all loads
    CString csAcumulador;                  ///< battery, identification "family#model"
    double dDiasAutonomia = 3.0;           ///< days without sun that the batteries last
    int iAcumuladoresSerie = 0;            ///< batteries a branch
    int iAcumuladoresParalelo = 0;         ///< branches of batteries
    int iSimboloAcumulador = 0;            ///< the host's symbol for a battery
    CString csPanel;                       ///< identification "family#model"
    int iPanelesSerie = 0;                 ///< panels a branch
    int iPanelesParalelo = 1;              ///< branches of panels
    int iSimboloPanel = 0;                 ///< the host's symbol for a panel
    int iMesCalculo = 14;                  ///< 0 to 11 a month, 12 year, 13 favourable, 14 unfavourable month
    double dTensionSistema = 24.0;         ///< voltage of the battery circuit, V
    double dPotenciaMaxFV = 800.0;         ///< most power at the regulator, W
    double dCorrienteMaxFV = 30.0;         ///< most current at the regulator, A; no calculation uses it
    double dTensionMaxFV = 100.0;          ///< most voltage of the panel circuit, V
    double dTensionMinFV = 24.0;           ///< least voltage of the panel circuit, V; no calculation uses it
    int bSalidaCA = 0;                     ///< not 0: the installation has an alternating output
    double dTensionSalidaCA = 230.0;       ///< voltage of that output, V
    double dPotenciaSalidaCA = 5000.0;     ///< most power of that output, W; archived, shown nowhere
    int iTipoSalidaCA = 0;                 ///< 0 one phase, 1 three phases
    double dProfundidadDescarga = 40.0;    ///< depth of discharge, %
    int iSimboloRegulador = 0;             ///< the host's symbol for a charge regulator
    double dPerdidaCableado = 6.0;         ///< %
    double dPerdidaAcumulador = 10.0;      ///< %
    double dPerdidaAcoplamiento = 20.0;    ///< %
    double dInclinacion = 0.0;             ///< degrees
    double dOrientacion = 0.0;             ///< degrees, 0 south
    int iDisposicion = 0;                  ///< 0 vertical, 1 horizontal
    int iPanelesPorFila = 25;              ///< most panels a row
    double dDistanciaPaneles = 0.0;        ///< panel to panel, mm
    double dDistanciaFilas = 0.0;          ///< row to row, mm
    double dKb = 0.05;                     ///< losses of the battery, fraction
    double dKa = 0.005;                    ///< self-discharge, fraction
    double dTemperaturaAcumulador = 21.0;  ///< ºC
    double dKaAjustado = 0.0;              ///< self-discharge at that temperature, fraction, a result
    double dKc = 0.01;                     ///< losses of the converter, fraction
    double dKv = 0.12;                     ///< other losses, fraction
    double dR = 0.0;                       ///< overall performance of the battery, fraction, a result

    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVAsistenteAislada() override;

    /// Writes schema 6; reads schemas 1 to 6, and later ones as far as it knows them.
    void Serialize(CArchive& ar) override;

    /// Empties `destino`, then appends the elements of `origen` in order.
    virtual void CopyArray(const CArray<double, double&>& origen, CArray<double, double&>& destino);
    virtual void CopyArray(const CStringArray& origen, CStringArray& destino);
    virtual void CopyArray(const CUIntArray& origen, CUIntArray& destino);

    /// Empties the four arrays of the loads; everything else keeps its value.
    void Reset();

    static const CRuntimeClass& GetThisClass();
};

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

// ---------------------------------------------------------------------------------------------------
// The assistants. `csLugar` is the place in two parts with the mark "~#SFV#~" between them; the mark must
// stand there even with nothing behind it.
// ---------------------------------------------------------------------------------------------------

/// Asks which kind of installation to design.
/// @return 0 connected to the grid, 1 stand-alone, 3 when the person cancelled.
EFV_API int phSeleccionAsistenteSFV();

/// Runs the stand-alone assistant on the project's record. Batteries, panels, loads and factors K come from
/// the loaded catalogues. Branches of batteries, the panels, tilt, orientation and row spacing in the record
/// are replaced by proposals as the assistant opens; a value out of its limits is told and shown instead, and
/// the proposals come as soon as all lie within. The record's loads are replaced at OK, even at one that is
/// refused afterwards.
/// @param dLatitud degrees  @param iHemisferio 1 north, 0 south
/// @param adRadiacion mean daily horizontal radiation of each month, kJ/m²·day, January first
/// @return 1 accepted, with the design in `asistente`; 0 cancelled.
EFV_API int phAsistenteSFVAislada(CString csLugar, double dLatitud, int iHemisferio,
                                  const double (&adRadiacion)[12], CSFVAsistenteAislada& asistente);

/// Runs the grid-connected assistant on the project's record. Inverters and panels come from the loaded
/// catalogues. Counts, tilt, orientation and row spacing in the record are replaced by proposals as the
/// assistant opens; a value out of its limits as in the stand-alone one.
/// @param dLatitud degrees  @param iHemisferio 1 north, else south
/// @return 1 accepted, with the design in `asistente`; 0 cancelled, nothing written.
EFV_API int phAsistenteSFVRed(CString csLugar, double dLatitud, int iHemisferio, CSFVAsistenteRed& asistente);

/// Lets the person edit the three losses of a stand-alone installation, percentages of 0 to 100 that
/// together stay below 100.
/// @return 1 accepted; 0 cancelled, nothing written.
EFV_API int phDatosPerdidasAislada(double& dPerdidaCableado, double& dPerdidaAcumulador,
                                   double& dPerdidaAcoplamiento);
