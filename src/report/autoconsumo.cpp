// A study of self-consumption, calculated, and what must be looked at in it.
#include <quorvel/report/autoconsumo.h>

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/framework/CException.h>
#include <quorvel/report/texto.h>
#include <quorvel/solar/produccion.h>

namespace efv::report {

namespace {

constexpr double kWhPorKWh = 1000.0;
/// Share of the production that an inverter takes away before it is worth a word.
constexpr double kRecorteNotable = 0.01;
/// Above this power there is no simplified compensation, kW.
constexpr double kMaximoCompensacion = 100.0;

// Hours of one kWp at the panels' age, before the inverter.
std::vector<double> HorasDeUnKWp(const ProyectoAutoconsumo& proyecto)
{
    const LugarDiseno& lugar = proyecto.lugar;
    const solar::CampoSolar campo{
        .dLatitud = lugar.dLatitud,
        .bNorte = lugar.bNorte,
        .adRadHorizontal = lugar.adRadiacion.value_or(solar::DoceMeses{}),
        .dPotencia = 1.0,
        .dPR = proyecto.dRendimiento,
        .dFactor = std::pow(1.0 - proyecto.registro.dEnvejecimiento / 100.0, proyecto.dEdad)};
    return economics::BloqueDeAno(
        solar::HorasDeLosPlanos(campo, lugar.Altitud(), proyecto.planos.planos, proyecto.planos.origen));
}

// Fills what a field of that power gives behind its inverter. @return what the inverter takes away, kWh
double Producir(const std::vector<double>& adUnKWp, double dPotencia, std::optional<double> dInversor,
                std::vector<double>& adProduccion)
{
    adProduccion.resize(adUnKWp.size());
    double dRecortada = 0.0;
    for (std::size_t i = 0; i < adUnKWp.size(); ++i) {
        const double d = std::max(adUnKWp[i] * dPotencia, 0.0);
        adProduccion[i] = dInversor ? std::min(d, *dInversor) : d;
        dRecortada += d - adProduccion[i];
    }
    return dRecortada;
}

HorasAutoconsumo HacerHoras(const ProyectoAutoconsumo& proyecto)
{
    HorasAutoconsumo horas;
    horas.adConsumo = economics::BloqueDeAno(proyecto.adConsumo);
    for (double& d : horas.adConsumo)
        d /= kWhPorKWh;
    horas.adPrecioConsumo = economics::BloqueDeAno(proyecto.adPrecioConsumo);
    horas.adPrecioVertido = economics::BloqueDeAno(proyecto.adPrecioVertido);
    return horas;
}

CSFVCalculoEconomicoAuto RegistroDe(const ProyectoAutoconsumo& proyecto, double dPotencia, double dInversor,
                                    double dCoste)
{
    CSFVCalculoEconomicoAuto registro = proyecto.registro;
    registro.csReferencia = CadenaDesdeUtf8(proyecto.titulo);
    registro.dPotenciaPaneles = dPotencia;
    registro.dPotenciaInversores = dInversor;
    registro.dPerformanceRatio = proyecto.dRendimiento;
    registro.dCosteInstalacion = dCoste;
    registro.dCapitalInicial = std::min(registro.dCapitalInicial, dCoste);
    return registro;
}

}  // namespace

double CosteAutoconsumo::De(double dPotencia, double dCapacidad) const
{
    return std::max(dFijo + dPorKWp * dPotencia + dPorKWhBateria * dCapacidad - dSubvencion, 0.0);
}

economics::HorasEstudio HorasAutoconsumo::Horas() const
{
    using economics::BloqueHorario;
    return {BloqueHorario(adProduccion), BloqueHorario(adConsumo), BloqueHorario(adPrecioConsumo),
            BloqueHorario(adPrecioVertido)};
}

EstudioAutoconsumo Calcular(const ProyectoAutoconsumo& proyecto)
{
    EstudioAutoconsumo e;
    e.horas = HacerHoras(proyecto);
    e.dRecortada =
        Producir(HorasDeUnKWp(proyecto), proyecto.dPotencia, proyecto.dInversor, e.horas.adProduccion);
    const double dCapacidad = proyecto.bateria ? proyecto.bateria->dCapacidad : 0.0;
    if (proyecto.bateria) {
        economics::OperarBateria(e.horas.Horas(), *proyecto.bateria, proyecto.regla, proyecto.dCosteDegradacion,
                                 e.operacion.emplace());
    }
    e.ano = economics::EstudiarAno(e.horas.Horas(), e.operacion ? &*e.operacion : nullptr,
                                   proyecto.dCosteDegradacion, proyecto.pago);
    e.registro = RegistroDe(proyecto, proyecto.dPotencia, proyecto.dInversor.value_or(proyecto.dPotencia),
                            proyecto.coste.De(proyecto.dPotencia, dCapacidad));
    e.rentabilidad = economics::CalcularRentabilidad(e.ano, proyecto.inversion, e.registro);
    return e;
}

std::vector<PuntoBarrido> Barrer(const ProyectoAutoconsumo& proyecto, std::span<const double> adPotencias,
                                 std::span<const double> adCapacidades)
{
    const std::vector<double> adUnKWp = HorasDeUnKWp(proyecto);
    HorasAutoconsumo horas = HacerHoras(proyecto);
    const double dPropia = proyecto.bateria ? proyecto.bateria->dCapacidad : 0.0;
    const std::array adPropia = {dPropia};
    if (adCapacidades.empty())
        adCapacidades = adPropia;
    if (!proyecto.bateria && std::ranges::any_of(adCapacidades, [](double d) { return d > 0.0; }))
        throw CInvalidArgException("a sweep of batteries needs one to scale");
    const double dPorKWp = proyecto.dInversor ? *proyecto.dInversor / proyecto.dPotencia : 0.0;
    std::vector<PuntoBarrido> puntos;
    puntos.reserve(adPotencias.size() * adCapacidades.size());
    economics::OperacionBateria operacion;
    for (const double dPotencia : adPotencias) {
        const auto inversor = proyecto.dInversor ? std::optional(dPorKWp * dPotencia) : std::nullopt;
        Producir(adUnKWp, dPotencia, inversor, horas.adProduccion);
        for (const double dCapacidad : adCapacidades) {
            const bool bBateria = dCapacidad > 0.0;
            if (bBateria) {
                economics::Bateria bateria = *proyecto.bateria;
                const double dEscala = dCapacidad / dPropia;
                bateria.dCapacidad = dCapacidad;
                bateria.dPotenciaCarga *= dEscala;
                bateria.dPotenciaDescarga *= dEscala;
                bateria.dEstadoInicial = std::min(bateria.dEstadoInicial * dEscala, dCapacidad);
                economics::OperarBateria(horas.Horas(), bateria, proyecto.regla, proyecto.dCosteDegradacion,
                                         operacion);
            }
            const auto ano = economics::EstudiarAno(horas.Horas(), bBateria ? &operacion : nullptr,
                                                    proyecto.dCosteDegradacion, proyecto.pago);
            auto registro = RegistroDe(proyecto, dPotencia, inversor.value_or(dPotencia),
                                       proyecto.coste.De(dPotencia, dCapacidad));
            const auto r = economics::CalcularRentabilidad(ano, proyecto.inversion, registro);
            puntos.push_back({dPotencia, dCapacidad, registro.dCosteInstalacion, ano.total.dAhorro,
                              ano.total.Cobertura(), ano.total.Aprovechamiento(), r.recuperacion, r.tasa,
                              r.dAcumulado});
        }
    }
    return puntos;
}

std::vector<Aviso> Avisos(const ProyectoAutoconsumo& proyecto, const EstudioAutoconsumo& e)
{
    std::vector<Aviso> avisos;
    const auto avisarSi = [&](bool bAvisar, bool bFalta, std::string texto) {
        if (bAvisar)
            avisos.push_back({bFalta, std::move(texto)});
    };
    const auto& total = e.ano.total;
    avisarSi(!std::isfinite(total.dProducida), true,
             "La radiación del lugar contradice su latitud: hay radiación en un mes sin sol.");
    avisarSi(!(total.dConsumida > 0.0), true, "No hay consumo: nada que autoconsumir.");
    avisarSi(!e.rentabilidad.recuperacion.bViable, true,
             "El ahorro no llega a pagar la inversión: no hay años de recuperación.");
    avisarSi(e.rentabilidad.recuperacion.bViable && e.registro.dAniosRecuperacion > proyecto.inversion.iAnos,
             true,
             fmt::format("La inversión tarda {} años en recuperarse, más que los {} del estudio.",
                         Decimal(e.registro.dAniosRecuperacion, 1), proyecto.inversion.iAnos));
    avisarSi(e.registro.dCosteInstalacion > 0.0 && !e.rentabilidad.tasa.bHallada, true,
             "La tasa interna de retorno no está al alcance de la búsqueda, de -50 a 150 %: se da como 0.");
    avisarSi(e.dRecortada > kRecorteNotable * total.dProducida, true,
             fmt::format("La potencia del inversor recorta {} al año.", Con(e.dRecortada, 1, "kWh")));
    const double dPerdido = total.dValorVertido - total.dCompensado;
    avisarSi(dPerdido > 0.005, false,
             fmt::format("El límite mensual de la compensación deja sin pagar {} de excedentes al año.",
                         Con(dPerdido, 2, "€")));
    avisarSi(proyecto.pago == economics::PagoVertido::compensacion &&
                 e.registro.dPotenciaInversores > kMaximoCompensacion,
             true, "La compensación simplificada no admite más de 100 kW.");
    for (const std::string& nota : proyecto.notas)
        avisos.push_back({false, nota});
    return avisos;
}

}  // namespace efv::report
