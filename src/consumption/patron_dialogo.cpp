#include "consumption/patron_dialogo.h"

#include "consumption/nombres.h"

namespace {

namespace ui = efv::ui;

// Targets of a copy: the seven days, then these.
struct GrupoDias {
    std::wstring_view nombre;
    std::size_t iPrimero, iUltimo;  // day types
};
constexpr auto kGrupos = std::to_array<GrupoDias>({
    {L"Laborables", 0, 4},
    {L"Fin de semana", 5, 6},
    {L"Semana completa", 0, 6},
});

efv::consumption::AspectoHoras Aspecto()
{
    efv::consumption::AspectoHoras aspecto;
    aspecto.limites = ui::Intervalo{0, 1};
    aspecto.grafica = ui::GraficaDeHoras(L"Factor de consumo", L"Factor [0-1]");
    return aspecto;
}

}  // namespace

CDlgConfigPatronConsumo::CDlgConfigPatronConsumo(const efv::SemanaFactores& inicial)
    : Dialogo("CDlgConfigPatronConsumo", L"Patrón de consumo"),
      semana(inicial),
      m_dia(Anadir<ui::Seleccion>("iDiaTipo", L"Día:", ui::Seleccion::Forma::combo)),
      m_copiar(Anadir<ui::Seleccion>("", L"Factor de consumo", ui::Seleccion::Forma::menu)),
      m_horas(
          Aspecto(),
          [this](const CString& csRotulo) -> ui::Edicion& { return Anadir<ui::Edicion>("", csRotulo); },
          [this]() -> ui::Grafica& { return Anadir<ui::Grafica>("grafica", L""); },
          [this] { return !Recoger().has_value(); })
{
    m_dia.acsEntradas = efv::consumption::NombresDeDias();
    m_dia.alElegir = [this] { AlElegirDia(); };
    m_copiar.colocacion.iColumna = 1;  // in front of the second column of hours
    m_copiar.acsEntradas = efv::consumption::NombresDeDias();
    for (const GrupoDias& grupo : kGrupos)
        m_copiar.acsEntradas.emplace_back(grupo.nombre);
    m_copiar.alElegir = [this] { AlCopiar(); };
    MostrarDia(0);
}

void CDlgConfigPatronConsumo::MostrarDia(int iDia)
{
    m_iDia = iDia;
    m_dia.iSeleccion = iDia;
    m_horas.Valores() = semana[static_cast<std::size_t>(iDia)];
    m_horas.Mostrar();
}

void CDlgConfigPatronConsumo::AlElegirDia()
{
    const int iElegido = m_dia.iSeleccion;
    m_dia.iSeleccion = m_iDia;
    if (!RecogerAvisando())
        return;
    semana[static_cast<std::size_t>(m_iDia)] = m_horas.Valores();
    MostrarDia(iElegido);
}

void CDlgConfigPatronConsumo::AlCopiar()
{
    const auto iElegido = static_cast<std::size_t>(m_copiar.iSeleccion);
    m_copiar.iSeleccion = -1;
    if (!RecogerAvisando())
        return;
    const bool bGrupo = iElegido >= semana.size();
    const GrupoDias dias = bGrupo ? kGrupos[iElegido - semana.size()] : GrupoDias{L"", iElegido, iElegido};
    for (std::size_t i = dias.iPrimero; i <= dias.iUltimo; ++i)
        semana[i] = m_horas.Valores();
}

bool CDlgConfigPatronConsumo::AlAceptar()
{
    semana[static_cast<std::size_t>(m_iDia)] = m_horas.Valores();
    return true;
}
