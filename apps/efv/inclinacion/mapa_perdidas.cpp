#include "inclinacion/mapa_perdidas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include <fmt/format.h>

#include "comun/numeros.h"

namespace efv::orden {

namespace {

constexpr int kPasoAcimut = 10, kPasoInclinacion = 5;
constexpr int kAcimutes = 360 / kPasoAcimut + 1, kInclinaciones = 90 / kPasoInclinacion + 1;
// Pixels.
constexpr int kCeldaAncho = 18, kCeldaAlto = 20, kIzquierda = 60, kArriba = 50, kAbajo = 50, kLeyenda = 110;
constexpr int kAncho = kIzquierda + kAcimutes * kCeldaAncho + kLeyenda;
constexpr int kAlto = kArriba + kInclinaciones * kCeldaAlto + kAbajo;

struct Tramo {
    double dHasta;  // %
    const char* color;
    const char* rotulo;
};
constexpr auto kTramos = std::to_array<Tramo>({
    {5.0, "#1A9850", "hasta 5 %"},
    {10.0, "#7FBF5A", "5 a 10 %"},
    {15.0, "#C9DF7A", "10 a 15 %"},
    {20.0, "#FEE08B", "15 a 20 %"},
    {30.0, "#FDAE61", "20 a 30 %"},
    {40.0, "#F46D43", "30 a 40 %"},
    {60.0, "#D73027", "40 a 60 %"},
    {1e300, "#8B1A1A", "más de 60 %"},
});

const Tramo& TramoDe(double dPerdida)
{
    return *std::ranges::find_if(kTramos, [&](const Tramo& t) { return dPerdida <= t.dHasta; });
}

std::string Escapado(const std::string& texto)
{
    std::string limpio;
    for (const char c : texto)
        limpio += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    return limpio;
}

std::string Texto(int iX, int iY, const char* ancla, const std::string& texto)
{
    return fmt::format("<text x=\"{}\" y=\"{}\" text-anchor=\"{}\">{}</text>\n", iX, iY, ancla,
                       Escapado(texto));
}

/// A column of cells: the tilts of one azimuth, 0 at the bottom.
std::string Columna(int iColumna, const std::vector<clima::SumasMeses>& sumas, double dRadOptima)
{
    std::string texto;
    for (int i = 0; i < kInclinaciones; ++i) {
        const double dPerdida = (dRadOptima - sumas[static_cast<std::size_t>(i)][12]) / dRadOptima * 100.0;
        if (!std::isfinite(dPerdida))
            continue;
        texto += fmt::format(
            "<rect x=\"{}\" y=\"{}\" width=\"{}\" height=\"{}\" fill=\"{}\"><title>{}º, {}º: {} "
            "%</title></rect>\n",
            kIzquierda + iColumna * kCeldaAncho, kArriba + (kInclinaciones - 1 - i) * kCeldaAlto, kCeldaAncho,
            kCeldaAlto, TramoDe(dPerdida).color, -180 + iColumna * kPasoAcimut, i * kPasoInclinacion,
            Decimal(dPerdida, 1));
    }
    return texto;
}

std::string Ejes()
{
    std::string texto;
    for (int i = 0; i < kInclinaciones; i += 2)
        texto += Texto(kIzquierda - 6, kArriba + (kInclinaciones - 1 - i) * kCeldaAlto + 14, "end",
                       fmt::format("{}º", i * kPasoInclinacion));
    constexpr int kPie = kArriba + kInclinaciones * kCeldaAlto;
    struct Rumbo {
        int iAcimut;
        const char* nombre;
    };
    for (const auto& [iAcimut, nombre] : {Rumbo{-180, "N"}, {-90, "E"}, {0, "S"}, {90, "O"}, {180, "N"}})
        texto += Texto(kIzquierda + (iAcimut + 180) / kPasoAcimut * kCeldaAncho + kCeldaAncho / 2, kPie + 16,
                       "middle", fmt::format("{} {}º", nombre, iAcimut));
    return texto + Texto(kIzquierda + kAcimutes * kCeldaAncho / 2, kPie + 36, "middle",
                         "Orientación; inclinación hacia arriba");
}

std::string Leyenda()
{
    constexpr int kX = kIzquierda + kAcimutes * kCeldaAncho + 12;
    std::string texto;
    int iY = kArriba;
    for (const Tramo& t : kTramos) {
        texto +=
            fmt::format("<rect x=\"{}\" y=\"{}\" width=\"14\" height=\"14\" fill=\"{}\"/>\n", kX, iY, t.color) +
            Texto(kX + 20, iY + 12, "start", t.rotulo);
        iY += 22;
    }
    return texto;
}

}  // namespace

std::string MapaDePerdidas(const SitioPedido& sitio, double dRadOptima, const std::string& csTitulo)
{
    std::array<double, kInclinaciones> adInclinaciones{};
    for (int i = 0; i < kInclinaciones; ++i)
        adInclinaciones[static_cast<std::size_t>(i)] = i * kPasoInclinacion;
    std::string svg = fmt::format(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0}\" "
        "height=\"{1}\" viewBox=\"0 0 {0} {1}\" role=\"img\" font-family=\"sans-serif\" font-size=\"12\">\n"
        "<title>{2}</title>\n<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n",
        kAncho, kAlto, Escapado(csTitulo));
    svg += Texto(kAncho / 2, 28, "middle", csTitulo);
    for (int i = 0; i < kAcimutes; ++i) {
        std::vector<clima::SumasMeses> sumas(kInclinaciones);
        clima::BibliotecaActual().SumasDeInclinaciones(sitio.Cielo(), adInclinaciones, -180.0 + i * kPasoAcimut,
                                                       sumas);
        svg += Columna(i, sumas, dRadOptima);
    }
    return svg + Ejes() + Leyenda() + "</svg>\n";
}

}  // namespace efv::orden
