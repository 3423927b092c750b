#include "report/hoja_tabla.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace efv::report {

namespace {

constexpr std::array kCuerpos = {8.0, 7.5, 7.0, 6.5, 6.0, 5.5};
constexpr double kEntreLineas = 1.28, kLado = 3.5, kAlto = 2.4;  // padding of a cell
constexpr double kCuerpoTitulo = 8.5, kAltoTitulo = 15.0, kDetras = 9.0;
constexpr double kParteEstrecha = 0.72;  // of the sheet, for captions with a value
constexpr std::size_t kSuelta = 2;       // columns of captions and values
constexpr wchar_t kFijo = L'\xA0';

bool EsNegrita(const FilaHoja& fila, std::size_t c)
{
    return fila.bTotal || fila.celdas[c].bFalta;
}

}  // namespace

TablaHoja Plegada(TablaHoja tabla, const Pliego& pliego)
{
    constexpr std::size_t kFilas = 6;
    const std::size_t nFilas = tabla.filas.size(), nMitad = (nFilas + 1) / 2;
    if (!pliego.EsAncha() || tabla.columnas.size() != kSuelta || nFilas < kFilas ||
        std::ranges::any_of(tabla.filas, &FilaHoja::bTotal))
        return tabla;
    const std::vector<ColumnaHoja> columnas = tabla.columnas;
    tabla.columnas.emplace_back();
    tabla.columnas.insert(tabla.columnas.end(), columnas.begin(), columnas.end());
    for (std::size_t f = nMitad; f < nFilas; ++f) {
        std::vector<CeldaHoja>& celdas = tabla.filas[f - nMitad].celdas;
        celdas.resize(kSuelta + 1);
        std::ranges::move(tabla.filas[f].celdas, std::back_inserter(celdas));
    }
    tabla.filas.resize(nMitad);
    return tabla;
}

BloqueTabla::BloqueTabla(TablaHoja tabla, const Pliego& pliego)
    : m_tabla(std::move(tabla)), m_bAncha(pliego.EsAncha())
{
    // A number stays with its unit.
    for (FilaHoja& fila : m_tabla.filas) {
        fila.celdas.resize(m_tabla.columnas.size());
        if (m_tabla.bCabecera) {
            for (std::size_t c = 0; c < fila.celdas.size(); ++c)
                if (m_tabla.columnas[c].bNumero)
                    std::ranges::replace(fila.celdas[c].cs, L' ', kFijo);
        }
    }
    for (const double dCuerpo : kCuerpos)
        if (Repartir(dCuerpo, pliego))
            break;
    if (m_tabla.bCabecera) {
        m_rotulos.celdas.reserve(m_tabla.columnas.size());
        for (const ColumnaHoja& columna : m_tabla.columnas)
            m_rotulos.celdas.push_back({columna.csRotulo});
        m_cabecera = Partir(m_rotulos, pliego.medidor);
    }
    m_filas.reserve(m_tabla.filas.size());
    for (const FilaHoja& fila : m_tabla.filas)
        m_filas.push_back(Partir(fila, pliego.medidor));
    // Halves beside each other are read down one and then the other; a low sheet has few rows of a table.
    m_bJunta = m_bAncha && AltoEntero() <= pliego.Entera() / 2;
}

// A text stands clear of the number that ends before it.
double BloqueTabla::Sangria(std::size_t c) const
{
    constexpr double kTrasNumero = 7.0;
    return m_bAncha && c > 0 && m_tabla.columnas[c - 1].bNumero && !m_tabla.columnas[c].bNumero ? kTrasNumero
                                                                                                : 0.0;
}

// Captions stay near their values.
double BloqueTabla::AnchoEn(const Pliego& pliego) const
{
    if (m_tabla.columnas.size() != kSuelta)
        return pliego.Ancho();
    return (m_tabla.bCabecera ? 1.0 : kParteEstrecha) * std::min(pliego.Ancho(), papel::kAnchoLectura);
}

// Every column its longest word; what is left goes where whole cells ask for more, then to all alike. False
// when the words alone are too wide.
bool BloqueTabla::Repartir(double dCuerpo, const Pliego& pliego)
{
    const MedidorLetra& medidor = pliego.medidor;
    const std::size_t n = m_tabla.columnas.size();
    m_dCuerpo = dCuerpo;
    std::vector<double> minimos(n, 0.0), deseados(n, 0.0);
    const auto contar = [&](std::size_t c, const CString& cs, bool bNegrita, bool bEntera) {
        minimos[c] = std::max(minimos[c], Sangria(c) + AnchoDePalabra(cs, {dCuerpo, bNegrita}, medidor));
        if (bEntera)
            deseados[c] = std::max(deseados[c], Sangria(c) + medidor.Ancho(cs, dCuerpo, bNegrita));
    };
    for (std::size_t c = 0; c < n; ++c) {
        if (m_tabla.bCabecera)
            contar(c, m_tabla.columnas[c].csRotulo, true, false);
        for (const FilaHoja& fila : m_tabla.filas)
            contar(c, fila.celdas[c].cs, EsNegrita(fila, c), true);
        deseados[c] = std::max(deseados[c], minimos[c]);
    }
    const double dLibre = AnchoEn(pliego) - 2 * kLado * static_cast<double>(n);
    const double dMinimo = std::accumulate(minimos.begin(), minimos.end(), 0.0);
    const double dDeseado = std::accumulate(deseados.begin(), deseados.end(), 0.0);
    const bool bCabe = dMinimo <= dLibre;
    const double dParte =
        dDeseado <= dMinimo ? 0.0 : std::clamp((dLibre - dMinimo) / (dDeseado - dMinimo), 0.0, 1.0);
    const double dReparto = std::max(0.0, dLibre - dDeseado) / static_cast<double>(std::max<std::size_t>(n, 1));
    m_columnas.assign(n, {});
    double x = pliego.Izquierda();
    for (std::size_t c = 0; c < n; ++c) {
        // Words too wide even for the smallest letters are broken.
        const double dTexto =
            bCabe ? minimos[c] + dParte * (deseados[c] - minimos[c]) + dReparto : minimos[c] * dLibre / dMinimo;
        m_columnas[c] = {x, dTexto + 2 * kLado};
        x += m_columnas[c].dAncho;
    }
    return bCabe;
}

