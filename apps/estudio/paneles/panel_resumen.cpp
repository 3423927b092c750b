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
                           std::function<Contenido()> leer, std::function<void()> accion)
    : Dialogo(nombreClase, L"Resumen"),
      m_leer(std::move(leer)),
      m_lineas(std::make_shared<std::vector<LineaResumen>>())
{
    bAceptarVisible = false;
    Anadir<ui::Boton>("asistente", csBoton).alPulsar = std::move(accion);
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

void PanelResumen::Actualizar()
{
    Contenido contenido = m_leer();
    *m_lineas = std::move(contenido.lineas);
    ++m_tabla->uVersion;
    if (m_grafica != nullptr && contenido.grafica)
        m_grafica->datos = std::move(*contenido.grafica);
}

}  // namespace efv::estudio
