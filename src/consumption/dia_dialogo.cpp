#include "consumption/dia_dialogo.h"

#include <algorithm>
#include <utility>

#include <quorvel/ui/presentador.h>

namespace efv::consumption {

DialogoDia::DialogoDia(std::string_view nombreClase, std::wstring_view titulo, const AspectoHoras& aspecto,
                       int iMes, int iDia, HorasDelDia horas)
    : Dialogo(nombreClase, titulo),
      m_iMes(iMes),
      m_iDia(iDia),
      m_horasDelDia(std::move(horas)),
      m_horas(
          aspecto,
          [this](const CString& csRotulo) -> ui::Edicion& { return Anadir<ui::Edicion>("", csRotulo); },
          [this]() -> ui::Grafica& { return Anadir<ui::Grafica>("grafica", L""); },
          [this] { return !Recoger().has_value(); }),
      m_pegar(Anadir<ui::Boton>("", L"Pegar"))
{
    m_pegar.alPulsar = [this] { AlPegar(); };
    auto& alcance =
        Anadir<ui::Seleccion>("iAsignacion", L"Asignación del consumo: ", ui::Seleccion::Forma::radio);
    alcance.acsEntradas = TextosDeAlcance(iMes, iDia);
    alcance.destino = &m_iAlcance;
    // Below the chart: there is more room than below the hours.
    m_pegar.colocacion.iColumna = alcance.colocacion.iColumna = 2;
    alcance.csIndicacion = L"Los días que reciben estas horas";
    std::ranges::copy(m_horasDelDia(iMes, iDia), m_horas.Valores().begin());
    Volcar();
    m_horas.Mostrar();
}

void DialogoDia::SoloConsultar()
{
    PonerSoloLectura();
    m_pegar.bVisible = false;
}

void DialogoDia::AlPegar()
{
    const auto celdas = CeldasPegadas(ui::PresentadorActual().LeerPortapapeles());
    for (std::size_t h = 0; h < celdas.size(); ++h)
        if (celdas[h])
            m_horas.PonerTexto(h, *celdas[h]);
    if (RecogerAvisando())
        m_horas.Dibujar();
}

bool DialogoDia::AlAceptar()
{
    AsignarDia(m_horas.Valores(), static_cast<Alcance>(m_iAlcance), m_iMes, m_iDia, m_horasDelDia);
    return true;
}

}  // namespace efv::consumption
