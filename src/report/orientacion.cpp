// What the true orientation of the panels does to a design's energy.
#include <array>
#include <span>

#include <fmt/format.h>

#include <quorvel/report/texto.h>

#include "report/secciones.h"

namespace efv::report {

namespace {

// Below this the methods' own differences are larger.
constexpr double kPerdidaNotable = 0.02;

}  // namespace

solar::EnergiaPlanos CalcularPlanos(const PlanosDiseno& planos, const LugarDiseno& lugar,
                                    const solar::CampoSolar& campo, double dOrientacion)
{
    const std::array propio = {solar::PlanoCampo{campo.dInclinacion, dOrientacion, 1.0}};
    return solar::CalcularPlanos(
        campo, lugar.Altitud(),
        planos.planos.empty() ? std::span<const solar::PlanoCampo>(propio) : planos.planos, planos.origen);
}

Seccion SeccionOrientacion(const solar::EnergiaPlanos& energia)
{
    Seccion seccion("Energía con la orientación de los paneles");
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Energía del año, hora a hora: " + solar::NombreDeOrigen(energia.origen);
    cuadro.columnas = {
        {"Plano", false},    {"Inclinación (°)", true},         {"Orientación (°)", true},
        {"Parte (%)", true}, {TituloEn("Energía (kWh)"), true}, {TituloEn("Hacia el ecuador (kWh)"), true}};
    double dParte = 0.0;
    for (std::size_t i = 0; i < energia.planos.size(); ++i) {
        const auto& [plano, ano, alEcuador] = energia.planos[i];
        dParte += plano.dParte;
        cuadro.filas.push_back({std::to_string(i + 1), Decimal(plano.dInclinacion, 1),
                                Decimal(plano.dOrientacion, 1), Decimal(plano.dParte * 100.0, 1),
                                DecimalEn(ano.Energia(), 1, "kWh"), DecimalEn(alEcuador.Energia(), 1, "kWh")});
    }
    if (energia.planos.size() > 1) {
        cuadro.bTotal = true;
        cuadro.filas.push_back({"Total", "", "", Decimal(dParte * 100.0, 1),
                                DecimalEn(energia.Energia(), 1, "kWh"),
                                DecimalEn(energia.EnergiaAlEcuador(), 1, "kWh")});
    }
    seccion.notas = {fmt::format(
        "La orientación quita el {} % de lo que darían los mismos planos hacia el ecuador. La energía de "
        "las demás tablas es, por definición del método, la de un campo que mira al ecuador.",
        Decimal(energia.Perdida() * 100.0, 1))};
    return seccion;
}

void AvisarDeOrientacion(const solar::EnergiaPlanos& energia, std::vector<Aviso>& avisos)
{
    if (energia.Perdida() > kPerdidaNotable) {
        avisos.push_back(
            {false, fmt::format("La orientación de los paneles quita el {} % de la energía del año: {} en "
                                "vez de {} hacia el ecuador, que es lo que cuentan el dimensionado y las "
                                "tablas mensuales.",
                                Decimal(energia.Perdida() * 100.0, 1), Con(energia.Energia(), 0, "kWh"),
                                Con(energia.EnergiaAlEcuador(), 0, "kWh"))});
    }
}

}  // namespace efv::report
