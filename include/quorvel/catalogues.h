// Component catalogues: what all files share, the families and models, and the access functions.
#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/arbol.h>
#include <quorvel/ui/controles.h>

/// A file of the databases folder, held in memory as a read-only copy.
class EFV_API CBaseXML : public CObject {
public:
    CString csArchivo;                  ///< path of the loaded file; empty when the last load failed
    int bEdicion = 0;                   ///< 1 while the catalogue is being managed
    int iCargada = 0;                   ///< result of the last load, 0 when it failed
    CObArrayPropio<CObject> aFamilias;  ///< children in file order, owned

    CBaseXML();
    CBaseXML(const CBaseXML&) = delete;
    CBaseXML& operator=(const CBaseXML&) = delete;

    const CRuntimeClass& GetRuntimeClass() const override;
    ~CBaseXML() override;

    /// Empties the catalogue and reads `csPath`. While another process holds the file (CFileException
    /// with the sharing cause) the read is repeated at once, as often as it takes.
    /// @return 0 when the file is missing, unreadable or not well formed, else not 0.
    virtual int Cargar(const CString& csPath);
    /// Ends all families; `csArchivo` stays.
    virtual void Vaciar();
    virtual int Validar();
    virtual CString& GetArchivo();
    virtual void SetEdicion(int i);
    virtual int GetEdicion();
    virtual bool EstaVacia();
    virtual int GetCargada();
    virtual int SetCargada(const int& i);
    /// Reads the file into the empty catalogue; each catalogue has its own.
    virtual int LeerArchivo(const CString& csPath);

    static const CRuntimeClass& GetThisClass();
};

// ---------------------------------------------------------------------------------------------------
// Families and models. A model is named by "family#model" or by its name alone; a lookup uses the name
// behind the first "#" only, and the first family that holds it wins.
// ---------------------------------------------------------------------------------------------------

/// A manufacturer with its models, in file order.
template <class MODELO>
class CFamiliaCatalogo : public CObject {
public:
    CString csNombre;
    CObArrayPropio<MODELO> aModelos;
    HTREEITEM hItem = nullptr;  ///< set when the family is shown

    CFamiliaCatalogo() = default;
    explicit CFamiliaCatalogo(CString csNombreFamilia) : csNombre(std::move(csNombreFamilia)) {}
    const CRuntimeClass& GetRuntimeClass() const override;

    virtual const CString& GetNombre() const { return csNombre; }
    /// One entry a model.
    virtual void LlenarCombo(efv::ui::Seleccion& combo) const;
    /// Adds the family with image 0 and its models with image 1, expanded.
    virtual void LlenarArbol(CTreeCtrl& arbol, HTREEITEM hPadre);
    virtual void AddModelo(std::unique_ptr<MODELO> modelo) { aModelos.Add(std::move(modelo)); }
    /// The first model of the name behind the key's first "#", or of the whole key; null without one.
    virtual MODELO* BuscarModelo(const CString& csId) const;

    static const CRuntimeClass& GetThisClass();
};

/// A catalogue of families and models. Its lookups go through an index made at the first of them after
/// a load: families and models must not be changed by other ways than Cargar and Vaciar.
template <class MODELO>
class CBaseCatalogo : public CBaseXML {
public:
    using Familia = CFamiliaCatalogo<MODELO>;

    CString csSeleccion;  ///< identification that goes into the viewer and comes out of it

    const CRuntimeClass& GetRuntimeClass() const override;
    void Vaciar() override;
    int LeerArchivo(const CString& csPath) override;

    virtual void LlenarArbol(CTreeCtrl& arbol);
    /// Null when there is no such model.
    virtual MODELO* BuscarModelo(const CString& csId) const;
    /// Name of the family of the first match, empty without one.
    virtual CString GetFamiliaModelo(const CString& csId) const;
    virtual Familia* BuscarFamilia(const CString& csId) const;
    /// "family#model", empty when the model isn't found.
    virtual CString GetIdModelo(const CString& csModelo) const;
    /// @return 1 and the family's name, or 0 with `csFamilia` untouched.
    virtual int GetFabricante(const CString& csId, CString& csFamilia) const;

    /// Runs the viewer: 0 manages the catalogue, anything else chooses a model.
    /// @return 1 accepted, 0 failed, anything else cancelled.
    int VerBase(int iModo);

    static const CRuntimeClass& GetThisClass();

private:
    struct Hallado {
        Familia* familia = nullptr;
        MODELO* modelo = nullptr;
        std::size_t orden = 0;  ///< of all models in file order
    };

    Hallado Buscar(const CString& csId) const;
    void Indexar() const;

    // First model of each name; the keys are the models' own names.
    mutable std::unordered_map<std::wstring_view, Hallado> m_indice;
    mutable bool m_indexado = false;
};

