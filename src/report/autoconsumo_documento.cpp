// A study of self-consumption as an installer lays it before a client.
#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/autoconsumo.h>
#include <quorvel/report/texto.h>

#include "report/pagina.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

constexpr const char *kTituloEnergia = "Energía mes a mes", *kTituloDinero = "Dinero del primer año",
                     *kTituloRecuperacion = "Coste y recuperación", *kTituloBateria = "Batería";

using economics::SumaAutoconsumo;

constexpr ui::Color kNaranja = 0x1E82E0, kVerde = 0x5A9A3C, kGris = 0x808080;
constexpr std::size_t kMeses = 12;

std::string Euros(double d)
{
    return Con(d, 2, "€");
}
std::string PorCiento(double dFraccion)
{
    return Con(dFraccion * 100.0, 1, "%");
}
std::string Anos(const economics::Recuperacion& r)
{
    return r.bViable ? Con(r.dAnos, 1, "años") : "—";
}
std::string Tasa(const economics::Tasa& tasa)
{
    return tasa.bHallada ? Con(tasa.dTIR, 2, "%") : "—";
}

std::vector<Dato> Resumen(const EstudioAutoconsumo& e)
{
    const SumaAutoconsumo& t = e.ano.total;
    return {
        {"Potencia", Con(e.registro.dPotenciaPaneles, 2, "kWp")},
        {"Producción", Con(t.dProducida, 0, "kWh/año")},
        {"Consumo", Con(t.dConsumida, 0, "kWh/año")},
        {"Consumo cubierto", PorCiento(t.Cobertura())},
        {"Producción aprovechada", PorCiento(t.Aprovechamiento())},
        {"Ahorro del primer año", Euros(t.dAhorro)},
        {"Coste", Euros(e.registro.dCosteInstalacion)},
        {"Recuperación", Anos(e.rentabilidad.recuperacion)},
        {"Tasa interna de retorno", Tasa(e.rentabilidad.tasa)},
    };
}

Seccion SeccionEntradas(const ProyectoAutoconsumo& proyecto)
{
    Seccion seccion("Datos del estudio y de dónde salen");
    seccion.datos = proyecto.entradas;
    return seccion;
}

// A table of twelve months and the year.
template <class F>
Cuadro CuadroDeMeses(const EstudioAutoconsumo& e, std::string_view titulo,
                     const std::vector<std::string>& columnas, const char* unidad, F celdas)
{
    Cuadro cuadro;
    cuadro.titulo = TituloEn(titulo);
    cuadro.bTotal = true;
    cuadro.columnas.emplace_back("Mes", false);
    cuadro.unidades.emplace_back();
    for (const std::string& columna : columnas) {
        cuadro.columnas.emplace_back(columna, true);
        cuadro.unidades.emplace_back(columna.find('(') == std::string::npos ? MedidaDe(unidad).unidad : "");
    }
    const auto fila = [&](std::string nombre, const SumaAutoconsumo& suma) {
        auto& destino = cuadro.filas.emplace_back();
        destino.push_back(std::move(nombre));
        for (const auto& [d, iDecimales] : celdas(suma)) {
            const bool bSuya = cuadro.columnas[destino.size()].first.find('(') == std::string::npos;
            destino.push_back(bSuya ? DecimalEn(d, iDecimales, unidad) : Decimal(d, iDecimales));
        }
    };
    for (std::size_t m = 0; m < kMeses; ++m)
        fila(NombreMes(static_cast<int>(m)), e.ano.meses[m]);
    fila("Año", e.ano.total);
    return cuadro;
}

using Celda = std::pair<double, int>;

