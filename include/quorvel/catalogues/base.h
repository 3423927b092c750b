// What all catalogues share: the file in memory, families and models, lookups.
#pragma once

#include <cstdint>
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

/// What every model has; each catalogue's own fields follow in the derived class.
class EFV_API CModelo : public CObject {
public:
    CString csModelo;
    CString csFamilia;    ///< name of the family that holds it
    short nColor = 0;     ///< colour index, never shown
    CString csCodPrecio;  ///< price code
    HTREEITEM hItem = nullptr;
    /// Fields that the file doesn't give this model, a bit a row of its kind's table: their values are those of
    /// the model before it, or 0 and empty.
    std::uint64_t uAusentes = 0;
    bool bPropio = false;  ///< of the person's own catalogue, which lies over the shipped one
};

/// A model with its run-time class.
template <class MODELO>
class EFV_API CModeloCatalogo : public CModelo {
public:
    const CRuntimeClass& GetRuntimeClass() const override;
    static const CRuntimeClass& GetThisClass();
};

/// What every family has.
class EFV_API CFamilia : public CObject {
public:
    CString csNombre;
    HTREEITEM hItem = nullptr;  ///< set when the family is shown
};

/// A manufacturer with its models, in file order.
template <class MODELO>
class CFamiliaCatalogo : public CFamilia {
public:
    CObArrayPropio<MODELO> aModelos;

    CFamiliaCatalogo() = default;
    explicit CFamiliaCatalogo(CString csNombreFamilia) { csNombre = std::move(csNombreFamilia); }
    const CRuntimeClass& GetRuntimeClass() const override;

    virtual const CString& GetNombre() const { return csNombre; }
    virtual const CObArrayPropio<MODELO>& GetModelos() const { return aModelos; }
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
    int Cargar(const CString& csPath) override;
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

    // While a load goes on: those that it takes the place of, whose models are used again.
    CObArrayPropio<CObject> m_anteriores;

    // First model of each name; the keys are the models' own names.
    mutable std::unordered_map<std::wstring_view, Hallado> m_indice;
    mutable bool m_indexado = false;
};
