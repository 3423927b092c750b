#include "diseno/comprobaciones.h"

#include <algorithm>
#include <cmath>

#include "comun/numeros.h"
#include "diseno/equipos.h"

namespace efv::estudio {

namespace {

using assistants::Comprobacion;

constexpr double kCiento = 100.0;

template <class DISENO>
std::optional<DisenoCalculado> Calcular(const DISENO& diseno, const report::Portada& portada)
{
    auto estudio = report::EstudioDe(diseno, portada, CatalogosDelModulo(), phGetBaseFactorK());
    if (!estudio)
        return std::nullopt;
    return DisenoCalculado{portada.temperaturas, std::move(estudio->comprobacion),
                           std::move(estudio->propuesta), estudio->cableado,
                           report::EnergiaDe(*estudio, portada)};
}

CString Margen(const Comprobacion& c, bool bMinimo)
{
    if (c.dLimite <= 0.0 || !std::isfinite(c.dValor))
        return L"—";
    const double dLibre = bMinimo ? c.dValor - c.dLimite : c.dLimite - c.dValor;
    return Decimal(dLibre / c.dLimite * kCiento, 1) + L" %";
}

CString Resultado(const Comprobacion& c)
{
    return !c.bCumple ? L"? sin dato" : *c.bCumple ? L"✓ cumple" : L"✗ NO CUMPLE";
}

LineaComprobacion Linea(const Comprobacion& c)
{
    const report::TextoLimite& texto = report::TextoDe(c.limite);
    LineaComprobacion linea;
    linea.csNombre = CadenaDesdeUtf8(texto.rotulo);
    linea.csValor = CadenaDesdeUtf8(report::Con(c.dValor, texto.iDecimales, texto.unidad));
    linea.csLimite = CadenaDesdeUtf8(report::LimiteDe(c));
    linea.csMargen = Margen(c, texto.bMinimo);
    linea.csResultado = Resultado(c);
    linea.bCumple = c.bCumple;
    return linea;
}

}  // namespace

std::optional<DisenoCalculado> CalcularDiseno(const CProyectoEstudio& proyecto, Diseno diseno)
{
    const report::Portada portada = PortadaDe(proyecto);
    return diseno == Diseno::aislada ? Calcular(proyecto.aislada, portada) : Calcular(proyecto.red, portada);
}

std::vector<LineaComprobacion> ComprobacionesDe(const assistants::ComprobacionCampo& comprobacion)
{
    std::vector<LineaComprobacion> lineas;
    lineas.reserve(comprobacion.limites.size());
    for (const Comprobacion& c : comprobacion.limites)
        lineas.push_back(Linea(c));
    return lineas;
}

CString TextoPropuesta(const DisenoCalculado& calculado)
{
    if (!calculado.propuesta)
        return {};
    return L"Propuesta comprobada: " + CadenaDesdeUtf8(report::TextoDe(*calculado.propuesta));
}

CString TextoVeredicto(const DisenoCalculado& calculado)
{
    const auto cuenta = [&](std::optional<bool> bCumple) {
        return std::ranges::count(calculado.comprobacion.limites, bCumple, &Comprobacion::bCumple);
    };
    const auto nFallan = cuenta(false), nSinDato = cuenta(std::nullopt);
    CString csTexto = nFallan == 0   ? CString(L"✓ Ningún límite se pasa")
                      : nFallan == 1 ? CString(L"✗ 1 comprobación no se cumple")
                                     : L"✗ " + std::to_wstring(nFallan) + L" comprobaciones no se cumplen";
    if (nSinDato > 0)
        csTexto += L"; " + std::to_wstring(nSinDato) + L" sin dato";
    return csTexto + L" (células de " + Decimal(calculado.temperaturas.Minima(), 0) + L" a " +
           Decimal(calculado.temperaturas.Maxima(), 0) + L" ºC)";
}

}  // namespace efv::estudio
