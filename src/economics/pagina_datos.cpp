#include "economics/pagina_datos.h"

#include <numeric>

#include "economics/horas_bloque.h"

namespace efv::economics {

/// What tells one page of data from another.
struct AspectoPagina {
    std::wstring_view titulo, grupo, grafica, ejeY;
    std::string_view lista;
    Bloque CCalculoEconomicoAutoSheet::*bloque;
    bool bPrecio;
};

namespace {

constexpr int kDecimalesPrecio = 5;

// By the number of TipoPagina.
const std::array<AspectoPagina, 4> kAspectos{{
    {L"Energía producida", L"Producción energética diaria (kWh/día)",
     L"Desarrollo diario de la produción [Hora solar]", L"Energía (kWh)", "adProduccion",
     &CCalculoEconomicoAutoSheet::produccion, false},
    {L"Energía consumida", L"Consumo energético diario (kWh/día)",
     L"Desarrollo diario del consumo [Hora solar]", L"Energía (kWh)", "adConsumo",
     &CCalculoEconomicoAutoSheet::consumo, false},
    {L"Precio energía consumida", L"Precio energético medio diario (€/kWh)",
     L"Desarrollo del precio energético en consumo (€/kWh)", L"Precio (€/kWh)", "adPrecioConsumo",
     &CCalculoEconomicoAutoSheet::precioConsumo, true},
    {L"Precio energía vertida", L"Precio energético medio diario (€/kWh)",
     L"Desarrollo del precio energético en vertido (€/kWh)", L"Precio (€/kWh)", "adPrecioVertido",
     &CCalculoEconomicoAutoSheet::precioVertido, true},
}};

const AspectoPagina& AspectoDe(TipoPagina tipo)
{
    return kAspectos.at(static_cast<std::size_t>(tipo));
}

}  // namespace

PaginaDatos::PaginaDatos(ui::Dialogo& dialogo, CCalculoEconomicoAutoSheet& hoja, TipoPagina tipo)
    : Pagina(dialogo, AspectoDe(tipo).titulo),
      m_hoja(hoja),
      m_tipo(tipo),
      m_aspecto(AspectoDe(tipo)),
      m_bloque(hoja.*m_aspecto.bloque),
      m_dias({m_aspecto.lista, m_aspecto.grupo, m_aspecto.bPrecio ? L"Editar ..." : L"Consultar...",
              m_aspecto.bPrecio ? kDecimalesPrecio : 2},
             {.valor = [this](int iMes, int iDia) { return ValorDia(iMes, iDia); },
              .grafica = [this](int iMes, int iDia) { return GraficaDia(iMes, iDia); },
              .abrir = [this](int iMes, int iDia) { AbrirDia(iMes, iDia); }})
{
    if (!m_aspecto.bPrecio) {
        m_elemento = &Anadir<ui::Seleccion>("iSeleccion", L"Consumo:", ui::Seleccion::Forma::combo);
        m_elemento->alElegir = [this] { AlElegirElemento(); };
    }
    m_dias.AnadirSelectores(*this, m_elemento);
    auto& generador = Anadir<ui::Boton>("", L"Generador precios...");
    generador.bHabilitado = generador.bVisible = false;
    generador.colocacion = ui::JuntoA(m_dias.Boton());
    m_dias.AnadirTabla(*this);
    m_dias.AnadirGrafica(*this);
    alAbrir = [this] { AlAbrir(); };
    alFrente = [this] { AlFrente(); };
}

void PaginaDatos::AlAbrir()
{
    m_hoja.EmpezarPorElPrimero();
    if (m_elemento != nullptr) {
        m_elemento->acsEntradas = m_hoja.Referencias();
        if (!m_elemento->acsEntradas.empty())
            m_elemento->acsEntradas.emplace_back(L"Global");
        Copiar();
        MostrarElemento();
    }
    m_dias.Refrescar();
}

// A page of prices has no element of its own, and sees to both energies.
void PaginaDatos::AlFrente()
{
    if (m_elemento == nullptr) {
        if (m_hoja.EsCompleta())
            m_hoja.CopiarEnergias(m_hoja.Elemento());
        return;
    }
    if (m_iMostrado == m_hoja.Elemento())
        return;
    Copiar();
    MostrarElemento();
    m_dias.Refrescar();
}

void PaginaDatos::AlElegirElemento()
{
    m_hoja.Elegir(m_elemento->iSeleccion);
    Copiar();
    MostrarElemento();
    m_dias.Refrescar();
}

void PaginaDatos::Copiar()
{
    if (m_tipo == TipoPagina::produccion)
        m_hoja.CopiarProduccion();
    else
        m_hoja.CopiarConsumo();
}

void PaginaDatos::MostrarElemento()
{
    m_iMostrado = m_hoja.Elemento();
    m_elemento->iSeleccion = m_elemento->acsEntradas.empty() ? -1 : m_iMostrado;
}

// An energy is a sum, a price a mean.
double PaginaDatos::ValorDia(int iMes, int iDia) const
{
    const auto desde = m_bloque.begin() + static_cast<std::ptrdiff_t>(PrimeraHora(iMes, iDia));
    const double dSuma = std::accumulate(desde, desde + 24, 0.0);
    return m_aspecto.bPrecio ? dSuma / 24.0 : dSuma;
}

CCtrlCurva2D PaginaDatos::GraficaDia(int iMes, int iDia) const
{
    CCtrlCurva2D grafica = ui::GraficaDeHoras(m_aspecto.grafica, m_aspecto.ejeY);
    const std::size_t iPrimera = PrimeraHora(iMes, iDia);
    grafica.aSeries = {SerieDeDia(m_aspecto.titulo, ui::kRojo,
                                  [&](int h) { return m_bloque[iPrimera + static_cast<std::size_t>(h)]; })};
    return grafica;
}

void PaginaDatos::AbrirDia(int iMes, int iDia)
{
    const AspectoDia aspecto{.grafica = ui::GraficaDeHoras(m_aspecto.grafica, m_aspecto.ejeY),
                             .csSerie = CString(m_aspecto.titulo),
                             .iDecimales = m_aspecto.bPrecio ? kDecimalesPrecio : 2,
                             .bSoloConsulta = !m_aspecto.bPrecio};
    if (EditarDia(iMes, iDia, std::span<double, kHorasBloque>(m_bloque), aspecto) == 1)
        m_dias.Refrescar();
}

}  // namespace efv::economics