Seccion SeccionEnergia(const EstudioAutoconsumo& e)
{
    Seccion seccion(kTituloEnergia);
    CCtrlCurva2D grafica = ui::GraficaDeMeses(L"Consumo y producción", L"Energía (kWh)");
    std::array<double, kMeses> adConsumo{}, adProduccion{}, adAutoconsumo{};
    for (std::size_t m = 0; m < kMeses; ++m) {
        adConsumo[m] = e.ano.meses[m].dConsumida;
        adProduccion[m] = e.ano.meses[m].dProducida;
        adAutoconsumo[m] = e.ano.meses[m].dAutoconsumida;
    }
    grafica.aSeries = {ui::BarrasDeMeses(L"Consumo", kGris, adConsumo),
                       ui::BarrasDeMeses(L"Producción", kNaranja, adProduccion),
                       ui::BarrasDeMeses(L"Autoconsumo", kVerde, adAutoconsumo)};
    seccion.graficas.push_back(EnUnidades(std::move(grafica)));
    seccion.cuadros.push_back(CuadroDeMeses(
        e, "Energía (kWh)",
        {"Consumo", "Producción", "Autoconsumo", "Vertido", "Compra", "Cubierto (%)", "Aprovechada (%)"}, "kWh",
        [](const SumaAutoconsumo& s) {
            return std::array<Celda, 7>{{{s.dConsumida, 1},
                                         {s.dProducida, 1},
                                         {s.dAutoconsumida, 1},
                                         {s.dVertida, 1},
                                         {s.dComprada, 1},
                                         {s.Cobertura() * 100.0, 1},
                                         {s.Aprovechamiento() * 100.0, 1}}};
        }));
    return seccion;
}

Seccion SeccionDinero(const ProyectoAutoconsumo& proyecto, const EstudioAutoconsumo& e)
{
    Seccion seccion(kTituloDinero);
    seccion.cuadros.push_back(
        CuadroDeMeses(e, "Término de energía e importes (€)",
                      {"Sin instalación", "Compra", "Excedentes", "Compensado", "Desgaste", "Ahorro"}, "€",
                      [](const SumaAutoconsumo& s) {
                          return std::array<Celda, 6>{{{s.dGastoSin, 2},
                                                       {s.dCompra, 2},
                                                       {s.dValorVertido, 2},
                                                       {s.dCompensado, 2},
                                                       {s.dDegradacion, 2},
                                                       {s.dAhorro, 2}}};
                      }));
    if (proyecto.pago == economics::PagoVertido::compensacion) {
        seccion.notas = {
            "Compensación simplificada: cada mes los excedentes descuentan como mucho el término de energía de "
            "lo "
            "comprado."};
    }
    return seccion;
}

Seccion SeccionBateria(const ProyectoAutoconsumo& proyecto, const EstudioAutoconsumo& e)
{
    const economics::Bateria& b = *proyecto.bateria;
    const SumaAutoconsumo& t = e.ano.total;
    const auto resumen =
        economics::ResumirBateria(e.horas.Horas(), e.operacion->Horas(proyecto.dCosteDegradacion));
    Seccion seccion(kTituloBateria);
    seccion.datos = {
        {"Capacidad útil", Con(b.dCapacidad, 2, "kWh")},
        {"Regla", proyecto.regla == economics::ReglaBateria::arbitraje ? "precios de las 24 horas siguientes"
                                                                       : "autoconsumo"},
        {"Cargado de los paneles", Con(t.dCargaFV, 1, "kWh/año")},
        {"Cargado de la red", Con(t.dCargaRed, 1, "kWh/año")},
        {"Descargado", Con(t.dDescarga, 1, "kWh/año")},
        {"Ciclos enteros", Decimal(b.dCapacidad > 0.0 ? t.dDescarga / b.dCapacidad : 0.0, 1)},
        {"Coste degradación", Euros(t.dDegradacion)},
        {"Ahorro neto batería", Euros(resumen.dAhorroNeto)},
    };
    seccion.notas = {"El ahorro neto de la batería no cuenta el límite mensual de la compensación."};
    return seccion;
}

// What is still to be paid at the end of each year.
CCtrlCurva2D GraficaAcumulado(const EstudioAutoconsumo& e)
{
    CCtrlCurva2D grafica;
    grafica.csTitulo = L"Ahorro acumulado menos coste";
    grafica.csTituloX = L"Año";
    grafica.csTituloY = L"Importe (€)";
    ui::SerieCurva serie;
    serie.color = kVerde;
    serie.iAncho = 2;
    double dAcumulado = -e.registro.dCosteTotal;
    serie.adX.push_back(0.0);
    serie.adY.push_back(dAcumulado);
    for (std::size_t y = 0; y < e.rentabilidad.adFlujos.size(); ++y) {
        dAcumulado += e.rentabilidad.adFlujos[y];
        serie.adX.push_back(static_cast<double>(y + 1));
        serie.adY.push_back(dAcumulado);
    }
    grafica.aSeries.push_back(std::move(serie));
    return grafica;
}

