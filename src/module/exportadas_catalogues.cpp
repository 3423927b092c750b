// Exported functions of the component catalogues.
#include <quorvel/catalogues.h>

#include "catalogues/campos.h"
#include "catalogues/panel_foto.h"
#include "frame/estado.h"
#include "frame/recursos.h"
#include "module/singletons.h"

using efv::frame::AmbitoRecursos;
using efv::module::BasePanelFoto;

// What the functions of all catalogues do.
namespace {

template <class BASE>
int Editar(BASE& base, int iCadenaFichero, int iModo)
{
    const AmbitoRecursos ambito;
    base.csArchivo = efv::frame::FormatearCadena(iCadenaFichero, efv::frame::Estado().csPathHE5BD);
    base.SetEdicion(1);
    const int iResultado = base.VerBase(iModo);
    base.SetEdicion(0);
    return iResultado == 1 ? 1 : 0;
}

template <class BASE>
int Seleccionar(BASE& base, CString& csId)
{
    const AmbitoRecursos ambito;
    base.csSeleccion = csId;
    if (base.VerBase(1) == 0)
        return 0;
    csId = base.csSeleccion;
    return 1;
}

template <class BASE>
int CadenaIdentificacion(const BASE& base, const CString& csModelo, CString& csId)
{
    const AmbitoRecursos ambito;
    csId.clear();
    CString csFamilia;
    if (base.GetFabricante(csModelo, csFamilia) != 0)
        csId = csFamilia + L"#" + csModelo;
    return csId.empty() ? 0 : 1;
}

}  // namespace

// ---------------------------------------------------------------------------------------------------
// PV modules
// ---------------------------------------------------------------------------------------------------

int phCargarBasePanelesFotovoltaicos(CString csPath)
{
    const AmbitoRecursos ambito;
    return BasePanelFoto().Cargar(csPath);
}

int phEditarBasePanelesFotovoltaicos(int iModo)
{
    return Editar(BasePanelFoto(), 20442, iModo);
}

int phSeleccionPanelFoto(CString& csId)
{
    return Seleccionar(BasePanelFoto(), csId);
}

CBasePanelFoto& phGetBasePanelFoto()
{
    return BasePanelFoto();
}

int phGetFabricantePanelFoto(CString csId, CString& csFamilia)
{
    const AmbitoRecursos ambito;
    return BasePanelFoto().GetFabricante(csId, csFamilia);
}

int phCadenaIdentificacionModeloPanelFoto(CString csModelo, CString& csId)
{
    return CadenaIdentificacion(BasePanelFoto(), csModelo, csId);
}

int phGetDataPanelFoto(CString csId, CString& csFamilia, double& dVsmax, double& dPmpm, double& dVmpm,
                       double& dImpm, double& dVoc, double& dIsc, double& dCTVoc, double& dCTIsc,
                       double& dCTPmpm, double& dCEf, int& iNp, int& iNs, double& dAcel, int& iTipoCelula,
                       double& dH, double& dB, double& dA, double& dP, CString& csCodPrecio)
{
    const AmbitoRecursos ambito;
    using M = CBasePanelFotoModelo;
    const M* modelo = BasePanelFoto().BuscarModelo(csId);
    if (modelo == nullptr)
        return 0;
    efv::catalogues::CopiarSalidas<&M::csFamilia, &M::dVsmax, &M::dPmpm, &M::dVmpm, &M::dImpm, &M::dVoc,
                                   &M::dIsc, &M::dCTVoc, &M::dCTIsc, &M::dCTPmpm, &M::dCEf, &M::iNp, &M::iNs,
                                   &M::dAcel, &M::iTipoCelula, &M::dH, &M::dB, &M::dA, &M::dP, &M::csCodPrecio>(
        *modelo, csFamilia, dVsmax, dPmpm, dVmpm, dImpm, dVoc, dIsc, dCTVoc, dCTIsc, dCTPmpm, dCEf, iNp, iNs,
        dAcel, iTipoCelula, dH, dB, dA, dP, csCodPrecio);
    iNs = efv::catalogues::CelulasPorRamal(*modelo);
    return 1;
}

int phGetDimPanelFoto(CString csId, CString& csFamilia, double& dH, double& dB, double& dA, double& dP)
{
    const AmbitoRecursos ambito;
    using M = CBasePanelFotoModelo;
    const M* modelo = BasePanelFoto().BuscarModelo(csId);
    if (modelo == nullptr)
        return 0;
    efv::catalogues::CopiarSalidas<&M::csFamilia, &M::dH, &M::dB, &M::dA, &M::dP>(*modelo, csFamilia, dH, dB,
                                                                                  dA, dP);
    return 1;
}

const wchar_t* phGetCsTipoCelula(int iTipoCelula, CString& csNombre)
{
    const AmbitoRecursos ambito;
    const auto& tipos = efv::catalogues::kTiposCelula;
    const bool existe = iTipoCelula >= 0 && static_cast<std::size_t>(iTipoCelula) < tipos.size();
    csNombre = existe ? tipos[static_cast<std::size_t>(iTipoCelula)].nombre : std::wstring_view();
    return csNombre.c_str();
}

double phTranslateValor(int iModo, double dValor, double dRef)
{
    const AmbitoRecursos ambito;
    return iModo != 0 ? efv::catalogues::CoeficienteAPorciento(dValor, dRef)
                      : efv::catalogues::CoeficienteDePorciento(dValor, dRef);
}
