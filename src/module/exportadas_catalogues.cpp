// The exported function of all catalogues together.
#include <quorvel/catalogues.h>

#include "catalogues/kinds/acumulador.h"
#include "catalogues/kinds/convertidor.h"
#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/micro_inversor.h"
#include "catalogues/kinds/panel_foto.h"
#include "catalogues/kinds/receptor.h"
#include "module/acceso_catalogos.h"

int phCargarBasesHE5(CStringArray& lista)
{
    const efv::frame::AmbitoRecursos ambito;
    const auto nAntes = lista.GetSize();
    const auto cargar = [&](const CString& csPath, int (*funcion)(CString)) {
        if (funcion(csPath) == 0)
            lista.Add(csPath);
    };
    cargar(efv::module::Ruta<CBasePanelFotoModelo>(), &phCargarBasePanelesFotovoltaicos);
    cargar(efv::module::Ruta<CBaseAcumuladorModelo>(), &phCargarBaseAcumuladores);
    cargar(efv::module::Ruta<CBaseInversorModelo>(), &phCargarBaseInversores);
    cargar(efv::module::Ruta<CBaseMicroInversorModelo>(), &phCargarBaseMicroInversores);
    cargar(efv::module::Ruta<CBaseConvertidorModelo>(), &phCargarBaseConvertidoresCC);
    cargar(efv::module::Ruta<CBaseReceptorModelo>(), &phCargarBaseReceptores);
    cargar(efv::frame::FormatearCadena(20448, efv::frame::Estado().csPathHE5BD), &phCargarBaseFactorK);
    return lista.GetSize() == nAntes ? 1 : 0;
}
