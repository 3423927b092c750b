// A grid-connected design as an engineer lays it out.
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/disenos.h>
#include <quorvel/report/texto.h>

#include "report/carencias.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

using V = assistants::ValoresRed;

bool FaltaPotencia(const V& v)
{
    constexpr double kTolerancia = 1e-6;  // kW
    return v.dPotenciaTotal < v.dPotenciaObjetivo - kTolerancia;
}

Seccion SeccionEquipos(const V& v)
{
    Seccion seccion("Objetivo y equipos");
    seccion.datos = {
        {"Potencia mínima instalada", Con(v.dPotenciaObjetivo, 2, "kW")},
        DatoModelo("Inversor", v.csInversor),
        {"Potencia Nominal", Con(v.inversor.dPCANom, 0, "W")},
        {"Salida", v.inversor.iTipoSalida == 0 ? "Monofasico" : "Trifasico"},
        {"Rango tensiones MPPT (máx./min.)",
         fmt::format("{}/{}", Decimal(v.inversor.dVMPPMax, 0), Con(v.inversor.dVMPPMin, 0, "V"))},
        {"Tensión máxima de entrada", Con(v.inversor.dVCCMax, 0, "V")},
        {"Corriente máxima de un seguidor", Con(v.inversor.dIMaxEntrada, 2, "A")},
        {"Seguidores y entradas", fmt::format("{} y {}", v.inversor.iNumMPPT, v.inversor.iNumEntradas)},
        DatoModelo("Panel", v.csPanel),
        {"Potencia máxima", Con(v.panel.dPmpm, 1, "Wp")},
        {"Tensión y corriente en máxima potencia",
         fmt::format("{}, {}", Con(v.panel.dVmpm, 2, "V"), Con(v.panel.dImpm, 2, "A"))},
        {"Tensión a circuito abierto", Con(v.panel.dVoc, 2, "V")},
    };
    return seccion;
}

Seccion SeccionCampo(const V& v)
{
    Seccion seccion("Inversores y campo de paneles");
    seccion.datos = {
        DatoDoble("Nº de inversores", v.iInversores, v.iInversoresP),
        DatoDoble("Nº de paneles por ramal", v.iPanelesSerie, v.iPanelesSerieP),
        DatoDoble("Nº de ramales en paralelo", v.iPanelesParalelo, v.iPanelesParaleloP),
        DatoDoble("Nº de paneles por inversor", v.iPanelesInversor, v.iPanelesInversorP),
        DatoDoble("Nº de paneles en total", v.iTotalPaneles, v.iTotalPanelesP),
        DatoDoble("Potencia de los paneles de un inversor", v.dPotenciaInversorCampo, v.dPotenciaInversorCampoP,
                  0, "Wp"),
        DatoDoble("Tensión del ramal", v.dTensionRamal, v.dTensionRamalP, 1, "V"),
        DatoDoble("Potencia total instalada", v.dPotenciaTotal, v.dPotenciaTotalP, 2, "kW"),
        DatoDoble("Potencia total de inversores", v.dPotenciaInversores, v.dPotenciaInversoresP, 2, "kW"),
    };
    seccion.datos[7].bFalta = FaltaPotencia(v);
    return seccion;
}

Seccion SeccionGeometria(const V& v)
{
    Seccion seccion("Geometría del campo de paneles");
    seccion.datos = {
        DatoDoble("Inclinación", v.dInclinacion, v.dInclinacionP, 2, "°"),
        DatoDoble("Orientación [0=Sur]", v.dOrientacion, v.dOrientacionP, 2, "°"),
        {"Disposición de paneles", v.iDisposicion == 0 ? "Vertical" : "Horizontal"},
        {"Nº máximo de paneles por fila", Con(v.dPanelesPorFila, 0, "")},
        {"Distancia panel - panel", Con(v.dDistanciaPaneles, 0, "mm")},
        DatoDoble("Distancia fila - fila", v.dDistanciaFilas, v.dDistanciaFilasP, 0, "mm"),
        DatoDoble("Superficie solar total", SinCero(v.dSuperficieTotal), SinCero(v.dSuperficieTotalP), 2, "m²"),
        DatoDoble("Superficie solar proyectada", SinCero(v.dSuperficieProyectada),
                  SinCero(v.dSuperficieProyectadaP), 2, "m²"),
        {"Longitud cableado Generador - Inversor [L1]", Con(v.dLongitudL1, 2, "m")},
        {"Longitud cableado Inversor - Caja conexión [L2]", Con(v.dLongitudL2, 2, "m")},
        {"Longitud cableado Caja Conexión - Red [L3]", Con(v.dLongitudL3, 2, "m")},
    };
    return seccion;
}