Seccion SeccionRentabilidad(const ProyectoAutoconsumo& proyecto, const EstudioAutoconsumo& e)
{
    const CSFVCalculoEconomicoAuto& r = e.registro;
    Seccion seccion(kTituloRecuperacion);
    seccion.datos = {
        {"Coste de la instalación", Euros(r.dCosteInstalacion)},
        {"Capital inicial aportado", Euros(r.dCapitalInicial)},
        {"Capital sujeto a financiación", Euros(r.dCapitalFinanciado)},
        {"Intereses generados", Euros(r.dIntereses)},
        {"Coste total", Euros(r.dCosteTotal)},
        {"Mantenimiento", Euros(proyecto.inversion.dMantenimiento) + " al año"},
        {"Años en recuperar la inversión", Anos(e.rentabilidad.recuperacion)},
        {"Tasa interna de retorno", Tasa(e.rentabilidad.tasa)},
        {fmt::format("Ganancia a los {} años", proyecto.inversion.iAnos), Euros(e.rentabilidad.dAcumulado)},
    };
    seccion.graficas.push_back(GraficaAcumulado(e));
    return seccion;
}

Seccion SeccionDias(const EstudioAutoconsumo& e)
{
    Seccion seccion("Días típicos de cada estación");
    seccion.bSoloPagina = true;
    seccion.graficas = GraficasDiasTipicos(e);
    return seccion;
}

bool VariaLaPotencia(std::span<const PuntoBarrido> puntos)
{
    return std::ranges::any_of(puntos,
                               [&](const PuntoBarrido& p) { return p.dPotencia != puntos.front().dPotencia; });
}

Seccion SeccionBarrido(std::span<const PuntoBarrido> puntos)
{
    Seccion seccion("Otros tamaños");
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Lo mismo con otra potencia o batería";
    for (const char* titulo : {"kWp", "Batería (kWh)", "Coste (€)", "Cubierto (%)", "Aprovechada (%)",
                               "Ahorro (€)", "Recuperación (años)", "T.I.R. (%)", "Ganancia (€)"})
        cuadro.columnas.emplace_back(TituloEn(titulo), true);
    const Medida energia = MedidaDe("kWh");
    for (const PuntoBarrido& p : puntos) {
        cuadro.filas.push_back({DecimalExacto(p.dPotencia), DecimalExacto(energia.En(p.dCapacidad)),
                                Decimal(p.dCoste, 2), Decimal(p.dCobertura * 100.0, 1),
                                Decimal(p.dAprovechamiento * 100.0, 1), Decimal(p.dAhorro, 2),
                                p.recuperacion.bViable ? Decimal(p.recuperacion.dAnos, 1) : "—",
                                p.tasa.bHallada ? Decimal(p.tasa.dTIR, 2) : "—", Decimal(p.dGanancia, 2)});
    }
    seccion.notas.emplace_back(
        "Ahorro: el del primer año. Ganancia: la que queda al final del estudio, pagados coste, intereses y "
        "mantenimiento.");
    seccion.graficas.push_back(GraficaBarrido(puntos));
    return seccion;
}

}  // namespace

CCtrlCurva2D GraficaBarrido(std::span<const PuntoBarrido> puntos)
{
    const bool bPotencia = VariaLaPotencia(puntos);
    CCtrlCurva2D grafica;
    grafica.csTitulo = L"Recuperación (años) y consumo cubierto (%)";
    grafica.csTituloX = bPotencia ? L"Potencia (kWp)" : L"Batería (kWh)";
    grafica.csTituloY = L"Años, %";
    ui::SerieCurva anos, cubierto;
    anos.csNombre = L"Recuperación (años)";
    anos.color = kNaranja;
    cubierto.csNombre = L"Consumo cubierto (%)";
    cubierto.color = kVerde;
    anos.iAncho = cubierto.iAncho = 2;
    for (const PuntoBarrido& p : puntos) {
        // Of powers with batteries the first battery stands for its power.
        if (bPotencia && p.dCapacidad != puntos.front().dCapacidad)
            continue;
        const double dX = bPotencia ? p.dPotencia : p.dCapacidad;
        cubierto.adX.push_back(dX);
        cubierto.adY.push_back(p.dCobertura * 100.0);
        if (!p.recuperacion.bViable)
            continue;
        anos.adX.push_back(dX);
        anos.adY.push_back(p.recuperacion.dAnos);
    }
    grafica.aSeries = {std::move(anos), std::move(cubierto)};
    return EnUnidades(std::move(grafica));
}

