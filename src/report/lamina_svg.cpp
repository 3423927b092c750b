// A schematic on white paper, as an SVG document.
#include <algorithm>
#include <array>

#include <fmt/format.h>

#include <quorvel/report/lamina.h>
#include <quorvel/report/plano.h>

#include "report/marcado.h"

namespace efv::report {

namespace {

constexpr ui::Color DeRgb(std::uint32_t rgb)
{
    return (rgb >> 16) | (rgb & 0x00FF00) | ((rgb & 0xFF) << 16);
}

// In the order of Tinta.
constexpr std::array<ui::Color, 10> kColores{
    DeRgb(0xFFFFFF),  // fondo
    DeRgb(0x1B1F24),  // texto
    DeRgb(0x6B7480),  // tenue
    DeRgb(0x3A4048),  // linea
    DeRgb(0xB4530A),  // alterna
    DeRgb(0xF6F8FA),  // tarjeta
    DeRgb(0x9CC4EC),  // panel
    DeRgb(0xA9D8AE),  // acumulador
    DeRgb(0xF2E3B8),  // aparato
    DeRgb(0xB3261E),  // aviso
};

std::string Nombre(std::optional<ui::Color> color)
{
    return color ? ui::ColorHex(*color) : "none";
}

std::string Nombre(std::optional<ui::Color> color, Tinta tinta)
{
    return Nombre(color ? color : ColorEnPapel(tinta));
}

class EscritorSvg {
public:
    EscritorSvg(std::string& salida, double dContorno) : m_salida(salida), m_dContorno(dContorno) {}

    void operator()(const trazo::Linea& linea) const
    {
        m_salida += fmt::format(R"(<polyline fill="none" stroke="{}" stroke-width="{:g}" points=")",
                                Nombre(linea.color, linea.tinta), linea.dAncho);
        for (const Punto& p : linea.puntos)
            m_salida += fmt::format("{:g},{:g} ", p.x, p.y);
        m_salida += "\"/>\n";
    }
    void operator()(const trazo::Caja& caja) const
    {
        m_salida += fmt::format(R"(<rect x="{:g}" y="{:g}" width="{:g}" height="{:g}" rx="{:g}")",
                                caja.esquina.x, caja.esquina.y, caja.dAncho, caja.dAlto, caja.dRadio);
        Contorno(Nombre(caja.color, caja.borde), caja.relleno);
    }
    void operator()(const trazo::Circulo& circulo) const
    {
        m_salida += fmt::format(R"(<circle cx="{:g}" cy="{:g}" r="{:g}")", circulo.centro.x, circulo.centro.y,
                                circulo.dRadio);
        Contorno(Nombre(ColorEnPapel(circulo.borde)), circulo.relleno);
    }
    void operator()(const trazo::Texto& texto) const
    {
        m_salida += fmt::format(R"(<text x="{:g}" y="{:g}" font-size="{:g}" fill="{}"{}{}>{}</text>)",
                                texto.base.x, texto.base.y, texto.dTamano, Nombre(ColorEnPapel(texto.tinta)),
                                texto.lado == trazo::Texto::Lado::centro ? R"( text-anchor="middle")" : "",
                                texto.bNegrita ? R"( font-weight="bold")" : "", Escapado(texto.cs));
        m_salida += '\n';
    }

private:
    void Contorno(const std::string& borde, Tinta relleno) const
    {
        m_salida += fmt::format(" stroke=\"{}\" stroke-width=\"{:g}\" fill=\"{}\"/>\n", borde, m_dContorno,
                                Nombre(ColorEnPapel(relleno)));
    }

    std::string& m_salida;
    double m_dContorno;
};

}  // namespace

std::optional<ui::Color> ColorEnPapel(Tinta tinta)
{
    if (tinta == Tinta::ninguna)
        return std::nullopt;
    return kColores.at(static_cast<std::size_t>(tinta));
}

std::string EscribirSvg(const Lamina& lamina)
{
    std::string svg = fmt::format(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
        "width=\"{0:g}\" height=\"{1:g}\" viewBox=\"0 0 {0:g} {1:g}\" font-family=\"sans-serif\">\n"
        "<rect width=\"100%\" height=\"100%\" fill=\"{2}\"/>\n",
        lamina.dAncho, lamina.dAlto, Nombre(ColorEnPapel(Tinta::fondo)));
    const EscritorSvg escritor(svg, lamina.dContorno);
    for (const Trazo& t : lamina.trazos)
        std::visit(escritor, t);
    return svg + "</svg>\n";
}

std::string EscribirSvg(const Plano& plano)
{
    constexpr double kEntreHojas = 10.0;
    const double dAncho = plano.pagina.Ancho(), dAlto = plano.pagina.Alto();
    const auto nHojas = static_cast<double>(plano.hojas.size());
    std::string svg = fmt::format(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
        "width=\"{0:g}mm\" height=\"{1:g}mm\" viewBox=\"0 0 {0:g} {1:g}\" "
        "font-family=\"'DejaVu Sans', Verdana, sans-serif\">\n<title>{2}</title>\n",
        dAncho, std::max(nHojas * (dAlto + kEntreHojas) - kEntreHojas, 0.0), Escapado(plano.cajetin.titulo));
    for (std::size_t i = 0; i < plano.hojas.size(); ++i) {
        svg += fmt::format(
            "<g transform=\"translate(0 {:g})\">\n<rect width=\"{:g}\" height=\"{:g}\" fill=\"{}\"/>\n",
            static_cast<double>(i) * (dAlto + kEntreHojas), dAncho, dAlto, Nombre(ColorEnPapel(Tinta::fondo)));
        const EscritorSvg escritor(svg, plano.hojas[i].dContorno);
        for (const Trazo& t : plano.hojas[i].trazos)
            std::visit(escritor, t);
        svg += "</g>\n";
    }
    return svg + "</svg>\n";
}

}  // namespace efv::report
