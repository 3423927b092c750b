#include "energia/estudio.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include <quorvel/solar.h>

#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/tabla_k.h"

namespace efv::orden {

namespace {

// More than any plane gets on the mean of a month, kWh/m²·day.
constexpr double kRIMaxima = 15.0;
// A tilt that multiplies the radiation by more stands on a sun that hardly rises.
constexpr double kRazonMaxima = 5.0;

// Names of the months that `elegido(month)` picks.
template <class Elegido>
std::string NombresDeMeses(Elegido&& elegido)
{
    std::string nombres;
    for (std::size_t m = 0; m < kMeses; ++m)
        if (elegido(m))
            nombres += (nombres.empty() ? "" : ", ") + NombreMes(m);
    return nombres;
}

void AnotarCampo(Estudio& estudio)
{
    const Campo& campo = estudio.encargo.campo;
    if (estudio.encargo.bInclinacionPropia)
        estudio.notas.push_back(
            fmt::format("Inclinación no indicada: se toma la latitud sin signo, redondeada ({}°).",
                        Decimal(campo.dInclinacion, 0)));
    std::string orientacion = "Los dos métodos calculan un campo orientado al ecuador";
    if (campo.dOrientacion != campo.OrientacionEcuador())
        orientacion += fmt::format(", aunque se pida {}°", DecimalExacto(campo.dOrientacion));
    estudio.notas.push_back(orientacion + ": la energía con la orientación se calcula aparte, hora a hora.");
    if (estudio.encargo.origen == solar::OrigenHoras::cielo) {
        estudio.notas.emplace_back(
            "El cielo despejado reparte la radiación de cada mes entre los planos; su parte directa es mayor "
            "que la de un cielo real, y la orientación pesa algo más.");
    }
    if (!campo.bNorte && estudio.correlacion) {
        estudio.notas.push_back(
            fmt::format("Hemisferio sur: la correlación inclina hacia el sur, por lo que se consulta con {}° "
                        "para que sea el mismo campo, inclinado {}° hacia el norte.",
                        DecimalExacto(campo.InclinacionCorrelacion()), DecimalExacto(campo.dInclinacion)));
    }
}

void AnotarCorrelacion(Estudio& estudio)
{
    const solar::AnoEnergia& resultado = *estudio.correlacion;
    estudio.notas.emplace_back(
        "Correlación: octubre lleva la declinación del día 270 del año (27 de septiembre); de ahí que difiera "
        "de la tabla más que los otros meses.");
    const auto sinValor = [&](std::size_t m) { return !std::isfinite(resultado.meses[m].dPlano); };
    if (const std::string meses = NombresDeMeses(sinValor); !meses.empty())
        estudio.notas.push_back(
            fmt::format("Correlación sin valor en {}: el sol no sale o no se pone a esa latitud.", meses));
    const auto dudoso = [&](std::size_t m) {
        const auto& [dHorizontal, dPlano, dDia, dMes] = resultado.meses[m];
        return dPlano < 0.0 || dPlano > std::min(kRIMaxima, kRazonMaxima * dHorizontal);
    };
    if (const std::string meses = NombresDeMeses(dudoso); !meses.empty()) {
        estudio.notas.push_back(
            fmt::format("Correlación dudosa en {}: el sol apenas sale, o la radiación dada "
                        "no concuerda con la latitud.",
                        meses));
    }
}

void AnotarMetodos(Estudio& estudio)
{
    const Campo& campo = estudio.encargo.campo;
    if (estudio.encargo.bTabla && !estudio.tabla)
        estudio.notas.push_back(
            fmt::format("Tabla: no llega a la latitud {}°.", DecimalExacto(campo.dLatitud)));
    estudio.notas.push_back(fmt::format(
        "Energía: RI × potencia × PR × factor, por cualquiera de los métodos; PR × factor = {}. Año "
        "de 365 días.",
        DecimalExacto(campo.dPR * campo.dFactor)));
    if (estudio.tabla && estudio.correlacion)
        estudio.notas.emplace_back(
            "La cifra que se usa es la de la tabla, la misma de los diseños; la correlación sirve de "
            "comparación.");
}

}  // namespace

Estudio Estudiar(Encargo encargo)
{
    Estudio estudio;
    if (encargo.bTabla)
        CargarTablaK(encargo.csDatos);
    const auto calcular = [&](solar::Metodo metodo) {
        return solar::CalcularEnergia(encargo.campo, metodo, phGetBaseFactorK());
    };
    if (encargo.bTabla)
        estudio.tabla = calcular(solar::Metodo::tabla);
    if (encargo.bCorrelacion)
        estudio.correlacion = calcular(solar::Metodo::correlacion);
    estudio.orientada = solar::CalcularPlanos(encargo.campo, encargo.lugar ? encargo.lugar->dAltitud : 0.0,
                                              encargo.planos, encargo.origen);
    estudio.encargo = std::move(encargo);
    if (!estudio.tabla && !estudio.correlacion)
        throw ErrorEjecucion(fmt::format("la tabla de factores K no llega a la latitud {}°",
                                         DecimalExacto(estudio.encargo.campo.dLatitud)));
    AnotarCampo(estudio);
    if (estudio.correlacion)
        AnotarCorrelacion(estudio);
    AnotarMetodos(estudio);
    return estudio;
}

}  // namespace efv::orden
