#include "energia/estudio.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include <QuorvelEFV.h>

#include "comun/consola.h"
#include "comun/numeros.h"
#include "comun/tabla_k.h"

namespace efv::orden {

namespace {

constexpr std::size_t kFebrero = 1;
// More than any plane gets on the mean of a month, kWh/m²·day.
constexpr double kRIMaxima = 15.0;
// A tilt that multiplies the radiation by more stands on a sun that hardly rises.
constexpr double kRazonMaxima = 5.0;
constexpr double kKJporKWh = 3600.0;

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
    std::string orientacion =
        "La orientación no entra en ninguna fórmula: los dos métodos calculan un campo orientado al ecuador";
    if (campo.dOrientacion != campo.OrientacionEcuador())
        orientacion += fmt::format(", aunque se pida {}°", DecimalExacto(campo.dOrientacion));
    estudio.notas.push_back(orientacion + ".");
    if (campo.EsSur() && estudio.correlacion) {
        estudio.notas.push_back(
            fmt::format("Hemisferio sur: la correlación inclina hacia el sur, por lo que se consulta con {}° "
                        "para que sea el mismo campo, inclinado {}° hacia el norte.",
                        DecimalExacto(campo.InclinacionCorrelacion()), DecimalExacto(campo.dInclinacion)));
    }
}

void AnotarCorrelacion(Estudio& estudio)
{
    const Resultado& resultado = *estudio.correlacion;
    estudio.notas.push_back(fmt::format("Correlación: febrero con {} días, por el año del reloj ({}).",
                                        phGetNumDiasMes(estudio.iAnoReloj, kFebrero), estudio.iAnoReloj));
    estudio.notas.emplace_back(
        "Correlación: octubre lleva la declinación del día 270 del año (27 de septiembre); de ahí que difiera "
        "de la tabla más que los otros meses.");
    const auto sinValor = [&](std::size_t m) { return !std::isfinite(resultado.meses[m].dRI); };
    if (const std::string meses = NombresDeMeses(sinValor); !meses.empty())
        estudio.notas.push_back(
            fmt::format("Correlación sin valor en {}: el sol no sale o no se pone a esa latitud.", meses));
    const auto dudoso = [&](std::size_t m) {
        const double dRI = resultado.meses[m].dRI;
        const double dHorizontal = estudio.encargo.campo.adRadHorizontal[m] / kKJporKWh;
        return dRI < 0.0 || dRI > std::min(kRIMaxima, kRazonMaxima * dHorizontal);
    };
    if (const std::string meses = NombresDeMeses(dudoso); !meses.empty()) {
        estudio.notas.push_back(
            fmt::format("Correlación dudosa en {}: el sol apenas sale, o la radiación dada "
                        "no concuerda con la latitud.",
                        meses));
    }
}

void AnotarTabla(Estudio& estudio)
{
    const Campo& campo = estudio.encargo.campo;
    if (!estudio.tabla) {
        estudio.notas.push_back(
            fmt::format("Tabla: no llega a la latitud {}°.", DecimalExacto(campo.dLatitud)));
        return;
    }
    const double dReduccion = campo.dPR * campo.dFactor;
    std::string nota = "Tabla: no aplica ni PR ni factor, y cuenta febrero con 29 días";
    if (dReduccion != 1.0)
        nota += fmt::format("; por PR × factor = {} serían {} kWh al año", DecimalExacto(dReduccion),
                            Decimal(estudio.tabla->dEnergiaAno * dReduccion, 2));
    estudio.notas.push_back(nota + ".");
}

}  // namespace

Estudio Estudiar(Encargo encargo)
{
    Estudio estudio;
    if (encargo.bTabla)
        CargarTablaK(encargo.csDatos);
    if (encargo.bTabla)
        estudio.tabla = Calcular(encargo.campo, Metodo::tabla);
    if (encargo.bCorrelacion)
        estudio.correlacion = Calcular(encargo.campo, Metodo::correlacion);
    estudio.encargo = std::move(encargo);
    if (!estudio.tabla && !estudio.correlacion)
        throw ErrorEjecucion(fmt::format("la tabla de factores K no llega a la latitud {}°",
                                         DecimalExacto(estudio.encargo.campo.dLatitud)));
    estudio.iAnoReloj = phGetAnoActual();
    AnotarCampo(estudio);
    if (estudio.correlacion)
        AnotarCorrelacion(estudio);
    if (estudio.encargo.bTabla)
        AnotarTabla(estudio);
    return estudio;
}

}  // namespace efv::orden
