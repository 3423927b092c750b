#include "economics/pagina_resultados.h"

#include <memory>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "consumption/tabla_dias.h"
#include "economics/dia_auto_dialogo.h"
#include "economics/horas_bloque.h"
#include "platform/numero/conversion.h"

namespace efv::economics {

namespace {

using numero::nuConvertFltToIntlStr;

constexpr ui::Color kGris = 0x808080, kNaranja = 0x1E82E0, kVerde = 0x5A9A3C;

struct FilaMeses {
    std::wstring_view rotulo;
    double FilaBalance::*valor;
};
constexpr auto kFilas = std::to_array<FilaMeses>({
    {L"Consumo total", &FilaBalance::dConsumoTotal},
    {L"AutoConsumo", &FilaBalance::dAutoconsumo},
    {L"Vertido", &FilaBalance::dVertido},
    {L"Ahorro", &FilaBalance::dAhorro},
    {L"Resultante", &FilaBalance::dResultante},
});

class TablaDeMeses final : public ui::ModeloFilas {
public:
    explicit TablaDeMeses(const std::array<FilaBalance, 12>& meses) : m_meses(meses) {}

    int Filas() const override { return static_cast<int>(kFilas.size()); }
    CString Celda(int iFila, int iColumna) const override
    {
        const FilaMeses& fila = kFilas.at(static_cast<std::size_t>(iFila));
        if (iColumna == 0)
            return CString(fila.rotulo);
        return nuConvertFltToIntlStr(m_meses.at(static_cast<std::size_t>(iColumna - 1)).*fila.valor, 2);
    }

private:
    std::array<FilaBalance, 12> m_meses;
};

}  // namespace

PaginaResultados::PaginaResultados(ui::Dialogo& dialogo, CCalculoEconomicoAutoSheet& hoja)
    : Pagina(dialogo, L"Balance energético"),
      m_hoja(hoja),
      m_dias({.lista = "adGasto", .grupo = L"Gasto diario (€)", .editar = L"Consultar..."},
             {.valor = [this](int iMes, int iDia) { return GastoDia(iMes, iDia); },
              .grafica = [this](int iMes, int iDia) { return GraficaDia(iMes, iDia); },
              .abrir = [this](int iMes, int iDia) { AbrirDia(iMes, iDia); },
              .alElegir = [this] { MostrarDia(); }})
{
    m_elemento = &Anadir<ui::Seleccion>("iSeleccion", L"Consumo:", ui::Seleccion::Forma::combo);
    m_elemento->alElegir = [this] { AlElegirElemento(); };
    m_dias.AnadirSelectores(*this, m_elemento);
    m_aportacion = &Anadir<ui::Casilla>("bAportacionFV", L"Aportación fotovoltaica");
    m_aportacion->bMarcada = true;
    m_aportacion->csIndicacion = L"El gasto de los meses con lo que producen los paneles, o sin ello";
    m_aportacion->alCambiar = [this] { Mostrar(MesesBalance(m_balance, m_aportacion->bMarcada)); };
    m_aportacion->colocacion = ui::JuntoA(m_dias.Boton());
    m_dias.AnadirTabla(*this);
    AnadirMeses();
    m_dias.AnadirGrafica(*this);
    alAbrir = [this] { AlAbrir(); };
    alFrente = [this] { AlFrente(); };
}

void PaginaResultados::AnadirMeses()
{
    m_meses = &Anadir<ui::Lista>("listaMeses", L"", ui::Lista::Forma::tabla);
    m_meses->acsColumnas = consumption::ColumnasDeDias();
    m_meses->acsColumnas.front() = L"€";
    m_meses->otras = ui::Alineacion::derecha;
    m_meses->alineaciones = {ui::Alineacion::izquierda};
    m_linea = &Anadir<ui::Edicion>("csLinea", L"");
    m_linea->bSoloLectura = true;
}

void PaginaResultados::AlAbrir()
{
    m_elemento->acsEntradas = m_hoja.Referencias();
    if (!m_elemento->acsEntradas.empty())
        m_elemento->acsEntradas.emplace_back(L"Global");
    Recalcular();
}

void PaginaResultados::AlFrente()
{
    if (m_iMostrado != m_hoja.Elemento())
        Recalcular();
}

void PaginaResultados::AlElegirElemento()
{
    m_hoja.Elegir(m_elemento->iSeleccion);
    m_hoja.CopiarEnergias(m_hoja.Elemento());
    Recalcular();
}

void PaginaResultados::Recalcular()
{
    m_iMostrado = m_hoja.Elemento();
    m_elemento->iSeleccion = m_elemento->acsEntradas.empty() ? -1 : m_iMostrado;
    const auto conAportacion = CalcularBalance(m_hoja.Horas(), m_hoja.Bateria(m_iMostrado), m_balance);
    Mostrar(m_aportacion->bMarcada ? conAportacion : MesesBalance(m_balance, false));
}

void PaginaResultados::Mostrar(const std::array<FilaBalance, 12>& meses)
{
    m_meses->modelo = std::make_shared<TablaDeMeses>(meses);
    ++m_meses->uVersion;
    m_dias.Refrescar();
    MostrarDia();
}

void PaginaResultados::MostrarDia()
{
    const FilaBalance dia = DiaBalance(m_balance, m_aportacion->bMarcada, m_dias.Mes(), m_dias.Dia());
    m_linea->csTexto =
        fmt::format(L"Consumo total: {} € -- Autoconsumo: {} € -- Vertido: {} € -- Resultante: {} €",
                    nuConvertFltToIntlStr(dia.dConsumoTotal, 2), nuConvertFltToIntlStr(dia.dAutoconsumo, 2),
                    nuConvertFltToIntlStr(dia.dVertido, 2), nuConvertFltToIntlStr(dia.dResultante, 2));
}

double PaginaResultados::GastoDia(int iMes, int iDia) const
{
    const std::size_t iPrimera = PrimeraHora(iMes, iDia);
    double dSuma = 0.0;
    for (std::size_t h = 0; h < 24; ++h)
        dSuma += GastoHora(m_balance, m_aportacion->bMarcada, iPrimera + h);
    return dSuma;
}

CCtrlCurva2D PaginaResultados::GraficaDia(int iMes, int iDia) const
{
    const bool bAportacion = m_aportacion->bMarcada;
    const std::size_t iPrimera = PrimeraHora(iMes, iDia);
    const auto serie = [&](std::wstring_view nombre, ui::Color color, auto valor) {
        return SerieDeDia(nombre, color, [&](int h) { return valor(iPrimera + static_cast<std::size_t>(h)); });
    };
    CCtrlCurva2D grafica = ui::GraficaDeHoras(L"Desarrollo diario del gasto [Hora solar]", L"Importe (€)");
    grafica.aSeries = {serie(bAportacion ? L"Resultante" : L"Consumo total", ui::kRojo,
                             [&](std::size_t i) { return GastoHora(m_balance, bAportacion, i); })};
    if (bAportacion) {
        const auto de = [&](std::wstring_view nombre, ui::Color color, const std::vector<double>& ad) {
            grafica.aSeries.push_back(serie(nombre, color, [&](std::size_t i) { return ad[i]; }));
        };
        de(L"Consumo total", kGris, m_balance.adGasto);
        de(L"Autoconsumo", kVerde, m_balance.adValorAutoconsumo);
        de(L"Vertido", kNaranja, m_balance.adValorVertido);
    }
    return grafica;
}

void PaginaResultados::AbrirDia(int iMes, int iDia)
{
    Bloque gasto(kHorasBloque);
    for (std::size_t i = 0; i < gasto.size(); ++i)
        gasto[i] = GastoHora(m_balance, m_aportacion->bMarcada, i);
    AspectoDia aspecto{.grafica = ui::GraficaDeHoras(L"Desarrollo diario del gasto [Hora solar]", L"Título Y"),
                       .csSerie = L"Gasto",
                       .bSoloConsulta = true};
    aspecto.grafica.csTituloX = L"Titulo X";
    EditarDia(iMes, iDia, std::span<double, kHorasBloque>(gasto), aspecto);
}

}  // namespace efv::economics
