#include "diseno/resumen.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <numeric>

#include <quorvel/report/carencias.h>

#include "comun/numeros.h"
#include "diseno/equipos.h"

namespace efv::estudio {

namespace {

constexpr double kMil = 1000.0;
constexpr double kCiento = 100.0;
constexpr double kDiasDelAno = 365.0;
constexpr ui::Color kColorBarras = 0xC0702F;

CString ModeloDe(const Equipo& equipo)
{
    if (equipo.csModelo.empty())
        return L"sin elegir";
    if (!equipo.bHallado)
        return equipo.csModelo + L" (no está en el catálogo)";
    return equipo.csFamilia + L" " + equipo.csModelo;
}

CString Producto(int iSerie, int iParalelo, long long nTotal)
{
    return std::to_wstring(iSerie) + L" en serie × " + std::to_wstring(iParalelo) + L" en paralelo = " +
           std::to_wstring(nTotal);
}

const wchar_t* Fases(int iTipoSalida)
{
    return iTipoSalida == 0 ? L"monofásica" : L"trifásica";
}

// What both records say of the field's place.
template <class DISENO>
CString Posicion(const DISENO& diseno)
{
    return Decimal(diseno.dInclinacion, 1) + L"º de inclinación, " + Decimal(diseno.dOrientacion, 1) +
           L"º de orientación";
}

std::vector<LineaResumen> LineasDeEnergia(const report::EnergiaDiseno& energia)
{
    const auto alAno = [](double dEnergia) { return EnUnidad(kEnergia, dEnergia, 0) + L" al año"; };
    std::vector<LineaResumen> lineas;
    if (energia.dAsistente)
        lineas.push_back({L"Energía del asistente, hacia el ecuador", alAno(*energia.dAsistente)});
    const auto& planos = energia.orientada.planos;
    const CString csOrigen = CadenaDesdeUtf8(solar::NombreDeOrigen(energia.orientada.origen));
    lineas.push_back(
        {(planos.size() > 1 ? L"Energía de los planos (" : L"Energía con la orientación (") + csOrigen + L")",
         alAno(energia.orientada.Energia())});
    if (planos.size() > 1) {
        for (const auto& [plano, ano, alEcuador] : planos) {
            lineas.push_back({L"  " + Decimal(plano.dInclinacion, 1) + L"º hacia " +
                                  Decimal(plano.dOrientacion, 1) + L"º, " + Decimal(plano.dParte * kCiento, 1) +
                                  L" %",
                              alAno(ano.Energia())});
        }
    }
    return lineas;
}

template <class DISENO>
std::vector<LineaResumen> ConEnergia(const DISENO& diseno, const std::optional<DisenoCalculado>& calculado)
{
    auto lineas =
        calculado && calculado->energia ? LineasDeEnergia(*calculado->energia) : std::vector<LineaResumen>();
    std::ranges::move(ResumenDe(diseno), std::back_inserter(lineas));
    if (HayDiseno(diseno)) {
        for (const auto& [clase, campo] : report::CarenciasDe(diseno, CatalogosDelModulo()))
            lineas.push_back({CadenaDesdeUtf8(clase) + L": el catálogo no da", CadenaDesdeUtf8(campo)});
    }
    return lineas;
}

}  // namespace

std::vector<LineaResumen> ResumenDe(const CProyectoEstudio& proyecto, Diseno diseno,
                                    const std::optional<DisenoCalculado>& calculado)
{
    auto lineas = diseno == Diseno::aislada ? ConEnergia(proyecto.aislada, calculado)
                                            : ConEnergia(proyecto.red, calculado);
    // What no dialog shows, and counts.
    if (!lineas.empty() && diseno == Diseno::red && proyecto.calculo.dRendimiento != Calculo().dRendimiento)
        lineas.push_back({L"Rendimiento, el del fichero abierto", Decimal(proyecto.calculo.dRendimiento, 3)});
    if (!lineas.empty() && !proyecto.calculo.csCableado.empty())
        lineas.push_back({L"Cableado", L"con los criterios del fichero abierto"});
    return lineas;
}

std::vector<LineaResumen> ResumenDe(const CSFVAsistenteAislada& diseno)
{
    if (!HayDiseno(diseno))
        return {};
    const CampoPaneles campo = PanelesDe(diseno);
    const BancoAcumuladores banco = AcumuladoresDe(diseno);
    const std::vector<Carga> cargas = CargasDe(diseno);
    const auto suma = [&](double (Carga::*figura)() const) {
        return std::accumulate(cargas.begin(), cargas.end(), 0.0,
                               [&](double d, const Carga& carga) { return d + (carga.*figura)(); });
    };
    return {
        {L"Receptores",
         std::to_wstring(cargas.size()) + L" modelos, " + Decimal(suma(&Carga::Potencia), 0) + L" W"},
        {L"Energía diaria", Decimal(suma(&Carga::Energia), 0) + L" Wh"},
        {L"Panel", ModeloDe(campo)},
        {L"Paneles", Producto(campo.iSerie, campo.iParalelo, campo.Paneles())},
        {L"Potencia instalada", Decimal(campo.Potencia(), 0) + L" Wp"},
        {L"Tensión del ramal",
         Decimal(campo.Tension(), 1) + L" V (en vacío " + Decimal(campo.TensionVacio(), 1) + L" V)"},
        {L"Posición", Posicion(diseno)},
        {L"Tensión del sistema", Decimal(diseno.dTensionSistema, 0) + L" V"},
        {L"Acumulador", ModeloDe(banco)},
        {L"Acumuladores", Producto(banco.iSerie, banco.iParalelo, banco.Acumuladores())},
        {L"Capacidad", Decimal(banco.Capacidad(), 0) + L" Ah a " + Decimal(banco.Tension(), 0) + L" V"},
        {L"Autonomía", Decimal(diseno.dDiasAutonomia, 0) + L" días, descarga del " +
                           Decimal(diseno.dProfundidadDescarga, 0) + L" %"},
        {L"Salida en CA", diseno.bSalidaCA == 0
                              ? CString(L"no")
                              : Decimal(diseno.dTensionSalidaCA, 0) + L" V, " + Fases(diseno.iTipoSalidaCA)},
    };
}

std::vector<LineaResumen> ResumenDe(const CSFVAsistenteRed& diseno)
{
    if (!HayDiseno(diseno))
        return {};
    const CampoPaneles campo = PanelesDe(diseno);
    const GrupoInversores inversores = InversoresDe(diseno);
    const long long nPaneles = campo.Paneles() * inversores.iCuantos;
    const double dCampo = campo.Potencia() * inversores.iCuantos;
    return {
        {L"Potencia buscada", Decimal(diseno.dPotenciaObjetivo, 2) + L" kW"},
        {L"Inversor", ModeloDe(inversores)},
        {L"Inversores", std::to_wstring(inversores.iCuantos) + L" de " + Decimal(inversores.dPCANom, 0) +
                            L" W, salida " + Fases(inversores.iTipoSalida)},
        {L"Potencia de inversores", Decimal(inversores.Potencia() / kMil, 2) + L" kW"},
        {L"Panel", ModeloDe(campo)},
        {L"Paneles por inversor", Producto(campo.iSerie, campo.iParalelo, campo.Paneles())},
        {L"Paneles en total", std::to_wstring(nPaneles) + L" paneles"},
        {L"Potencia instalada", Decimal(dCampo / kMil, 2) + L" kWp"},
        {L"Tensión del ramal", Decimal(campo.Tension(), 1) + L" V (MPPT " + Decimal(inversores.dVMPPMin, 0) +
                                   L"–" + Decimal(inversores.dVMPPMax, 0) + L" V)"},
        {L"Posición", Posicion(diseno)},
        {L"Cableado L1, L2, L3", Decimal(diseno.dLongitudL1, 1) + L" / " + Decimal(diseno.dLongitudL2, 1) +
                                     L" / " + Decimal(diseno.dLongitudL3, 1) + L" m"},
    };
}

double AnoDeConsumo::Energia() const
{
    return std::accumulate(adMes.begin(), adMes.end(), 0.0);
}

AnoDeConsumo AnoDe(const Consumo& consumo)
{
    AnoDeConsumo ano;
    if (consumo.bExcluir != 0)
        return ano;
    const auto horas = std::make_unique<AnoHorario>();
    if (consumo.iTipoEntrada == 0) {
        std::ranges::copy(consumo.adHoras, horas->begin());
        ano.dPotencia = consumo.dPotMaxima;
    } else {
        ano.dPotencia = AnoDeReceptores(consumo.lReceptores, *horas);
    }
    for (std::size_t m = 0; m < ano.adMes.size(); ++m)
        ano.adMes[m] = SumaDeHoras(*horas, HorasDePeriodo(static_cast<int>(m))) / kMil;
    return ano;
}

std::vector<LineaResumen> ResumenDe(const Consumo& consumo, const AnoDeConsumo& ano)
{
    std::vector<LineaResumen> lineas{
        {L"Referencia", consumo.csReferencia},
        {L"Entrada de datos", consumo.iTipoEntrada == 0
                                  ? CString(L"hora a hora")
                                  : std::to_wstring(consumo.lReceptores.GetSize()) + L" receptores"},
        {L"Potencia", Decimal(ano.dPotencia / kMil, 2) + L" kW"},
        {L"Energía anual", EnUnidad(kEnergia, ano.Energia(), 0)},
        {L"Energía diaria media", EnUnidad(kEnergia, ano.Energia() / kDiasDelAno, 2)},
    };
    if (consumo.bExcluir != 0)
        lineas.push_back({L"Cálculo", L"excluido"});
    return lineas;
}

CCtrlCurva2D GraficaDe(const AnoDeConsumo& ano)
{
    CCtrlCurva2D datos = ui::GraficaDeMeses(L"Consumo de cada mes", L"Energía (" + SimboloDe(kEnergia) + L")");
    std::array<double, 12> adMes{};
    std::ranges::transform(ano.adMes, adMes.begin(), [](double d) { return AlUsuario(kEnergia, d); });
    datos.aSeries.push_back(ui::BarrasDeMeses(L"", kColorBarras, adMes));
    return datos;
}

}  // namespace efv::estudio
