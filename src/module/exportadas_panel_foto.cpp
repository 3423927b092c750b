// Exported functions of the catalogue of PV modules.
#include <quorvel/catalogues/panel_foto.h>

#include "catalogues/kinds/panel_foto.h"
#include "module/acceso_catalogos.h"

using efv::frame::AmbitoRecursos;
namespace acceso = efv::module;

int phCargarBasePanelesFotovoltaicos(CString csPath)
{
    return acceso::Cargar<CBasePanelFotoModelo>(csPath);
}

int phEditarBasePanelesFotovoltaicos(int iModo)
{
    return acceso::Editar<CBasePanelFotoModelo>(iModo);
}

int phSeleccionPanelFoto(CString& csId)
{
    return acceso::Seleccionar<CBasePanelFotoModelo>(csId);
}

CBasePanelFoto& phGetBasePanelFoto()
{
    return acceso::Base<CBasePanelFotoModelo>();
}

int phGetFabricantePanelFoto(CString csId, CString& csFamilia)
{
    return acceso::Fabricante<CBasePanelFotoModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloPanelFoto(CString csModelo, CString& csId)
{
    return acceso::CadenaIdentificacion<CBasePanelFotoModelo>(csModelo, csId);
}

int phGetDataPanelFoto(CString csId, CString& csFamilia, double& dVsmax, double& dPmpm, double& dVmpm,
                       double& dImpm, double& dVoc, double& dIsc, double& dCTVoc, double& dCTIsc,
                       double& dCTPmpm, double& dCEf, int& iNp, int& iNs, double& dAcel, int& iTipoCelula,
                       double& dH, double& dB, double& dA, double& dP, CString& csCodPrecio)
{
    using M = CBasePanelFotoModelo;
    if (acceso::Datos<M, &M::csFamilia, &M::dVsmax, &M::dPmpm, &M::dVmpm, &M::dImpm, &M::dVoc, &M::dIsc,
                      &M::dCTVoc, &M::dCTIsc, &M::dCTPmpm, &M::dCEf, &M::iNp, &M::iNs, &M::dAcel,
                      &M::iTipoCelula, &M::dH, &M::dB, &M::dA, &M::dP, &M::csCodPrecio>(
            csId, csFamilia, dVsmax, dPmpm, dVmpm, dImpm, dVoc, dIsc, dCTVoc, dCTIsc, dCTPmpm, dCEf, iNp, iNs,
            dAcel, iTipoCelula, dH, dB, dA, dP, csCodPrecio) == 0)
        return 0;
    iNs = efv::catalogues::CelulasPorRamal(iTipoCelula, iNs);
    return 1;
}

int phGetDimPanelFoto(CString csId, CString& csFamilia, double& dH, double& dB, double& dA, double& dP)
{
    using M = CBasePanelFotoModelo;
    return acceso::Datos<M, &M::csFamilia, &M::dH, &M::dB, &M::dA, &M::dP>(csId, csFamilia, dH, dB, dA, dP);
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
