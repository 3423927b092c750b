#include <algorithm>

#include <quorvel/report/texto.h>

namespace efv::report {

namespace {

constexpr std::string_view kHueco = "  ";

std::string Rellenar(const std::string& celda, std::size_t ancho, TablaTexto::Lado lado)
{
    const std::string blancos(ancho - std::min(ancho, Anchura(celda)), ' ');
    return lado == TablaTexto::Lado::derecha ? blancos + celda : celda + blancos;
}

}  // namespace

void ColumnasTexto::Medir(const std::vector<std::string>& celdas)
{
    for (std::size_t c = 0; c < celdas.size(); ++c)
        m_anchos[c] = std::max(m_anchos[c], Anchura(celdas[c]));
}

std::string ColumnasTexto::Linea(const std::vector<std::string>& celdas) const
{
    std::string linea;
    for (std::size_t c = 0; c < celdas.size(); ++c) {
        linea += c > 0 ? kHueco : std::string_view();
        linea += Rellenar(celdas[c], m_anchos[c], m_lados[c]);
    }
    linea.erase(linea.find_last_not_of(' ') + 1);
    return linea + '\n';
}

std::string ColumnasTexto::Raya() const
{
    std::size_t total = 0;
    for (const std::size_t ancho : m_anchos)
        total += ancho + (total > 0 ? kHueco.size() : 0);
    std::string raya;
    for (std::size_t c = 0; c < total; ++c)
        raya += "─";
    return raya + '\n';
}

std::string TablaTexto::LineaDeGrupos(const std::vector<std::size_t>& anchos) const
{
    std::string linea;
    std::size_t c = 0;
    for (const auto& [titulo, columnas] : m_grupos) {
        std::size_t ancho = kHueco.size() * (columnas - 1);
        for (std::size_t i = 0; i < columnas; ++i)
            ancho += anchos[c + i];
        const std::size_t blancos = (ancho - std::min(ancho, Anchura(titulo))) / 2;
        linea += c > 0 ? kHueco : std::string_view();
        linea += Rellenar(std::string(blancos, ' ') + titulo, ancho, Lado::izquierda);
        c += columnas;
    }
    linea.erase(linea.find_last_not_of(' ') + 1);
    return linea.empty() ? linea : linea + '\n';
}

std::string TablaTexto::Texto() const
{
    ColumnasTexto columnas(m_columnas);
    for (const auto& fila : m_filas)
        columnas.Medir(fila);
    std::string texto = LineaDeGrupos(columnas.Anchos());
    for (const auto& fila : m_filas)
        texto += fila.empty() ? columnas.Raya() : columnas.Linea(fila);
    return texto;
}

}  // namespace efv::report
