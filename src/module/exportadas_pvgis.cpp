// Exported functions of the PVGIS downloads.
#include <quorvel/solar/pvgis.h>

#include "frame/recursos.h"
#include "solar/descarga_pvgis.h"

using efv::frame::AmbitoRecursos;

int phDownloadFilePVGIS(CString& csArchivo, CString csNombre, double dLatitud, double dLongitud,
                        double dValorCabecera, CString& csError)
{
    const AmbitoRecursos ambito;
    return efv::solar::DescargarAnoTipico(csArchivo, csNombre, dLatitud, dLongitud, dValorCabecera, csError)
               ? 1
               : 0;
}

int phDownloadMonthRadPVGIS(double dLatitud, double dLongitud, double (&adRadiacion)[12], CString& csError,
                            int bAvisarSinDatos)
{
    const AmbitoRecursos ambito;
    return efv::solar::DescargarRadiacionMensual(dLatitud, dLongitud, adRadiacion, csError,
                                                 bAvisarSinDatos != 0)
               ? 1
               : 0;
}
