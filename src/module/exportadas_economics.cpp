// Exported functions of the economic studies.
#include <algorithm>
#include <array>
#include <utility>

#include <quorvel/economics.h>
#include <quorvel/economics_calculo.h>

#include "economics/autoconsumo_hoja.h"
#include "economics/detalle_horas_dialogo.h"
#include "economics/generador_tarifa_dialogo.h"
#include "economics/venta_dialogo.h"
#include "frame/recursos.h"
#include "module/singletons.h"
#include "solar/energia.h"

using efv::frame::AmbitoRecursos;
namespace ec = efv::economics;

namespace {

/// Runs what the three studies share on a record of the right class, then adds the months that `meses` makes of
/// it.
template <class MESES>
int Estudiar(CObject* registro, MESES&& meses)
{
    const AmbitoRecursos ambito;
    auto* estudio = dynamic_cast<CSFVCalculoEconomico*>(registro);
    if (estudio == nullptr)
        return 1;
    ec::ComprobarAnos(*estudio);
    ec::CalcularImportes(*estudio);
    ec::CalcularAnos(*estudio);
    ec::CalcularTIR(*estudio);
    ec::AnadirMeses(*estudio, meses(*estudio));
    return 1;
}

using BloqueC = double[12][31][24];

ec::BloqueHorario Bloque(const BloqueC& ad)
{
    return ec::BloqueHorario(&ad[0][0][0], ec::kHorasBloque);
}

/// Shows the sheet; accepted, its prices go into the blocks.
int Mostrar(CCalculoEconomicoAutoSheet& hoja, BloqueC& adPrecioConsumo, BloqueC& adPrecioVertido)
{
    if (hoja.Mostrar() != efv::ui::Dialogo::ok)
        return 0;
    std::ranges::copy(hoja.precioConsumo, &adPrecioConsumo[0][0][0]);
    std::ranges::copy(hoja.precioVertido, &adPrecioVertido[0][0][0]);
    return 1;
}

}  // namespace

int phCalcularViabilidadEconomicaRed(int iMetodo, double dLatitud, int iHemisferio,
                                     const double (&adRadHorizontal)[12], double dInclinacion,
                                     double /*dOrientacion*/, double dFactorAdicional, CObject* estudio)
{
    return Estudiar(estudio, [&](const CSFVCalculoEconomico& e) {
        const efv::solar::ConsultaRadiacion consulta{iMetodo,
                                                     dLatitud,
                                                     iHemisferio,
                                                     dInclinacion,
                                                     e.dPotenciaGenerador / 1000.0,
                                                     e.dPerformanceRatio / 100.0,
                                                     dFactorAdicional};
        const CBaseFactorK& tabla = efv::module::BaseFactorK();
        const double dMejora = e.dFactorMejora / 100.0 + 1.0;
        ec::MesesVenta meses;
        for (int m = 0; m < 12; ++m) {
            const auto i = static_cast<std::size_t>(m);
            const double dRad = adRadHorizontal[m];
            // A query that fails leaves 0.
            meses.adRadHorizontal[i] = dRad / 3600.0;
            meses.adRadInclinada[i] = efv::solar::RadiacionDia(consulta, m, dRad, tabla).value_or(0.0);
            meses.adEnergiaDia[i] = efv::solar::EnergiaDia(consulta, m, dRad, tabla).value_or(0.0) * dMejora;
            meses.adEnergiaMes[i] = efv::solar::EnergiaMes(consulta, m, dRad, tabla).value_or(0.0) * dMejora;
        }
        return meses;
    });
}

int phCalcularViabilidadEconomicaRed2(const double (&adHorizontal)[12], const double (&adInclinada)[12],
                                      const double (&/*adSinUso*/)[12], CObject* estudio)
{
    return Estudiar(estudio, [&](const CSFVCalculoEconomico& e) {
        return ec::MesesPorRadiacion(e, adHorizontal, adInclinada);
    });
}

int phCalcularViabilidadEconomicaRed3(const double (&adHorizontal)[12], const double (&adInclinada)[12],
                                      const double (&adEnergia)[12], CObject* estudio)
{
    return Estudiar(estudio, [&](const CSFVCalculoEconomico& e) {
        return ec::MesesPorEnergia(e, adHorizontal, adInclinada, adEnergia);
    });
}

int phViabilidadEconomicaRed(CSFVCalculoEconomico& estudio, const double (&/*adMesA*/)[12],
                             const double (&/*adMesB*/)[12], double /*dDato*/)
{
    const AmbitoRecursos ambito;
    CDlgCalculoEconomicoRed dialogo(estudio);
    if (dialogo.Mostrar() != efv::ui::Dialogo::ok)
        return 0;
    CSFVCalculoEconomico& editado = dialogo.datos;
    for (auto meses : {&CSFVCalculoEconomico::aRadHorizontal, &CSFVCalculoEconomico::aRadInclinada,
                       &CSFVCalculoEconomico::aEnergiaDia, &CSFVCalculoEconomico::aEnergiaMes})
        editado.*meses = std::move(estudio.*meses);
    estudio = editado;
    return 1;
}

int phViabilidadEconomicaAutoconsumo(const double* adProduccion, const double* adConsumo,
                                     const double* adCargaFV, const double* adAutoconsumoBat,
                                     const double* adVertidoBat, const double* adCargaRed,
                                     const double* adDescarga, double dCosteDegradacion,
                                     double (&adPrecioConsumo)[12][31][24],
                                     double (&adPrecioVertido)[12][31][24],
                                     CObArrayPropio<CSFVCalculoEconomicoAuto>& aEstudios)
{
    const AmbitoRecursos ambito;
    const ec::HorasBateria bateria{adCargaFV,  adAutoconsumoBat, adVertidoBat,
                                   adCargaRed, adDescarga,       dCosteDegradacion};
    CCalculoEconomicoAutoSheet hoja({adProduccion, adConsumo, bateria, &aEstudios}, Bloque(adPrecioConsumo),
                                    Bloque(adPrecioVertido));
    return Mostrar(hoja, adPrecioConsumo, adPrecioVertido);
}

int phPrecioEconomicoEnergetico(double (&adPrecioConsumo)[12][31][24], double (&adPrecioVertido)[12][31][24])
{
    const AmbitoRecursos ambito;
    CCalculoEconomicoAutoSheet hoja(Bloque(adPrecioConsumo), Bloque(adPrecioVertido));
    return Mostrar(hoja, adPrecioConsumo, adPrecioVertido);
}

int phShowDlgHorasDia(int (&aiHoras)[24])
{
    const AmbitoRecursos ambito;
    CDlgDetalleHoras dialogo(aiHoras);
    if (dialogo.Mostrar() != efv::ui::Dialogo::ok)
        return 0;
    std::ranges::copy(dialogo.aiHoras, aiHoras);
    return 1;
}

int efv::economics::AbrirGeneradorTarifa()
{
    const AmbitoRecursos ambito;
    return CDlgGeneradorTarifa().Mostrar();
}
