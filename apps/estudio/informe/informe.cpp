#include "informe/informe.h"

#include <algorithm>

#include "diseno/equipos.h"
#include "energia/planos.h"
#include "guardar.h"
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

// Figures that don't go with the project any more don't leave the program unmarked.
void MarcarDesfase(report::Documento& documento, const CString& csDesfase)
{
    if (csDesfase.empty())
        return;
    documento.titulo += " (desactualizado)";
    documento.avisos.insert(documento.avisos.begin(), {true, CadenaUtf8(csDesfase)});
}

template <class DISENO>
std::string Informe(const CProyectoEstudio& origen, const DISENO& diseno, const CString& csDesfase)
{
    report::Documento documento =
        report::InformeDe(diseno, PortadaDe(origen), CatalogosDelModulo(), phGetBaseFactorK());
    MarcarDesfase(documento, csDesfase);
    return report::DocumentoHtml(documento, report::FechaDeHoy());
}

}  // namespace

report::Portada PortadaDe(const CProyectoEstudio& proyecto)
{
    report::Portada portada{
        CadenaUtf8(proyecto.csNombre), LugarDelInforme(proyecto.lugar), {proyecto.planos, OrigenDeLasHoras()}};
    portada.lugar.dAltitud = proyecto.situacion.dAltitud;
    return portada;
}

std::string InformeHtml(const CProyectoEstudio& proyecto, Diseno diseno)
{
    const CString csDesfase = AvisoDeDesfase(proyecto, diseno);
    return diseno == Diseno::aislada ? Informe(proyecto, proyecto.aislada, csDesfase)
                                     : Informe(proyecto, proyecto.red, csDesfase);
}

void GuardarInforme(const CProyectoEstudio& proyecto, Diseno diseno)
{
    const std::string html = InformeHtml(proyecto, diseno);
    const auto csRuta = ui::PresentadorActual().ElegirFichero(
        {L"Guardar informe", {{L"Página HTML (*.html)", L"*.html"}}, true, L"informe.html"});
    if (!csRuta)
        return;
    GuardarFichero(*csRuta, html);
}

}  // namespace efv::estudio
