// The check of a field of panels at the temperatures of the place, told.
#include <array>
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/disenos.h>
#include <quorvel/report/texto.h>

#include "catalogues/format/ausencias.h"
#include "catalogues/kinds/panel_foto.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

using assistants::SinPropuesta;

// In the order of assistants::Limite.
constexpr auto kTextos = std::to_array<TextoLimite>({
    {"Tensión a circuito abierto, frío: entrada del inversor", "tension_vacio_inversor", "V", 1, false},
    {"Tensión a circuito abierto, frío: sistema del módulo", "tension_vacio_modulo", "V", 1, false},
    {"Tensión en máxima potencia, frío: rango MPPT", "tension_mpp_maxima", "V", 1, false},
    {"Tensión en máxima potencia, calor: rango MPPT", "tension_mpp_minima", "V", 1, true},
    {"Corriente en máxima potencia de un seguidor", "corriente_mpp", "A", 2, false},
    {"Corriente de cortocircuito de un seguidor, calor", "corriente_cortocircuito", "A", 2, false},
    {"Potencia del campo de un inversor", "potencia_cc", "W", 0, false},
    {"Ramales de un inversor: entradas", "ramales", "", 0, false},
    {"Tensión a circuito abierto, frío: regulador", "tension_vacio_regulador", "V", 1, false},
    {"Tensión en máxima potencia, calor: regulador", "tension_mpp_regulador", "V", 1, true},
    {"Corriente de cortocircuito del campo, calor: regulador", "corriente_regulador", "A", 2, false},
});

// In the order of assistants::SinPropuesta.
constexpr auto kMotivos = std::to_array<const char*>({
    "",
    "el inversor no es para conexión a red",
    "el catálogo no da las tensiones o potencias que hacen falta",
    "ningún número de paneles en serie cabe en las tensiones del inversor y del módulo a estas temperaturas",
    "un solo ramal pasa de la corriente de un seguidor",
    "el ramal más corto que admiten las tensiones pasa de la potencia del inversor",
    "ningún número de paneles en serie cabe en las tensiones del regulador y del módulo a estas temperaturas",
    "un solo ramal pasa de la corriente del regulador",
    "ningún campo que cabe en el regulador alcanza la potencia necesaria",
    "ningún reparto en ramales iguales cumple los límites",
});

}  // namespace

const TextoLimite& TextoDe(assistants::Limite limite)
{
    return kTextos.at(static_cast<std::size_t>(limite));
}

std::string LimiteDe(const assistants::Comprobacion& comprobacion)
{
    if (comprobacion.dLimite <= 0.0)
        return "—";
    const TextoLimite& texto = TextoDe(comprobacion.limite);
    return fmt::format("{} {}", texto.bMinimo ? "mín." : "máx.",
                       Con(comprobacion.dLimite, texto.iDecimales, texto.unidad));
}

const char* ResultadoDe(const assistants::Comprobacion& comprobacion)
{
    if (!comprobacion.bCumple)
        return "sin dato";
    return *comprobacion.bCumple ? "cumple" : "no cumple";
}

std::string MotivoDe(const assistants::PropuestaComprobada& propuesta)
{
    if (propuesta.falta == SinPropuesta::ninguna && !propuesta.bSeguidoresIguales)
        return "ningún reparto igual entre los seguidores cabe: quedan con distinto número de ramales";
    return kMotivos.at(static_cast<std::size_t>(propuesta.falta));
}

std::string TextoDe(const assistants::PropuestaComprobada& propuesta)
{
    const std::string motivo = MotivoDe(propuesta);
    if (propuesta.falta != SinPropuesta::ninguna)
        return "no la hay: " + motivo;
    const int n = propuesta.iInversores;
    const std::string inversores = n == 0   ? std::string()
                                   : n == 1 ? std::string("1 inversor de ")
                                            : fmt::format("{} inversores de ", n);
    return fmt::format("{}{} × {} paneles, {}{}", inversores, propuesta.iPanelesSerie, propuesta.iRamales,
                       Con(propuesta.dPotencia, 2, "kW"), motivo.empty() ? "" : fmt::format(" ({})", motivo));
}