std::vector<CCtrlCurva2D> GraficasDiasTipicos(const EstudioAutoconsumo& e)
{
    static constexpr std::array<const wchar_t*, 4> kEstaciones = {L"Invierno", L"Primavera", L"Verano",
                                                                  L"Otoño"};
    const auto dias = economics::DiasTipicos(e.horas.Horas(), e.operacion ? &*e.operacion : nullptr);
    std::vector<CCtrlCurva2D> graficas;
    for (std::size_t i = 0; i < dias.size(); ++i) {
        CCtrlCurva2D grafica = ui::GraficaDeHoras(CString(kEstaciones[i]) + L" [Hora solar]", L"Energía (kWh)");
        const auto serie = [&](const wchar_t* nombre, ui::Color color, const std::array<double, 24>& ad) {
            ui::SerieCurva s;
            s.csNombre = nombre;
            s.color = color;
            s.iAncho = 2;
            s.forma = ui::FormaSerie::escalon;
            for (std::size_t h = 0; h < ad.size(); ++h) {
                s.adX.push_back(static_cast<double>(h));
                s.adY.push_back(ad[h]);
            }
            grafica.aSeries.push_back(std::move(s));
        };
        serie(L"Consumo", kGris, dias[i].adConsumo);
        serie(L"Producción", kNaranja, dias[i].adProduccion);
        serie(L"Autoconsumo", kVerde, dias[i].adAutoconsumo);
        graficas.push_back(EnUnidades(std::move(grafica)));
    }
    return graficas;
}

namespace {

std::vector<Supuesto> SupuestosConSeccion(const ProyectoAutoconsumo& proyecto)
{
    std::vector<Supuesto> supuestos;
    const auto anadir = [&](std::string texto, const char* seccion) {
        Supuesto supuesto{std::move(texto), seccion};
        supuestos.push_back(std::move(supuesto));
    };
    anadir(fmt::format("Producción hora a hora: {}; radiación sobre cada plano × potencia × {} de rendimiento.",
                       solar::NombreDeOrigen(proyecto.planos.origen), DecimalExacto(proyecto.dRendimiento)),
           kTituloEnergia);
    anadir(
        "Horas solares de un año de 365 días; producción, consumo y precios son los de la misma hora. Dentro "
        "de una hora lo producido y lo consumido se dan por simultáneos.",
        kTituloEnergia);
    anadir(
        "Solo cuenta el término de energía: el de potencia y los demás importes fijos de la factura no "
        "cambian.",
        kTituloDinero);
    anadir(
        "Cada año el ahorro, quitado el mantenimiento, es el anterior por (1 − envejecimiento + variación del "
        "precio).",
        kTituloRecuperacion);
    anadir("La tasa interna de retorno es la del coste entero con los ahorros del estudio, sin préstamo.",
           kTituloRecuperacion);
    if (proyecto.bateria) {
        anadir(
            "La batería sigue una regla propia de este programa, con capacidad útil y rendimientos constantes "
            "y sin consumo en reposo.",
            kTituloBateria);
    }
    for (const std::string& fuente : proyecto.fuentes)
        anadir(fuente, "");
    return supuestos;
}

}  // namespace

std::vector<std::string> Supuestos(const ProyectoAutoconsumo& proyecto)
{
    return TextosDe(SupuestosConSeccion(proyecto));
}

Documento EscribirDocumento(const ProyectoAutoconsumo& proyecto, const EstudioAutoconsumo& e,
                            std::vector<Aviso> avisos, std::span<const PuntoBarrido> barrido)
{
    Documento documento;
    documento.titulo = "Estudio de autoconsumo fotovoltaico";
    documento.proyecto = proyecto.titulo;
    documento.portada = proyecto.portada;
    documento.resumen = Resumen(e);
    documento.avisos = std::move(avisos);
    documento.secciones.push_back(SeccionLugar(proyecto.lugar));
    documento.secciones.push_back(SeccionEntradas(proyecto));
    documento.secciones.push_back(SeccionEnergia(e));
    documento.secciones.push_back(SeccionDinero(proyecto, e));
    if (proyecto.bateria)
        documento.secciones.push_back(SeccionBateria(proyecto, e));
    documento.secciones.push_back(SeccionRentabilidad(proyecto, e));
    documento.secciones.push_back(SeccionDias(e));
    if (!barrido.empty())
        documento.secciones.push_back(SeccionBarrido(barrido));
    documento.supuestos = SupuestosConSeccion(proyecto);
    return documento;
}

}  // namespace efv::report
