#include <quorvel/catalogues.h>
#include <quorvel/framework/CException.h>

#include "platform/framework/registro_clases.h"

CBaseXML::CBaseXML() = default;
CBaseXML::~CBaseXML() = default;

const CRuntimeClass& CBaseXML::GetThisClass()
{
    static const CRuntimeClass clase{"CBaseXML", &CObject::GetThisClass(), &efv::framework::Crear<CBaseXML>};
    return clase;
}

const CRuntimeClass& CBaseXML::GetRuntimeClass() const
{
    return GetThisClass();
}

namespace {

// The file's content into `base`, again and again while another process holds the file.
int LeerHastaPoder(CBaseXML& base, const CString& csPath)
{
    for (;;) {
        try {
            return base.LeerArchivo(csPath);
        } catch (const CFileException& error) {
            if (error.m_cause != CFileException::violacionComparticion)
                throw;
        }
    }
}

}  // namespace

int CBaseXML::Cargar(const CString& csPath)
{
    Vaciar();
    iCargada = LeerHastaPoder(*this, csPath);
    csArchivo = iCargada != 0 ? csPath : CString();
    return iCargada;
}

void CBaseXML::Vaciar()
{
    aFamilias.RemoveAll();
    iCargada = 0;
}

int CBaseXML::Validar()
{
    return 1;
}

CString& CBaseXML::GetArchivo()
{
    return csArchivo;
}

void CBaseXML::SetEdicion(int i)
{
    bEdicion = i;
}

int CBaseXML::GetEdicion()
{
    return bEdicion;
}

bool CBaseXML::EstaVacia()
{
    return aFamilias.IsEmpty();
}

int CBaseXML::GetCargada()
{
    return iCargada;
}

int CBaseXML::SetCargada(const int& i)
{
    return iCargada = i;
}

int CBaseXML::LeerArchivo(const CString& /*csPath*/)
{
    return 0;
}
