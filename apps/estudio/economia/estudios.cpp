#include "economia/estudios.h"

#include <memory>
#include <stdexcept>
#include <utility>

#include <QuorvelEFV.h>

#include <quorvel/registros.h>
#include <quorvel/report/venta.h>

#include "comun/numeros.h"
#include "economia/borrador.h"
#include "economia/horas.h"
#include "informe/informe.h"

namespace efv::estudio {

namespace {

constexpr double kMil = 1000.0;
constexpr double kPorCien = 100.0;
constexpr ui::Color kGris = 0xB5AAA0, kNaranja = 0x1E82E0, kVerde = 0x5A9A3C;

CString Euros(double d)
{
    return Decimal(d, 2) + L" €";
}

// The design's figures in a study.
void Tomar(const CampoRed& campo, CSFVCalculoEconomico& estudio)
{
    estudio.dPotenciaGenerador = campo.dPotencia;
    estudio.dEnergiaBase = campo.ano.Energia();
}

bool HayCampo(bool bHay)
{
    if (!bHay)
        ui::MostrarAviso(L"Diseñe antes la conexión a red: el estudio toma de ella la potencia y la energía.",
                         ui::Icono::informacion);
    return bHay;
}

// A sale's figures are the design's, or its own where there is none.
bool HayEnergia(const std::optional<CampoRed>& campo, const CSFVCalculoEconomico& estudio)
{
    return campo || estudio.dEnergiaBase > 0.0;
}

/// The hours of the installation, once as its element and once as the whole.
struct HorasDosVeces {
    HorasDosVeces(const CProyectoEstudio& proyecto, const CampoRed& campo)
        : produccion(ProduccionDe(proyecto, campo)), consumo(ConsumoDe(proyecto))
    {
        dProducida = Suma(produccion);
        dConsumida = Suma(consumo);
        for (BloqueHoras* bloque : {&produccion, &consumo}) {
            const BloqueHoras uno = *bloque;
            bloque->insert(bloque->end(), uno.begin(), uno.end());
        }
    }

