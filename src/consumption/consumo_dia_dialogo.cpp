#include "consumption/consumo_dia_dialogo.h"

#include <algorithm>

#include <quorvel/ui/presentador.h>

#include "consumption/asignacion_dia.h"

namespace {

namespace ui = efv::ui;

efv::consumption::AspectoHoras Aspecto()
{
    efv::consumption::AspectoHoras aspecto;
    aspecto.iDecimales = 0;
    aspecto.grafica = efv::GraficaDiaDeHoras(std::array<double, 24>{});
    return aspecto;
}

}  // namespace

CDlgDatosConsumoDia::CDlgDatosConsumoDia(int iMes, int iDia, std::span<double, efv::kHorasDelAno> adHoras)
    : Dialogo("CDlgDatosConsumoDia", L"Datos de consumo diario"),
      m_iMes(iMes),
      m_iDia(iDia),
      m_adHoras(adHoras),
      m_horas(
          Aspecto(),
          [this](const CString& csRotulo) -> ui::Edicion& { return Anadir<ui::Edicion>("", csRotulo); },
          [this]() -> ui::Grafica& { return Anadir<ui::Grafica>("grafica", L""); },
          [this] { return !Recoger().has_value(); })
{
    Anadir<ui::Boton>("", L"Pegar").alPulsar = [this] { AlPegar(); };
    auto& alcance =
        Anadir<ui::Seleccion>("iAsignacion", L"Asignación del consumo: ", ui::Seleccion::Forma::radio);
    alcance.acsEntradas = efv::consumption::TextosDeAlcance(iMes, iDia);
    alcance.destino = &m_iAlcance;
    const auto dia = adHoras.subspan(static_cast<std::size_t>(efv::HorasDeDia(iMes, iDia).iInicio), 24);
    std::ranges::copy(dia, m_horas.Valores().begin());
    Volcar();
    m_horas.Mostrar();
}

void CDlgDatosConsumoDia::AlPegar()
{
    const auto celdas = efv::consumption::CeldasPegadas(ui::PresentadorActual().LeerPortapapeles());
    for (std::size_t h = 0; h < celdas.size(); ++h)
        if (celdas[h])
            m_horas.PonerTexto(h, *celdas[h]);
    if (RecogerAvisando())
        m_horas.Dibujar();
}

bool CDlgDatosConsumoDia::AlAceptar()
{
    efv::consumption::AsignarDia(m_horas.Valores(), static_cast<efv::consumption::Alcance>(m_iAlcance), m_iMes,
                                 m_iDia, m_adHoras);
    return true;
}
