#include "consumo/vistas.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/solar.h>

#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr int kDias = 365;
constexpr std::size_t kMuestras = 6;

// Corners of the map and of a cell, pixels.
constexpr double kIzquierda = 60, kArriba = 60, kAncho = 2.4, kAlto = 14;
constexpr double kDerecha = kIzquierda + kDias * kAncho;
constexpr double kAbajo = kArriba + 24 * kAlto;
constexpr int kAnchoTotal = 1060, kAltoTotal = 470;

// From nothing to the year's most, pale to dark: lightness falls evenly, so it also reads in grey.
struct Tono {
    double dRojo, dVerde, dAzul;
};
constexpr auto kEscala = std::to_array<Tono>(
    {{255, 250, 220}, {254, 217, 118}, {253, 141, 60}, {227, 26, 28}, {128, 0, 38}, {60, 0, 30}});

std::string ColorDe(double dFraccion)
{
    if (!std::isfinite(dFraccion))
        return "#888888";
    const double dLugar = std::clamp(dFraccion, 0.0, 1.0) * static_cast<double>(kEscala.size() - 1);
    const auto i = std::min(static_cast<std::size_t>(dLugar), kEscala.size() - 2);
    const double t = dLugar - static_cast<double>(i);
    const auto mezcla = [&](double Tono::*tinta) {
        return static_cast<int>(std::lround((1 - t) * kEscala[i].*tinta + t * kEscala[i + 1].*tinta));
    };
    return fmt::format("#{:02X}{:02X}{:02X}", mezcla(&Tono::dRojo), mezcla(&Tono::dVerde),
                       mezcla(&Tono::dAzul));
}

std::string Escapado(std::string_view texto)
{
    std::string limpio;
    for (const char c : EnUnaLinea(texto)) {
        if (c == '&')
            limpio += "&amp;";
        else if (c == '<')
            limpio += "&lt;";
        else
            limpio += c;
    }
    return limpio;
}

std::string Rotulo(double dX, double dY, std::string_view ancla, std::string_view texto)
{
    return fmt::format("<text x=\"{}\" y=\"{}\" text-anchor=\"{}\">{}</text>\n", dX, dY, ancla,
                       Escapado(texto));
}

std::string Rotulos()
{
    std::string texto;
    for (int h = 0; h <= 24; h += 6)
        texto += Rotulo(kIzquierda - 6, kArriba + h * kAlto + 4, "end", fmt::format("{} h", h));
    for (int iMes = 0; iMes < 12; ++iMes) {
        const TramoHoras mes = HorasDePeriodo(iMes);
        CString csNombre;
        phGetNombreMesLT(iMes, csNombre);
        const double dX = kIzquierda + mes.iInicio / 24.0 * kAncho;
        texto += fmt::format("<path d=\"M{0},{1}V{2}\" stroke=\"#555555\"/>\n", dX, kAbajo, kAbajo + 5);
        texto += Rotulo(dX + mes.Horas() / 48.0 * kAncho, kAbajo + 18, "middle", CadenaUtf8(csNombre));
    }
    return texto;
}

// Samples of the colours with their energies.
std::string Leyenda(double dMaximo)
{
    std::string texto;
    for (std::size_t i = 0; i < kMuestras; ++i) {
        const double dFraccion = static_cast<double>(i) / (kMuestras - 1);
        const double dX = kIzquierda + static_cast<double>(i) * 120;
        texto +=
            fmt::format("<rect x=\"{}\" y=\"{}\" width=\"18\" height=\"14\" fill=\"{}\" stroke=\"#555555\"/>\n",
                        dX, kAbajo + 36, ColorDe(dFraccion));
        texto += Rotulo(dX + 24, kAbajo + 48, "start", Decimal(dFraccion * dMaximo, 0) + " Wh");
    }
    return texto;
}

