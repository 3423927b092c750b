#include "proyecto/asistentes.h"

#include "proyecto/receptores.h"
#include "proyecto/vigencia.h"

namespace efv::estudio {

namespace {

// Answers of the choice of installation.
constexpr int kRed = 0, kAislada = 1;
constexpr int kAceptado = 1;  // of an assistant

/// The list of loads that the assistant and the consumption have in common, while a dialog changes it at one of
/// them.
class ListaComun {
public:
    enum class Parte { aislada, consumo };

    /// An empty list begins with the other's loads.
    ListaComun(CProyectoEstudio& proyecto, Parte parte) : m_proyecto(proyecto), m_parte(parte)
    {
        if (m_parte == Parte::aislada && proyecto.aislada.acsModelo.IsEmpty())
            ReceptoresALaAislada(proyecto);
        else if (m_parte == Parte::consumo && proyecto.consumo.lReceptores.IsEmpty())
            ReceptoresAlConsumo(proyecto);
        m_bMisma = MismosReceptores(proyecto);
        m_antes = FirmaDe(proyecto);
    }

    /// What the dialog changed reaches the other part. Two lists that differed, as in projects of earlier
    /// programs, become one only if the person wants it.
    void Extender() const
    {
        if (FirmaDe(m_proyecto) == m_antes || MismosReceptores(m_proyecto))
            return;
        const bool bAislada = m_parte == Parte::aislada;
        const bool bOtraVacia =
            bAislada ? m_proyecto.consumo.lReceptores.IsEmpty() : m_proyecto.aislada.acsModelo.IsEmpty();
        if (!m_bMisma && !bOtraVacia &&
            !ui::Preguntar(bAislada
                               ? L"El consumo tiene otra lista de receptores.\n¿Desea sustituirla por la de la "
                                 L"instalación aislada?"
                               : L"La instalación aislada tiene otra lista de receptores.\n¿Desea sustituirla "
                                 L"por la del consumo?"))
            return;
        if (bAislada)
            ReceptoresAlConsumo(m_proyecto);
        else
            ReceptoresALaAislada(m_proyecto);
    }

private:
    // What counts of both lists.
    struct Firma {
        CStringArray acsModelo;
        CArray<double, double&> adCantidad, adHorario;
        bool operator==(const Firma&) const = default;
    };
    Firma FirmaDe(const CProyectoEstudio& proyecto) const
    {
        const CSFVAsistenteAislada lista = m_parte == Parte::aislada ? proyecto.aislada : DelConsumo(proyecto);
        return {lista.acsModelo, lista.adCantidad, lista.adHorario};
    }

    CProyectoEstudio& m_proyecto;
    Parte m_parte;
    bool m_bMisma = false;
    Firma m_antes;
};

}  // namespace

std::optional<Diseno> Disenar(Sesion& sesion)
{
    switch (phSeleccionAsistenteSFV()) {
        case kRed:
            return DisenarRed(sesion);
        case kAislada:
            return DisenarAislada(sesion);
        default:
            return std::nullopt;
    }
}

std::optional<Diseno> DisenarAislada(Sesion& sesion)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    const ListaComun lista(proyecto, ListaComun::Parte::aislada);
    const Lugar& lugar = proyecto.lugar;
    const bool bAceptado = phAsistenteSFVAislada(lugar.Texto(), lugar.dLatitud, lugar.iHemisferio,
                                                 lugar.adRadHorizontal, proyecto.aislada) == kAceptado;
    if (bAceptado)
        AnotarAceptado(proyecto, Diseno::aislada);
    // A refused OK may have stored the loads even though the person cancelled in the end.
    lista.Extender();
    sesion.Cambiado();
    return bAceptado ? std::optional(Diseno::aislada) : std::nullopt;
}

std::optional<Diseno> DisenarRed(Sesion& sesion)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    const Lugar& lugar = proyecto.lugar;
    const bool bAceptado =
        phAsistenteSFVRed(lugar.Texto(), lugar.dLatitud, lugar.iHemisferio, proyecto.red) == kAceptado;
    if (bAceptado)
        AnotarAceptado(proyecto, Diseno::red);
    sesion.Cambiado();
    return bAceptado ? std::optional(Diseno::red) : std::nullopt;
}

void EditarConsumo(Sesion& sesion)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    const ListaComun lista(proyecto, ListaComun::Parte::consumo);
    Consumo& c = proyecto.consumo;
    int iAux = 1;
    phShowPropertyConsumo(c.csReferencia, c.lReceptores, c.iTipoEntrada, c.iPatron, c.dPotMaxima, c.adHoras,
                          c.adMes, c.aiPeriodoHora, c.bExcluir, c.iRotulacion, iAux, c.dHusoHorario);
    lista.Extender();
    sesion.Cambiado(L"cambio del consumo");
}

void RecalcularDiseno(Sesion& sesion, Diseno diseno)
{
    CString csTexto;
    for (const CString& csCambio : Recalcular(sesion.Proyecto(), diseno))
        csTexto += L"\n" + csCambio;
    const CString csCual = diseno == Diseno::aislada ? L"la instalación aislada" : L"la conexión a red";
    sesion.Cambiado(L"recálculo de " + csCual);
    ui::MostrarAviso(
        L"Se ha recalculado " + csCual + (csTexto.empty() ? CString(L". Nada cambia.") : L".\n" + csTexto),
        ui::Icono::informacion);
}

}  // namespace efv::estudio
