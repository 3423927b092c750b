// The two downloads of the host: an answer as files, an answer as twelve figures.
#pragma once

#include <array>

#include <quorvel/framework/CString.h>

namespace efv::solar {

/// See phDownloadFilePVGIS.
bool DescargarAnoTipico(const CString& csArchivo, const CString& csNombre, double dLatitud, double dLongitud,
                        double dValorCabecera, CString& csError);

/// See phDownloadMonthRadPVGIS.
bool DescargarRadiacionMensual(double dLatitud, double dLongitud, double (&adRadiacion)[12], CString& csError,
                               bool bAvisarSinDatos);

}  // namespace efv::solar