Seccion SeccionComprobacion(const TemperaturasCelulas& temperaturas,
                            const assistants::ComprobacionCampo& comprobacion,
                            const std::optional<assistants::PropuestaComprobada>& propuesta, bool bAlcanza)
{
    const std::string minima = Decimal(temperaturas.Minima(), 0), maxima = Decimal(temperaturas.Maxima(), 0);
    Seccion seccion(kTituloComprobacion);
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = fmt::format("Células de {} a {} ºC", minima, maxima);
    cuadro.columnas = {{"Comprobación", false}, {"Valor", true}, {"Límite", true}, {"Resultado", false}};
    for (const auto& c : comprobacion.limites) {
        const TextoLimite& texto = TextoDe(c.limite);
        cuadro.filas.push_back({texto.rotulo, Con(c.dValor, texto.iDecimales, texto.unidad), LimiteDe(c),
                                c.bCumple == false ? kNoCumple : ResultadoDe(c)});
    }
    std::string nota = fmt::format(
        "Frío: células a {} ºC; calor: a {} ºC; 1000 W/m². No cambia ningún resultado del dimensionado, que "
        "trabaja en condiciones STC.",
        minima, maxima);
    seccion.notas.push_back(std::move(nota));
    if (propuesta) {
        Dato comprobada{"Propuesta comprobada", TextoDe(*propuesta)};
        // Beside a design that is in order it is one that wasn't taken.
        if (bAlcanza && !comprobacion.Incumple())
            comprobada.enPagina.emplace();
        seccion.datos.push_back(std::move(comprobada));
    }
    seccion.fuentes.emplace_back("límites de los modelos elegidos, cuyos datos van en este informe.");
    return seccion;
}

std::string SupuestoTemperaturas(const TemperaturasCelulas& temperaturas)
{
    const auto porDefecto = [](const std::optional<double>& d) { return d ? "" : " (valor por defecto)"; };
    return fmt::format("Temperatura de las células: mínima {} ºC{}, máxima {} ºC{}.",
                       Decimal(temperaturas.Minima(), 1), porDefecto(temperaturas.dMinima),
                       Decimal(temperaturas.Maxima(), 1), porDefecto(temperaturas.dMaxima));
}

void AvisarDeLimites(const assistants::ComprobacionCampo& comprobacion, const CBasePanelFotoModelo& panel,
                     std::vector<Aviso>& avisos)
{
    for (const auto& c : comprobacion.limites) {
        const TextoLimite& texto = TextoDe(c.limite);
        // That of the inputs is told with the assistant's own words.
        if (c.bCumple != false || c.limite == assistants::Limite::ramales)
            continue;
        Aviso aviso{true, fmt::format("{}: {}, y el límite es {}.", texto.rotulo,
                                      Con(c.dValor, texto.iDecimales, texto.unidad),
                                      Con(c.dLimite, texto.iDecimales, texto.unidad))};
        avisos.push_back(std::move(aviso));
    }
    std::string faltan;
    using M = CBasePanelFotoModelo;
    for (const auto& [coeficiente, nombre] : {std::pair(&M::dCTVoc, "tensión a circuito abierto"),
                                              {&M::dCTPmpm, "potencia"},
                                              {&M::dCTIsc, "corriente de cortocircuito"}}) {
        if (panel.*coeficiente == 0.0 || catalogues::Omitido(panel, coeficiente))
            faltan += fmt::format("{}{}", faltan.empty() ? "" : ", ", nombre);
    }
    if (!faltan.empty()) {
        Aviso aviso{false, fmt::format("El catálogo no da los coeficientes de temperatura del módulo ({}): lo "
                                       "que depende de ellos queda sin comprobar.",
                                       faltan)};
        avisos.push_back(std::move(aviso));
    }
}

}  // namespace efv::report
