#include "diseno/informe.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <vector>

#include <fmt/format.h>

#include <quorvel/report/informe.h>

#include "comun/consola.h"
#include "comun/numeros.h"
#include "pdf/pdf.h"

namespace efv::orden {

namespace {

bool Igual(std::string_view a, std::string_view b)
{
    return PlegarTexto(CadenaDesdeUtf8(a)) == PlegarTexto(CadenaDesdeUtf8(b));
}

const char* NombreDe(report::Formato formato)
{
    return report::kFormatos[static_cast<std::size_t>(formato)];
}

// "A4, A3 o Carta"
std::string Lista(std::span<const report::Formato> formatos)
{
    std::string lista;
    for (std::size_t i = 0; i < formatos.size(); ++i) {
        const char* separador = i == 0 ? "" : i + 1 == formatos.size() ? " o " : ", ";
        lista += fmt::format("{}{}", separador, NombreDe(formatos[i]));
    }
    return lista;
}

constexpr const char* kInforme = "--informe";

enum class Clase { pdf, pagina, ninguna, otra };

// A name that asks for another format would hide a page. Devices and pipes have none.
Clase ClaseDe(std::string_view final)
{
    if (final.empty())
        return Clase::ninguna;
    return Igual(final, "pdf")                           ? Clase::pdf
           : Igual(final, "html") || Igual(final, "htm") ? Clase::pagina
                                                         : Clase::otra;
}

}  // namespace

void OpcionesPagina::Declarar(CLI::App& linea)
{
    const auto siFalta = [](bool bEsta) { return bEsta ? "; así está si no se dice" : ""; };
    linea
        .add_option("--papel", m_papel,
                    fmt::format("{}; si falta, {}", Lista(m_formatos), NombreDe(m_porDefecto.formato)))
        ->type_name("PAPEL");
    CLI::Option* vertical = linea.add_flag("--vertical", m_bVertical,
                                           fmt::format("La hoja de pie{}", siFalta(!m_porDefecto.bApaisada)));
    vertical->option_text(" ")->disable_flag_override();
    linea
        .add_flag("--apaisado", m_bApaisado, fmt::format("La hoja apaisada{}", siFalta(m_porDefecto.bApaisada)))
        ->option_text(" ")
        ->excludes(vertical)
        ->disable_flag_override();
    linea
        .add_option("--margen", m_margen,
                    fmt::format("Margen de los cuatro lados, o «izquierdo;superior;derecho;inferior», 5 a 40 "
                                "mm; si falta, {};{};{};{}",
                                Decimal(m_porDefecto.dIzquierdo, 0), DecimalExacto(m_porDefecto.dSuperior),
                                Decimal(m_porDefecto.dDerecho, 0), DecimalExacto(m_porDefecto.dInferior)))
        ->type_name("MM");
}

report::Pagina OpcionesPagina::Leer() const
{
    report::Pagina pagina = m_porDefecto;
    if (m_papel) {
        const auto papel = std::ranges::find_if(
            m_formatos, [&](report::Formato formato) { return Igual(NombreDe(formato), *m_papel); });
        if (papel == m_formatos.end())
            throw ErrorUso(fmt::format("--papel: se esperaba {}, y no «{}»", Lista(m_formatos), *m_papel));
        pagina.formato = *papel;
    }
    pagina.bApaisada = (pagina.bApaisada || m_bApaisado) && !m_bVertical;
    if (!m_margen)
        return pagina;
    constexpr std::size_t kLados = 4;
    const auto leer = [](const std::string& texto) {
        return LeerAcotado("--margen", texto, report::kMargenMinimo, report::kMargenMaximo);
    };
    std::vector<std::string> lados = SepararNumeros({*m_margen}, kLados);
    if (lados.size() != kLados) {
        if (m_margen->find(';') != std::string::npos)
            throw ErrorUso(fmt::format("--margen: se esperaba un número o cuatro, y no «{}»", *m_margen));
        lados.assign(kLados, *m_margen);
    }
    pagina.dIzquierdo = leer(lados[0]);
    pagina.dSuperior = leer(lados[1]);
    pagina.dDerecho = leer(lados[2]);
    pagina.dInferior = leer(lados[3]);
    return pagina;
}

void OpcionesInforme::Declarar(CLI::App& linea)
{
    linea
        .add_option(kInforme, m_ruta,
                    "Escribe un informe para imprimir: una página HTML o, si acaba en .pdf, un PDF; con «-», "
                    "por la salida estándar")
        ->type_name("FICHERO");
    linea.add_option("--formato", m_formato, "pdf o html, del informe, si el final del fichero no lo dice")
        ->type_name("FORMATO");
    m_pagina.Declarar(linea);
}

void OpcionesInforme::Anadir(Salidas& salidas, Lote& lote, const std::string& fichero) const
{
    if (!m_ruta && (m_formato || m_pagina.Hay()))
        throw ErrorUso(
            "--formato, --papel, --vertical, --apaisado y --margen son del informe: falta "
            "--informe FICHERO");
    if (!m_ruta)
        return;
    m_pagina.Leer();
    salidas.Anadir(kInforme, lote.Ruta(kInforme, *m_ruta, fichero),
                   EsPdf() ? Salidas::Contenido::bytes : Salidas::Contenido::texto);
}

bool OpcionesInforme::EsPdf() const
{
    const std::string extension = std::filesystem::path(*m_ruta).extension().string();
    const Clase delNombre = ClaseDe(std::string_view(extension).substr(extension.empty() ? 0 : 1));
    if (!m_formato) {
        if (delNombre == Clase::otra)
            throw ErrorUso(
                fmt::format("--informe «{}»: se escribe un PDF o una página; use .pdf o .html", *m_ruta));
        return delNombre == Clase::pdf;
    }
    const Clase pedida = ClaseDe(*m_formato);
    if (pedida != Clase::pdf && pedida != Clase::pagina)
        throw ErrorUso(fmt::format("--formato: se esperaba pdf o html, y no «{}»", *m_formato));
    if (delNombre != Clase::ninguna && delNombre != pedida)
        throw ErrorUso(fmt::format("--informe «{}»: su final no es el de --formato {}", *m_ruta, *m_formato));
    return pedida == Clase::pdf;
}

std::string OpcionesInforme::Escribir(const report::Documento& documento) const
{
    const std::string fecha = report::FechaDeHoy();
    const report::Papel papel = report::PapelDe(m_pagina.Leer());
    if (!EsPdf())
        return report::DocumentoHtml(documento, fecha, papel);
    try {
        return pdf::InformePdf(documento, fecha, pdf::LetrasInstaladas(), papel);
    } catch (const std::runtime_error& error) {
        throw ErrorEjecucion(error.what());
    }
}

}  // namespace efv::orden
