// Exported functions of tilt and orientation, and of the building code's minimum power.
#include <vector>

#include <quorvel/clima.h>
#include <quorvel/framework/CException.h>
#include <quorvel/localidades.h>
#include <quorvel/solar.h>

#include "frame/estado.h"
#include "frame/recursos.h"
#include "solar/inclinacion_optima.h"
#include "solar/mapa_zonas_dialogo.h"
#include "solar/potencia_minima.h"

using efv::frame::AmbitoRecursos;

namespace {

efv::clima::SitioCielo Sitio(double dDatoSitio, double dLatitud, double dHumedad,
                             const double (&aTemperaturas)[12][31])
{
    return {dDatoSitio, dLatitud, dHumedad, std::span<const double, 372>(&aTemperaturas[0][0], 372)};
}

// The places that ship with the catalogues.
std::vector<efv::Localidad> LugaresDelMapa(CString& csFalta)
{
    const CString& csCarpeta = efv::frame::Estado().csPathHE5BD;
    std::vector<efv::Localidad> lugares;
    try {
        lugares = efv::LeerMunicipios(csCarpeta + L"municipios.txt");
        const auto capitales = efv::LeerLocalidades(csCarpeta + L"localidades.xml");
        lugares.insert(lugares.end(), capitales.begin(), capitales.end());
    } catch (const CFileException& error) {
        csFalta = L"No se pueden leer los municipios. " + efv::CadenaDesdeUtf8(error.what());
    }
    return lugares;
}

}  // namespace

double phCalcularOrientacionInclinacionOptima(int iMes, double dDatoSitio, double dLatitud, double dHumedad,
                                              const double (&aTemperaturas)[12][31], double& dInclinacion,
                                              double& dOrientacion)
{
    const AmbitoRecursos ambito;
    const auto optimo = efv::solar::BuscarOptimo(efv::clima::BibliotecaActual(),
                                                 Sitio(dDatoSitio, dLatitud, dHumedad, aTemperaturas),
                                                 efv::solar::kPasoConsulta, iMes);
    dInclinacion = optimo.dInclinacion;
    dOrientacion = efv::solar::OrientacionAlEcuador(dLatitud);
    return optimo.dRadiacion;
}

double phCalcularPerdidasOrientacionInclinacion(int iMes, double dDatoSitio, double dLatitud, double dHumedad,
                                                const double (&aTemperaturas)[12][31], double dInclinacion,
                                                double dOrientacion, double dRadOptima)
{
    const AmbitoRecursos ambito;
    return efv::solar::Perdidas(efv::clima::BibliotecaActual(),
                                Sitio(dDatoSitio, dLatitud, dHumedad, aTemperaturas), iMes, dInclinacion,
                                dOrientacion, dRadOptima);
}

double phCalcFactorK(int iMes, int iDia, double dInclinacion, double dLatitud, double dOrientacion,
                     double dDatoSitio, double dHumedad, double dTemperatura)
{
    const AmbitoRecursos ambito;
    return efv::solar::FactorDelDia(efv::clima::BibliotecaActual(), dDatoSitio, dLatitud, iMes, iDia,
                                    dInclinacion, dOrientacion, dHumedad, dTemperatura);
}

double phGetPotMinInstalarCTE(int iZona, int iTipoUso1, double dSuperficie1, int iTipoUso2, double dSuperficie2,
                              int bFormulaCoeficientes)
{
    const AmbitoRecursos ambito;
    const bool bCoeficientes = bFormulaCoeficientes != 0;
    const double dPrimera = efv::solar::PotenciaMinima(iZona, iTipoUso1, dSuperficie1, bCoeficientes);
    return efv::solar::PotenciaMinima(iZona, iTipoUso2, dSuperficie2, bCoeficientes) + dPrimera;
}

int phShowMapaZonaHE5()
{
    const AmbitoRecursos ambito;
    CString csFalta;
    const auto lugares = LugaresDelMapa(csFalta);
    CDlgMapaZonas(lugares, csFalta).Mostrar();
    return 1;
}

double phGetCoefA(int iTipoUso)
{
    const AmbitoRecursos ambito;
    return efv::solar::CoeficienteA(iTipoUso);
}
double phGetCoefB(int iTipoUso)
{
    const AmbitoRecursos ambito;
    return efv::solar::CoeficienteB(iTipoUso);
}
double phGetCoefC(int iZona)
{
    const AmbitoRecursos ambito;
    return efv::solar::CoeficienteC(iZona);
}

void phGetCsTipoUso(int iTipoUso, CString& csNombre)
{
    const AmbitoRecursos ambito;
    csNombre = efv::solar::NombreUso(iTipoUso);
}
void phGetCsDisposicion(int iDisposicion, CString& csNombre)
{
    const AmbitoRecursos ambito;
    csNombre = efv::solar::NombreDisposicion(iDisposicion);
}
