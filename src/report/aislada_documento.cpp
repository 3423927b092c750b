// A stand-alone design as an engineer lays it out.
#include <cmath>

#include <fmt/format.h>

#include <quorvel/report/disenos.h>
#include <quorvel/report/texto.h>

#include "report/carencias.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

using V = assistants::ValoresAislada;

constexpr double kTolerancia = 1e-6;
constexpr const char *kTituloReceptores = "Receptores", *kTituloBalance = "Balance de energía";

bool FaltaPotencia(const V& v)
{
    return v.dPotenciaMinima > v.dPotenciaInstalada + kTolerancia;
}

Seccion SeccionReceptores(const ProyectoAislada& proyecto)
{
    Seccion seccion(kTituloReceptores);
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Receptores y su consumo diario";
    cuadro.bModelos = true;
    cuadro.bTotal = true;
    cuadro.columnas = {{"Modelo", false},      {"Cant.", true}, {"Red", false},
                       {"Potencia (W)", true}, {"h/día", true}, {"Consumo (Wh)", true}};
    double dPotencia = 0.0, dEnergia = 0.0;
    for (const auto& receptor : proyecto.receptores) {
        const double dConsumo = receptor->iCantidad * receptor->dPotencia * receptor->dHorasDia;
        cuadro.filas.push_back({CadenaUtf8(receptor->csModelo), std::to_string(receptor->iCantidad),
                                receptor->iTipoRed == 0 ? "CC" : "CA", Decimal(receptor->dPotencia, 2),
                                Decimal(receptor->dHorasDia, 2), Decimal(dConsumo, 2)});
        dPotencia += receptor->GetPcc();
        dEnergia += dConsumo;
    }
    cuadro.filas.push_back({"Total", "", "", Decimal(dPotencia, 2), "", Decimal(dEnergia, 2)});
    return seccion;
}

// What is lost on the way from the panels to the loads, one loss after another, in whole Wh a day that add up
// to what is printed of both ends.
struct Balance {
    double dReceptores, dAcumulador, dCableado, dAcoplamiento, dNecesaria;

    explicit Balance(const V& v)
    {
        const double dTrasAcoplar = v.dEnergiaNecesaria * (100 - v.dPerdidaAcoplamiento) / 100;
        const double dTrasCablear = dTrasAcoplar * (100 - v.dPerdidaCableado) / 100;
        dNecesaria = std::nearbyint(v.dEnergiaNecesaria);
        dReceptores = std::nearbyint(v.dEnergiaDiaria);
        dAcoplamiento = dNecesaria - std::nearbyint(dTrasAcoplar);
        dCableado = std::nearbyint(dTrasAcoplar) - std::nearbyint(dTrasCablear);
        dAcumulador = std::nearbyint(dTrasCablear) - dReceptores;
    }
};

Seccion SeccionEnergia(const V& v)
{
    Seccion seccion(kTituloBalance);
    const Balance balance(v);
    const auto horas = [](double d) { return Decimal(d, 2) + (std::isfinite(d) ? " kWh/m²·día" : ""); };
    const auto perdida = [](double dPorcentaje, double dEnergia) {
        return fmt::format("{} %, {}", Decimal(dPorcentaje, 2), Con(dEnergia, 0, "Wh/día"));
    };
    seccion.datos = {
        {"Energía diaria de los receptores", Con(balance.dReceptores, 0, "Wh/día")},
        {"Pérdidas en el acumulador", perdida(v.dPerdidaAcumulador, balance.dAcumulador)},
        {"Pérdidas en el cableado", perdida(v.dPerdidaCableado, balance.dCableado)},
        {"Pérdidas por acoplamiento", perdida(v.dPerdidaAcoplamiento, balance.dAcoplamiento)},
        {"Energía necesaria", Con(balance.dNecesaria, 0, "Wh/día")},
        {"Mes a considerar en el cálculo", NombreMes(v.iMesCalculo)},
        {"Mes de referencia para el dimensionado", CadenaUtf8(v.csMesReferencia)},
        // Hours of 1 kW/m², whatever unit radiation is shown in.
        {"Hora solar pico (H.S.P.)", horas(v.dHSP), horas(v.dHSPP)},
    };
    return seccion;
}

