// A sale to the grid, calculated, and what must be looked at in it.
#include <algorithm>
#include <numeric>

#include <fmt/format.h>

#include <quorvel/report/texto.h>
#include <quorvel/report/venta.h>

#include "report/secciones.h"

namespace efv::report {

namespace {

using R = CSFVCalculoEconomico;

constexpr double kKJporWh = 3.6;

// The field's year before the performance ratio; nothing without a place or outside the table.
std::optional<solar::AnoEnergia> AnoDelCampo(const ProyectoVenta& proyecto, const CBaseFactorK& tabla)
{
    if (!proyecto.lugar || !proyecto.lugar->adRadiacion)
        return std::nullopt;
    return solar::CalcularEnergia({.dLatitud = proyecto.lugar->dLatitud,
                                   .bNorte = proyecto.lugar->bNorte,
                                   .adRadHorizontal = *proyecto.lugar->adRadiacion,
                                   .dInclinacion = proyecto.Inclinacion(),
                                   .dPotencia = proyecto.registro.dPotenciaGenerador / 1000.0},
                                  solar::kMetodoDeUso, tabla);
}

// The months of the tables; an energy that is given is spread as the field's own.
void AnadirMeses(const ProyectoVenta& proyecto, const solar::AnoEnergia& ano, R& e)
{
    const double dDelCampo = ano.Energia();
    const double dParte = proyecto.EnergiaDada() && dDelCampo > 0.0 ? e.dEnergiaBase / dDelCampo : 1.0;
    std::array<double, 12> adHorizontal{}, adPlano{}, adEnergia{};
    for (std::size_t m = 0; m < adEnergia.size(); ++m) {
        adHorizontal[m] = (*proyecto.lugar->adRadiacion)[m] / kKJporWh;
        adPlano[m] = ano.meses[m].dPlano * 1000.0;
        adEnergia[m] = ano.meses[m].dEnergiaMes * dParte;
    }
    economics::AnadirMeses(e, economics::MesesPorEnergia(e, adHorizontal, adPlano, adEnergia));
}

std::optional<int> AnoRecuperado(const R& e)
{
    std::ptrdiff_t i = e.aAcumulado.GetSize();
    while (i > 0 && e.aAcumulado[i - 1] >= 0.0)
        --i;
    return i < e.aAcumulado.GetSize() ? std::optional(static_cast<int>(i) + 1) : std::nullopt;
}

}  // namespace

EstudioVenta Calcular(const ProyectoVenta& proyecto, const CBaseFactorK& tabla)
{
    EstudioVenta resultado;
    R& e = resultado.estudio;
    e = proyecto.registro;
    e.Reset();
    const auto ano = AnoDelCampo(proyecto, tabla);
    resultado.bPlano = ano || !proyecto.lugar || !proyecto.lugar->adRadiacion;
    if (!proyecto.EnergiaDada())
        e.dEnergiaBase = ano ? ano->Energia() : 0.0;
    economics::ComprobarAnos(e);
    economics::CalcularImportes(e);
    economics::CalcularAnos(e);
    e.dTIR = 0.0;
    economics::CalcularTIR(e);
    if (e.dCosteElegible > 0.0) {
        resultado.bTasaHallada =
            economics::TasaInternaRetorno(
                e.dCosteElegible, {e.aCashFlow.GetData(), static_cast<std::size_t>(e.aCashFlow.GetSize())})
                .bHallada;
    }
    if (ano)
        AnadirMeses(proyecto, *ano, e);
    resultado.iAnoRecuperado = AnoRecuperado(e);
    return resultado;
}

std::vector<Aviso> Avisos(const ProyectoVenta& proyecto, const EstudioVenta& resultado)
{
    const R& e = resultado.estudio;
    std::vector<Aviso> avisos;
    const auto faltaSi = [&](bool bFalta, std::string texto) {
        if (bFalta)
            avisos.push_back({true, std::move(texto)});
    };
    if (proyecto.lugar)
        AvisarDelPlano(*proyecto.lugar, resultado.bPlano, proyecto.Inclinacion(), avisos);
    faltaSi(!(e.dEnergiaResultante > 0.0), "La instalación no da energía: no hay ingresos que estudiar.");
    faltaSi(e.dAniosEstudio < e.dAniosPrestamo,
            fmt::format("El estudio, {} años, es más corto que el préstamo, {} años: faltan cuotas por pagar y "
                        "la cuota anual media sale menor que la que se paga.",
                        Decimal(e.dAniosEstudio, 2), Decimal(e.dAniosPrestamo, 2)));
    if (!(e.dCosteElegible > 0.0))
        faltaSi(true, "La instalación no cuesta nada: no hay tasa interna de retorno que buscar.");
    else
        faltaSi(!resultado.bTasaHallada,
                "La tasa interna de retorno no está al alcance de la búsqueda, de -50 a 150 %: se da como 0.");
    faltaSi(e.dTotalPrestamos < 0.0, "Las ayudas y la aportación pasan del coste: el préstamo sale negativo.");
    faltaSi(!resultado.iAnoRecuperado && !e.aAcumulado.IsEmpty(),
            "El flujo de caja acumulado acaba el estudio por debajo de cero: la venta no paga el préstamo.");
    for (const std::string& nota : proyecto.notas)
        avisos.push_back({false, nota, std::string()});
    return avisos;
}

}  // namespace efv::report
