#include "consumption/controles_horas.h"

#include <utility>

#include "consumption/horas_texto.h"
#include "platform/numero/conversion.h"

namespace efv::consumption {

ControlesHoras::ControlesHoras(const AspectoHoras& aspecto, const Anadir& anadir,
                               const std::function<ui::Grafica&()>& anadirGrafica,
                               std::function<bool()> recoger)
    : m_valores(std::make_unique<std::array<double, 24>>()),
      m_iDecimales(aspecto.iDecimales),
      m_csSerie(aspecto.csSerie)
{
    for (std::size_t h = 0; h < m_campos.size(); ++h) {
        ui::Edicion& campo = anadir(NombreDeHora(static_cast<int>(h)));
        campo.destino = &(*m_valores)[h];
        campo.iDecimales = aspecto.iDecimales;
        campo.limites = aspecto.limites;
        campo.colocacion.iColumna = h < m_campos.size() / 2 ? 0 : 1;
        campo.alSalir = [this, recoger] {
            if (recoger())
                Dibujar();
        };
        m_campos[h] = &campo;
    }
    m_grafica = &anadirGrafica();
    m_grafica->datos = aspecto.grafica;
    m_grafica->colocacion.iColumna = 2;
}

void ControlesHoras::Mostrar()
{
    for (std::size_t h = 0; h < m_campos.size(); ++h)
        m_campos[h]->csTexto = numero::nuConvertFltToIntlStr((*m_valores)[h], m_iDecimales);
    Dibujar();
}

void ControlesHoras::Dibujar()
{
    m_grafica->datos.aSeries = GraficaDiaDeHoras(*m_valores).aSeries;
    m_grafica->datos.aSeries.front().csNombre = m_csSerie;
}

}  // namespace efv::consumption
