#include <algorithm>

#include <fmt/format.h>

#include <quorvel/report/documento.h>
#include <quorvel/report/texto.h>

namespace efv::report {

namespace {

constexpr std::size_t kAnchura = 100;

// Words in lines of the terminal's width, the ones after the first under the text.
std::string Parrafo(const std::string& marca, const std::string& texto)
{
    const std::string sangria(Anchura(marca), ' ');
    std::string resultado = marca;
    std::size_t nLinea = sangria.size();
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t fin = std::min(texto.find(' ', i), texto.size());
        const std::string palabra = texto.substr(i, fin - i);
        const bool bPrimera = nLinea == sangria.size();
        if (!bPrimera && nLinea + 1 + Anchura(palabra) > kAnchura) {
            resultado += '\n' + sangria;
            nLinea = sangria.size();
        } else if (!bPrimera) {
            resultado += ' ';
            ++nLinea;
        }
        resultado += palabra;
        nLinea += Anchura(palabra);
        i = fin + 1;
    }
    return resultado + '\n';
}

std::string DatosTexto(const std::vector<Dato>& datos)
{
    using enum ColumnasTexto::Lado;
    TablaTexto tabla({izquierda, izquierda, izquierda, izquierda});
    for (const Dato& dato : datos)
        tabla.Fila({"  " + dato.rotulo, EnUnaLinea(dato.valor),
                    dato.propuesta.empty() ? "" : "propuesta " + dato.propuesta,
                    dato.bFalta ? "<< fuera" : ""});
    return datos.empty() ? std::string() : tabla.Texto();
}

std::string CuadroTexto(const Cuadro& cuadro)
{
    std::vector<TablaTexto::Lado> lados;
    std::vector<std::string> titulos;
    for (const auto& [titulo, bNumero] : cuadro.columnas) {
        lados.push_back(bNumero ? TablaTexto::Lado::derecha : TablaTexto::Lado::izquierda);
        titulos.push_back((titulos.empty() ? "  " : "") + titulo);
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
        tabla.Fila(std::move(celdas));
    }
    return tabla.Texto();
}

}  // namespace

std::string DocumentoTexto(const Documento& documento)
{
    std::string texto = documento.titulo + '\n';
    if (!documento.proyecto.empty())
        texto += EnUnaLinea(documento.proyecto) + '\n';
    for (const Seccion& seccion : documento.secciones) {
        if (seccion.bSoloPagina)
            continue;
        texto += '\n' + seccion.titulo + '\n';
        texto += DatosTexto(seccion.datos);
        for (const Cuadro& cuadro : seccion.cuadros)
            texto += CuadroTexto(cuadro);
        for (const std::string& nota : seccion.notas)
            texto += Parrafo("  ", nota);
    }
    texto += "\nAvisos\n";
    for (const Aviso& aviso : documento.avisos)
        texto += Parrafo(aviso.bFalta ? "  ! " : "  · ", EnUnaLinea(aviso.texto));
    if (documento.avisos.empty())
        texto += "  Ninguno.\n";
    texto += "\nSupuestos\n";
    for (const Supuesto& supuesto : documento.supuestos)
        texto += Parrafo("  · ", supuesto.texto);
    return texto;
}

}  // namespace efv::report