BloqueTabla::Celdas BloqueTabla::Partir(const FilaHoja& fila, const MedidorLetra& medidor) const
{
    constexpr double kHolgura = 0.01;  // of sums of widths
    Celdas partidas;
    std::size_t nLineas = 1;
    for (std::size_t c = 0; c < fila.celdas.size(); ++c) {
        partidas.lineas.push_back(EnLineas(fila.celdas[c].cs, {m_dCuerpo, EsNegrita(fila, c)},
                                           m_columnas[c].dAncho - 2 * kLado - Sangria(c) + kHolgura, medidor));
        nLineas = std::max(nLineas, partidas.lineas.back().size());
    }
    partidas.dAlto = 2 * kAlto + static_cast<double>(nLineas) * m_dCuerpo * kEntreLineas;
    return partidas;
}

double BloqueTabla::AltoCabecera() const
{
    return (m_tabla.csTitulo.empty() ? 0.0 : kAltoTitulo) + (m_tabla.bCabecera ? m_cabecera.dAlto : 0.0);
}

double BloqueTabla::AltoEntero() const
{
    return std::accumulate(m_filas.begin(), m_filas.end(), AltoCabecera(),
                           [](double dAlto, const Celdas& fila) { return dAlto + fila.dAlto; });
}

// The last row doesn't stand alone on a sheet.
double BloqueTabla::AltoConLaSiguiente(std::size_t nFila) const
{
    return m_filas[nFila].dAlto + (nFila + 2 == m_filas.size() ? m_filas.back().dAlto : 0.0);
}

double BloqueTabla::Minimo(double /*dResto*/) const
{
    constexpr std::size_t kFilasJuntas = 3;
    if (m_bJunta)
        return AltoEntero() + kDetras;
    double dAlto = AltoCabecera();
    for (std::size_t f = 0; f < std::min(kFilasJuntas, m_filas.size()); ++f)
        dAlto += f + 1 == kFilasJuntas ? AltoConLaSiguiente(f) : m_filas[f].dAlto;
    return dAlto;
}

void BloqueTabla::PonerCabecera(Pliego& pliego, bool bContinua) const
{
    if (!m_tabla.csTitulo.empty()) {
        pliego.Escribir(pliego.Izquierda(), pliego.y + kCuerpoTitulo + 1.0, pliego.Ancho(),
                        bContinua ? m_tabla.csTitulo + L" (continuación)" : m_tabla.csTitulo,
                        {kCuerpoTitulo, true}, papel::kTinta);
        pliego.Bajar(kAltoTitulo);
    }
    if (!m_tabla.bCabecera)
        return;
    pliego.Fondo(pliego.Izquierda(), pliego.y, Ancho(), m_cabecera.dAlto, papel::kFondo);
    PonerFila(pliego, m_rotulos, m_cabecera, papel::kTenue);
}

void BloqueTabla::PonerFila(Pliego& pliego, const FilaHoja& fila, const Celdas& celdas, ui::Color color) const
{
    for (std::size_t c = 0; c < celdas.lineas.size(); ++c) {
        double dBase = pliego.y + kAlto + m_dCuerpo * 0.95;
        for (const CString& csLinea : celdas.lineas[c]) {
            pliego.Escribir(m_columnas[c].x + kLado + Sangria(c), dBase,
                            m_columnas[c].dAncho - 2 * kLado - Sangria(c), csLinea,
                            {m_dCuerpo, EsNegrita(fila, c)}, fila.celdas[c].bFalta ? papel::kRojo : color,
                            m_tabla.columnas[c].bNumero ? Pliego::Lado::derecha : Pliego::Lado::izquierda);
            dBase += m_dCuerpo * kEntreLineas;
        }
    }
    pliego.Bajar(celdas.dAlto);
    pliego.Raya(pliego.Izquierda(), pliego.y, Ancho(), papel::kRaya);
}

void BloqueTabla::Poner(Pliego& pliego) const
{
    PonerCabecera(pliego, false);
    for (std::size_t f = 0; f < m_filas.size(); ++f) {
        const double dSigue = f + 2 >= m_filas.size() ? pliego.dSigue + kDetras : 0.0;
        if (f > 0 && AltoConLaSiguiente(f) + dSigue > pliego.Resto()) {
            pliego.Saltar();
            PonerCabecera(pliego, true);
        }
        const FilaHoja& fila = m_tabla.filas[f];
        if (fila.bTotal) {
            pliego.Raya(pliego.Izquierda(), pliego.y, Ancho(), papel::kTenue, 0.9);
        }
        PonerFila(pliego, fila, m_filas[f], papel::kTinta);
    }
    pliego.Bajar(kDetras);
}

}  // namespace efv::report
