#include "report/lamina_simbolos.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace efv::report {

namespace {

using Clase = Elemento::Clase;

constexpr int kColorNegro = 7;  // of the palette: black on paper, white on a dark screen
constexpr double kAltoSimbolo = 58.0, kAltoString = 16.0;
constexpr int kSerieDibujada = 8;

// Black is the colour of the lines.
std::optional<ui::Color> ColorDeString(const Elemento& elemento, int iString)
{
    const int iColor = elemento.ColorDeString(iString);
    return iColor == kColorNegro ? std::nullopt : ui::ColorDePaleta(iColor);
}

/// Paints the symbol of an element into the head of its card.
class Simbolos {
public:
    Simbolos(std::vector<Trazo>& trazos, const Recuadro& sitio, int iParalelo)
        : m_trazos(trazos),
          m_x(sitio.x + sitio.dAncho / 2),
          m_y(sitio.y + sitio.dAlto / 2),
          m_dAncho(sitio.dAncho),
          m_dAlto(sitio.dAlto),
          m_iParalelo(iParalelo)
    {
    }

    void Pintar(const Elemento& elemento)
    {
        switch (elemento.clase) {
            case Clase::paneles:
                return elemento.bUnifilar ? Panel() : Rejilla(elemento, Tinta::panel, 1.5);
            case Clase::acumuladores:
                return elemento.bUnifilar ? Acumulador() : Rejilla(elemento, Tinta::acumulador, 0.8);
            case Clase::regulador:
                Aparato();
                Texto(L"=", {m_x - 9, m_y - 4});
                return Texto(L"=", {m_x + 9, m_y + 18});
            case Clase::inversor:
                Aparato();
                Texto(L"=", {m_x - 9, m_y - 4});
                return Texto(L"~", {m_x + 9, m_y + 18});
            case Clase::cargas:
                return Lampara();
            case Clase::caja:
                Cuadro(Tinta::aparato, 46.0, 34.0);
                return Linea({{m_x - 12, m_y}, {m_x - 4, m_y}, {m_x + 6, m_y - 9}}),
                       Linea({{m_x + 6, m_y}, {m_x + 13, m_y}});
            case Clase::red:
                return Torre();
            case Clase::puntos:
                break;
        }
    }

private:
    static constexpr double kAnchoLinea = 1.5, kAnchoString = 2.5;

    void Linea(std::vector<Punto> puntos, Tinta tinta = Tinta::linea)
    {
        m_trazos.emplace_back(trazo::Linea{std::move(puntos), tinta});
    }
    void Texto(const wchar_t* cs, Punto base)
    {
        m_trazos.emplace_back(trazo::Texto{base, cs, 20.0, Tinta::texto, trazo::Texto::Lado::centro, true});
    }
    void Cuadro(Tinta relleno, double dAncho, double dAlto)
    {
        m_trazos.emplace_back(
            trazo::Caja{{m_x - dAncho / 2, m_y - dAlto / 2}, dAncho, dAlto, Tinta::linea, relleno});
    }
    void Aparato()
    {
        Cuadro(Tinta::aparato, 50.0, 50.0);
        Linea({{m_x - 25, m_y + 25}, {m_x + 25, m_y - 25}});
    }
    void Panel()
    {
        Cuadro(Tinta::panel, 62.0, 40.0);
        Linea({{m_x - 31, m_y - 20}, {m_x, m_y}, {m_x - 31, m_y + 20}});
    }
    void Acumulador()
    {
        Linea({{m_x - 34, m_y}, {m_x - 5, m_y}});
        Linea({{m_x - 5, m_y - 20}, {m_x - 5, m_y + 20}});
        Linea({{m_x + 5, m_y - 10}, {m_x + 5, m_y + 10}});
        Linea({{m_x + 5, m_y}, {m_x + 34, m_y}});
    }
    void Lampara()
    {
        constexpr double kRadio = 20.0, kLado = 14.0;
        m_trazos.emplace_back(trazo::Circulo{{m_x, m_y}, kRadio, Tinta::linea, Tinta::aparato});
        Linea({{m_x - kLado, m_y - kLado}, {m_x + kLado, m_y + kLado}});
        Linea({{m_x - kLado, m_y + kLado}, {m_x + kLado, m_y - kLado}});
    }
    void Torre()
    {
        Linea({{m_x - 14, m_y + 28}, {m_x, m_y - 28}, {m_x + 14, m_y + 28}});
        Linea({{m_x - 22, m_y - 8}, {m_x + 22, m_y - 8}});
        Linea({{m_x - 16, m_y - 18}, {m_x + 16, m_y - 18}});
        Linea({{m_x - 10, m_y + 12}, {m_x + 10, m_y + 12}});
        Linea({{m_x - 10, m_y + 12}, {m_x + 5, m_y - 8}});
        Linea({{m_x + 10, m_y + 12}, {m_x - 5, m_y - 8}});
    }