// ---------------------------------------------------------------------------------------------------
// PV modules
// ---------------------------------------------------------------------------------------------------

/// Data sheet of a PV module. The values are those of a record made by name; a model from a file has
/// all of them from there.
class EFV_API CBasePanelFotoModelo : public CObject {
public:
    CString csModelo;
    CString csFamilia;
    double dVsmax = 0.0;   ///< maximum system voltage, V
    double dPmpm = 0.0;    ///< maximum power at standard conditions, W
    double dVmpm = 30.0;   ///< voltage at maximum power, V
    double dImpm = 0.0;    ///< current at maximum power, A
    double dVoc = 0.0;     ///< open-circuit voltage, V
    double dIsc = 0.0;     ///< short-circuit current, A
    double dCTVoc = 0.0;   ///< temperature coefficient of Voc, mV/ºC
    double dCTIsc = 0.0;   ///< of Isc, mA/ºC
    double dCTPmpm = 0.0;  ///< of Pmpm, mW/ºC
    double dCEf = 5.1;     ///< loss of efficiency from 1000 to 200 W/m², %
    int iNp = 1;           ///< parallel branches of cells
    int iNs = 60;          ///< cells a branch
    double dAcel = 0.0;    ///< area of a cell, mm²
    int iTipoCelula = 1;   ///< 0 monocrystalline, 1 polycrystalline, 2 amorphous, 3 other
    double dH = 100.0;     ///< length, mm
    double dB = 1000.0;    ///< width, mm
    double dA = 200.0;     ///< thickness, mm
    double dP = 1.0;       ///< weight, kg
    short nColor = 0;      ///< colour index, never shown
    CString csCodPrecio;   ///< price code
    HTREEITEM hItem = nullptr;

    const CRuntimeClass& GetRuntimeClass() const override;
    ~CBasePanelFotoModelo() override;
    static const CRuntimeClass& GetThisClass();
};

extern template class EFV_API CFamiliaCatalogo<CBasePanelFotoModelo>;
extern template class EFV_API CBaseCatalogo<CBasePanelFotoModelo>;
using CBasePanelFotoFamilia = CFamiliaCatalogo<CBasePanelFotoModelo>;
using CBasePanelFoto = CBaseCatalogo<CBasePanelFotoModelo>;

/// Loads the catalogue of PV modules. @return 0 when it failed.
EFV_API int phCargarBasePanelesFotovoltaicos(CString csPath);
/// Opens the viewer over the catalogue's file in the databases folder: 0 to edit, else to browse.
/// @return 1 when it ended with exactly 1, else 0.
EFV_API int phEditarBasePanelesFotovoltaicos(int iModo);
/// Lets the person choose a model, beginning with `csId`. @return 0 when the choice failed, with `csId`
/// untouched; 1 otherwise, **also when the person cancelled** (`csId` then stays as it was).
EFV_API int phSeleccionPanelFoto(CString& csId);
/// The module's catalogue of PV modules.
EFV_API CBasePanelFoto& phGetBasePanelFoto();
/// @return 1 and the family's name, or 0 with `csFamilia` untouched.
EFV_API int phGetFabricantePanelFoto(CString csId, CString& csFamilia);
/// Empties `csId`, then writes "family#model" when the model exists. `csModelo` is written as passed:
/// a full identification gets its family twice. @return 1 when `csId` isn't empty.
EFV_API int phCadenaIdentificacionModeloPanelFoto(CString csModelo, CString& csId);
/// Data sheet of a model, units as in CBasePanelFotoModelo. `iNs` is **200 whenever `iTipoCelula` is 3
/// or more**. @return 0, nothing written, when the model doesn't exist.
EFV_API int phGetDataPanelFoto(CString csId, CString& csFamilia, double& dVsmax, double& dPmpm, double& dVmpm,
                               double& dImpm, double& dVoc, double& dIsc, double& dCTVoc, double& dCTIsc,
                               double& dCTPmpm, double& dCEf, int& iNp, int& iNs, double& dAcel,
                               int& iTipoCelula, double& dH, double& dB, double& dA, double& dP,
                               CString& csCodPrecio);
/// Dimensions in mm and weight in kg. @return as phGetDataPanelFoto.
EFV_API int phGetDimPanelFoto(CString csId, CString& csFamilia, double& dH, double& dB, double& dA, double& dP);
/// Name of a cell technology, empty for an unknown one. @return the text of `csNombre`.
EFV_API const wchar_t* phGetCsTipoCelula(int iTipoCelula, CString& csNombre);
/// Temperature coefficient, mV (mA, mW) a degree to percent of `dRef` a degree (`iModo` not 0), or back
/// (0). To percent, a reference within 0.000001 of 0 or negative counts as 1.
EFV_API double phTranslateValor(int iModo, double dValor, double dRef);
