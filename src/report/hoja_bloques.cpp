#include "report/hoja_bloques.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "report/hoja_dibujo.h"

namespace efv::report {

namespace {

constexpr double kAntesTitular = 12.0, kCuerpoTitular = 13.0, kAltoTitular = 26.0;
constexpr double kAltoGrafica = 185.0, kAltoGraficaMinimo = 140.0, kTrasFigura = 10.0;
constexpr double kPuntosPorUnidad = 0.88;  // letters of 11.5 units are some 2.6 mm high then
constexpr double kAnchoGraficaMinimo = 290.0, kEntreGraficas = 14.0;
constexpr double kAnchoFicha = 155.0, kEntreFichas = 8.0, kCuerpoRotulo = 7.5, kCuerpoValor = 11.0,
                 kLadoFicha = 8.0;

// As many as have that width, at least one.
std::size_t CuantosCaben(double dAncho, double dCadaUno, double dEntre)
{
    return static_cast<std::size_t>(std::max(1.0, std::floor((dAncho + dEntre) / (dCadaUno + dEntre))));
}

}  // namespace

double BloqueTitular::Minimo(double /*dResto*/) const
{
    return kAntesTitular + kAltoTitular;
}

void BloqueTitular::Poner(Pliego& pliego) const
{
    if (pliego.y > pliego.Arriba())
        pliego.Bajar(kAntesTitular);
    pliego.impreso.titulares.push_back({m_texto, pliego.Numero(), pliego.y});
    pliego.Escribir(pliego.Izquierda(), pliego.y + kCuerpoTitular, pliego.Ancho(), EnHoja(m_texto),
                    {kCuerpoTitular, true}, papel::kAzul);
    pliego.Raya(pliego.Izquierda(), pliego.y + kAltoTitular - 7.0, pliego.Ancho(), papel::kRaya, 0.8);
    pliego.Bajar(kAltoTitular);
}

BloqueParrafo::BloqueParrafo(const std::string& texto, Aspecto aspecto, const Pliego& pliego)
    : m_aspecto(std::move(aspecto)),
      m_lineas(EnLineas(EnHoja(texto), {m_aspecto.dCuerpo},
                        std::min(pliego.Ancho(), papel::kAnchoLectura) - m_aspecto.dSangria, pliego.medidor))
{
}

double BloqueParrafo::Renglon() const
{
    return papel::kRenglon * m_aspecto.dCuerpo / papel::kCuerpo;
}

double BloqueParrafo::Minimo(double /*dResto*/) const
{
    constexpr std::size_t kJuntas = 6;
    return static_cast<double>(std::min(kJuntas, m_lineas.size())) * Renglon();
}

void BloqueParrafo::Poner(Pliego& pliego) const
{
    for (std::size_t i = 0; i < m_lineas.size(); ++i) {
        if (Renglon() > pliego.Resto())
            pliego.Saltar();
        const double dBase = pliego.y + m_aspecto.dCuerpo;
        if (i == 0)
            pliego.Escribir(pliego.Izquierda(), dBase, pliego.Ancho(), m_aspecto.csMarca, {m_aspecto.dCuerpo},
                            m_aspecto.color);
        pliego.Escribir(pliego.Izquierda() + m_aspecto.dSangria, dBase, pliego.Ancho(), m_lineas[i],
                        {m_aspecto.dCuerpo}, m_aspecto.color);
        pliego.Bajar(Renglon());
    }
    pliego.Bajar(m_aspecto.dDetras);
}

// Rows of the same number as far as it goes.
std::size_t BloqueGraficas::Columnas(std::size_t nGraficas, const Pliego& pliego)
{
    const std::size_t nCaben = CuantosCaben(pliego.Ancho(), kAnchoGraficaMinimo, kEntreGraficas);
    const std::size_t nFilas = (nGraficas + nCaben - 1) / nCaben;
    return nFilas == 0 ? 1 : (nGraficas + nFilas - 1) / nFilas;
}

double BloqueGraficas::Minimo(double dResto) const
{
    return dResto >= kAltoGraficaMinimo ? std::min(dResto, kAltoGrafica) : kAltoGrafica;
}

void BloqueGraficas::Poner(Pliego& pliego) const
{
    const double dAlto = std::min(pliego.Resto(), kAltoGrafica);
    const double dPaso = (pliego.Ancho() + kEntreGraficas) / static_cast<double>(m_nColumnas);
    double x = pliego.Izquierda();
    for (const CCtrlCurva2D& grafica : m_graficas) {
        PonerGrafica(pliego.Piezas(), grafica, {x, pliego.y}, dPaso - kEntreGraficas, dAlto, pliego.medidor);
        x += dPaso;
    }
    pliego.Bajar(dAlto + kTrasFigura);
}

// As wide as the column at most; a schematic laid out for the sheet is hardly higher than it.
BloqueLamina::BloqueLamina(Lamina lamina, const Pliego& pliego)
    : m_lamina(std::move(lamina)),
      m_dEscala(m_lamina.dAncho > 0.0 && m_lamina.dAlto > 0.0
                    ? std::min({kPuntosPorUnidad, pliego.Ancho() / m_lamina.dAncho,
                                (pliego.Entera() - kAltoTitular) / m_lamina.dAlto})
                    : 0.0)
{
}

double BloqueLamina::Minimo(double /*dResto*/) const
{
    return m_lamina.dAlto * m_dEscala;
}

void BloqueLamina::Poner(Pliego& pliego) const
{
    if (m_dEscala <= 0.0)
        return;
    const double dLibre = pliego.Ancho() - m_lamina.dAncho * m_dEscala;
    PonerLamina(pliego.Piezas(), m_lamina, {pliego.Izquierda() + dLibre / 2, pliego.y}, m_dEscala,
                pliego.medidor);
    pliego.Bajar(m_lamina.dAlto * m_dEscala + kTrasFigura);
}

BloqueResumen::BloqueResumen(const std::vector<Dato>& datos, const Pliego& pliego)
    : m_nPorFila(CuantosCaben(pliego.Ancho(), kAnchoFicha, kEntreFichas)),
      m_dAncho((pliego.Ancho() + kEntreFichas) / static_cast<double>(m_nPorFila) - kEntreFichas)
{
    std::size_t nLineas = 1;
    for (const Dato& dato : datos) {
        Ficha ficha{EnHoja(dato.rotulo), {}, dato.bFalta};
        ficha.valor = EnLineas(EnHoja(dato.bFalta ? dato.valor + " (fuera)" : dato.valor), {kCuerpoValor, true},
                               m_dAncho - 2 * kLadoFicha, pliego.medidor);
        nLineas = std::max(nLineas, ficha.valor.size());
        m_fichas.push_back(std::move(ficha));
    }
    m_dAlto = 20.0 + static_cast<double>(nLineas) * kCuerpoValor * 1.3;
}

double BloqueResumen::Minimo(double /*dResto*/) const
{
    const std::size_t nFilas = (m_fichas.size() + m_nPorFila - 1) / m_nPorFila;
    return static_cast<double>(nFilas) * (m_dAlto + kEntreFichas);
}

void BloqueResumen::Poner(Pliego& pliego) const
{
    for (std::size_t i = 0; i < m_fichas.size(); ++i) {
        const Ficha& ficha = m_fichas[i];
        const double x = pliego.Izquierda() + static_cast<double>(i % m_nPorFila) * (m_dAncho + kEntreFichas);
        pliego.Fondo(x, pliego.y, m_dAncho, m_dAlto, papel::kFondo);
        pliego.Fondo(x, pliego.y, 3.0, m_dAlto, papel::kAzul);
        pliego.Escribir(x + kLadoFicha, pliego.y + 12.0, m_dAncho, ficha.csRotulo, {kCuerpoRotulo},
                        papel::kTenue);
        double dBase = pliego.y + 12.0 + kCuerpoValor * 1.25;
        for (const CString& csLinea : ficha.valor) {
            pliego.Escribir(x + kLadoFicha, dBase, m_dAncho, csLinea, {kCuerpoValor, true},
                            ficha.bFalta ? papel::kRojo : papel::kTinta);
            dBase += kCuerpoValor * 1.3;
        }
        if (i % m_nPorFila + 1 == m_nPorFila || i + 1 == m_fichas.size())
            pliego.Bajar(m_dAlto + kEntreFichas);
    }
}

}  // namespace efv::report
