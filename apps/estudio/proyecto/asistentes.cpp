#include "proyecto/asistentes.h"

namespace efv::estudio {

namespace {

// Answers of the choice of installation.
constexpr int kRed = 0, kAislada = 1;

}  // namespace

void Disenar(Sesion& sesion)
{
    switch (phSeleccionAsistenteSFV()) {
        case kRed:
            return DisenarRed(sesion);
        case kAislada:
            return DisenarAislada(sesion);
        default:
            return;
    }
}

void DisenarAislada(Sesion& sesion)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    const Lugar& lugar = proyecto.lugar;
    phAsistenteSFVAislada(lugar.Texto(), lugar.dLatitud, lugar.iHemisferio, lugar.adRadHorizontal,
                          proyecto.aislada);
    // A refused OK may have stored the loads even though the person cancelled in the end.
    sesion.Cambiado();
}

void DisenarRed(Sesion& sesion)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    const Lugar& lugar = proyecto.lugar;
    phAsistenteSFVRed(lugar.Texto(), lugar.dLatitud, lugar.iHemisferio, proyecto.red);
    sesion.Cambiado();
}

void EditarConsumo(Sesion& sesion)
{
    Consumo& c = sesion.Proyecto().consumo;
    int iAux = 1;
    phShowPropertyConsumo(c.csReferencia, c.lReceptores, c.iTipoEntrada, c.iPatron, c.dPotMaxima, c.adHoras,
                          c.adMes, c.aiPeriodoHora, c.bExcluir, c.iRotulacion, iAux, c.dHusoHorario);
    sesion.Cambiado();
}

}  // namespace efv::estudio
