// The year of a field month by month.
#include <algorithm>
#include <utility>

#include <quorvel/report/texto.h>

#include "report/secciones.h"

namespace efv::report {

namespace {

using solar::kMeses;
using solar::MesEnergia;

constexpr const char* kRadiacion = "kWh/m²·día";
constexpr ui::Color kGris = 0xB5AAA0, kNaranja = 0x1E82E0, kVerde = 0x5A9A3C;

ui::SerieCurva Barras(std::wstring_view nombre, const solar::AnoEnergia& ano, ui::Color color,
                      double MesEnergia::*valor)
{
    solar::DoceMeses adMeses{};
    std::ranges::transform(ano.meses, adMeses.begin(), [&](const MesEnergia& mes) { return mes.*valor; });
    return ui::BarrasDeMeses(nombre, color, adMeses);
}

std::vector<CCtrlCurva2D> Graficas(const solar::AnoEnergia& ano, const solar::DoceMeses* necesaria)
{
    CCtrlCurva2D radiacion = ui::GraficaDeMeses(L"Radiación diaria media de cada mes", L"kWh/m²·día");
    radiacion.aSeries = {Barras(L"Sobre la horizontal", ano, kGris, &MesEnergia::dHorizontal),
                         Barras(L"Sobre el plano de los paneles", ano, kNaranja, &MesEnergia::dPlano)};
    CCtrlCurva2D energia = ui::GraficaDeMeses(L"Energía de cada mes", L"kWh");
    energia.bLeyenda = true;
    energia.aSeries = {Barras(L"Producida", ano, kVerde, &MesEnergia::dEnergiaMes)};
    if (necesaria != nullptr)
        energia.aSeries.push_back(ui::BarrasDeMeses(L"Necesaria", kGris, *necesaria));
    return {EnUnidades(std::move(radiacion)), EnUnidades(std::move(energia))};
}

std::string FuenteDe(const LugarDiseno& lugar)
{
    return lugar.localidad ? CadenaUtf8(lugar.localidad->csFuente) : "la del proyecto";
}

}  // namespace

Seccion SeccionMeses(const LugarDiseno& lugar, const solar::AnoEnergia& ano, const solar::DoceMeses* necesaria)
{
    Seccion seccion(kTituloMeses);
    seccion.fuentes.push_back("radiación sobre la horizontal, " + FuenteDe(lugar) +
                              "; factores K, tabla del programa.");
    seccion.graficas = Graficas(ano, necesaria);
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Radiación diaria media y energía de cada mes";
    cuadro.bTotal = true;
    cuadro.columnas = {{"Mes", false},
                       {TituloEn("Horizontal (kWh/m²·día)"), true},
                       {TituloEn("Plano (kWh/m²·día)"), true},
                       {TituloEn("Producida (kWh)"), true}};
    if (necesaria != nullptr)
        cuadro.columnas.insert(cuadro.columnas.end(),
                               {{TituloEn("Necesaria (kWh)"), true}, {"Cobertura (%)", true}});
    const auto anadir = [&](std::vector<std::string> celdas, double dProducida, double dNecesaria) {
        celdas.push_back(DecimalEn(dProducida, 1, "kWh"));
        if (necesaria != nullptr)
            celdas.insert(celdas.end(),
                          {DecimalEn(dNecesaria, 1, "kWh"), Decimal(dProducida / dNecesaria * 100.0, 0)});
        cuadro.filas.push_back(std::move(celdas));
    };
    double dTotal = 0.0;
    for (std::size_t m = 0; m < kMeses; ++m) {
        const MesEnergia& mes = ano.meses[m];
        const double dNecesaria = necesaria != nullptr ? (*necesaria)[m] : 0.0;
        dTotal += dNecesaria;
        anadir({NombreMes(static_cast<int>(m)), DecimalEn(mes.dHorizontal, 2, kRadiacion),
                DecimalEn(mes.dPlano, 2, kRadiacion)},
               mes.dEnergiaMes, dNecesaria);
    }
    anadir({"Año", "", ""}, ano.Energia(), dTotal);
    return seccion;
}

}  // namespace efv::report
