// The year of a field month by month.
#include <utility>

#include <quorvel/report/texto.h>

#include "report/secciones.h"

namespace efv::report {

namespace {

using solar::kMeses;
using solar::MesEnergia;

constexpr ui::Color kGris = 0xB5AAA0, kNaranja = 0x1E82E0, kVerde = 0x5A9A3C;

ui::SerieCurva Barras(ui::Color color)
{
    ui::SerieCurva serie;
    serie.color = color;
    serie.forma = ui::FormaSerie::barra;
    for (std::size_t m = 0; m < kMeses; ++m)
        serie.adX.push_back(static_cast<double>(m + 1));
    return serie;
}

ui::SerieCurva Barras(const solar::AnoEnergia& ano, ui::Color color, double MesEnergia::*valor)
{
    ui::SerieCurva serie = Barras(color);
    for (const MesEnergia& mes : ano.meses)
        serie.adY.push_back(mes.*valor);
    return serie;
}

GraficaDocumento Grafica(std::wstring_view titulo, std::wstring_view tituloY)
{
    GraficaDocumento g;
    g.grafica.csTitulo = titulo;
    g.grafica.csTituloX = L"Mes (1 enero, 12 diciembre)";
    g.grafica.csTituloY = tituloY;
    g.grafica.iCuadriculaX = static_cast<int>(kMeses);
    return g;
}

std::vector<GraficaDocumento> Graficas(const solar::AnoEnergia& ano, const solar::DoceMeses* necesaria)
{
    std::vector<GraficaDocumento> graficas;
    GraficaDocumento& radiacion =
        graficas.emplace_back(Grafica(L"Radiación diaria media de cada mes", L"kWh/m²·día"));
    radiacion.grafica.aSeries = {Barras(ano, kGris, &MesEnergia::dHorizontal),
                                 Barras(ano, kNaranja, &MesEnergia::dPlano)};
    radiacion.leyenda = {"Sobre la horizontal", "Sobre el plano de los paneles"};
    GraficaDocumento& energia = graficas.emplace_back(Grafica(L"Energía de cada mes", L"kWh"));
    energia.grafica.aSeries = {Barras(ano, kVerde, &MesEnergia::dEnergiaMes)};
    energia.leyenda = {"Producida"};
    if (necesaria != nullptr) {
        ui::SerieCurva& serie = energia.grafica.aSeries.emplace_back(Barras(kGris));
        serie.adY.assign(necesaria->begin(), necesaria->end());
        energia.leyenda.emplace_back("Necesaria");
    }
    return graficas;
}

}  // namespace

Seccion SeccionMeses(const solar::AnoEnergia& ano, const solar::DoceMeses* necesaria)
{
    Seccion seccion("Radiación y energía mensual");
    seccion.graficas = Graficas(ano, necesaria);
    seccion.bPaginaNueva = true;
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Radiación diaria media y energía de cada mes";
    cuadro.bTotal = true;
    cuadro.columnas = {{"Mes", false},
                       {"Horizontal (kWh/m²·día)", true},
                       {"Plano (kWh/m²·día)", true},
                       {"Producida (kWh)", true}};
    if (necesaria != nullptr)
        cuadro.columnas.insert(cuadro.columnas.end(), {{"Necesaria (kWh)", true}, {"Cobertura (%)", true}});
    const auto anadir = [&](std::vector<std::string> celdas, double dProducida, double dNecesaria) {
        celdas.push_back(Decimal(dProducida, 1));
        if (necesaria != nullptr)
            celdas.insert(celdas.end(), {Decimal(dNecesaria, 1), Decimal(dProducida / dNecesaria * 100.0, 0)});
        cuadro.filas.push_back(std::move(celdas));
    };
    double dTotal = 0.0;
    for (std::size_t m = 0; m < kMeses; ++m) {
        const MesEnergia& mes = ano.meses[m];
        const double dNecesaria = necesaria != nullptr ? (*necesaria)[m] : 0.0;
        dTotal += dNecesaria;
        anadir({NombreMes(static_cast<int>(m)), Decimal(mes.dHorizontal, 2), Decimal(mes.dPlano, 2)},
               mes.dEnergiaMes, dNecesaria);
    }
    anadir({"Año", "", ""}, ano.Energia(), dTotal);
    return seccion;
}

}  // namespace efv::report
