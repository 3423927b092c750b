#include "informe/informe.h"

#include <algorithm>
#include <stdexcept>

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

void ExigirModelo(const void* modelo, const CString& csId)
{
    if (modelo == nullptr)
        throw std::runtime_error("El modelo «" + CadenaUtf8(csId) + "» no está en el catálogo.");
}

void ExigirModelos(const report::ProyectoAislada& proyecto)
{
    ExigirModelo(proyecto.panel, proyecto.registro.csPanel);
    ExigirModelo(proyecto.acumulador, proyecto.registro.csAcumulador);
}

void ExigirModelos(const report::ProyectoRed& proyecto)
{
    ExigirModelo(proyecto.panel, proyecto.registro.csPanel);
    ExigirModelo(proyecto.inversor, proyecto.registro.csInversor);
}

std::string Fecha()
{
    const auto ahora = LeerReloj();
    return ahora ? std::to_string(ahora->iDia) + '-' + std::to_string(ahora->iMes) + '-' +
                       std::to_string(ahora->iAno)
                 : std::string();
}

template <class DISENO>
std::string Informe(const CProyectoEstudio& origen, const DISENO& diseno)
{
    if (!HayDiseno(diseno))
        throw std::runtime_error("Todavía no hay diseño: lo propone su asistente.");
    auto proyecto = report::ProyectoDe(diseno, CatalogosDelModulo());
    proyecto.titulo = CadenaUtf8(origen.csNombre);
    proyecto.lugar = LugarDelInforme(origen.lugar);
    ExigirModelos(proyecto);
    const auto estudio = report::Calcular(proyecto, phGetBaseFactorK());
    return report::DocumentoHtml(
        report::EscribirDocumento(proyecto, estudio, report::Avisos(proyecto, estudio)), Fecha());
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
