// Exported functions of the catalogue of DC/DC converters.
#include <quorvel/catalogues/convertidor.h>

#include "catalogues/kinds/convertidor.h"
#include "module/acceso_catalogos.h"

namespace acceso = efv::module;

int phCargarBaseConvertidoresCC(CString csPath)
{
    return acceso::Cargar<CBaseConvertidorModelo>(csPath);
}

int phEditarBaseConvertidorCC(int iModo)
{
    return acceso::Editar<CBaseConvertidorModelo>(iModo);
}

int phSeleccionConvertidor(CString& csId)
{
    return acceso::Seleccionar<CBaseConvertidorModelo>(csId);
}

CBaseConvertidores& phGetBaseConvertidores()
{
    return acceso::Base<CBaseConvertidorModelo>();
}

int phGetFabricanteConvertidor(CString csId, CString& csFamilia)
{
    return acceso::Fabricante<CBaseConvertidorModelo>(csId, csFamilia);
}

int phCadenaIdentificacionModeloConvertidor(CString csModelo, CString& csId)
{
    return acceso::CadenaIdentificacion<CBaseConvertidorModelo>(csModelo, csId);
}

int phGetDataConvertidor(CString csId, CString& csFamilia, double& dVInMin, double& dVInMax, double& dPAutoCons,
                         double& dVOutNom, double& dPOutNom, double& dRendMax, double& dAncho, double& dLargo,
                         double& dAlto, double& dPeso)
{
    using M = CBaseConvertidorModelo;
    return acceso::Datos<M, &M::csFamilia, &M::dVInMin, &M::dVInMax, &M::dPAutoCons, &M::dVOutNom, &M::dPOutNom,
                         &M::dRendMax, &M::dAncho, &M::dLargo, &M::dAlto, &M::dPeso>(
        csId, csFamilia, dVInMin, dVInMax, dPAutoCons, dVOutNom, dPOutNom, dRendMax, dAncho, dLargo, dAlto,
        dPeso);
}
