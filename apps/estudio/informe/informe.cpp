#include "informe/informe.h"

#include <algorithm>

#include "comun/pagina.h"
#include "diseno/equipos.h"
#include "efv/diseno/proyecto_json.h"
#include "energia/planos.h"
#include "guardar.h"
#include "pdf/pdf.h"
#include "proyecto/vigencia.h"

namespace efv::estudio {

namespace {

report::LugarDiseno LugarDelInforme(const Lugar& lugar)
{
    report::LugarDiseno del;
    del.nombre = CadenaUtf8(lugar.csNombre);
    if (!lugar.csDetalle.empty() && lugar.csDetalle != lugar.csNombre)
        del.nombre += " (" + CadenaUtf8(lugar.csDetalle) + ")";
    del.dLatitud = lugar.dLatitud;
    del.bNorte = lugar.iHemisferio == 1;
    // A place of one's own has none until they are written.
    if (std::ranges::any_of(lugar.adRadHorizontal, [](double d) { return d > 0.0; }))
        std::ranges::copy(lugar.adRadHorizontal, del.adRadiacion.emplace().begin());
    return del;
}

}  // namespace

report::Portada PortadaDe(const CProyectoEstudio& proyecto)
{
    report::Portada portada{
        CadenaUtf8(proyecto.csNombre), LugarDelInforme(proyecto.lugar), {proyecto.planos, OrigenDeLasHoras()}};
    portada.lugar.dAltitud = proyecto.situacion.dAltitud;
    const PortadaProyecto& datos = proyecto.portada;
    portada.datos = {CadenaUtf8(datos.csCliente), CadenaUtf8(datos.csDireccion), CadenaUtf8(datos.csAutor),
                     CadenaUtf8(datos.csFirma), CadenaUtf8(datos.csRevision)};
    const Celulas porDefecto;
    if (proyecto.celulas.dMinima != porDefecto.dMinima)
        portada.temperaturas.dMinima = proyecto.celulas.dMinima;
    if (proyecto.celulas.dMaxima != porDefecto.dMaxima)
        portada.temperaturas.dMaxima = proyecto.celulas.dMaxima;
    portada.cableado = orden::CriteriosDe(proyecto);
    if (proyecto.calculo.dRendimiento != Calculo().dRendimiento)
        portada.dRendimiento = proyecto.calculo.dRendimiento;
    return portada;
}

report::Documento DocumentoDe(const CProyectoEstudio& proyecto, Diseno diseno)
{
    const auto informe = [&](const auto& registro) {
        return report::InformeDe(registro, PortadaDe(proyecto), CatalogosDelModulo(), phGetBaseFactorK());
    };
    report::Documento documento = diseno == Diseno::aislada ? informe(proyecto.aislada) : informe(proyecto.red);
    MarcarDesfase(documento, proyecto, diseno);
    return documento;
}

void MarcarDesfase(report::Documento& documento, const CProyectoEstudio& proyecto, Diseno diseno)
{
    const CString csDesfase = AvisoDeDesfase(proyecto, diseno);
    if (csDesfase.empty())
        return;
    documento.titulo += " (desactualizado)";
    documento.avisos.insert(documento.avisos.begin(), {true, CadenaUtf8(csDesfase)});
}

report::Papel PapelDeInformes()
{
    return report::PapelDe(PaginaDeLaPersona(Impresion::informe));
}

void GuardarInforme(const report::Documento& documento)
{
    GuardarDocumento(documento, L"informe");
}

void GuardarDocumento(const report::Documento& documento, const CString& csNombre)
{
    const auto csRuta = ui::PresentadorActual().ElegirFichero(
        {L"Guardar informe",
         {{L"Documento PDF (*.pdf)", L"*.pdf"}, {L"Página HTML (*.html)", L"*.html"}},
         true,
         csNombre + L".pdf"});
    if (!csRuta)
        return;
    const std::string fecha = report::FechaDeHoy();
    GuardarFichero(*csRuta, pdf::EsPdf(CadenaUtf8(*csRuta))
                                ? pdf::InformePdf(documento, fecha, pdf::LetrasInstaladas(), PapelDeInformes())
                                : report::DocumentoHtml(documento, fecha, PapelDeInformes()));
}

}  // namespace efv::estudio
