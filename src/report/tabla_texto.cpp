#include <algorithm>
#include <numeric>

#include <quorvel/report/texto.h>

namespace efv::report {

namespace {

constexpr std::string_view kHueco = "  ";
constexpr std::string_view kSangria = "    ";
constexpr std::size_t kPalabraMaxima = 24;  // of a text, before it is broken within a word
// Rows of a wide table are kept together by parts of it below one another; more of them, by lines of each row.
constexpr std::size_t kFilasPorBandas = 30;

std::string Rellenar(const std::string& celda, std::size_t ancho, TablaTexto::Lado lado)
{
    const std::string blancos(ancho - std::min(ancho, Anchura(celda)), ' ');
    return lado == TablaTexto::Lado::derecha ? blancos + celda : celda + blancos;
}

std::size_t Total(const std::vector<std::size_t>& anchos)
{
    const std::size_t nHuecos = anchos.empty() ? 0 : anchos.size() - 1;
    return std::accumulate(anchos.begin(), anchos.end(), nHuecos * kHueco.size());
}

std::size_t PalabraMasLarga(std::string_view texto)
{
    std::size_t nMayor = 0;
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t fin = std::min(texto.find(' ', i), texto.size());
        nMayor = std::max(nMayor, Anchura(texto.substr(i, fin - i)));
        i = fin + 1;
    }
    return nMayor;
}

// A line without the blanks at its end.
void Cerrar(std::string& linea)
{
    linea.erase(linea.find_last_not_of(' ') + 1);
    linea += '\n';
}

}  // namespace

void ColumnasTexto::MedirTitulos(const Celdas& titulos)
{
    for (std::size_t c = 0; c < titulos.size(); ++c)
        m_titulos[c] = {Anchura(titulos[c]), PalabraMasLarga(titulos[c])};
}

void ColumnasTexto::Medir(const Celdas& celdas)
{
    for (std::size_t c = 0; c < celdas.size(); ++c) {
        const std::string celda = Celda(c, celdas[c]);
        m_celdas[c].nEntero = std::max(m_celdas[c].nEntero, Anchura(celda));
        m_celdas[c].nPalabra = std::max(m_celdas[c].nPalabra, PalabraMasLarga(celda));
    }
}

std::string ColumnasTexto::Celda(std::size_t iColumna, const std::string& celda) const
{
    return m_forma.bMiles && m_lados[iColumna] == Lado::derecha ? ConMiles(celda) : celda;
}

// The least width of a column: titles may always be broken, texts when asked for, numbers never.
std::size_t ColumnasTexto::Suelo(std::size_t iColumna, bool bPartirTextos) const
{
    const Medida& celda = m_celdas[iColumna];
    const bool bTexto = bPartirTextos && m_lados[iColumna] == Lado::izquierda;
    return std::max(bTexto ? std::min(celda.nPalabra, kPalabraMaxima) : celda.nEntero,
                    m_titulos[iColumna].nPalabra);
}

// Narrows the widest columns until all fit. @return whether they do
bool ColumnasTexto::Encoger(std::vector<std::size_t>& anchos, bool bPartirTextos) const
{
    while (Total(anchos) > m_forma.nAnchura) {
        std::size_t iMayor = anchos.size();
        for (std::size_t c = 0; c < anchos.size(); ++c) {
            const bool bCede = anchos[c] > Suelo(c, bPartirTextos);
            if (bCede && (iMayor == anchos.size() || anchos[c] > anchos[iMayor]))
                iMayor = c;
        }
        if (iMayor == anchos.size())
            return false;
        --anchos[iMayor];
    }
    return true;
}

// One band if it fits. @return else the widths with titles broken and texts whole
bool ColumnasTexto::DisponerEntera(std::vector<std::size_t>& anchos)
{
    Banda entera;
    for (std::size_t c = 0; c < m_lados.size(); ++c) {
        entera.columnas.push_back(c);
        entera.anchos.push_back(std::max(m_celdas[c].nEntero, m_titulos[c].nEntero));
    }
    anchos = entera.anchos;
    if (m_forma.nAnchura > 0 && !Encoger(entera.anchos, false)) {
        anchos = entera.anchos;
        if (!Encoger(entera.anchos, true))
            return false;
    }
    m_bandas = {std::move(entera)};
    return true;
}

