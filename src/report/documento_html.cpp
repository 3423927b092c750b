#include <algorithm>

#include <fmt/format.h>

#include <quorvel/report/documento.h>

#include "report/marcado.h"
#include "report/pagina.h"

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
.portada { display: grid; grid-template-columns: max-content 1fr; gap: .3rem 1.5rem; margin: 1rem 0 0; }
.portada dt { color: var(--tenue); }
.portada dd { margin: 0; }
.firma { width: 18rem; margin: 3.5rem 0 0; border-top: 1px solid var(--tinta); padding-top: .3rem; }
nav ol { margin: 0; padding-left: 1.5rem; columns: 2; }
nav a { color: inherit; text-decoration: none; }
h2 { font-size: 1.15rem; color: var(--azul); border-bottom: 1px solid var(--linea); margin: 2rem 0 .75rem; padding-bottom: .25rem; }
table { border-collapse: collapse; width: 100%; margin: .5rem 0 1rem; font-variant-numeric: tabular-nums; }
caption { text-align: left; font-weight: 600; padding: .25rem 0; }
th, td { padding: .3rem .6rem; border-bottom: 1px solid var(--linea); text-align: left; vertical-align: top; }
thead th { background: var(--fondo); font-size: .85rem; color: var(--tenue); }
tbody th { font-weight: 400; }
.datos { width: 72%; }
.n { text-align: right; white-space: nowrap; }
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
.nota, .supuestos { color: var(--tenue); font-size: .9rem; }
.supuestos { border-left: 3px solid var(--linea); padding-left: .75rem; }
.supuestos ul { margin: .2rem 0 0; padding-left: 1.1rem; }
figure { margin: 1rem 0; }
figure svg { max-width: 100%; height: auto; border: 1px solid var(--linea); }
footer { margin-top: 2rem; border-top: 1px solid var(--linea); padding-top: .5rem; color: var(--tenue); font-size: .85rem; }
@media print {
  html { font-size: 9pt; }
  body { max-width: none; padding: 0; line-height: 1.3; }
  header { break-after: page; }
  h2 { break-after: avoid; margin: 1rem 0 .4rem; }
  caption { break-after: avoid; }
  tr, figure, li, .avisos, .resumen { break-inside: avoid; }
  h2 + table, h2 + figure { break-before: avoid; }
  thead { display: table-header-group; }
  .datos { width: 100%; max-width: 178mm; }
  p, li { max-width: 212mm; }
  .graficas { display: grid; grid-template-columns: repeat(auto-fit, minmax(102mm, 1fr)); gap: 0 5mm; }
  th, td { padding: .12rem .5rem; }
  figure { margin: .5rem 0; }
  figure svg { max-height: 68mm; }
  figure.esquema svg { width: 100%; }
  footer { margin-top: .75rem; break-before: avoid; }
  * { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
}
)";

// The sheets that it prints on; a drawing keeps room for its heading.
std::string EstilosDePapel(const Papel& papel)
{
    constexpr double kPorPunto = 25.4 / 72.0, kTitulares = 18.0, kPortada = 0.19;
    const auto mm = [](double dPuntos) { return fmt::format("{:.1f}mm", dPuntos * kPorPunto); };
    return fmt::format(
        "@page {{ size: {} {}; margin: {} {} {} {};\n"
        "        @bottom-right {{ content: \"Página \" counter(page) \" de \" counter(pages); }} }}\n"
        "@media print {{ h1 {{ margin-top: {}; }} figure.esquema svg {{ max-height: {:.1f}mm; }} }}\n",
        mm(papel.dAncho), mm(papel.dAlto), mm(papel.dArriba), mm(papel.dDerecha), mm(papel.dAbajo),
        mm(papel.dIzquierda), mm(kPortada * papel.AltoColumna()), papel.AltoColumna() * kPorPunto - kTitulares);
}

