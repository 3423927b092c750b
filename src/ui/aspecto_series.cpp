#include "ui/aspecto_series.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>

namespace efv::ui {

namespace {

constexpr auto kMarcas =
    std::to_array<Marca>({Marca::circulo, Marca::cuadrado, Marca::triangulo, Marca::rombo, Marca::aspa});
constexpr auto kTramas =
    std::to_array<Trama>({Trama::lisa, Trama::subida, Trama::cruzada, Trama::bajada, Trama::horizontal});

// Strokes x + s·y = c over the rectangle for every c at a multiple of `dPaso`, so that the strokes of
// neighbouring bars are in line.
void AnadirDiagonales(std::vector<Punto>& extremos, const Recuadro& r, double dPaso, double s)
{
    const double dDerecha = r.dX + r.dAncho;
    const double dAbajo = r.dY + r.dAlto;
    const double dMenor = std::min(r.dX + s * r.dY, r.dX + s * dAbajo);
    const double dMayor = std::max(dDerecha + s * r.dY, dDerecha + s * dAbajo);
    for (double c = std::ceil(dMenor / dPaso) * dPaso; c < dMayor; c += dPaso) {
        const double dDesde = std::max(r.dY, std::min(s * (c - r.dX), s * (c - dDerecha)));
        const double dHasta = std::min(dAbajo, std::max(s * (c - r.dX), s * (c - dDerecha)));
        if (dDesde < dHasta)
            extremos.insert(extremos.end(), {{c - s * dDesde, dDesde}, {c - s * dHasta, dHasta}});
    }
}

void AnadirHorizontales(std::vector<Punto>& extremos, const Recuadro& r, double dPaso)
{
    for (double dY = std::ceil(r.dY / dPaso) * dPaso; dY < r.dY + r.dAlto; dY += dPaso)
        extremos.insert(extremos.end(), {{r.dX, dY}, {r.dX + r.dAncho, dY}});
}

std::vector<Punto> Estrella(Punto centro, std::span<const double> radios, double dGiro)
{
    std::vector<Punto> puntos;
    for (std::size_t i = 0; i < radios.size(); ++i) {
        const double dAngulo =
            2.0 * std::numbers::pi * (static_cast<double>(i) + dGiro) / static_cast<double>(radios.size());
        puntos.push_back(
            {centro.dX + radios[i] * std::sin(dAngulo), centro.dY - radios[i] * std::cos(dAngulo)});
    }
    return puntos;
}

}  // namespace

bool EsFinito(const SerieCurva& serie, std::size_t i)
{
    return std::isfinite(serie.adX[i]) && std::isfinite(serie.adY[i]);
}

std::size_t Puntos(const SerieCurva& serie)
{
    return std::min(serie.adX.size(), serie.adY.size());
}

bool EsVisible(const SerieCurva& serie)
{
    return serie.iAncho > 0;
}

bool EsDeBarras(const SerieCurva& serie)
{
    return EsVisible(serie) && serie.forma == FormaSerie::barra;
}

bool EsDePuntos(const SerieCurva& serie)
{
    return EsVisible(serie) && serie.forma == FormaSerie::punto;
}

std::optional<double> FinDeEscalones(const SerieCurva& serie)
{
    const std::size_t n = Puntos(serie);
    if (!EsVisible(serie) || serie.forma != FormaSerie::escalon || n < 2 || !EsFinito(serie, n - 1) ||
        !std::isfinite(serie.adX[n - 2]))
        return std::nullopt;
    return serie.adX[n - 1] + (serie.adX[n - 1] - serie.adX[n - 2]);
}

std::vector<AspectoSerie> AspectosDe(const CCtrlCurva2D& grafica)
{
    const auto esLineaNombrada = [](const SerieCurva& serie) {
        return EsVisible(serie) && !EsDeBarras(serie) && !EsDePuntos(serie) && !serie.csNombre.empty();
    };
    std::map<const double*, int> lineasPorEstilo;  // by the dashes, as numbers without a style are solid
    std::size_t nNombradas = 0;
    for (const SerieCurva& serie : grafica.aSeries) {
        nNombradas += EsVisible(serie) && !serie.csNombre.empty() ? 1U : 0U;
        if (esLineaNombrada(serie))
            ++lineasPorEstilo[Guiones(serie.iEstilo).data()];
    }
    std::vector<AspectoSerie> aspectos;
    std::size_t nBarras = 0, nMarcadas = 0;
    for (const SerieCurva& serie : grafica.aSeries) {
        AspectoSerie& aspecto = aspectos.emplace_back();
        aspecto.bVisible = EsVisible(serie);
        aspecto.bEnLeyenda =
            aspecto.bVisible && !serie.csNombre.empty() && (nNombradas > 1 || grafica.bLeyenda);
        if (EsDeBarras(serie)) {
            aspecto.iBarra = nBarras++;
            aspecto.trama = kTramas[aspecto.iBarra % kTramas.size()];
        } else if (esLineaNombrada(serie) && lineasPorEstilo[Guiones(serie.iEstilo).data()] > 1) {
            aspecto.iMarcada = nMarcadas++;
            aspecto.marca = kMarcas[aspecto.iMarcada % kMarcas.size()];
        }
    }
    return aspectos;
}

void DibujarMarca(Lienzo& lienzo, Punto centro, double dRadio, Marca marca, Color color)
{
    std::array<double, 16> radios;
    radios.fill(dRadio);
    std::span<const double> puntas(radios);
    double dGiro = 0.0;
    switch (marca) {
        case Marca::ninguna:
            return;
        case Marca::circulo:
            break;
        case Marca::cuadrado:
            puntas = puntas.first(4);
            dGiro = 0.5;
            break;
        case Marca::triangulo:
            puntas = puntas.first(3);
            break;
        case Marca::rombo:
            puntas = puntas.first(4);
            break;
        case Marca::aspa:
            for (std::size_t i = 0; i < 8; ++i)
                radios[i] = i % 2 == 0 ? 0.5 * dRadio : 1.2 * dRadio;
            puntas = puntas.first(8);
            break;
    }
    // Of about the same area, whatever the shape.
    const double dEscala = puntas.size() == 16 ? 1.0 : 1.25;
    for (double& dPunta : radios)
        dPunta *= dEscala;
    lienzo.Poligono(Estrella(centro, puntas, dGiro), color);
}

void DibujarBarra(Lienzo& lienzo, const Recuadro& recuadro, Color color, Trama trama, double dSeparacion)
{
    lienzo.Barra(recuadro, color);
    std::vector<Punto> extremos;
    if (trama == Trama::subida || trama == Trama::cruzada)
        AnadirDiagonales(extremos, recuadro, dSeparacion, 1.0);
    if (trama == Trama::bajada || trama == Trama::cruzada)
        AnadirDiagonales(extremos, recuadro, dSeparacion, -1.0);
    if (trama == Trama::horizontal)
        AnadirHorizontales(extremos, recuadro, dSeparacion);
    if (!extremos.empty())
        lienzo.Rayado(extremos);
}

}  // namespace efv::ui
