#include <algorithm>

#include <fmt/format.h>

#include <quorvel/report/documento.h>
#include <quorvel/report/texto.h>

#include "report/pagina.h"

namespace efv::report {

namespace {

constexpr std::size_t kAnchura = 100;

// Words in lines of the terminal's width, the ones after the first under the text.
std::string Parrafo(const std::string& marca, const std::string& texto, const FormaTexto& forma)
{
    const std::string sangria(Anchura(marca), ' ');
    const std::size_t nAnchura = forma.nAnchura > 0 ? std::min(forma.nAnchura, kAnchura) : kAnchura;
    std::string resultado;
    for (const std::string& linea : EnLineas(texto, nAnchura - sangria.size(), forma.nAnchura > 0))
        resultado += (resultado.empty() ? marca : sangria) + linea + '\n';
    return resultado;
}

std::string DatosTexto(const std::vector<Dato>& datos, const FormaTexto& forma)
{
    using enum ColumnasTexto::Lado;
    TablaTexto tabla({izquierda, izquierda, izquierda, izquierda});
    const auto cifra = [&](const std::string& texto) { return forma.bMiles ? ConMiles(texto) : texto; };
    for (const Dato& dato : datos) {
        const std::string propuesta = dato.propuesta.empty() ? "" : "propuesta " + dato.propuesta;
        tabla.Fila({"  " + dato.rotulo, cifra(EnUnaLinea(dato.valor)), cifra(propuesta),
                    dato.bFalta ? "<< fuera" : ""},
                   dato.bFalta);
    }
    return datos.empty() ? std::string() : tabla.Texto(forma);
}

std::string CuadroTexto(const Cuadro& cuadro, const FormaTexto& forma)
{
    std::vector<TablaTexto::Lado> lados;
    std::vector<std::string> titulos;
    for (const auto& [titulo, bNumero] : cuadro.columnas) {
        const std::size_t c = titulos.size();
        lados.push_back(bNumero ? TablaTexto::Lado::derecha : TablaTexto::Lado::izquierda);
        titulos.push_back((titulos.empty() ? "  " : "") + titulo);
        if (forma.bMiles && c < cuadro.unidades.size() && !cuadro.unidades[c].empty())
            titulos.back() += " (" + cuadro.unidades[c] + ")";
    }
    TablaTexto tabla(std::move(lados));
    tabla.Fila(std::move(titulos));
    tabla.Raya();
    for (std::size_t f = 0; f < cuadro.filas.size(); ++f) {
        std::vector<std::string> celdas;
        for (const std::string& celda : cuadro.filas[f])
            celdas.push_back((celdas.empty() ? "  " : "") + EnUnaLinea(celda));
        if (cuadro.bTotal && f + 1 == cuadro.filas.size())
            tabla.Raya();
        const bool bFalta = std::ranges::any_of(celdas, &Incumple);
        tabla.Fila(std::move(celdas), bFalta);
    }
    return tabla.Texto(forma);
}

// Of a result alone, only what falls short.
std::string AvisosTexto(const std::vector<Aviso>& avisos, const FormaTexto& forma)
{
    std::string texto;
    for (const Aviso& aviso : avisos) {
        if (aviso.bFalta || !forma.bSoloResultado)
            texto += EnRojo(Parrafo(aviso.bFalta ? "  ! " : "  · ", EnUnaLinea(aviso.texto), forma),
                            forma.bColor && aviso.bFalta);
    }
    if (texto.empty() && !forma.bSoloResultado)
        texto = "  Ninguno.\n";
    return texto.empty() ? texto : "\nAvisos\n" + texto;
}

}  // namespace

std::string DocumentoTexto(const Documento& documento, const FormaTexto& forma)
{
    std::string texto = documento.titulo + '\n';
    if (!documento.proyecto.empty())
        texto += forma.nAnchura > 0 ? Parrafo("", EnUnaLinea(documento.proyecto), forma)
                                    : EnUnaLinea(documento.proyecto) + '\n';
    for (const Seccion& seccion : documento.secciones) {
        if (seccion.bSoloPagina)
            continue;
        texto += '\n' + seccion.titulo + '\n';
        texto += DatosTexto(seccion.datos, forma);
        for (const Cuadro& cuadro : seccion.cuadros)
            texto += CuadroTexto(cuadro, forma);
        if (!forma.bSoloResultado)
            for (const std::string& nota : seccion.notas)
                texto += Parrafo("  ", nota, forma);
    }
    texto += AvisosTexto(documento.avisos, forma);
    if (forma.bSoloResultado)
        return texto;
    texto += "\nSupuestos\n";
    for (const Supuesto& supuesto : documento.supuestos)
        texto += Parrafo("  · ", supuesto.texto, forma);
    return texto;
}

}  // namespace efv::report