std::string Valor(const Dato& dato)
{
    return dato.bFalta ? fmt::format("<span class=\"falta\">{} (fuera)</span>", Escapado(dato.valor))
                       : Escapado(dato.valor);
}

std::string DatosHtml(const Seccion& seccion)
{
    const std::vector<Dato> datos = DatosEnPagina(seccion.datos);
    if (datos.empty())
        return {};
    std::string html = "<table class=\"datos\">\n<tbody>\n";
    for (const Dato& dato : datos) {
        html += fmt::format("<tr><th scope=\"row\">{}</th><td class=\"n\">{}</td></tr>\n",
                            Escapado(dato.rotulo), Valor(dato));
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
        const std::vector<std::string> fila = FilaEnPagina(cuadro, cuadro.filas[f]);
        for (std::size_t c = 0; c < fila.size(); ++c) {
            const char* clase = c < cuadro.columnas.size() && cuadro.columnas[c].second ? " class=\"n\"" : "";
            const std::string celda = Incumple(fila[c])
                                          ? fmt::format("<span class=\"falta\">{}</span>", Escapado(fila[c]))
                                          : Escapado(fila[c]);
            html += c == 0 ? fmt::format("<th scope=\"row\"{}>{}</th>", clase, celda)
                           : fmt::format("<td{}>{}</td>", clase, celda);
        }
        html += "</tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

// Inside a page a picture stands without a document's first line.
std::string FiguraHtml(const std::string& svg, const char* clase = "")
{
    return fmt::format("<figure{}>\n{}</figure>\n", clase, svg.substr(std::min(svg.find("<svg"), svg.size())));
}

std::string Lista(const std::vector<std::string>& textos)
{
    std::string html = "<ul>\n";
    for (const std::string& texto : textos)
        html += fmt::format("<li>{}</li>\n", texto);
    return html + "</ul>\n";
}

std::vector<std::string> Escapados(std::vector<std::string> textos)
{
    for (std::string& texto : textos)
        texto = Escapado(texto);
    return textos;
}

std::string SupuestosHtml(const Documento& documento, const Seccion& seccion)
{
    const std::vector<std::string> supuestos = SupuestosDe(documento, seccion);
    std::string html;
    if (!supuestos.empty())
        html += "<div class=\"supuestos\">Se supone:\n" + Lista(Escapados(supuestos)) + "</div>\n";
    for (const std::string& fuente : seccion.fuentes)
        html += fmt::format("<p class=\"nota\">Fuente: {}</p>\n", Escapado(fuente));
    return html;
}

std::string SeccionHtml(const Documento& documento, std::size_t iSeccion, const Papel& papel)
{
    constexpr int kAnchoGrafica = 760, kAltoGrafica = 340;
    const Seccion& seccion = documento.secciones[iSeccion];
    std::string html = fmt::format("<section aria-labelledby=\"s{0}\">\n<h2 id=\"s{0}\">{1}</h2>\n",
                                   iSeccion + 1, Escapado(seccion.titulo));
    const std::vector<Lamina> laminas = LaminasDe(seccion, papel);
    for (std::size_t i = 0; i < laminas.size(); ++i) {
        if (laminas.size() > 1)
            html += fmt::format("<p class=\"nota\">{}</p>\n", HojaDeEsquema(i, laminas.size()));
        html += FiguraHtml(EscribirSvg(laminas[i]), " class=\"esquema\"");
    }
    html += DatosHtml(seccion);
    std::string graficas;
    for (const CCtrlCurva2D& grafica : seccion.graficas)
        graficas += FiguraHtml(ui::EscribirSvg(grafica, kAnchoGrafica, kAltoGrafica));
    if (!graficas.empty())
        html += fmt::format("<div class=\"graficas\">\n{}</div>\n", graficas);
    for (const Cuadro& cuadro : seccion.cuadros)
        html += CuadroHtml(cuadro);
    for (const std::string& nota : seccion.notas)
        html += fmt::format("<p class=\"nota\">{}</p>\n", Escapado(nota));
    return html + SupuestosHtml(documento, seccion) + "</section>\n";
}

std::string AvisosHtml(const std::vector<Aviso>& avisos)
{
    std::vector<std::string> textos;
    bool bFaltas = false;
    for (const Aviso& aviso : AvisosEnPagina(avisos)) {
        bFaltas = bFaltas || aviso.bFalta;
        textos.push_back((aviso.bFalta ? "<strong class=\"falta\">Atención:</strong> " : "") +
                         Escapado(aviso.texto));
    }
    return fmt::format(
        "<section class=\"avisos{}\" aria-labelledby=\"avisos\">\n<h2 "
        "id=\"avisos\">Avisos</h2>\n{}</section>\n",
        bFaltas ? "" : " ninguno", textos.empty() ? "<p>Ninguno.</p>\n" : Lista(textos));
}

std::string ResumenHtml(const std::vector<Dato>& resumen)
{
    std::string html = "<section aria-label=\"Resumen\">\n<dl class=\"resumen\">\n";
    for (const Dato& dato : DatosEnPagina(resumen))
        html += fmt::format("<div><dt>{}</dt><dd>{}</dd></div>\n", Escapado(dato.rotulo), Valor(dato));
    return html + "</dl>\n</section>\n";
}

std::string PortadaHtml(const Documento& documento, const std::string& fecha)
{
    std::string html =
        fmt::format("<header>\n<h1>{}</h1>\n<dl class=\"portada\">\n", Escapado(documento.titulo));
    for (const auto& [rotulo, texto] : DatosDePortada(documento, fecha))
        html += fmt::format("<dt>{}</dt><dd>{}</dd>\n", rotulo, Escapado(texto));
    html += "</dl>\n";
    if (!documento.portada.firma.empty())
        html += fmt::format("<p class=\"firma\">Firma: {}</p>\n", Escapado(documento.portada.firma));
    return html + "</header>\n";
}

std::string IndiceHtml(const Documento& documento, bool bSupuestos)
{
    std::string html = "<nav aria-labelledby=\"indice\">\n<h2 id=\"indice\">Índice</h2>\n<ol>\n";
    for (std::size_t i = 0; i < documento.secciones.size(); ++i)
        html +=
            fmt::format("<li><a href=\"#s{}\">{}</a></li>\n", i + 1, Escapado(documento.secciones[i].titulo));
    if (bSupuestos)
        html += "<li><a href=\"#supuestos\">Supuestos generales</a></li>\n";
    return html + "</ol>\n</nav>\n";
}

}  // namespace

std::string DocumentoHtml(const Documento& documento, const std::string& fecha, const Papel& papel)
{
    const std::string titulo =
        documento.proyecto.empty() ? documento.titulo : documento.proyecto + " · " + documento.titulo;
    std::string html = fmt::format(
        "<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\"/>\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n<title>{}</title>\n"
        "<style>{}{}</style>\n</head>\n<body>\n",
        Escapado(titulo), kEstilos, EstilosDePapel(papel));
    const std::vector<std::string> supuestos = Escapados(SupuestosSueltos(documento));
    html += PortadaHtml(documento, fecha) + IndiceHtml(documento, !supuestos.empty()) + "<main>\n";
    html += ResumenHtml(documento.resumen) + AvisosHtml(documento.avisos);
    for (std::size_t i = 0; i < documento.secciones.size(); ++i)
        html += SeccionHtml(documento, i, papel);
    if (!supuestos.empty()) {
        html += "<section aria-labelledby=\"supuestos\">\n<h2 id=\"supuestos\">Supuestos generales</h2>\n" +
                Lista(supuestos) + "</section>\n";
    }
    return html + fmt::format("</main>\n<footer>{}</footer>\n</body>\n</html>\n", Programa());
}

}  // namespace efv::report