void ColumnasTexto::Disponer(std::size_t nClaves)
{
    std::vector<std::size_t> anchos;
    if (DisponerEntera(anchos))
        return;
    const std::size_t nMitad = m_forma.nAnchura / 2;
    Banda claves;
    for (std::size_t c = 0; c < std::min(nClaves, anchos.size()); ++c) {
        claves.columnas.push_back(c);
        claves.anchos.push_back(nClaves == 1 ? std::min(anchos[c], nMitad) : anchos[c]);
    }
    // Keys that leave no room count as other columns.
    if (Total(claves.anchos) > nMitad + kHueco.size())
        claves = {};
    Repartir(anchos, std::move(claves), 0);
}

void ColumnasTexto::DisponerPlegada()
{
    std::vector<std::size_t> anchos;
    if (!DisponerEntera(anchos))
        Repartir(anchos, {}, kSangria.size());
}

// Behind the last column of the group that this one belongs to.
std::size_t ColumnasTexto::FinDeGrupo(std::size_t iColumna) const
{
    std::size_t c = 0;
    for (const std::size_t nColumnas : m_grupos) {
        c += nColumnas;
        if (iColumna < c)
            return c;
    }
    return iColumna + 1;
}

// @param claves stand in each band; without any, the bands after the first stand `nSangria` further in
void ColumnasTexto::Repartir(const std::vector<std::size_t>& anchos, Banda claves, std::size_t nSangria)
{
    const std::size_t nFijas = claves.columnas.size();
    std::size_t nHueco = m_forma.nAnchura;
    Banda banda = claves;
    const auto cabe = [&](std::size_t iDesde, std::size_t iHasta) {
        std::vector<std::size_t> juntos = banda.anchos;
        for (std::size_t c = iDesde; c < iHasta; ++c)
            juntos.push_back(anchos[c]);
        return Total(juntos) <= nHueco;
    };
    const auto cerrar = [&] {
        m_bandas.push_back(banda);
        banda = claves;
        nHueco = m_forma.nAnchura - nSangria;
    };
    const std::size_t nOcupado = nFijas == 0 ? 0 : Total(claves.anchos) + kHueco.size();
    for (std::size_t c = nFijas; c < anchos.size(); ++c) {
        const bool bEmpieza = c == 0 || FinDeGrupo(c - 1) == c;
        if (banda.columnas.size() > nFijas && !cabe(c, bEmpieza ? FinDeGrupo(c) : c + 1))
            cerrar();
        banda.columnas.push_back(c);
        banda.anchos.push_back(std::min(anchos[c], nHueco - nOcupado));
    }
    m_bandas.push_back(std::move(banda));
}

// Lines of the cells of a band, each cell's own below one another.
std::string ColumnasTexto::Renglones(const Banda& banda, const std::vector<Celdas>& lineas) const
{
    std::size_t nRenglones = 1;
    for (const Celdas& celda : lineas)
        nRenglones = std::max(nRenglones, celda.size());
    std::string texto;
    for (std::size_t r = 0; r < nRenglones; ++r) {
        std::string renglon;
        for (std::size_t i = 0; i < lineas.size(); ++i) {
            renglon += i > 0 ? kHueco : std::string_view();
            renglon += Rellenar(r < lineas[i].size() ? lineas[i][r] : std::string(), banda.anchos[i],
                                m_lados[banda.columnas[i]]);
        }
        Cerrar(renglon);
        texto += renglon;
    }
    return texto;
}

std::string ColumnasTexto::Linea(const Banda& banda, const Celdas& celdas) const
{
    std::vector<Celdas> lineas;
    for (std::size_t i = 0; i < banda.columnas.size(); ++i) {
        const std::size_t c = banda.columnas[i];
        const std::string celda = c < celdas.size() ? Celda(c, celdas[c]) : std::string();
        lineas.push_back(Anchura(celda) > banda.anchos[i] ? EnLineas(celda, banda.anchos[i]) : Celdas{celda});
    }
    return Renglones(banda, lineas);
}