    // One piece a cell: a row for each string, dots where pieces are left out.
    void Rejilla(const Elemento& elemento, Tinta tinta, double dProporcion)
    {
        const std::vector<int> columnas = PiezasDibujadas(elemento.iSerie, kSerieDibujada);
        const std::vector<int> filas = PiezasDibujadas(elemento.iParalelo, m_iParalelo);
        if (columnas.empty() || filas.empty())
            return;
        const auto nColumnas = static_cast<double>(columnas.size());
        const auto nFilas = static_cast<double>(filas.size());
        const double dPasoY = std::min(24.0, m_dAlto / nFilas);
        const double dPasoX = std::min(dPasoY / dProporcion + 3.0, m_dAncho / nColumnas);
        const double dX = m_x - dPasoX * nColumnas / 2, dY = m_y - dPasoY * nFilas / 2;
        for (std::size_t f = 0; f < filas.size(); ++f) {
            const double y = dY + dPasoY * static_cast<double>(f);
            const bool bHayFila = filas[f] != 0;
            const auto color = bHayFila ? ColorDeString(elemento, filas[f]) : std::nullopt;
            if (bHayFila) {
                m_trazos.emplace_back(
                    trazo::Linea{{{dX - 4, y + dPasoY / 2}, {dX + dPasoX * nColumnas + 4, y + dPasoY / 2}},
                                 Tinta::linea,
                                 color ? kAnchoString : kAnchoLinea,
                                 color});
            }
            for (std::size_t c = 0; c < columnas.size(); ++c) {
                const double x = dX + dPasoX * static_cast<double>(c);
                if (bHayFila && columnas[c] != 0) {
                    m_trazos.emplace_back(
                        trazo::Caja{{x + 2, y + 2}, dPasoX - 4, dPasoY - 4, Tinta::linea, tinta, 0.0, color});
                } else {
                    Puntos({x + dPasoX / 2, y + dPasoY / 2}, bHayFila);
                }
            }
        }
        // The strings in parallel.
        const double dArriba = dY + dPasoY / 2, dAbajo = dY + dPasoY * (nFilas - 0.5);
        for (const double x : {dX - 4, dX + dPasoX * nColumnas + 4})
            Linea({{x, dArriba}, {x, dAbajo}});
    }
    void Puntos(Punto centro, bool bEnFila)
    {
        for (const double d : {-4.0, 0.0, 4.0}) {
            const Punto p = bEnFila ? Punto{centro.x + d, centro.y} : Punto{centro.x, centro.y + d};
            m_trazos.emplace_back(trazo::Circulo{p, 1.3, Tinta::linea, Tinta::fondo});
        }
    }

    std::vector<Trazo>& m_trazos;
    double m_x, m_y;  // centre
    double m_dAncho, m_dAlto;
    int m_iParalelo;  // strings that are drawn
};

}  // namespace

double AltoDeSimbolo(const Elemento& elemento, int iParalelo)
{
    if (elemento.bUnifilar || elemento.iParalelo <= 0)
        return kAltoSimbolo;
    return std::max(kAltoSimbolo, kAltoString * std::min(elemento.iParalelo, iParalelo));
}

void PintarSimbolo(std::vector<Trazo>& trazos, const Elemento& elemento, const Recuadro& sitio, int iParalelo)
{
    Simbolos(trazos, sitio, iParalelo).Pintar(elemento);
}

}  // namespace efv::report
