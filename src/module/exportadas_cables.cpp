// Exported functions of cables. The arithmetic touches no resource and opens no scope.
#include <quorvel/cables.h>

#include "electrical/cables.h"
#include "electrical/vocabulario_cables.h"
#include "frame/recursos.h"

namespace electrical = efv::electrical;
using electrical::kIdaYVuelta;
using electrical::kTresFases;

double phGetSeccionCable(int iMetodo, int iMaterial, int iAislante, int bTrifasico, double dTemperatura,
                         double dCorriente)
{
    return electrical::SeccionPorCorriente({.iMetodo = iMetodo,
                                            .iMaterial = iMaterial,
                                            .iAislante = iAislante,
                                            .bTrifasico = bTrifasico != 0,
                                            .dTemperatura = dTemperatura},
                                           dCorriente);
}

double phGetSeccProx(double dSeccion)
{
    return electrical::SeccionNormal(dSeccion);
}

double phCalcSeccCorriente(double dCorriente)
{
    return electrical::SeccionDeReferencia(dCorriente);
}

double phGetSection1(double dLongitud, double dPotencia, double dCaida, double dTension, double dConductividad)
{
    return electrical::SeccionPorPotencia(kIdaYVuelta, dLongitud, dPotencia, dCaida, dTension, dConductividad);
}

double phGetSection1T(double dLongitud, double dPotencia, double dCaida, double dTension, double dConductividad)
{
    return electrical::SeccionPorPotencia(kTresFases, dLongitud, dPotencia, dCaida, dTension, dConductividad);
}

double phGetSection2(double dLongitud, double dCorriente, double dCosFi, double dTensionOrigen,
                     double dTensionFinal, double dConductividad)
{
    return electrical::SeccionEntreTensiones(kIdaYVuelta, dLongitud, dCorriente, dCosFi, dTensionOrigen,
                                             dTensionFinal, dConductividad);
}

double phGetSection2T(double dLongitud, double dCorriente, double dCosFi, double dTensionOrigen,
                      double dTensionFinal, double dConductividad)
{
    return electrical::SeccionEntreTensiones(kTresFases, dLongitud, dCorriente, dCosFi, dTensionOrigen,
                                             dTensionFinal, dConductividad);
}

double phGetSection3(double dLongitud, double dCorriente, double dCosFi, double dTension, double dCaida,
                     double dConductividad)
{
    return electrical::SeccionPorCaida(kIdaYVuelta, dLongitud, dCorriente, dCosFi, dTension, dCaida,
                                       dConductividad);
}

double phGetSection3T(double dLongitud, double dCorriente, double dCosFi, double dTension, double dCaida,
                      double dConductividad)
{
    return electrical::SeccionPorCaida(kTresFases, dLongitud, dCorriente, dCosFi, dTension, dCaida,
                                       dConductividad);
}

double phGetSection4(double dLongitud, double dCorriente, double dCosFi, double dSeccionOCaida,
                     double dConductividad)
{
    return electrical::SeccionOCaida(kIdaYVuelta, dLongitud, dCorriente, dCosFi, dSeccionOCaida,
                                     dConductividad);
}

double phGetSection4T(double dLongitud, double dCorriente, double dCosFi, double dSeccionOCaida,
                      double dConductividad)
{
    return electrical::SeccionOCaida(kTresFases, dLongitud, dCorriente, dCosFi, dSeccionOCaida, dConductividad);
}

double phGetCaidaTension(double dLongitud, double dCorriente, double dCosFi, double dSeccion,
                         double dConductividad)
{
    return phGetSection4(dLongitud, dCorriente, dCosFi, dSeccion, dConductividad);
}

double phGetCaidaTensionT(double dLongitud, double dCorriente, double dCosFi, double dSeccion,
                          double dConductividad)
{
    return phGetSection4T(dLongitud, dCorriente, dCosFi, dSeccion, dConductividad);
}

double phGetConductividad(double dTemperatura, double dResistividad, double dCoeficiente)
{
    return electrical::Conductividad(dTemperatura, {dResistividad, dCoeficiente});
}

double phGetConductividadCobre(double dTemperatura)
{
    return electrical::Conductividad(dTemperatura, electrical::kCobre);
}

double phGetConductividadAluminio(double dTemperatura)
{
    return electrical::Conductividad(dTemperatura, electrical::kAluminio);
}

double phCalcKa_(double dTemperatura, double dKa)
{
    return electrical::AutodescargaAjustada(dTemperatura, dKa);
}

double phCalcR(double dKaAjustado, double dKb, double dKc, double dKv, double dProfundidad, double dDias)
{
    return electrical::RendimientoBateria(dKaAjustado, dKb, dKc, dKv, dProfundidad, dDias);
}

// ---------------------------------------------------------------------------------------------------
// Names
// ---------------------------------------------------------------------------------------------------

namespace {

const wchar_t* Nombrar(std::wstring_view (*nombre)(int), int i, CString& csNombre)
{
    const efv::frame::AmbitoRecursos ambito;
    csNombre = nombre(i);
    return csNombre.c_str();
}

}  // namespace

const wchar_t* phGetCsTipoTramo(int iTipo, CString& csNombre)
{
    return Nombrar(electrical::NombreTramo, iTipo, csNombre);
}

const wchar_t* phGetCsTipoInstalacion(int iMetodo, CString& csNombre)
{
    return Nombrar(electrical::NombreMetodo, iMetodo, csNombre);
}

const wchar_t* phGetCsTipoInstalacionLT(int iMetodo, CString& csNombre)
{
    return Nombrar(electrical::NombreLargoMetodo, iMetodo, csNombre);
}

const wchar_t* phGetCsTipoAislante(int iAislante, CString& csNombre)
{
    return Nombrar(electrical::NombreAislante, iAislante, csNombre);
}

const wchar_t* phGetCsTipoAislanteLT(int iAislante, CString& csNombre)
{
    return Nombrar(electrical::NombreLargoAislante, iAislante, csNombre);
}

const wchar_t* phGetCsTipoMatCable(int iMaterial, CString& csNombre)
{
    return Nombrar(electrical::NombreMaterial, iMaterial, csNombre);
}

const wchar_t* phGetCsTipoMatCableLT(int iMaterial, CString& csNombre)
{
    return Nombrar(electrical::NombreLargoMaterial, iMaterial, csNombre);
}
