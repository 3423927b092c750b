#include "clima/estudios.h"

#include <quorvel/clima.h>
#include <quorvel/solar/inclinacion.h>

#include "clima/dialogo_he5.h"
#include "clima/pvgis.h"

namespace efv::estudio {

namespace {

// What the climate library holds now, as the project names it.
CString& Cargado()
{
    static CString csRuta;
    return csRuta;
}

ui::PeticionFichero Peticion(const wchar_t* csTitulo, bool bGuardar, const wchar_t* csPropuesto)
{
    return {csTitulo,
            {{L"Registros climáticos (*.txt *.epw)", L"*.txt *.epw"}, {L"Todos los archivos (*)", L"*"}},
            bGuardar,
            csPropuesto};
}

void PonerRegistro(Sesion& sesion, const CString& csRuta)
{
    CString csError;
    if (!clima::CargarRegistroClimatico(csRuta, csError)) {
        ui::MostrarAviso(L"No se puede usar «" + csRuta + L"»:\n" + csError, ui::Icono::advertencia);
        return;
    }
    Cargado() = csRuta;
    sesion.Proyecto().situacion.csRegistro = csRuta;
    sesion.Cambiado();
}

}  // namespace

void DescargarRegistro(Sesion& sesion)
{
    const auto csRuta =
        ui::PresentadorActual().ElegirFichero(Peticion(L"Guardar el año típico", true, L"clima.txt"));
    const CProyectoEstudio& proyecto = sesion.Proyecto();
    if (csRuta &&
        DescargarAno(*csRuta, proyecto.lugar.csNombre, proyecto.lugar.dLatitud, proyecto.situacion.dLongitud))
        PonerRegistro(sesion, *csRuta);
}

void ElegirRegistro(Sesion& sesion)
{
    if (const auto csRuta = ui::PresentadorActual().ElegirFichero(Peticion(L"Registro climático", false, L"")))
        PonerRegistro(sesion, *csRuta);
}

void QuitarRegistro(Sesion& sesion)
{
    PonerRegistro(sesion, {});
}

void CargarRegistroDelProyecto(const Sesion& sesion)
{
    const CString& csRuta = sesion.Proyecto().situacion.csRegistro;
    if (csRuta == Cargado())
        return;
    Cargado() = csRuta;
    CString csError, csNada;
    if (clima::CargarRegistroClimatico(csRuta, csError))
        return;
    // Another place's record must not stand in for it.
    clima::CargarRegistroClimatico({}, csNada);
    ui::MostrarAviso(L"No se puede leer el registro climático del proyecto, «" + csRuta + L"»:\n" + csError,
                     ui::Icono::advertencia);
}

void RecargarRegistro()
{
    CString csError;
    if (!clima::CargarRegistroClimatico(Cargado(), csError))
        clima::CargarRegistroClimatico({}, csError);
}

bool EstudiarInclinacion(const Sesion& sesion, double& dInclinacion, double dOrientacion)
{
    const CProyectoEstudio& proyecto = sesion.Proyecto();
    solar::EstudioInclinacion estudio{
        .dInclinacionActual = dInclinacion,
        .fuente = clima::RegistroCargado() ? solar::FuenteRadiacion::registro : solar::FuenteRadiacion::cielo,
        .dDatoSitio = proyecto.situacion.dAltitud,
        .dLatitud = proyecto.lugar.dLatitud,
        .dOrientacion = dOrientacion,
        .radHorizontal = {}};
    if (!solar::EstudiarInclinacion(estudio))
        return false;
    dInclinacion = estudio.dInclinacionActual;
    return true;
}

void CalcularPotenciaMinima(const Sesion& sesion)
{
    DialogoHE5(sesion.Proyecto().lugar).Mostrar();
}

}  // namespace efv::estudio