Seccion SeccionAcumuladores(const V& v)
{
    Seccion seccion("Acumuladores");
    const double dUtil = v.dCapacidadResultante * v.dTensionSistema * v.dProfundidadDescarga / 100;
    seccion.datos = {
        DatoModelo("Acumulador", v.csAcumulador),
        {"Capacidad y tensión nominal",
         fmt::format("{}, {}", Con(v.dCapacidadAcumulador, 1, "Ah"), Con(v.acumulador.dVnom, 1, "V"))},
        {"Días de autonomía", Con(v.dDiasAutonomia, 2, "")},
        {"Profundidad de descarga", Con(v.dProfundidadDescarga, 0, "%")},
        {"Tensión del sistema", Con(v.dTensionSistema, 0, "V")},
        {"Capacidad Nominal necesaria", Con(v.dCapacidadNecesaria, 1, "Ah")},
        DatoDoble("Capacidad Resultante", v.dCapacidadResultante, v.dCapacidadResultanteP, 1, "Ah"),
        DatoDoble("Nº de acumuladores por ramal", v.iAcumuladoresSerie, v.iAcumuladoresSerieP),
        DatoDoble("Nº de ramales en paralelo", v.iAcumuladoresParalelo, v.iAcumuladoresParaleloP),
        {"Nº de acumuladores en total", std::to_string(v.iTotalAcumuladores)},
        {"Tensión nominal del ramal", Con(v.iAcumuladoresSerie * v.acumulador.dVnom, 1, "V")},
        {"Energía útil", Con(dUtil / 1000, 2, "kWh")},
        {"Autonomía que resulta", Con(dUtil / v.dEnergiaDiaria, 1, "días")},
        {"Peso del campo de acumuladores", Con(SinCero(v.dPesoAcumuladores), 0, "kg")},
    };
    seccion.datos[6].bFalta = v.dCapacidadNecesaria > v.dCapacidadResultante + kTolerancia;
    return seccion;
}

Seccion SeccionPaneles(const V& v)
{
    Seccion seccion("Paneles fotovoltaicos");
    seccion.datos = {
        DatoModelo("Panel", v.csPanel),
        {"Potencia máxima", Con(v.panel.dPmpm, 1, "Wp")},
        DatoDoble("Potencia mínima necesaria", v.dPotenciaMinima, v.dPotenciaMinimaP, 0, "Wp"),
        DatoDoble("Potencia instalada", v.dPotenciaInstalada, v.dPotenciaInstaladaP, 0, "Wp"),
        DatoDoble("Nº de paneles por ramal", v.iPanelesSerie, v.iPanelesSerieP),
        DatoDoble("Nº de ramales en paralelo", v.iPanelesParalelo, v.iPanelesParaleloP),
        {"Nº de paneles en total", std::to_string(v.iTotalPaneles)},
        {"Peso del campo de paneles", Con(SinCero(v.dPesoPaneles), 0, "kg")},
    };
    seccion.datos[3].bFalta = FaltaPotencia(v);
    return seccion;
}

Seccion SeccionRegulador(const ProyectoAislada& proyecto, const V& v)
{
    Seccion seccion("Regulación");
    const double dVoc = v.iPanelesSerie * v.panel.dVoc, dVmp = v.iPanelesSerie * v.panel.dVmpm;
    const double dIsc = v.iPanelesParalelo * proyecto.panel->dIsc;
    const auto hasta = [](double d, double dLimite, int iDecimales, const char* unidad, const char* palabra) {
        return fmt::format("{} ({} {})", Con(d, iDecimales, unidad), palabra, Con(dLimite, iDecimales, unidad));
    };
    seccion.datos = {
        {"Potencia fotovoltaica máxima", Con(v.dPotenciaMaxFV, 0, "W")},
        {"Tensión a circuito abierto del ramal", hasta(dVoc, v.dTensionMaxFV, 1, "V", "máxima"), "",
         dVoc > v.dTensionMaxFV + kTolerancia},
        {"Tensión del ramal en máxima potencia", hasta(dVmp, v.dTensionMinFV, 1, "V", "mínima"), "",
         dVmp < v.dTensionMinFV - kTolerancia},
        {"Corriente de cortocircuito del campo", hasta(dIsc, v.dCorrienteMaxFV, 1, "A", "máxima"), "",
         dIsc > v.dCorrienteMaxFV + kTolerancia},
        {"Salida en CA", v.bSalidaCA == 0 ? "no"
                                          : fmt::format("{}, {}, {}", Con(v.dTensionSalidaCA, 0, "V"),
                                                        v.iTipoSalidaCA == 0 ? "Monofasico" : "Trifasico",
                                                        Con(proyecto.registro.dPotenciaSalidaCA, 0, "W"))},
    };
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
        {"Superficie solar total", Con(SinCero(v.dSuperficieTotal), 2, "m²")},
        {"Superficie solar proyectada", Con(SinCero(v.dSuperficieProyectada), 2, "m²")},
    };
    return seccion;
}

