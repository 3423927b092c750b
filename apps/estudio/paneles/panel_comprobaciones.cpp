#include "paneles/panel_comprobaciones.h"

#include <algorithm>
#include <utility>

#include <quorvel/ui/filas.h>

namespace efv::estudio {

namespace {

class FilasComprobacion final : public ui::FilasConColor {
public:
    explicit FilasComprobacion(std::shared_ptr<const std::vector<LineaComprobacion>> lineas)
        : m_lineas(std::move(lineas))
    {
    }

    int Filas() const override { return static_cast<int>(m_lineas->size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        const LineaComprobacion& linea = Linea(iFila);
        switch (iColumna) {
            case 0:
                return linea.csResultado;
            case 1:
                return linea.csNombre;
            case 2:
                return linea.csValor;
            case 3:
                return linea.csLimite;
            default:
                return linea.csMargen;
        }
    }
    ui::Color ColorDeFila(int iFila) const override
    {
        return Linea(iFila).bCumple == false ? ui::kRojo : ui::kNegro;
    }

private:
    const LineaComprobacion& Linea(int iFila) const { return (*m_lineas)[static_cast<std::size_t>(iFila)]; }

    std::shared_ptr<const std::vector<LineaComprobacion>> m_lineas;
};

}  // namespace

PanelComprobaciones::PanelComprobaciones()
    : Dialogo("PanelComprobaciones", L"Comprobaciones"),
      m_lineas(std::make_shared<std::vector<LineaComprobacion>>())
{
    bAceptarVisible = false;
    m_veredicto = &Anadir<ui::TextoFijo>("csVeredicto", L"");
    m_propuesta = &Anadir<ui::TextoFijo>("csPropuesta", L"");
    m_tabla = &Anadir<ui::Lista>("comprobaciones", L"", ui::Lista::Forma::tabla);
    m_tabla->acsColumnas = {L"Resultado", L"Comprobación", L"Valor", L"Límite", L"Margen"};
    m_tabla->alineaciones = {ui::Alineacion::izquierda, ui::Alineacion::izquierda};
    m_tabla->otras = ui::Alineacion::derecha;
    m_tabla->modelo = std::make_shared<FilasComprobacion>(m_lineas);
}

void PanelComprobaciones::Poner(const std::optional<DisenoCalculado>& calculado, bool bVigente)
{
    auto lineas = calculado ? ComprobacionesDe(calculado->comprobacion) : std::vector<LineaComprobacion>();
    const bool bFalla =
        std::ranges::any_of(lineas, [](const LineaComprobacion& linea) { return linea.bCumple == false; });
    m_veredicto->csTexto = calculado ? TextoVeredicto(*calculado) : L"Sin diseño no hay nada que comprobar.";
    m_veredicto->color = bFalla ? ui::kRojo : ui::kNegro;
    m_propuesta->csTexto = calculado ? TextoPropuesta(*calculado) : CString();
    m_propuesta->bVisible = !m_propuesta->csTexto.empty();
    for (ui::Control* control : Controles())
        control->bHabilitado = bVigente;
    if (lineas == *m_lineas)
        return;
    *m_lineas = std::move(lineas);
    ++m_tabla->uVersion;
}

}  // namespace efv::estudio
