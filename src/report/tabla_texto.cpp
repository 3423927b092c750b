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
    std::vector<std::size_t> anchos(m_columnas.size());
    for (const auto& fila : m_filas)
        for (std::size_t c = 0; c < fila.size(); ++c)
            anchos[c] = std::max(anchos[c], Anchura(fila[c]));
    std::size_t total = 0;
    for (const std::size_t ancho : anchos)
        total += ancho + (total > 0 ? kHueco.size() : 0);

    std::string texto = LineaDeGrupos(anchos);
    for (const auto& fila : m_filas) {
        std::string linea;
        for (std::size_t c = 0; c < fila.size(); ++c) {
            linea += c > 0 ? kHueco : std::string_view();
            linea += Rellenar(fila[c], anchos[c], m_columnas[c]);
        }
        for (std::size_t c = 0; fila.empty() && c < total; ++c)
            linea += "─";
        linea.erase(linea.find_last_not_of(' ') + 1);
        texto += linea + '\n';
    }
    return texto;
}

}  // namespace efv::report
