#include "informe/informe.h"

#include <algorithm>

#include <quorvel/clima.h>

#include "diseno/equipos.h"
#include "guardar.h"

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

template <class DISENO>
std::string Informe(const CProyectoEstudio& origen, const DISENO& diseno)
{
    report::Portada portada{CadenaUtf8(origen.csNombre), LugarDelInforme(origen.lugar), {}};
    portada.lugar.dAltitud = origen.situacion.dAltitud;
    if (clima::RegistroCargado())
        portada.planos.origen = solar::OrigenHoras::registro;
    return report::DocumentoHtml(report::InformeDe(diseno, portada, CatalogosDelModulo(), phGetBaseFactorK()),
                                 report::FechaDeHoy());
}

}  // namespace

std::string InformeHtml(const CProyectoEstudio& proyecto, Diseno diseno)
{
    return diseno == Diseno::aislada ? Informe(proyecto, proyecto.aislada) : Informe(proyecto, proyecto.red);
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
