// Charts of the years of a sale to the grid.
#include <algorithm>
#include <cmath>

#include <quorvel/economics_calculo.h>

namespace efv::economics {

namespace {

using R = CSFVCalculoEconomico;

constexpr auto kNombres =
    std::to_array<std::wstring_view>({L"Energía", L"Prima", L"Ingresos", L"Mantenimiento", L"CashFlow"});
constexpr auto kEjes = std::to_array<std::wstring_view>(
    {L"Energía (kWh)", L"Prima (€/kWh)", L"Ingresos (€)", L"Mantenimiento (€)", L"Cash Flow (€)"});
constexpr auto kTablas = std::to_array<CArray<double, double&> R::*>(
    {&R::aEnergia, &R::aPrima, &R::aIngresos, &R::aMantenimiento, &R::aCashFlow});
static_assert(kNombres.size() == kSeriesVenta && kEjes.size() == kSeriesVenta &&
              kTablas.size() == kSeriesVenta);

ui::SerieCurva Anos(std::wstring_view nombre, const CArray<double, double&>& adValores)
{
    ui::SerieCurva serie;
    serie.csNombre = nombre;
    serie.color = ui::kAzul;
    for (const double d : adValores) {
        serie.adX.push_back(static_cast<double>(serie.adX.size() + 1));
        serie.adY.push_back(d);
    }
    return serie;
}

// As far below the central line as above it.
ui::SerieCurva Escala(const ui::SerieCurva& serie)
{
    double dMaximo = 0.0;
    for (const double d : serie.adY)
        if (std::isfinite(d))
            dMaximo = std::max(dMaximo, std::abs(d));
    ui::SerieCurva escala;
    escala.iAncho = 0;
    escala.adX = {1.0, 1.0};
    escala.adY = {-dMaximo, dMaximo};
    return escala;
}

}  // namespace

std::span<const std::wstring_view, kSeriesVenta> NombresSeriesVenta()
{
    return kNombres;
}

CCtrlCurva2D GraficaVenta(const R& e, SerieVenta serie)
{
    const auto i = static_cast<std::size_t>(serie);
    CCtrlCurva2D grafica;
    grafica.csTitulo = kNombres.at(i);
    grafica.csTituloX = L"Año";
    grafica.csTituloY = kEjes.at(i);
    grafica.aSeries.push_back(Anos(kNombres.at(i), e.*kTablas.at(i)));
    grafica.aSeries.back().forma = ui::FormaSerie::barra;
    if (!grafica.aSeries.back().adY.empty())
        grafica.aSeries.push_back(Escala(grafica.aSeries.back()));
    return grafica;
}

CCtrlCurva2D GraficaAcumulado(const R& e)
{
    CCtrlCurva2D grafica;
    grafica.csTitulo = L"Cash Flow acumulado";
    grafica.csTituloX = L"Año";
    grafica.csTituloY = L"Acumulado (€)";
    grafica.aSeries.push_back(Anos(L"Acumulado", e.aAcumulado));
    grafica.aSeries.back().iAncho = 2;
    return grafica;
}

}  // namespace efv::economics
