// What all catalogue files share: loading, state, ownership of the families.
#pragma once

#include <memory>

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>

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
