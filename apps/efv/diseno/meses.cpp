#include "diseno/meses.h"

#include <cmath>

#include <fmt/format.h>

#include <quorvel/solar.h>

#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr double kKJporKWh = 3600.0;
constexpr ui::Color kGris = 0xB5AAA0, kNaranja = 0x1E82E0, kVerde = 0x5A9A3C;

ui::SerieCurva Barras(const AnoDiseno& ano, ui::Color color, double (*valor)(const MesDiseno&))
{
    ui::SerieCurva serie;
    serie.color = color;
    serie.forma = ui::FormaSerie::barra;
    for (std::size_t m = 0; m < kMeses; ++m) {
        serie.adX.push_back(static_cast<double>(m + 1));
        serie.adY.push_back(valor(ano[m]));
    }
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

std::vector<GraficaDocumento> Graficas(const AnoDiseno& ano, bool bNecesaria)
{
    std::vector<GraficaDocumento> graficas;
    GraficaDocumento& radiacion =
        graficas.emplace_back(Grafica(L"Radiación diaria media de cada mes", L"kWh/m²·día"));
    radiacion.grafica.aSeries = {Barras(ano, kGris, [](const MesDiseno& m) { return m.dHorizontal; }),
                                 Barras(ano, kNaranja, [](const MesDiseno& m) { return m.dPlano; })};
    radiacion.leyenda = {"Sobre la horizontal", "Sobre el plano de los paneles"};
    GraficaDocumento& energia = graficas.emplace_back(Grafica(L"Energía de cada mes", L"kWh"));
    energia.grafica.aSeries = {Barras(ano, kVerde, [](const MesDiseno& m) { return m.dProducida; })};
    energia.leyenda = {"Producida"};
    if (bNecesaria) {
        energia.grafica.aSeries.push_back(
            Barras(ano, kGris, [](const MesDiseno& m) { return m.dNecesaria.value_or(0.0); }));
        energia.leyenda.emplace_back("Necesaria");
    }
    return graficas;
}

std::string Coordenada(double d, const char* positiva, const char* negativa)
{
    return fmt::format("{}° {}", Decimal(std::abs(d), 2), d < 0.0 ? negativa : positiva);
}

}  // namespace

std::optional<std::array<double, kMeses>> FactoresK(const LugarProyecto& lugar, double dInclinacion)
{
    double adK[kMeses] = {};
    if (phGetDataFactorK(lugar.dLatitud, lugar.Hemisferio(), dInclinacion, adK) == 0)
        return std::nullopt;
    return std::to_array(adK);
}

AnoDiseno CalcularAno(const std::array<double, kMeses>& adHorizontal, const std::array<double, kMeses>& adPlano,
                      double dPotencia, double dRendimiento)
{
    AnoDiseno ano;
    for (std::size_t m = 0; m < kMeses; ++m) {
        ano[m].dHorizontal = adHorizontal[m] / kKJporKWh;
        ano[m].dPlano = adPlano[m] / kKJporKWh;
        ano[m].dProducida = ano[m].dPlano * dPotencia * dRendimiento * DiasDelMes(m);
    }
    return ano;
}

double TotalProducido(const AnoDiseno& ano)
{
    double dTotal = 0.0;
    for (const MesDiseno& mes : ano)
        dTotal += mes.dProducida;
    return dTotal;
}

Seccion SeccionMeses(const AnoDiseno& ano)
{
    const bool bNecesaria = ano[0].dNecesaria.has_value();
    Seccion seccion("Radiación y energía mensual");
    seccion.graficas = Graficas(ano, bNecesaria);
    seccion.bPaginaNueva = true;
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Radiación diaria media y energía de cada mes";
    cuadro.bTotal = true;
    cuadro.columnas = {{"Mes", false},
                       {"Horizontal (kWh/m²·día)", true},
                       {"Plano (kWh/m²·día)", true},
                       {"Producida (kWh)", true}};
    if (bNecesaria)
        cuadro.columnas.insert(cuadro.columnas.end(), {{"Necesaria (kWh)", true}, {"Cobertura (%)", true}});
    double dNecesaria = 0.0;
    const auto anadir = [&](const std::string& nombre, const std::string& horizontal, const std::string& plano,
                            double dProducida, double dNecesita) {
        auto& fila = cuadro.filas.emplace_back(
            std::vector<std::string>{nombre, horizontal, plano, Decimal(dProducida, 1)});
        if (bNecesaria)
            fila.insert(fila.end(), {Decimal(dNecesita, 1), Decimal(dProducida / dNecesita * 100.0, 0)});
    };
    for (std::size_t m = 0; m < kMeses; ++m) {
        dNecesaria += ano[m].dNecesaria.value_or(0.0);
        anadir(NombreMes(m), Decimal(ano[m].dHorizontal, 2), Decimal(ano[m].dPlano, 2), ano[m].dProducida,
               ano[m].dNecesaria.value_or(0.0));
    }
    anadir("Año", "", "", TotalProducido(ano), dNecesaria);
    return seccion;
}

Seccion SeccionLugar(const LugarProyecto& lugar)
{
    Seccion seccion("Lugar");
    if (const auto& l = lugar.localidad) {
        const std::string provincia = l->csProvincia.empty() ? "" : CadenaUtf8(l->csProvincia) + ", ";
        seccion.datos = {
            {"Localidad", fmt::format("{} ({}{})", CadenaUtf8(l->csNombre), provincia, CadenaUtf8(l->csPais))},
            {"Longitud", Coordenada(l->dLongitud, "E", "O")},
            {"Altitud", Decimal(l->dAltitud, 0) + " m"},
            {"Radiación", CadenaUtf8(l->csFuente)}};
    } else {
        seccion.datos.emplace_back("Radiación", lugar.adRadiacion ? "la del fichero de proyecto" : "sin datos");
    }
    seccion.datos.insert(
        seccion.datos.begin(),
        {"Latitud", fmt::format("{}° {}", Decimal(std::abs(lugar.dLatitud), 2), lugar.bNorte ? "N" : "S")});
    return seccion;
}

}  // namespace efv::orden