Seccion SeccionComprobacion(const ProyectoRed& proyecto, const EstudioRed& estudio)
{
    Seccion seccion = SeccionComprobacion(proyecto.temperaturas, estudio.comprobacion, estudio.propuesta,
                                          !FaltaPotencia(estudio.v));
    seccion.cuadros.front().filas.push_back({"Potencia de los paneles / nominal del inversor (CC/CA)",
                                             Decimal(estudio.comprobacion.dRatioCCCA, 2), "", ""});
    return seccion;
}

std::vector<Dato> Resumen(const EstudioRed& estudio)
{
    const V& v = estudio.v;
    std::vector<Dato> resumen = {
        {"Potencia instalada", Con(v.dPotenciaTotal, 2, "kWp")},
        {"Inversores", fmt::format("{} · {}", v.iInversores, Con(v.dPotenciaInversores, 2, "kW"))},
        {"Paneles",
         fmt::format("{} ({} × {} por inversor)", v.iTotalPaneles, v.iPanelesSerie, v.iPanelesParalelo)},
        {"Inclinación", Con(v.dInclinacion, 1, "°")}};
    if (estudio.orientada) {
        Dato perdida{"Pérdida por la orientación", Con(estudio.orientada->Perdida() * 100.0, 1, "%")};
        resumen.push_back(std::move(perdida));
    }
    if (estudio.ano) {
        Dato energia{"Energía del año", Con(estudio.ano->Energia(), 0, "kWh")};
        resumen.push_back(std::move(energia));
    }
    return resumen;
}

std::vector<Supuesto> Supuestos(const ProyectoRed& proyecto, bool bEnergia)
{
    const char* rendimiento = proyecto.dRendimiento ? "" : " (valor por defecto)";
    std::vector<Supuesto> supuestos;
    const auto anadir = [&](std::string texto, const char* seccion) {
        Supuesto supuesto{std::move(texto), seccion};
        supuestos.push_back(std::move(supuesto));
    };
    anadir(
        "Predimensionado en condiciones STC (G de 1000 W/m², AM 1.5 y Tª cel. 25ºC) y sin simulación horaria.",
        "");
    anadir(SupuestoTemperaturas(proyecto.temperaturas), kTituloComprobacion);
    anadir(
        "Tensión a circuito abierto y corriente de cortocircuito a una temperatura: por los coeficientes del "
        "módulo. Tensión en máxima potencia: la potencia a esa temperatura entre la corriente, que no cambia "
        "con ella.",
        kTituloComprobacion);
    anadir(
        "Los ramales se reparten entre los seguidores del inversor lo más igual posible. La corriente de "
        "cortocircuito no lleva margen por irradiancias superiores a 1000 W/m².",
        kTituloComprobacion);
    if (bEnergia) {
        anadir(fmt::format("Energía de un mes: potencia instalada × horas de sol pico × rendimiento {}{} × "
                           "días. La radiación "
                           "sobre el plano es la horizontal por el factor K de la tabla, para un campo "
                           "orientado al ecuador: la "
                           "orientación no entra en esa fórmula y se cuenta aparte. Sin sombras y sin recorte "
                           "por la potencia "
                           "del inversor.",
                           Decimal(proyecto.Rendimiento(), 2), rendimiento),
               kTituloMeses);
    }
    return supuestos;
}

}  // namespace

Documento EscribirDocumento(const ProyectoRed& proyecto, const EstudioRed& estudio, std::vector<Aviso> avisos)
{
    const V& v = estudio.v;
    Documento documento;
    documento.titulo = "Instalación solar fotovoltaica conectada a red";
    documento.proyecto = proyecto.titulo;
    documento.portada = proyecto.portada;
    documento.resumen = Resumen(estudio);
    documento.avisos = std::move(avisos);
    documento.secciones = {SeccionLugar(proyecto.lugar),
                           SeccionEsquema({EsquemaDe(proyecto, estudio, Detalle::unoAUno),
                                           EsquemaDe(proyecto, estudio, Detalle::agrupados)}),
                           SeccionEquipos(v),
                           SeccionCampo(v),
                           SeccionGeometria(v),
                           SeccionComprobacion(proyecto, estudio),
                           SeccionCableado(estudio.cableado)};
    if (estudio.ano)
        documento.secciones.push_back(SeccionMeses(proyecto.lugar, *estudio.ano, nullptr));
    if (estudio.orientada)
        documento.secciones.push_back(SeccionOrientacion(*estudio.orientada));
    documento.secciones.push_back(SeccionModelos(
        {Elegido("Inversor", *proyecto.inversor), Elegido("Panel fotovoltaico", *proyecto.panel)}));
    documento.supuestos = Supuestos(proyecto, estudio.ano.has_value());
    return documento;
}

}  // namespace efv::report
