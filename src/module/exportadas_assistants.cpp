// Exported functions of the design assistants.
#include <algorithm>

#include <quorvel/assistants.h>

#include "assistants/aislada_dialogo.h"
#include "assistants/perdidas_dialogo.h"
#include "assistants/red_dialogo.h"
#include "assistants/tipo_instalacion_dialogo.h"
#include "frame/recursos.h"
#include "module/singletons.h"

namespace as = efv::assistants;
using efv::frame::AmbitoRecursos;
using efv::ui::Dialogo;

int phSeleccionAsistenteSFV()
{
    const AmbitoRecursos ambito;
    CDlgAsistenteTipoInstalacion dialogo;
    dialogo.Mostrar();
    return dialogo.iTipo;
}

int phAsistenteSFVAislada(CString csLugar, double dLatitud, int iHemisferio, const double (&adRadiacion)[12],
                          CSFVAsistenteAislada& asistente)
{
    const AmbitoRecursos ambito;
    as::ValoresAislada valores;
    as::TomarDelRegistro(valores, asistente);
    valores.dLatitud = dLatitud;
    valores.iHemisferio = iHemisferio;
    std::ranges::copy(adRadiacion, valores.adRadiacion.begin());
    CDlgAsistenteSFVAislada dialogo(valores, as::PartirLugar(csLugar), asistente, efv::module::Bases(),
                                    efv::module::RecuerdoDialogos().iPaginaAislada);
    if (dialogo.Mostrar() != Dialogo::ok)
        return 0;
    as::DevolverAlRegistro(dialogo.datos, asistente);
    return 1;
}

int phAsistenteSFVRed(CString csLugar, double dLatitud, int iHemisferio, CSFVAsistenteRed& asistente)
{
    const AmbitoRecursos ambito;
    as::ValoresRed valores;
    static_cast<CSFVAsistenteRed&>(valores) = asistente;
    valores.dLatitud = dLatitud;
    valores.csHemisferio = iHemisferio == 1 ? L"N" : L"S";
    CDlgAsistenteSFVRed dialogo(valores, as::PartirLugar(csLugar), efv::module::Bases());
    if (dialogo.Mostrar() != Dialogo::ok)
        return 0;
    asistente = static_cast<const CSFVAsistenteRed&>(dialogo.datos);
    asistente.iTipoSalida = dialogo.datos.inversor.iTipoSalida;
    return 1;
}

int phDatosPerdidasAislada(double& dPerdidaCableado, double& dPerdidaAcumulador, double& dPerdidaAcoplamiento)
{
    const AmbitoRecursos ambito;
    CSFVAsistenteAislada perdidas;
    perdidas.dPerdidaCableado = dPerdidaCableado;
    perdidas.dPerdidaAcumulador = dPerdidaAcumulador;
    perdidas.dPerdidaAcoplamiento = dPerdidaAcoplamiento;
    CDlgDatosPerdidasSolarAislada dialogo(perdidas);
    if (dialogo.Mostrar() != Dialogo::ok)
        return 0;
    dPerdidaCableado = dialogo.datos.dPerdidaCableado;
    dPerdidaAcumulador = dialogo.datos.dPerdidaAcumulador;
    dPerdidaAcoplamiento = dialogo.datos.dPerdidaAcoplamiento;
    return 1;
}
