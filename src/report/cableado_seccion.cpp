// The cables of a design in its report and among its warnings.
#include <algorithm>

#include <fmt/format.h>

#include <quorvel/report/cableado.h>
#include <quorvel/report/texto.h>

#include "electrical/vocabulario_cables.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

constexpr const char* kSinDato = "—";
constexpr double kMargenGeneradores = 25.0;  // %

std::string Instalacion(const electrical::TramoCable& tramo)
{
    return fmt::format("{} · {} · {}", CadenaUtf8(CString(electrical::NombreMetodo(tramo.iMetodo))),
                       CadenaUtf8(CString(electrical::NombreMaterial(tramo.iMaterial))),
                       CadenaUtf8(CString(electrical::NombreAislante(tramo.iAislante))));
}

std::vector<std::string> FilaDe(const TramoDiseno& t)
{
    const auto& c = t.calculo;
    const int n = t.tramo.iConductoresFase;
    const bool bCaida = t.bDatos && t.bLongitud && c.dSeccion > 0.0;
    return {t.clave.starts_with('L') ? fmt::format("{} [{}]", t.nombre, t.clave) : t.nombre,
            std::to_string(t.iCuantos),
            t.bLongitud ? Con(t.tramo.dLongitud, 2, "m") : kSinDato,
            t.tramo.dTension > 0.0 ? Con(t.tramo.dTension, 1, "V") : kSinDato,
            t.tramo.dCorriente > 0.0 ? Con(t.tramo.dCorriente, 2, "A") : kSinDato,
            Instalacion(t.tramo),
            TextoSeccion(c.dPorCorriente, n),
            t.bLongitud ? TextoSeccion(c.dPorCaida, n) : kSinDato,
            TextoSeccion(c.dSeccion, n),
            bCaida ? Con(c.dCaida, 2, "V") : kSinDato,
            bCaida ? Con(c.dCaidaPct, 2, "%") : kSinDato,
            Con(t.tramo.dLimiteCaida, 2, "%"),
            !t.bDatos    ? "sin dato"
            : t.Cumple() ? "cumple"
                         : "NO CUMPLE"};
}

Cuadro CuadroTramos(const Cableado& cableado)
{
    Cuadro cuadro;
    cuadro.titulo = "Tramos";
    cuadro.columnas = {{"Tramo", false},        {"Nº", true},        {"Longitud", true},
                       {"Tensión", true},       {"Corriente", true}, {"Instalación", false},
                       {"Por corriente", true}, {"Por caída", true}, {"Sección", true},
                       {"Caída", true},         {"Caída (%)", true}, {"Límite", true},
                       {"Resultado", false}};
    for (const TramoDiseno& tramo : cableado.tramos)
        cuadro.filas.push_back(FilaDe(tramo));
    return cuadro;
}

Cuadro CuadroEntradas(const Cableado& cableado)
{
    Cuadro cuadro;
    cuadro.titulo = "Entradas de cada inversor";
    cuadro.columnas = {{"Entrada", false}, {"Seguidor", true}, {"Ramales", true},
                       {"Paneles", true},  {"Tensión", true},  {"Corriente", true}};
    for (const EntradaDiseno& entrada : cableado.entradas) {
        const bool bLibre = entrada.iRamales == 0;
        cuadro.filas.push_back(
            {CadenaUtf8(entrada.csReferencia), std::to_string(entrada.iSeguidor),
             bLibre ? "libre" : std::to_string(entrada.iRamales),
             bLibre ? kSinDato : fmt::format("{} × {}", cableado.iPanelesSerie, entrada.iRamales),
             bLibre ? kSinDato : Con(cableado.dTensionRamal, 1, "V"),
             bLibre ? kSinDato : Con(entrada.dCorriente, 2, "A")});
    }
    return cuadro;
}

}  // namespace

Seccion SeccionCableado(const Cableado& cableado)
{
    Seccion seccion("Cableado");
    seccion.cuadros.push_back(CuadroTramos(cableado));
    if (!cableado.entradas.empty())
        seccion.cuadros.push_back(CuadroEntradas(cableado));
    for (const TramoDiseno& tramo : cableado.tramos)
        if (!tramo.Cumple())
            seccion.notas.push_back(fmt::format("{}: {}.", tramo.nombre, MotivoDe(tramo.tramo, tramo.calculo)));
    double dMargen = 0.0;
    for (const TramoDiseno& tramo : cableado.tramos)
        dMargen = std::max(dMargen, tramo.tramo.dMargen);
    seccion.notas.push_back(fmt::format(
        "Sección: la mayor de las que piden el calentamiento (corriente con un margen de hasta {}) y la caída "
        "de tensión. Corrientes de la tabla para 30 ºC de aire y 20 ºC de suelo, corregidas por la "
        "temperatura; "
        "caída en trifásica con el factor 1,739130435; conductor a la temperatura que admite su aislamiento. "
        "No cambia ningún resultado del dimensionado.",
        Con(dMargen, 1, "%")));
    if (dMargen >= kMargenGeneradores)
        seccion.fuentes.emplace_back("margen del 25 % sobre la corriente de lo que genera, ITC-BT-40.");
    return seccion;
}

void AvisarDelCableado(const Cableado& cableado, std::vector<Aviso>& avisos)
{
    for (const TramoDiseno& tramo : cableado.tramos)
        if (!tramo.Cumple())
            avisos.push_back(
                {true, fmt::format("Cableado, {}: {}.", tramo.nombre, MotivoDe(tramo.tramo, tramo.calculo))});
}

}  // namespace efv::report
