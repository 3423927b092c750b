// A sale to the grid as an engineer lays it out.
#include <utility>

#include <fmt/format.h>

#include <quorvel/report/texto.h>
#include <quorvel/report/venta.h>

#include "report/pagina.h"
#include "report/secciones.h"

namespace efv::report {

namespace {

constexpr const char *kTituloEnergia = "Energía y precio", *kTituloAnos = "Año a año";

using R = CSFVCalculoEconomico;

constexpr ui::Color kNaranja = 0x1E82E0, kVerde = 0x5A9A3C;

std::string PorCiento(double d)
{
    return Con(d, 2, "%");
}
std::string Euros(double d)
{
    return Con(d, 2, "€");
}

// A field that the project may leave at its default.
struct Entrada {
    const char* nombre;
    const char* rotulo;
    double R::*campo;
    int iDecimales;
    const char* unidad;
};
constexpr auto kEntradas = std::to_array<Entrada>({
    {"dPerformanceRatio", "performance ratio", &R::dPerformanceRatio, 2, "%"},
    {"dEnvejecimiento", "envejecimiento anual", &R::dEnvejecimiento, 2, "%"},
    {"dVariacionCoste", "variación anual del precio", &R::dVariacionCoste, 2, "%"},
    {"dCosteMantenimiento", "mantenimiento sobre los ingresos", &R::dCosteMantenimiento, 2, "%"},
    {"dTipoInteres", "tipo de interés", &R::dTipoInteres, 2, "%"},
    {"dAniosPrestamo", "años del préstamo", &R::dAniosPrestamo, 2, ""},
    {"dAniosEstudio", "años del estudio", &R::dAniosEstudio, 2, ""},
});

std::string PorDefecto(const ProyectoVenta& proyecto, const R& e)
{
    std::string texto;
    const auto anadir = [&](const char* rotulo, const std::string& valor) {
        texto += fmt::format("{}{} {}", texto.empty() ? "" : "; ", rotulo, valor);
    };
    for (const Entrada& entrada : kEntradas)
        if (!proyecto.fijados.contains(entrada.nombre))
            anadir(entrada.rotulo, Con(e.*entrada.campo, entrada.iDecimales, entrada.unidad));
    if (e.iTipoPrima == 0 && !proyecto.fijados.contains("dPrimaFija"))
        anadir("precio fijo", Con(e.dPrimaFija, 6, "€/kWh"));
    if (e.iTipoCoste == 0 && !proyecto.fijados.contains("dRepercusion"))
        anadir("repercusión", Con(e.dRepercusion, 2, "€/Wp"));
    if (proyecto.lugar && !proyecto.dInclinacion)
        anadir("inclinación", Con(proyecto.Inclinacion(), 1, "°"));
    return texto;
}

std::string Tasa(const EstudioVenta& resultado)
{
    return resultado.bTasaHallada ? PorCiento(resultado.estudio.dTIR) : "—";
}

std::string Recuperado(const EstudioVenta& resultado)
{
    return resultado.iAnoRecuperado ? fmt::format("desde el año {}", *resultado.iAnoRecuperado) : "—";
}

Seccion SeccionEnergia(const R& e)
{
    Seccion seccion(kTituloEnergia);
    seccion.datos = {
        {"Potencia del generador", Con(e.dPotenciaGenerador, 0, "W")},
        {"Energía anual antes del performance ratio", Con(e.dEnergiaBase, 2, "kWh")},
        {"Performance ratio", PorCiento(e.dPerformanceRatio)},
        {"Energía de la instalación", Con(e.dEnergiaInstalacion, 2, "kWh")},
        {"Factor de mejora energética", PorCiento(e.dFactorMejora)},
        {"Energía resultante anual", Con(e.dEnergiaResultante, 2, "kWh")},
        {"Envejecimiento anual", PorCiento(e.dEnvejecimiento)},
        {e.iTipoPrima == 0 ? "Precio fijo" : "Precio variable", Con(economics::PrimaInicial(e), 6, "€/kWh")},
        {"Variación anual del precio", PorCiento(e.dVariacionCoste)},
        {"Rendimiento inicial", Euros(e.dRendimientoInicial)},
    };
    return seccion;
}

Seccion SeccionFinanciacion(const R& e)
{
    Seccion seccion("Coste y financiación");
    seccion.datos = {
        {"Repercusión", Con(e.dRepercusion, 2, "€/Wp")},
        {"Coste de la instalación", Euros(e.dCosteInstalacion)},
        {"Mantenimiento", PorCiento(e.dCosteMantenimiento) + " de los ingresos"},
        {"Subvención CCAA", fmt::format("{} · {}", PorCiento(e.dSubvencionCCAA), Euros(e.dImporteSubvencion))},
        {"Amortización IDAE", fmt::format("{} · {}", PorCiento(e.dAmortizacionIDAE), Euros(e.dImporteIDAE))},
        {"Bonificación int. ICO", fmt::format("{} · {}", Decimal(e.dBonificacionICO, 2), Euros(e.dImporteICO))},
        {"Aportación inicial", Euros(e.dAportacionInicial)},
        {"Total préstamos", Euros(e.dTotalPrestamos)},
        {"Tipo de interés", PorCiento(e.dTipoInteres)},
        {"Años del préstamo", Decimal(e.dAniosPrestamo, 2)},
        {"Amortización", e.iTipoAmortizacion == 0 ? "Método Frances" : "Método Alemán"},
        {"Total a pagar", Euros(e.dTotalPagar)},
        {e.iTipoAmortizacion == 1 ? "Cuota anual media" : "Cuota anual", Euros(e.dCuotaAnual)},
    };
    return seccion;
}

Seccion SeccionAnos(const EstudioVenta& resultado)
{
    const R& e = resultado.estudio;
    Seccion seccion(kTituloAnos);
    seccion.datos = {
        {"Años del estudio", Decimal(e.dAniosEstudio, 2)},
        {"Tasa interna de retorno", Tasa(resultado)},
        {"Flujo acumulado en positivo", Recuperado(resultado)},
    };
    for (const auto serie : {economics::SerieVenta::ingresos, economics::SerieVenta::cashFlow})
        seccion.graficas.push_back(economics::GraficaVenta(e, serie));
    seccion.graficas.push_back(economics::GraficaAcumulado(e));
    for (CCtrlCurva2D& grafica : seccion.graficas)
        grafica.aSeries.front().color = kVerde;
    seccion.graficas.front().aSeries.front().color = kNaranja;
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = TituloEn("Energía (kWh), prima (€/kWh) e importes (€) de cada año");
    for (const std::wstring_view titulo : economics::TitulosVenta())
        cuadro.columnas.emplace_back(CadenaUtf8(CString(titulo)), true);
    cuadro.unidades = {"", MedidaDe("kWh").unidad, "€/kWh", "€", "€", "€", "€", "€", "€"};
    constexpr std::size_t kEnergiaDelAno = 1;
    std::ptrdiff_t iAno = 0;
    for (const economics::FilaVenta& fila : economics::FilasVenta(e)) {
        auto& celdas = cuadro.filas.emplace_back();
        for (const CString& csCelda : fila)
            celdas.push_back(CadenaUtf8(csCelda));
        // The table's texts are in kWh.
        if (const Medida energia = MedidaDe("kWh"); energia.unidad != "kWh")
            celdas[kEnergiaDelAno] = DecimalEn(e.aEnergia[iAno], 2, "kWh");
        ++iAno;
    }
    return seccion;
}

Seccion SeccionMesesVenta(const R& e)
{
    Seccion seccion("Mes a mes");
    Cuadro& cuadro = seccion.cuadros.emplace_back();
    cuadro.titulo = "Radiación diaria media y energía del primer año";
    cuadro.bTotal = true;
    cuadro.columnas = {{"Mes", false},
                       {TituloEn("Horizontal (kWh/m²·día)"), true},
                       {TituloEn("Plano (kWh/m²·día)"), true},
                       {TituloEn("Energía diaria (kWh)"), true},
                       {TituloEn("Energía (kWh)"), true}};
    for (std::ptrdiff_t m = 0; m < e.aEnergiaMes.GetSize(); ++m) {
        cuadro.filas.push_back({m < 12 ? NombreMes(static_cast<int>(m)) : "Media de los meses",
                                DecimalEn(e.aRadHorizontal[m], 2, "kWh/m²·día"),
                                DecimalEn(e.aRadInclinada[m], 2, "kWh/m²·día"),
                                DecimalEn(e.aEnergiaDia[m], 2, "kWh"), DecimalEn(e.aEnergiaMes[m], 1, "kWh")});
    }
    return seccion;
}

std::vector<Dato> Resumen(const EstudioVenta& resultado)
{
    const R& e = resultado.estudio;
    return {
        {"Potencia", Con(e.dPotenciaGenerador / 1000.0, 2, "kW")},
        {"Energía del primer año", Con(e.dEnergiaResultante, 0, "kWh")},
        {"Coste", Euros(e.dCosteInstalacion)},
        {"Ingresos del primer año", Euros(e.dRendimientoInicial)},
        {"Tasa interna de retorno", Tasa(resultado)},
        {"Flujo acumulado al final",
         e.aAcumulado.IsEmpty() ? "—" : Euros(e.aAcumulado[e.aAcumulado.GetSize() - 1])},
        {"Flujo acumulado en positivo", Recuperado(resultado)},
    };
}

}  // namespace

namespace {

std::vector<Supuesto> SupuestosConSeccion(const ProyectoVenta& proyecto, const R& e)
{
    std::vector<Supuesto> supuestos;
    const auto anadir = [&](std::string texto, const char* seccion) {
        Supuesto supuesto{std::move(texto), seccion};
        supuestos.push_back(std::move(supuesto));
    };
    anadir(
        "El coste entero es el desembolso del año 0 y las cuotas del préstamo restan además de cada flujo: la "
        "tasa interna de retorno cuenta dos veces lo financiado y queda por debajo de la del proyecto.",
        kTituloAnos);
    anadir(
        "Cada año la energía es la del anterior menos el envejecimiento y el precio el del anterior más su "
        "variación. Sin impuestos ni inflación.",
        kTituloAnos);
    if (proyecto.EnergiaDada()) {
        anadir("La energía del año es la que da el fichero.", kTituloEnergia);
    } else {
        anadir(
            "Energía del año: radiación sobre el plano por el factor K de la tabla × potencia, en un año de "
            "365 días, para un campo orientado al ecuador y sin sombras; después, el performance ratio.",
            kTituloEnergia);
    }
    if (const std::string porDefecto = PorDefecto(proyecto, e); !porDefecto.empty())
        anadir("Valores por defecto: " + porDefecto + ".", "");
    return supuestos;
}

}  // namespace

std::vector<std::string> Supuestos(const ProyectoVenta& proyecto, const EstudioVenta& resultado)
{
    return TextosDe(SupuestosConSeccion(proyecto, resultado.estudio));
}

Documento EscribirDocumento(const ProyectoVenta& proyecto, const EstudioVenta& resultado,
                            std::vector<Aviso> avisos)
{
    const R& e = resultado.estudio;
    Documento documento;
    documento.titulo = "Venta a la red de una instalación solar fotovoltaica";
    documento.proyecto = proyecto.titulo;
    documento.portada = proyecto.portada;
    documento.resumen = Resumen(resultado);
    documento.avisos = std::move(avisos);
    if (proyecto.lugar)
        documento.secciones.push_back(SeccionLugar(*proyecto.lugar));
    documento.secciones.push_back(SeccionEnergia(e));
    documento.secciones.push_back(SeccionFinanciacion(e));
    documento.secciones.push_back(SeccionAnos(resultado));
    if (!e.aEnergiaMes.IsEmpty())
        documento.secciones.push_back(SeccionMesesVenta(e));
    documento.supuestos = SupuestosConSeccion(proyecto, e);
    return documento;
}

}  // namespace efv::report