std::string ColumnasTexto::Linea(const Celdas& celdas) const
{
    std::string texto = Linea(m_bandas.front(), celdas);
    for (std::size_t b = 1; b < m_bandas.size(); ++b) {
        const std::string banda = Linea(m_bandas[b], celdas);
        for (std::size_t i = 0; i < banda.size();) {
            const std::size_t fin = banda.find('\n', i) + 1;
            if (fin - i > 1)
                texto += kSangria;
            texto += std::string_view(banda).substr(i, fin - i);
            i = fin;
        }
    }
    return texto;
}

std::string ColumnasTexto::Raya() const
{
    std::size_t iMayor = 0;
    for (std::size_t b = 1; b < m_bandas.size(); ++b)
        if (Total(m_bandas[b].anchos) > Total(m_bandas[iMayor].anchos))
            iMayor = b;
    return Raya(m_bandas[iMayor]);
}

std::string ColumnasTexto::Raya(const Banda& banda) const
{
    std::string raya;
    for (std::size_t c = 0; c < Total(banda.anchos); ++c)
        raya += "─";
    return raya + '\n';
}

std::string TablaTexto::LineaDeGrupos(const ColumnasTexto::Banda& banda) const
{
    std::string linea;
    std::size_t i = 0, c = 0;
    for (const auto& [titulo, columnas] : m_grupos) {
        c += columnas;
        const std::size_t iDesde = i;
        std::size_t ancho = 0;
        for (; i < banda.columnas.size() && banda.columnas[i] < c; ++i)
            ancho += banda.anchos[i] + (i > iDesde ? kHueco.size() : 0);
        if (i == iDesde)
            continue;
        const std::size_t blancos = (ancho - std::min(ancho, Anchura(titulo))) / 2;
        linea += iDesde > 0 ? kHueco : std::string_view();
        linea += Rellenar(std::string(blancos, ' ') + titulo, ancho, Lado::izquierda);
    }
    linea.erase(linea.find_last_not_of(' ') + 1);
    return linea.empty() ? linea : linea + '\n';
}

// @param banda null: all of them, line by line
std::string TablaTexto::TextoDe(const ColumnasTexto& columnas, const ColumnasTexto::Banda* banda,
                                bool bColor) const
{
    std::string texto = banda != nullptr ? LineaDeGrupos(*banda) : std::string();
    for (const FilaTabla& fila : m_filas) {
        if (fila.celdas.empty())
            texto += banda != nullptr ? columnas.Raya(*banda) : columnas.Raya();
        else
            texto +=
                EnRojo(banda != nullptr ? columnas.Linea(*banda, fila.celdas) : columnas.Linea(fila.celdas),
                       bColor && fila.bFalta);
    }
    return texto;
}

std::string TablaTexto::Texto(const FormaTexto& forma) const
{
    ColumnasTexto columnas(m_columnas, forma);
    for (std::size_t f = 0; f < m_filas.size(); ++f) {
        if (f == 0 && ConTitulos())
            columnas.MedirTitulos(m_filas[f].celdas);
        else
            columnas.Medir(m_filas[f].celdas);
    }
    if (m_filas.size() > kFilasPorBandas && m_grupos.empty()) {
        columnas.DisponerPlegada();
        return TextoDe(columnas, nullptr, forma.bColor);
    }
    std::vector<std::size_t> grupos;
    for (const auto& grupo : m_grupos)
        grupos.push_back(grupo.second);
    columnas.Agrupar(std::move(grupos));
    columnas.Disponer(m_nClaves);
    std::string texto;
    for (const ColumnasTexto::Banda& banda : columnas.Bandas()) {
        if (!texto.empty())
            texto += '\n';
        texto += TextoDe(columnas, &banda, forma.bColor);
    }
    return texto;
}

}  // namespace efv::report
