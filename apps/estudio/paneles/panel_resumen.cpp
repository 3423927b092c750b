#include "paneles/panel_resumen.h"

namespace efv::estudio {

namespace {

class FilasResumen final : public ui::ModeloFilas {
public:
    explicit FilasResumen(std::shared_ptr<const std::vector<LineaResumen>> lineas) : m_lineas(std::move(lineas))
    {
    }

    int Filas() const override { return static_cast<int>(m_lineas->size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        const LineaResumen& linea = (*m_lineas)[static_cast<std::size_t>(iFila)];
        return iColumna == 0 ? linea.csConcepto : linea.csValor;
    }

private:
    std::shared_ptr<const std::vector<LineaResumen>> m_lineas;
};

}  // namespace

PanelResumen::PanelResumen(std::string_view nombreClase, std::wstring_view csBoton,
                           std::function<Contenido()> leer, std::function<void()> accion,
                           std::function<void()> recalcular)
    : Dialogo(nombreClase, L"Resumen"),
      m_leer(std::move(leer)),
      m_lineas(std::make_shared<std::vector<LineaResumen>>())
{
    bAceptarVisible = false;
    auto& asistente = Anadir<ui::Boton>("asistente", csBoton);
    asistente.alPulsar = std::move(accion);
    if (recalcular) {
        m_recalcular = &Anadir<ui::Boton>("recalcular", L"Recalcular");
        m_recalcular->colocacion.junto = &asistente;
        m_recalcular->csIndicacion = L"Repite el diseño con los datos de ahora y dice qué cambia";
        m_recalcular->alPulsar = std::move(recalcular);
        m_aviso = &Anadir<ui::TextoFijo>("aviso", L"");
        m_aviso->color = ui::kRojo;
    }
    m_tabla = &Anadir<ui::Lista>("resumen", L"", ui::Lista::Forma::tabla);
    m_tabla->acsColumnas = {L"Concepto", L"Valor"};
    m_tabla->alineaciones = {ui::Alineacion::izquierda, ui::Alineacion::derecha};
    m_tabla->modelo = std::make_shared<FilasResumen>(m_lineas);
    if (m_leer().grafica) {
        m_grafica = &Anadir<ui::Grafica>("grafica", L"");
        m_grafica->colocacion.bEstirar = true;
    }
    Actualizar();
}

void PanelResumen::Actualizar(bool bVigente)
{
    m_tabla->bHabilitado = bVigente;
    if (m_grafica != nullptr)
        m_grafica->bHabilitado = bVigente;
    Contenido contenido = m_leer();
    *m_lineas = std::move(contenido.lineas);
    ++m_tabla->uVersion;
    if (m_recalcular != nullptr) {
        m_aviso->csTexto = contenido.csAviso;
        m_aviso->bVisible = m_recalcular->bVisible = !contenido.csAviso.empty();
    }
    if (m_grafica != nullptr && contenido.grafica)
        m_grafica->datos = std::move(*contenido.grafica);
}

}  // namespace efv::estudio
