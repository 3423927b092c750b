#include "solar/mapa_zonas_dialogo.h"

#include <algorithm>
#include <array>

namespace efv::solar {

namespace {

struct Zona {
    std::wstring_view nombre;
    ui::Color color;
};
// From little to much sun.
constexpr auto kZonas = std::to_array<Zona>(
    {{L"I", 0xB4783C}, {L"II", 0x9CB43C}, {L"III", 0x46A05A}, {L"IV", 0x1E96E6}, {L"V", 0x2832C8}});

constexpr std::wstring_view kNota =
    L"Zona según la radiación anual del clima de referencia de cada municipio; la zona legal puede ser otra.";

}  // namespace

CCtrlCurva2D MapaDeZonas(std::span<const Localidad> localidades)
{
    CCtrlCurva2D mapa;
    mapa.csTitulo = L"Zonas climáticas por municipios";
    mapa.csTituloX = L"Longitud (º)";
    mapa.csTituloY = L"Latitud (º)";
    mapa.bMapa = true;
    for (const Zona& zona : kZonas) {
        ui::SerieCurva& serie = mapa.aSeries.emplace_back();
        serie.csNombre = L"Zona " + CString(zona.nombre);
        serie.color = zona.color;
        serie.forma = ui::FormaSerie::punto;
        for (const Localidad& l : localidades) {
            if (l.csZonaHE5 != zona.nombre)
                continue;
            serie.adX.push_back(l.dLongitud);
            serie.adY.push_back(l.dLatitud);
        }
    }
    return mapa;
}

}  // namespace efv::solar

CDlgMapaZonas::CDlgMapaZonas(std::span<const efv::Localidad> localidades, const CString& csFalta)
    : Dialogo("CDlgMapaZonas", L"Mapa de zonas climáticas")
{
    bAceptarVisible = false;
    bMaximizable = true;
    csCancelar = L"Cerrar";
    auto& imagen = Anadir<efv::ui::Grafica>("imagen", L"");
    imagen.datos = efv::solar::MapaDeZonas(localidades);
    imagen.colocacion.bEstirar = true;
    auto& nota = Anadir<efv::ui::TextoFijo>("csNota", L"");
    nota.csTexto = csFalta.empty() ? CString(efv::solar::kNota) : csFalta;
    nota.color = csFalta.empty() ? efv::ui::kNegro : efv::ui::kRojo;
}