    BloqueHoras produccion, consumo;
    double dProducida, dConsumida;  // kWh a year
};

}  // namespace

void EstudiarVenta(Sesion& sesion)
{
    const auto campo = CampoDe(sesion.Proyecto());
    CSFVCalculoEconomico estudio = sesion.Proyecto().economia.venta;
    if (!HayCampo(HayEnergia(campo, estudio)))
        return;
    if (campo)
        Tomar(*campo, estudio);
    const double adMeses[12] = {};
    if (phViabilidadEconomicaRed(estudio, adMeses, adMeses, 0.0) == 1)
        sesion.Proyecto().economia.venta = estudio;
    sesion.Cambiado();
}

void EstudiarAutoconsumo(Sesion& sesion)
{
    CProyectoEstudio& proyecto = sesion.Proyecto();
    const auto campo = CampoDe(proyecto);
    if (!HayCampo(campo.has_value()))
        return;
    const HorasDosVeces horas(proyecto, *campo);
    Economia& economia = proyecto.economia;
    CObArrayPropio<CSFVCalculoEconomicoAuto> estudios;
    auto& estudio = estudios.Add(std::make_unique<CSFVCalculoEconomicoAuto>(economia.autoconsumo));
    estudio.csReferencia = L"Conexión a red";
    estudio.dPotenciaPaneles = campo->dPotencia / kMil;
    estudio.dPotenciaInversores = campo->dInversores / kMil;
    estudio.dEnergiaProducida = horas.dProducida;
    estudio.dEnergiaConsumida = horas.dConsumida;
    estudio.dPerformanceRatio = kPerformanceRatio * kPorCien;
    phViabilidadEconomicaAutoconsumo(horas.produccion.data(), horas.consumo.data(), nullptr, nullptr, nullptr,
                                     nullptr, nullptr, 0.0, economia.adPrecioConsumo, economia.adPrecioVertido,
                                     estudios);
    // What the person worked out stays, whether or not the sheet was accepted.
    economia.autoconsumo = estudio;
    sesion.Cambiado();
}

void EditarPrecios(Sesion& sesion)
{
    Economia& economia = sesion.Proyecto().economia;
    phPrecioEconomicoEnergetico(economia.adPrecioConsumo, economia.adPrecioVertido);
    sesion.Cambiado();
}

report::Documento DocumentoDeVenta(const CProyectoEstudio& proyecto)
{
    report::ProyectoVenta venta;
    venta.titulo = CadenaUtf8(proyecto.csNombre);
    venta.portada = PortadaDe(proyecto).datos;
    venta.registro = proyecto.economia.venta;
    const auto campo = CampoDe(proyecto);
    if (campo)
        Tomar(*campo, venta.registro);
    if (!HayEnergia(campo, venta.registro))
        throw std::runtime_error("Todavía no hay estudio de la venta del que informar.");
    // The person has had all of them in front.
    for (const auto& c : CamposDeRegistro(std::as_const(venta.registro)))
        venta.fijados.emplace(c.nombre);
    const report::EstudioVenta estudio = report::Calcular(venta, phGetBaseFactorK());
    report::Documento documento = report::EscribirDocumento(venta, estudio, report::Avisos(venta, estudio));
    if (campo)
        MarcarDesfase(documento, proyecto, Diseno::red);
    return documento;
}

report::Documento DocumentoDeAutoconsumo(const CProyectoEstudio& proyecto)
{
    if (proyecto.economia.csGuiado.empty())
        throw std::runtime_error(
            "El informe del autoconsumo es el de su estudio hora a hora: hágalo con «Economía, "
            "Autoconsumo guiado…».");
    return BorradorAutoconsumo(CadenaUtf8(proyecto.economia.csGuiado)).Documento(proyecto, {});
}

PanelResumen::Contenido VentaDe(const CProyectoEstudio& proyecto)
{
    CSFVCalculoEconomico estudio = proyecto.economia.venta;
    PanelResumen::Contenido contenido;
    const auto campo = CampoDe(proyecto);
    if (campo)
        Tomar(*campo, estudio);
    if (HayEnergia(campo, estudio)) {
        estudio.Reset();
        economics::CalcularImportes(estudio);
        economics::CalcularAnos(estudio);
        estudio.dTIR = 0.0;
        economics::CalcularTIR(estudio);
        contenido.lineas = {
            {L"Potencia", Decimal(estudio.dPotenciaGenerador / kMil, 2) + L" kWp"},
            {L"Energía del primer año", EnUnidad(kEnergia, estudio.dEnergiaResultante, 0)},
            {L"Precio del primer año", Decimal(economics::PrimaInicial(estudio), 5) + L" €/kWh"},
            {L"Coste de la instalación", Euros(estudio.dCosteInstalacion)},
            {L"Total préstamos", Euros(estudio.dTotalPrestamos)},
            {L"Cuota anual", Euros(estudio.dCuotaAnual)},
            {L"Ingresos del primer año", Euros(estudio.dRendimientoInicial)},
            {L"Tasa Interna de Retorno", Decimal(estudio.dTIR, 2) + L" %"},
        };
        if (const auto n = estudio.aAcumulado.GetSize(); n > 0)
            contenido.lineas.push_back({L"Flujo acumulado al final", Euros(estudio.aAcumulado[n - 1])});
    }
    contenido.grafica = economics::GraficaVenta(estudio, economics::SerieVenta::cashFlow);
    return contenido;
}

PanelResumen::Contenido AutoconsumoDe(const CProyectoEstudio& proyecto)
{
    const Economia& economia = proyecto.economia;
    PanelResumen::Contenido contenido;
    contenido.grafica = ui::GraficaDeMeses(L"Gasto y ahorro de cada mes", L"Importe (€)");
    const auto campo = CampoDe(proyecto);
    if (!campo)
        return contenido;
    using economics::BloqueHorario;
    using economics::kHorasBloque;
    const BloqueHoras produccion = ProduccionDe(proyecto, *campo);
    const BloqueHoras consumo = ConsumoDe(proyecto);
    const auto dinero =
        economics::CalcularDinero({BloqueHorario(produccion), BloqueHorario(consumo),
                                   BloqueHorario(&economia.adPrecioConsumo[0][0][0], kHorasBloque),
                                   BloqueHorario(&economia.adPrecioVertido[0][0][0], kHorasBloque)},
                                  {});
    CSFVCalculoEconomicoAuto estudio = economia.autoconsumo;
    economics::CalcularFinanciacion(estudio);
    const auto recuperacion =
        economics::CalcularRecuperacion(estudio.dCosteTotal, dinero.dAhorro, economics::FactorAnual(estudio));
    const auto suma = [](const std::array<double, 12>& ad) {
        double d = 0.0;
        for (const double dMes : ad)
            d += dMes;
        return d;
    };
    contenido.lineas = {
        {L"Energía producida", EnUnidad(kEnergia, Suma(produccion), 0)},
        {L"Energía consumida", EnUnidad(kEnergia, Suma(consumo), 0)},
        {L"Gasto sin la instalación", Euros(suma(dinero.adMesGasto))},
        {L"Autoconsumo", Euros(suma(dinero.adMesAutoconsumo))},
        {L"Vertido", Euros(suma(dinero.adMesVertido))},
        {L"Ahorro anual", Euros(dinero.dAhorro)},
        {L"Coste total de la instalación", Euros(estudio.dCosteTotal)},
        {L"Años en recuperar la inversión", recuperacion.bViable ? Decimal(recuperacion.dAnos, 2) : L"—"},
    };
    contenido.grafica->aSeries = {ui::BarrasDeMeses(L"Gasto", kGris, dinero.adMesGasto),
                                  ui::BarrasDeMeses(L"Autoconsumo", kVerde, dinero.adMesAutoconsumo),
                                  ui::BarrasDeMeses(L"Vertido", kNaranja, dinero.adMesVertido)};
    return contenido;
}

}  // namespace efv::estudio
