#include "comun/terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace efv::orden {

namespace {

constexpr std::size_t kAnchuraMinima = 40, kAnchuraMaxima = 1000;

std::string_view Entorno(const char* nombre)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread, and nobody changes the environment
    const char* valor = std::getenv(nombre);
    return valor == nullptr ? std::string_view() : valor;
}

std::size_t AnchuraDe(int iDescriptor)
{
    const std::string_view columnas = Entorno("COLUMNS");
    std::size_t nAnchura = 0;
    const auto leido = std::from_chars(columnas.data(), columnas.data() + columnas.size(), nAnchura);
    if (leido.ec != std::errc() || leido.ptr != columnas.data() + columnas.size())
        nAnchura = 0;
    winsize tamano{};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system's way to ask
    if (nAnchura == 0 && ::isatty(iDescriptor) == 1 && ::ioctl(iDescriptor, TIOCGWINSZ, &tamano) == 0)
        nAnchura = tamano.ws_col;
    return nAnchura == 0 ? 0 : std::clamp(nAnchura, kAnchuraMinima, kAnchuraMaxima);
}

// Characters that are seen.
std::size_t Visibles(std::string_view linea)
{
    std::size_t nOcultos = 0;
    for (const std::string_view marca : {report::kColorRojo, report::kColorPropio})
        for (std::size_t i = 0; (i = linea.find(marca, i)) != std::string_view::npos; i += marca.size())
            nOcultos += marca.size();
    return report::Anchura(linea) - nOcultos;
}

// Where the lines after the first begin: below what stands behind a name and a gap, or two columns in.
std::size_t Sangria(std::string_view linea, std::size_t nAnchura)
{
    const std::size_t iTexto = std::min(linea.find_first_not_of(' '), linea.size());
    const std::size_t iHueco = linea.find("  ", iTexto);
    const std::size_t iDespues =
        iHueco == std::string_view::npos ? iHueco : linea.find_first_not_of(' ', iHueco);
    if (iDespues != std::string_view::npos && report::Anchura(linea.substr(0, iDespues)) <= nAnchura / 2)
        return report::Anchura(linea.substr(0, iDespues));
    const std::size_t nFlotante = linea.substr(iTexto).starts_with("·") ? 2 : 0;
    return std::min(iTexto + nFlotante, nAnchura / 2);
}

}  // namespace

report::FormaTexto& Forma()
{
    static report::FormaTexto forma;
    return forma;
}

report::FormaTexto FormaDeSalida(int iDescriptor)
{
    const std::string_view terminal = Entorno("TERM");
    const bool bTerminal = ::isatty(iDescriptor) == 1;
    const bool bColor = bTerminal && Entorno("NO_COLOR").empty() && !terminal.empty() && terminal != "dumb";
    return {.nAnchura = AnchuraDe(iDescriptor), .bColor = bColor, .bMiles = true, .bTerminal = bTerminal};
}

std::string Prosa(std::string_view texto)
{
    const std::size_t nAnchura = Forma().nAnchura;
    if (nAnchura == 0)
        return std::string(texto);
    std::string ajustado;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find('\n'), texto.size());
        const std::string_view linea = texto.substr(0, fin);
        const std::string_view salto = fin < texto.size() ? "\n" : "";
        texto.remove_prefix(fin + salto.size());
        if (Visibles(linea) <= nAnchura) {
            ajustado += linea;
            ajustado += salto;
            continue;
        }
        const std::size_t nSangria = Sangria(linea, nAnchura);
        // What stands before is written once; the rest goes beside and below it.
        std::size_t iResto = 0;
        while (report::Anchura(linea.substr(0, iResto)) < nSangria)
            ++iResto;
        while (iResto < linea.size() && (static_cast<unsigned char>(linea[iResto]) & 0xC0U) == 0x80U)
            ++iResto;
        std::string cabeza(linea.substr(0, iResto));
        for (const std::string& renglon : report::EnLineas(linea.substr(iResto), nAnchura - nSangria)) {
            ajustado += cabeza + renglon + '\n';
            cabeza.assign(nSangria, ' ');
        }
        if (salto.empty())
            ajustado.pop_back();
    }
    return ajustado;
}

}  // namespace efv::orden
