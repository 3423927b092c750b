#include "report/hoja_dibujo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "ui/trazado.h"

namespace efv::report {

namespace {

constexpr ui::Color kTexto = 0x222222, kEje = 0x555555, kCuadricula = 0xDDDDDD, kBlanco = 0xFFFFFF;
constexpr double kCuerpoGrafica = 7.0;
constexpr double kFino = 0.4, kRaya = 0.9;
constexpr double kPorPixel = 0.65;  // lines of charts are told in pixels of a screen

/// A chart's strokes, shifted to its place.
class LienzoHoja final : public ui::Lienzo {
public:
    LienzoHoja(std::vector<Pieza>& piezas, hoja::Sitio esquina, const MedidorLetra& medidor)
        : m_piezas(piezas), m_esquina(esquina), m_medidor(medidor)
    {
    }

    double AnchoTexto(std::wstring_view texto, double dCuerpo) const override
    {
        return m_medidor.Ancho(texto, dCuerpo, false);
    }
    void Linea(ui::Punto desde, ui::Punto hasta, ui::Tinta tinta) override
    {
        m_piezas.emplace_back(hoja::Forma{{Movido(desde), Movido(hasta)},
                                          std::nullopt,
                                          tinta == ui::Tinta::cuadricula ? kCuadricula : kEje,
                                          kFino});
    }
    void Texto(ui::Punto base, std::wstring_view texto, double dCuerpo, ui::Ancla ancla,
               bool bVertical) override
    {
        const double dParte = ancla == ui::Ancla::inicio ? 0.0 : ancla == ui::Ancla::centro ? 0.5 : 1.0;
        const double dAntes = dParte * AnchoTexto(texto, dCuerpo);
        hoja::Sitio sitio = Movido(base);
        (bVertical ? sitio.y : sitio.x) += bVertical ? dAntes : -dAntes;
        m_piezas.emplace_back(hoja::Texto{sitio, CString(texto), dCuerpo, kTexto, false, bVertical});
    }
    void EmpezarSeries(const ui::Recuadro& r) override
    {
        m_piezas.emplace_back(hoja::Recorte{Movido({r.dX, r.dY}), r.dAncho, r.dAlto});
    }
    void AcabarSeries() override { m_piezas.emplace_back(hoja::FinRecorte{}); }
    void Polilinea(std::span<const ui::Punto> puntos, const ui::SerieCurva& serie) override
    {
        const double dAncho = std::max(kFino, kPorPixel * serie.iAncho);
        if (puntos.size() == 1) {
            m_piezas.emplace_back(
                hoja::Circulo{Movido(puntos[0]), kPorPixel * (serie.iAncho + 1), serie.color, std::nullopt});
            return;
        }
        hoja::Forma forma{Movidos(puntos), std::nullopt, serie.color, dAncho};
        for (const double d : ui::Guiones(serie.iEstilo))
            forma.adGuiones.push_back(d * dAncho);
        m_piezas.emplace_back(std::move(forma));
    }
    void Poligono(std::span<const ui::Punto> puntos, ui::Color color) override
    {
        m_piezas.emplace_back(hoja::Forma{Movidos(puntos), color, kBlanco, kFino});
    }
    void Barra(const ui::Recuadro& r, ui::Color color) override
    {
        m_piezas.emplace_back(
            hoja::Forma{Rectangulo(Movido({r.dX, r.dY}), r.dAncho, r.dAlto), color, std::nullopt});
    }
    void Rayado(std::span<const ui::Punto> extremos) override
    {
        for (std::size_t i = 0; i + 1 < extremos.size(); i += 2) {
            m_piezas.emplace_back(
                hoja::Forma{{Movido(extremos[i]), Movido(extremos[i + 1])}, std::nullopt, kBlanco, kRaya});
        }
    }

private:
    hoja::Sitio Movido(ui::Punto p) const { return {m_esquina.x + p.dX, m_esquina.y + p.dY}; }
    std::vector<hoja::Sitio> Movidos(std::span<const ui::Punto> puntos) const
    {
        std::vector<hoja::Sitio> movidos;
        movidos.reserve(puntos.size());
        for (const ui::Punto& p : puntos)
            movidos.push_back(Movido(p));
        return movidos;
    }

    std::vector<Pieza>& m_piezas;
    hoja::Sitio m_esquina;
    const MedidorLetra& m_medidor;
};

/// A schematic's strokes, shifted and scaled.
class LaminaEnHoja {
public:
    LaminaEnHoja(std::vector<Pieza>& piezas, hoja::Sitio esquina, double dEscala, double dContorno,
                 const MedidorLetra& medidor)
        : m_piezas(piezas),
          m_esquina(esquina),
          m_dEscala(dEscala),
          m_dContorno(dContorno * dEscala),
          m_medidor(medidor)
    {
    }

