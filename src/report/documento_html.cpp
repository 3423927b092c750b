#include <algorithm>

#include <fmt/format.h>

#include <quorvel/report/documento.h>

#include "report/marcado.h"

namespace efv::report {

namespace {

constexpr const char* kEstilos = R"(
:root { --tinta: #1d2733; --tenue: #5a6775; --linea: #d5dbe1; --fondo: #f5f7f9; --azul: #1a4f9c; --rojo: #b3261e; }
* { box-sizing: border-box; }
html { font-size: 15px; }
body { margin: 0 auto; max-width: 60rem; padding: 1.5rem; color: var(--tinta); background: #fff;
       font: 1rem/1.45 "Segoe UI", "Helvetica Neue", Arial, sans-serif; }
header { border-bottom: 3px solid var(--azul); margin-bottom: 1.5rem; padding-bottom: .75rem; }
h1 { font-size: 1.6rem; margin: 0; }
header p { margin: .25rem 0 0; color: var(--tenue); }
h2 { font-size: 1.15rem; color: var(--azul); border-bottom: 1px solid var(--linea); margin: 2rem 0 .75rem; padding-bottom: .25rem; }
table { border-collapse: collapse; width: 100%; margin: .5rem 0 1rem; font-variant-numeric: tabular-nums; }
caption { text-align: left; font-weight: 600; padding: .25rem 0; }
th, td { padding: .3rem .6rem; border-bottom: 1px solid var(--linea); text-align: left; vertical-align: top; }
thead th { background: var(--fondo); font-size: .85rem; color: var(--tenue); }
tbody th { font-weight: 400; }
.n { text-align: right; white-space: nowrap; }
.propuesta { color: var(--azul); }
.total > * { font-weight: 600; border-top: 2px solid var(--linea); }
.falta { color: var(--rojo); font-weight: 600; }
.resumen { display: grid; grid-template-columns: repeat(auto-fit, minmax(11rem, 1fr)); gap: .75rem; margin: 0; }
.resumen div { background: var(--fondo); border-left: 4px solid var(--azul); padding: .6rem .8rem; }
.resumen dt { color: var(--tenue); font-size: .85rem; }
.resumen dd { margin: 0; font-size: 1.15rem; font-weight: 600; }
.avisos { border: 1px solid var(--linea); border-left: 4px solid var(--rojo); padding: .25rem 1rem .75rem; margin-top: 1.5rem; }
.avisos.ninguno { border-left-color: var(--azul); }
.avisos h2 { border: 0; margin: .5rem 0 .25rem; color: inherit; }
.avisos ul { margin: 0; padding-left: 1.25rem; }
.nota { color: var(--tenue); font-size: .9rem; }
figure { margin: 1rem 0; }
figure svg { max-width: 100%; height: auto; border: 1px solid var(--linea); }
footer { margin-top: 2rem; border-top: 1px solid var(--linea); padding-top: .5rem; color: var(--tenue); font-size: .85rem; }
@page { size: A4; margin: 14mm; }
@media print {
  html { font-size: 9pt; }
  body { max-width: none; padding: 0; line-height: 1.3; }
  h2 { break-after: avoid; margin: 1rem 0 .4rem; }
  section:not(.pagina), tr, figure, li { break-inside: avoid; }
  thead { display: table-header-group; }
  .pagina { break-before: page; }
  .pagina h2 { margin-top: 0; }
  th, td { padding: .12rem .5rem; }
  figure { margin: .5rem 0; }
  figure svg { max-height: 68mm; }
  footer { margin-top: .75rem; break-before: avoid; }
  * { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
}
)";

std::string Valor(const Dato& dato)
{
    return dato.bFalta ? fmt::format("<span class=\"falta\">{} (fuera)</span>", Escapado(dato.valor))
                       : Escapado(dato.valor);
}

std::string DatosHtml(const Seccion& seccion)
{
    bool bPropuestas = false;
    for (const Dato& dato : seccion.datos)
        bPropuestas = bPropuestas || !dato.propuesta.empty();
    std::string html = "<table>\n";
    if (bPropuestas)
        html +=
            "<thead><tr><th scope=\"col\">Magnitud</th><th scope=\"col\" class=\"n\">En vigor</th>"
            "<th scope=\"col\" class=\"n\">Propuesta</th></tr></thead>\n";
    html += "<tbody>\n";
    for (const Dato& dato : seccion.datos) {
        html += fmt::format("<tr><th scope=\"row\">{}</th><td class=\"n\">{}</td>", Escapado(dato.rotulo),
                            Valor(dato));
        if (bPropuestas)
            html += fmt::format("<td class=\"n propuesta\">{}</td>", Escapado(dato.propuesta));
        html += "</tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

std::string CuadroHtml(const Cuadro& cuadro)
{
    std::string html = fmt::format("<table>\n<caption>{}</caption>\n<thead><tr>", Escapado(cuadro.titulo));
    for (const auto& [titulo, bNumero] : cuadro.columnas)
        html += fmt::format("<th scope=\"col\"{}>{}</th>", bNumero ? " class=\"n\"" : "", Escapado(titulo));
    html += "</tr></thead>\n<tbody>\n";
    for (std::size_t f = 0; f < cuadro.filas.size(); ++f) {
        html += cuadro.bTotal && f + 1 == cuadro.filas.size() ? "<tr class=\"total\">" : "<tr>";
        const auto& fila = cuadro.filas[f];
        for (std::size_t c = 0; c < fila.size(); ++c) {
            const char* clase = c < cuadro.columnas.size() && cuadro.columnas[c].second ? " class=\"n\"" : "";
            html += c == 0 ? fmt::format("<th scope=\"row\"{}>{}</th>", clase, Escapado(fila[c]))
                           : fmt::format("<td{}>{}</td>", clase, Escapado(fila[c]));
        }
        html += "</tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

std::string GraficaHtml(const CCtrlCurva2D& grafica)
{
    // Inside a page the chart stands without a document's first line.
    const std::string svg = ui::EscribirSvg(grafica, 760, 340);
    return fmt::format("<figure>\n{}</figure>\n", svg.substr(std::min(svg.find("<svg"), svg.size())));
}

std::string SeccionHtml(const Seccion& seccion, std::size_t iSeccion)
{
    std::string html =
        fmt::format("<section aria-labelledby=\"s{0}\"{1}>\n<h2 id=\"s{0}\">{2}</h2>\n", iSeccion,
                    seccion.bPaginaNueva ? " class=\"pagina\"" : "", Escapado(seccion.titulo));
    if (!seccion.datos.empty())
        html += DatosHtml(seccion);
    for (const CCtrlCurva2D& grafica : seccion.graficas)
        html += GraficaHtml(grafica);
    for (const Cuadro& cuadro : seccion.cuadros)
        html += CuadroHtml(cuadro);
    for (const std::string& nota : seccion.notas)
        html += fmt::format("<p class=\"nota\">{}</p>\n", Escapado(nota));
    return html + "</section>\n";
}

std::string Lista(const std::vector<std::string>& textos)
{
    std::string html = "<ul>\n";
    for (const std::string& texto : textos)
        html += fmt::format("<li>{}</li>\n", texto);
    return html + "</ul>\n";
}

std::string AvisosHtml(const std::vector<Aviso>& avisos)
{
    std::vector<std::string> textos;
    bool bFaltas = false;
    for (const Aviso& aviso : avisos) {
        bFaltas = bFaltas || aviso.bFalta;
        textos.push_back((aviso.bFalta ? "<strong class=\"falta\">Atención:</strong> " : "") +
                         Escapado(aviso.texto));
    }
    return fmt::format(
        "<section class=\"avisos{}\" aria-labelledby=\"avisos\">\n<h2 "
        "id=\"avisos\">Avisos</h2>\n{}</section>\n",
        bFaltas ? "" : " ninguno", avisos.empty() ? "<p>Ninguno.</p>\n" : Lista(textos));
}

std::string ResumenHtml(const std::vector<Dato>& resumen)
{
    std::string html = "<section aria-label=\"Resumen\">\n<dl class=\"resumen\">\n";
    for (const Dato& dato : resumen)
        html += fmt::format("<div><dt>{}</dt><dd>{}</dd></div>\n", Escapado(dato.rotulo), Valor(dato));
    return html + "</dl>\n</section>\n";
}

}  // namespace

std::string DocumentoHtml(const Documento& documento, const std::string& fecha)
{
    const std::string titulo =
        documento.proyecto.empty() ? documento.titulo : documento.proyecto + " · " + documento.titulo;
    std::string html = fmt::format(
        "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\"/>\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n<title>{}</title>\n"
        "<style>{}</style>\n</head>\n<body>\n<header>\n<h1>{}</h1>\n<p>{}</p>\n</header>\n<main>\n",
        Escapado(titulo), kEstilos, Escapado(documento.titulo),
        Escapado(documento.proyecto + (documento.proyecto.empty() || fecha.empty() ? "" : " · ") + fecha));
    html += ResumenHtml(documento.resumen) + AvisosHtml(documento.avisos);
    for (std::size_t i = 0; i < documento.secciones.size(); ++i)
        html += SeccionHtml(documento.secciones[i], i + 1);
    std::vector<std::string> supuestos;
    for (const std::string& supuesto : documento.supuestos)
        supuestos.push_back(Escapado(supuesto));
    html += "<section aria-labelledby=\"supuestos\">\n<h2 id=\"supuestos\">Supuestos</h2>\n" +
            Lista(supuestos) + "</section>\n</main>\n";
    return html + "<footer>QuorvelEFV</footer>\n</body>\n</html>\n";
}

}  // namespace efv::report
