// The years of a sale to the grid as a table of texts, and the calculation that goes through them.
#include <utility>

#include <quorvel/economics_calculo.h>

#include "economics/ano_venta.h"
#include "platform/numero/conversion.h"

namespace efv::economics {

namespace {

using R = CSFVCalculoEconomico;

struct ColumnaVenta {
    std::wstring_view titulo;
    CArray<double, double&> R::*valores;
    int iDecimales;
};
constexpr auto kColumnas = std::to_array<ColumnaVenta>({
    {L"Año", &R::aAnio, 0},
    {L"Energia Anual", &R::aEnergia, 2},
    {L"Prima", &R::aPrima, 5},
    {L"Ingresos", &R::aIngresos, 2},
    {L"Ing Acumulados", &R::aIngresosAcumulados, 2},
    {L"Capital+Interes", &R::aCapitalInteres, 2},
    {L"Mantenimiento", &R::aMantenimiento, 2},
    {L"Cash Flow", &R::aCashFlow, 2},
    {L"Acumulado", &R::aAcumulado, 2},
});
static_assert(kColumnas.size() == kColumnasVenta);

constexpr auto kTitulos = [] {
    std::array<std::wstring_view, kColumnasVenta> titulos{};
    for (std::size_t i = 0; i < titulos.size(); ++i)
        titulos[i] = kColumnas[i].titulo;
    return titulos;
}();

// What its text says; what isn't finite has no text to be read back.
double Leer(const CString& csTexto, double d)
{
    double dLeido = d;
    numero::nuConvertIntlStrToFlt(csTexto, dLeido);
    return dLeido;
}

}  // namespace

std::span<const std::wstring_view, kColumnasVenta> TitulosVenta()
{
    return kTitulos;
}

std::vector<FilaVenta> FilasVenta(const R& e)
{
    std::vector<FilaVenta> filas(static_cast<std::size_t>(e.aAnio.GetSize()));
    for (std::size_t i = 0; i < kColumnas.size(); ++i) {
        const CArray<double, double&>& valores = e.*kColumnas[i].valores;
        for (std::size_t y = 0; y < filas.size() && static_cast<std::ptrdiff_t>(y) < valores.GetSize(); ++y)
            filas[y][i] =
                numero::nuConvertFltToIntlStr(valores[static_cast<std::ptrdiff_t>(y)], kColumnas[i].iDecimales);
    }
    return filas;
}

std::vector<FilaVenta> CalcularAnosPorTexto(R& e)
{
    ComprobarAnos(e);
    for (const ColumnaVenta& columna : kColumnas)
        (e.*columna.valores).RemoveAll();
    std::vector<FilaVenta> filas;
    AnoAnterior anterior{};
    double dIngresosAcumulados = 0.0;
    for (int y = 0; y < e.dAniosEstudio; ++y) {
        const AnoVenta ano = CalcularAno(e, y, y == 0 ? nullptr : &anterior);
        dIngresosAcumulados += ano.dIngresos;
        e.dTotalPagar += ano.dCuota;
        const std::array<double, kColumnasVenta> adValores{
            y + 1.0,    ano.dEnergia,       ano.dPrima,    ano.dIngresos, dIngresosAcumulados,
            ano.dCuota, ano.dMantenimiento, ano.dCashFlow, ano.dAcumulado};
        FilaVenta& fila = filas.emplace_back();
        for (std::size_t i = 0; i < kColumnas.size(); ++i) {
            fila[i] = numero::nuConvertFltToIntlStr(adValores[i], kColumnas[i].iDecimales);
            (e.*kColumnas[i].valores).Add(Leer(fila[i], adValores[i]));
        }
        anterior = {e.aEnergia[y], e.aPrima[y], e.aAcumulado[y]};
    }
    e.dCuotaAnual = e.dTotalPagar / e.dAniosPrestamo;
    return filas;
}

}  // namespace efv::economics