// Hours of a row of one colour next to one another are one rectangle.
std::string Fila(const AnoHorario& horas, std::size_t h, double dMaximo)
{
    std::string texto;
    const auto color = [&](std::size_t dia) {
        return ColorDe(dMaximo > 0 ? horas[24 * dia + h] / dMaximo : 0.0);
    };
    for (std::size_t dia = 0; dia < kDias;) {
        const std::string tinta = color(dia);
        std::size_t fin = dia + 1;
        while (fin < kDias && color(fin) == tinta)
            ++fin;
        texto += fmt::format("<rect x=\"{:.1f}\" y=\"{}\" width=\"{:.1f}\" height=\"{}\" fill=\"{}\"/>\n",
                             kIzquierda + static_cast<double>(dia) * kAncho,
                             kArriba + static_cast<double>(h) * kAlto, static_cast<double>(fin - dia) * kAncho,
                             kAlto, tinta);
        dia = fin;
    }
    return texto;
}

std::string MapaDelAno(const AnoConsumo& ano)
{
    double dMaximo = 0.0;
    for (const double d : *ano.horas)
        dMaximo = std::isfinite(d) ? std::max(dMaximo, d) : dMaximo;
    std::string svg = fmt::format(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0}\" "
        "height=\"{1}\" viewBox=\"0 0 {0} {1}\" role=\"img\" font-family=\"sans-serif\" font-size=\"12\" "
        "fill=\"#222222\">\n<title>Consumo del año</title>\n<rect width=\"100%\" height=\"100%\" "
        "fill=\"#FFFFFF\"/>\n",
        kAnchoTotal, kAltoTotal);
    svg += Rotulo(kIzquierda, 24, "start", "Consumo de cada hora del año [Hora solar]");
    svg += Rotulo(kIzquierda, 44, "start", ano.origen);
    svg += "<g shape-rendering=\"crispEdges\">\n";
    for (std::size_t h = 0; h < 24; ++h)
        svg += Fila(*ano.horas, h, dMaximo);
    svg += fmt::format(
        "</g>\n<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\" fill=\"none\" stroke=\"#555555\"/>\n",
        kIzquierda, kArriba, kDerecha - kIzquierda, kAbajo - kArriba);
    return svg + Rotulos() + Leyenda(dMaximo) + "</svg>\n";
}

// Seven days from hour `iInicio` of the reference year, whose first day is a Monday; a day has the width 1
// around its number.
CCtrlCurva2D GraficaDeSemana(const AnoConsumo& ano, int iInicio)
{
    constexpr std::size_t kHoras = std::size_t{7} * 24;
    const DiaHorarioVista primero(ano.horas->begin() + iInicio, 24);
    CCtrlCurva2D grafica = GraficaDiaDeHoras(primero);
    grafica.csTitulo = L"Desarrollo semanal del consumo (precisión de horas) [Hora solar]";
    grafica.csTituloX = L"Día de la semana";
    grafica.claseX = ui::ClaseEje::diaSemana;
    ui::SerieCurva& serie = grafica.aSeries[0];
    serie.adX.clear();
    serie.adY.clear();
    const double dPrimerDia = iInicio / 24 % 7 + 0.5;
    for (std::size_t h = 0; h < kHoras; ++h) {
        serie.adX.push_back(dPrimerDia + static_cast<double>(h) / 24.0);
        serie.adY.push_back((*ano.horas)[static_cast<std::size_t>(iInicio) + h]);
    }
    return grafica;
}

}  // namespace

std::string DibujarAno(const AnoConsumo& ano, Vista vista, int iMes, int iDia)
{
    const int iInicio = HorasDeDia(iMes, iDia).iInicio;
    switch (vista) {
        case Vista::dia:
            if (!ano.receptores.IsEmpty())
                return ui::EscribirSvg(GraficaDiaDeReceptores(ano.receptores, iMes, iInicio / 24 % 7));
            return ui::EscribirSvg(GraficaDiaDeHoras(DiaHorarioVista(ano.horas->begin() + iInicio, 24)));
        case Vista::semana:
            return ui::EscribirSvg(GraficaDeSemana(ano, std::min(iInicio, (kDias - 7) * 24)));
        case Vista::ano:
            break;
    }
    return MapaDelAno(ano);
}

}  // namespace efv::orden