    void operator()(const trazo::Linea& linea) const
    {
        hoja::Forma forma{{}, std::nullopt, ColorDe(linea.color, linea.tinta), linea.dAncho * m_dEscala};
        forma.puntos.reserve(linea.puntos.size());
        for (const Punto& p : linea.puntos)
            forma.puntos.push_back(Movido(p));
        m_piezas.emplace_back(std::move(forma));
    }
    void operator()(const trazo::Caja& caja) const
    {
        hoja::Forma forma{Redondeada(caja), ColorEnPapel(caja.relleno), ColorDe(caja.color, caja.borde),
                          m_dContorno};
        // Without a filling it counts as an open line.
        forma.puntos.push_back(forma.puntos.front());
        m_piezas.emplace_back(std::move(forma));
    }
    void operator()(const trazo::Circulo& circulo) const
    {
        m_piezas.emplace_back(hoja::Circulo{Movido(circulo.centro), circulo.dRadio * m_dEscala,
                                            ColorEnPapel(circulo.relleno), ColorEnPapel(circulo.borde),
                                            m_dContorno});
    }
    void operator()(const trazo::Texto& texto) const
    {
        const double dCuerpo = texto.dTamano * m_dEscala;
        const double dAncho = m_medidor.Ancho(texto.cs, dCuerpo, texto.bNegrita);
        hoja::Sitio base = Movido(texto.base);
        if (texto.lado == trazo::Texto::Lado::centro)
            base.x -= dAncho / 2;
        m_piezas.emplace_back(hoja::Texto{base, texto.cs, dCuerpo,
                                          ColorEnPapel(texto.tinta).value_or(ui::kNegro), texto.bNegrita});
    }

private:
    static constexpr int kPorEsquina = 4;

    static std::optional<ui::Color> ColorDe(std::optional<ui::Color> color, Tinta tinta)
    {
        return color ? color : ColorEnPapel(tinta);
    }
    hoja::Sitio Movido(Punto p) const { return {m_esquina.x + p.x * m_dEscala, m_esquina.y + p.y * m_dEscala}; }
    std::vector<hoja::Sitio> Redondeada(const trazo::Caja& caja) const
    {
        const hoja::Sitio esquina = Movido(caja.esquina);
        const double dAncho = caja.dAncho * m_dEscala, dAlto = caja.dAlto * m_dEscala;
        const double r = std::min({caja.dRadio * m_dEscala, dAncho / 2, dAlto / 2});
        if (r <= 0.0)
            return Rectangulo(esquina, dAncho, dAlto);
        const std::array<hoja::Sitio, 4> centros{{{esquina.x + dAncho - r, esquina.y + r},
                                                  {esquina.x + dAncho - r, esquina.y + dAlto - r},
                                                  {esquina.x + r, esquina.y + dAlto - r},
                                                  {esquina.x + r, esquina.y + r}}};
        std::vector<hoja::Sitio> puntos;
        for (std::size_t i = 0; i < centros.size(); ++i) {
            for (int k = 0; k <= kPorEsquina; ++k) {
                const double dAngulo = (static_cast<double>(i) - 1.0 + static_cast<double>(k) / kPorEsquina) *
                                       std::numbers::pi / 2;
                puntos.push_back(
                    {centros.at(i).x + r * std::cos(dAngulo), centros.at(i).y + r * std::sin(dAngulo)});
            }
        }
        return puntos;
    }

    std::vector<Pieza>& m_piezas;
    hoja::Sitio m_esquina;
    double m_dEscala, m_dContorno;
    const MedidorLetra& m_medidor;
};

}  // namespace

std::vector<hoja::Sitio> Rectangulo(hoja::Sitio esquina, double dAncho, double dAlto)
{
    return {esquina,
            {esquina.x + dAncho, esquina.y},
            {esquina.x + dAncho, esquina.y + dAlto},
            {esquina.x, esquina.y + dAlto}};
}

void PonerGrafica(std::vector<Pieza>& piezas, const CCtrlCurva2D& grafica, hoja::Sitio esquina, double dAncho,
                  double dAlto, const MedidorLetra& medidor)
{
    LienzoHoja lienzo(piezas, esquina, medidor);
    ui::Trazado(grafica, dAncho, dAlto, kCuerpoGrafica, lienzo).Dibujar(lienzo);
}

void PonerLamina(std::vector<Pieza>& piezas, const Lamina& lamina, hoja::Sitio esquina, double dEscala,
                 const MedidorLetra& medidor)
{
    const LaminaEnHoja dibujo(piezas, esquina, dEscala, lamina.dContorno, medidor);
    for (const Trazo& t : lamina.trazos)
        std::visit(dibujo, t);
}

}  // namespace efv::report