// In the order of the terminal, with the section beside which pages say each.
constexpr std::pair<const char*, const char*> kSupuestos[] = {
    {"Predimensionado en condiciones STC (G de 1000 W/m², AM 1.5 y Tª cel. 25ºC) y sin simulación horaria.",
     ""},
    {"El dimensionado toma las horas de uso de un lunes de enero; la energía necesaria de cada mes, las de "
     "cada tipo de día.",
     kTituloReceptores},
    {"Los acumuladores se dimensionan con la energía de los receptores; los paneles, con la energía "
     "necesaria antes de las pérdidas.",
     kTituloBalance},
    {"La radiación sobre el plano es la horizontal por el factor K de la tabla, para un campo orientado al "
     "ecuador: la orientación no entra en esa fórmula y se cuenta aparte.",
     kTituloMeses},
    {"Cada pérdida es el tanto por ciento de lo que llega hasta ella: primero el acoplamiento, después el "
     "cableado y el acumulador. Energía necesaria = receptores + pérdidas.",
     kTituloBalance},
    {"Energía producida de un mes: potencia instalada × horas de sol pico × (1 − pérdidas) × días. La que "
     "sobra en un mes no pasa al siguiente.",
     kTituloMeses},
};

std::vector<Dato> Resumen(const V& v)
{
    return {{"Energía diaria", Con(v.dEnergiaDiaria / 1000, 2, "kWh")},
            {"Acumuladores",
             fmt::format("{} ({} × {})", v.iTotalAcumuladores, v.iAcumuladoresSerie, v.iAcumuladoresParalelo)},
            {"Paneles", fmt::format("{} ({} × {})", v.iTotalPaneles, v.iPanelesSerie, v.iPanelesParalelo)},
            {"Potencia instalada", Con(v.dPotenciaInstalada / 1000, 2, "kWp")},
            {"Inclinación", Con(v.dInclinacion, 1, "°")}};
}

}  // namespace

Documento EscribirDocumento(const ProyectoAislada& proyecto, const EstudioAislada& estudio,
                            std::vector<Aviso> avisos)
{
    const V& v = estudio.v;
    Documento documento;
    documento.titulo = "Instalación solar fotovoltaica aislada";
    documento.proyecto = proyecto.titulo;
    documento.portada = proyecto.portada;
    documento.resumen = Resumen(v);
    documento.avisos = std::move(avisos);
    documento.secciones = {
        SeccionLugar(proyecto.lugar),
        SeccionEsquema({EsquemaDe(proyecto, estudio)}),
        SeccionReceptores(proyecto),
        SeccionEnergia(v),
        SeccionAcumuladores(v),
        SeccionPaneles(v),
        SeccionRegulador(proyecto, v),
        SeccionComprobacion(proyecto.temperaturas, estudio.comprobacion, estudio.propuesta, !FaltaPotencia(v)),
        SeccionGeometria(v),
        SeccionCableado(estudio.cableado),
        SeccionMeses(proyecto.lugar, estudio.ano, &estudio.adNecesaria),
        SeccionOrientacion(estudio.orientada),
        SeccionModelos(
            {Elegido("Acumulador", *proyecto.acumulador), Elegido("Panel fotovoltaico", *proyecto.panel)})};
    for (const auto& [texto, seccion] : kSupuestos) {
        Supuesto supuesto{texto, seccion};
        documento.supuestos.push_back(std::move(supuesto));
    }
    documento.supuestos.emplace_back(SupuestoTemperaturas(proyecto.temperaturas), kTituloComprobacion);
    return documento;
}

}  // namespace efv::report
