#include "esquema/plano.h"

#include <stdexcept>

#include <QFileInfo>

#include "comun/pagina.h"
#include "elementos/rotulos.h"
#include "esquema/exportar.h"
#include "guardar.h"
#include "informe/imprimir.h"
#include "pdf/pdf.h"
#include "proyecto/vigencia.h"

namespace efv::estudio {

namespace {

QString Final(const CString& csRuta)
{
    return QFileInfo(QString::fromStdWString(csRuta)).suffix().toLower();
}

report::Impreso HojasDelPlano(const CProyectoEstudio& proyecto, Diseno diseno)
{
    const pdf::Escritor medidor;
    return report::ComponerPlano(PlanoDe(proyecto, diseno, PaginaDeLaPersona(Impresion::esquema)), medidor);
}

}  // namespace

report::Plano PlanoDe(const CProyectoEstudio& proyecto, Diseno diseno, const report::Pagina& pagina)
{
    const report::Portada portada = PortadaDe(proyecto);
    const auto calculado = CalcularDiseno(proyecto, diseno);
    const CString csDesfase = AvisoDeDesfase(proyecto, diseno);
    std::vector<Esquema> esquemas;
    for (const report::Detalle detalle : report::kDetallesDePlano) {
        Esquema esquema = EsquemaDe(proyecto, diseno, calculado, detalle);
        if (!csDesfase.empty())
            esquema.acsNotas.insert(esquema.acsNotas.begin(), csDesfase);
        esquemas.push_back(std::move(esquema));
    }
    return report::PlanoDe(
        esquemas,
        report::CajetinDe(portada.titulo, portada.datos, report::NombreDe(portada.lugar), report::FechaDeHoy()),
        pagina);
}

std::string BytesDePlano(const report::Plano& plano, const CString& csRuta)
{
    const QString sufijo = Final(csRuta);
    if (sufijo == QLatin1String("dxf"))
        return report::EscribirDxf(plano);
    if (sufijo == QLatin1String("svg"))
        return report::EscribirSvg(plano);
    if (sufijo == QLatin1String("pdf"))
        return pdf::PlanoPdf(plano);
    throw std::runtime_error("El esquema se guarda como .pdf, .dxf, .svg o .png.");
}

void GuardarEsquema(const CProyectoEstudio& proyecto, Diseno diseno, const Lamina& aLaVista)
{
    const auto csRuta = ui::PresentadorActual().ElegirFichero({L"Guardar esquema",
                                                               {{L"Documento PDF (*.pdf)", L"*.pdf"},
                                                                {L"Dibujo DXF (*.dxf)", L"*.dxf"},
                                                                {L"Dibujo SVG (*.svg)", L"*.svg"},
                                                                {L"Imagen PNG (*.png)", L"*.png"}},
                                                               true,
                                                               L"esquema.pdf"});
    if (!csRuta)
        return;
    if (Final(*csRuta) == QLatin1String("png"))
        return GuardarImagen(aLaVista, *csRuta);
    GuardarFichero(*csRuta,
                   BytesDePlano(PlanoDe(proyecto, diseno, PaginaDeLaPersona(Impresion::esquema)), *csRuta));
}

void ImprimirEsquema(const CProyectoEstudio& proyecto, Diseno diseno)
{
    Imprimir(HojasDelPlano(proyecto, diseno), "Imprimir esquema");
}

void VerEsquemaImpreso(const CProyectoEstudio& proyecto, Diseno diseno)
{
    VerImpreso({"Vista preliminar del esquema", [&] { return HojasDelPlano(proyecto, diseno); },
                [] { ConfigurarPagina(Impresion::esquema); }});
}

}  // namespace efv::estudio
