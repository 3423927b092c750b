#include "assistants/calculo_aislada.h"

#include <limits>
#include <utility>

#include "assistants/aritmetica.h"
#include "electrical/cables.h"
#include "platform/numero/tolerancia.h"
#include "solar/angulos.h"
#include "solar/calendario.h"
#include "solar/energia.h"
#include "solar/filas.h"

namespace efv::assistants {

namespace {

using numero::MayorIgual;
using numero::MenorIgual;
using V = ValoresAislada;
using DoceFactores = std::array<double, 12>;

constexpr int kAnual = 12, kFavorable = 13, kDesfavorable = 14;
constexpr std::size_t kIndicesMes = 15;

// Tilt over the latitude by calculation month, degrees. Neither the hemispheres nor the halves of the year
// mirror each other.
struct Desvio {
    double dNorte, dSur;
};
constexpr std::array<Desvio, kIndicesMes> kDesvios = {{
    {10, -20},
    {5, -10},
    {0, 0},
    {-10, 5},
    {-15, 7},
    {-20, 10},
    {-20, 10},
    {-15, 7},
    {-10, 5},
    {0, 0},
    {-5, -10},
    {10, -20},
    {-10, -10},
    {-20, -20},
    {10, 10},
}};

bool EsNorte(const V& v)
{
    return v.iHemisferio == 1;
}

void DimensionarAcumuladores(V& v, std::span<const DatosReceptor> receptores, bool bForzar)
{
    const double dDescarga = v.dProfundidadDescarga / 100;
    CalcularCoeficientes(v);
    v.dEnergiaDiaria = 0.0;
    for (const DatosReceptor& c : receptores)
        v.dEnergiaDiaria += c.iCantidad * c.dPotencia * c.dHorasDia;
    v.dEnergiaNecesaria =
        v.dEnergiaDiaria / (((100 - v.dPerdidaAcumulador) / 100) * ((100 - v.dPerdidaCableado) / 100) *
                            ((100 - v.dPerdidaAcoplamiento) / 100));
    // The batteries hold what the loads take; the losses count for the panels only.
    v.dCapacidadNecesaria = (v.dEnergiaDiaria * v.dDiasAutonomia / v.dTensionSistema) / dDescarga;

    v.iAcumuladoresSerieP = Techo(v.dTensionSistema / ElMayor(v.acumulador.dVnom, 1.0));
    v.iAcumuladoresParaleloP = std::max(Techo(v.dCapacidadNecesaria / ElMayor(v.dCapacidadAcumulador, 1.0)), 1);
    v.iAcumuladoresSerie = v.iAcumuladoresSerieP;
    if (bForzar)
        v.iAcumuladoresParalelo = v.iAcumuladoresParaleloP;
    v.dCapacidadResultante = v.iAcumuladoresParalelo * v.dCapacidadAcumulador;
    v.dCapacidadResultanteP = v.iAcumuladoresParaleloP * v.dCapacidadAcumulador;
    v.dPesoAcumuladores = Producto(v.iAcumuladoresSerieP, v.iAcumuladoresParalelo) * v.acumulador.dPeso;
}

void ProponerPosicion(V& v, bool bForzar)
{
    if (v.iMesCalculo >= 0 && std::cmp_less(v.iMesCalculo, kIndicesMes)) {
        const Desvio& desvio = kDesvios[static_cast<std::size_t>(v.iMesCalculo)];
        v.dInclinacionP = std::abs(v.dLatitud) + (EsNorte(v) ? desvio.dNorte : desvio.dSur);
    }
    v.dOrientacionP = EsNorte(v) ? 0.0 : 180.0;
    if (bForzar) {
        v.dInclinacion = v.dInclinacionP;
        v.dOrientacion = v.dOrientacionP;
    }
}

DoceFactores Factores(const V& v, const EntradaAislada& entrada, double dInclinacion)
{
    return entrada.factoresK(v.dLatitud, v.iHemisferio, dInclinacion).value_or(DoceFactores{});
}

// Peak sun hours of the year at one tilt.
struct AnoSolar {
    double dSuma = 0.0;
    double dMayor = std::numeric_limits<double>::lowest();
    double dMenor = std::numeric_limits<double>::max();
    int iMesMayor = 0, iMesMenor = 0;

    AnoSolar(const DoceFactores& k, const DoceFactores& adRadiacion)
    {
        for (int m = 0; m < 12; ++m)
            Anadir(m, HoraPico(k, adRadiacion, m));
    }

    static double HoraPico(const DoceFactores& k, const DoceFactores& adRadiacion, int iMes)
    {
        const auto m = static_cast<std::size_t>(iMes);
        return solar::HorasPico(adRadiacion[m], k[m]);
    }

private:
    // Of equal months the last stays.
    void Anadir(int iMes, double d)
    {
        dSuma += d;
        if (MayorIgual(d, dMayor)) {
            dMayor = d;
            iMesMayor = iMes;
        }
        if (MenorIgual(d, dMenor)) {
            dMenor = d;
            iMesMenor = iMes;
        }
    }
};

void CalcularHorasPico(V& v, const DoceFactores& k, const DoceFactores& kP)
{
    const AnoSolar enVigor(k, v.adRadiacion), propuesto(kP, v.adRadiacion);
    int iMes = v.iMesCalculo;
    if (iMes >= 0 && iMes < kAnual) {
        v.dHSP = AnoSolar::HoraPico(k, v.adRadiacion, iMes);
        v.dHSPP = AnoSolar::HoraPico(kP, v.adRadiacion, iMes);
    } else if (iMes == kAnual) {
        v.dHSP = enVigor.dSuma / 12;
        v.dHSPP = ElMayor(propuesto.dSuma / 12, 0.0);
    } else if (iMes == kFavorable) {
        v.dHSP = enVigor.dMayor;
        v.dHSPP = propuesto.dMayor;
        iMes = propuesto.iMesMayor;
    } else if (iMes == kDesfavorable) {
        v.dHSP = enVigor.dMenor;
        v.dHSPP = propuesto.dMenor;
        iMes = propuesto.iMesMenor;
    }
    // Nothing on earth: factors out of their range. The value in force is left as it is.
    if (numero::Mayor(v.dHSPP, 10.0) || numero::Menor(v.dHSPP, -10.0))
        v.dHSPP = 0.0;
    v.csMesReferencia = solar::NombreMes(iMes);
}

// `d` over peak sun hours; 0 where there are none.
double EntreHorasPico(double d, double dHoras, double dPotencia = 1.0)
{
    return MenorIgual(dHoras, 0.0) ? 0.0 : d / (dPotencia * dHoras);
}

void DimensionarPaneles(V& v, bool bForzar)
{
    v.dEnergiaAcumulador = v.dEnergiaNecesaria * v.dPerdidaAcumulador / 100;
    v.dEnergiaCableado = v.dEnergiaNecesaria * v.dPerdidaCableado / 100;
    v.dEnergiaAcoplamiento = v.dEnergiaNecesaria * v.dPerdidaAcoplamiento / 100;
    v.dPotenciaMinima = EntreHorasPico(v.dEnergiaNecesaria, v.dHSP);
    v.dPotenciaMinimaP = EntreHorasPico(v.dEnergiaNecesaria, v.dHSPP);

    const double dPmpm = v.panel.dPmpm;
    const double dPaneles = std::ceil(EntreHorasPico(v.dEnergiaNecesaria, v.dHSP, dPmpm));
    const double dPanelesP = std::ceil(EntreHorasPico(v.dEnergiaNecesaria, v.dHSPP, dPmpm));
    v.iPanelesNecesarios = numero::Entero(dPaneles);
    v.iPanelesNecesariosP = numero::Entero(dPanelesP);

    v.iPanelesSerieP = SueloDesdeUno(v.dTensionMaxFV / v.panel.dVoc);
    const double dPotenciaRamal = v.iPanelesSerieP * dPmpm;
    const auto ramales = [&](double d) { return SueloDesdeUno(std::ceil(d * dPmpm / dPotenciaRamal)); };
    v.iPanelesParaleloP = ramales(dPanelesP);
    v.iRamalesNecesarios = ramales(dPaneles);
    if (bForzar) {
        v.iPanelesSerie = v.iPanelesSerieP;
        v.iPanelesParalelo = v.iPanelesParaleloP;
    }
    v.iTotalPaneles = Producto(v.iPanelesSerie, v.iPanelesParalelo);
    v.dPotenciaInstalada = v.iTotalPaneles * dPmpm;
    v.dPotenciaInstaladaP = Producto(v.iPanelesSerieP, v.iPanelesParaleloP) * dPmpm;
    v.dPesoPaneles = v.iTotalPaneles * v.panel.dPesoPanel;
    v.dPotenciaMaxFV = v.dPotenciaInstalada * 1.25;
}

// mm, on level ground.
double DistanciaFilas(double dLatitud, double dInclinacion, double dLargo)
{
    const double k = solar::CoeficienteSombra(std::abs(dLatitud));
    const double b = solar::ARadianes(dInclinacion);
    return std::sin(b) * k * dLargo / solar::DivisorPendiente(0.0, k) + std::cos(b) * dLargo;
}

void CalcularSuperficies(V& v, double dLargo, double dAncho)
{
    v.dSuperficieTotal = (dLargo / 1000) * v.iTotalPaneles * (dAncho / 1000);
    v.dSuperficieProyectada = std::cos(solar::ARadianes(v.dInclinacion)) * v.dSuperficieTotal;
}

void DimensionarCampo(V& v, bool bForzar)
{
    if (MayorIgual(v.panel.dLargoPanel, 1.0)) {
        v.dDistanciaFilasP = DistanciaFilas(v.dLatitud, v.dInclinacionP, v.panel.dLargoPanel);
        if (bForzar)
            v.dDistanciaFilas = v.dDistanciaFilasP;
    }
    CalcularSuperficies(v, v.panel.dLargoPanel, v.panel.dAnchoPanel);
}

}  // namespace

void Recalcular(ValoresAislada& v, const EntradaAislada& entrada, bool bForzar)
{
    if (entrada.acumulador != nullptr) {
        v.acumulador = LeerAcumulador(*entrada.acumulador);
        v.dCapacidadAcumulador = CapacidadEnVigor(*entrada.acumulador).value_or(v.dCapacidadAcumulador);
        DimensionarAcumuladores(v, entrada.receptores, bForzar);
        ProponerPosicion(v, bForzar);
    }
    const DoceFactores k = Factores(v, entrada, v.dInclinacion);
    if (entrada.acumulador != nullptr && entrada.panel != nullptr) {
        v.panel = Disponer(*entrada.panel, v.iDisposicion);
        CalcularHorasPico(v, k, Factores(v, entrada, v.dInclinacionP));
        DimensionarPaneles(v, bForzar);
        DimensionarCampo(v, bForzar);
    }
    if (entrada.acumulador != nullptr)
        v.iTotalAcumuladores = Producto(v.iAcumuladoresParalelo, v.iAcumuladoresSerie);
    for (std::size_t m = 0; m < 12; ++m)
        v.adRadiacionInclinada[m] = k[m] * v.adRadiacion[m];
}

void EspaciarFilas(ValoresAislada& v, const CBasePanelFotoModelo& panel)
{
    v.dDistanciaFilas = DistanciaFilas(v.dLatitud, v.dInclinacion, panel.dH);
    v.iTotalPaneles = Producto(v.iPanelesParalelo, v.iPanelesSerie);
    CalcularSuperficies(v, panel.dH, panel.dB);
}

void CalcularCoeficientes(CSFVAsistenteAislada& v)
{
    const double dDescarga = v.dProfundidadDescarga / 100;
    const double t = v.dTemperaturaAcumulador;
    v.dKaAjustado = (0.0014 * (t * t) + 0.0001 * t + 0.4) * v.dKa;
    v.dR = electrical::RendimientoBateria(v.dKaAjustado, v.dKb, v.dKc, v.dKv, dDescarga, v.dDiasAutonomia);
}

void TomarDelRegistro(ValoresAislada& v, const CSFVAsistenteAislada& registro)
{
    static_cast<CSFVAsistenteAislada&>(v) = registro;
    v.Reset();
    v.dPanelesPorFila = registro.iPanelesPorFila;
}

void DevolverAlRegistro(const ValoresAislada& v, CSFVAsistenteAislada& registro)
{
    CSFVAsistenteAislada nuevo = static_cast<const CSFVAsistenteAislada&>(v);
    nuevo.iPanelesPorFila = numero::Entero(v.dPanelesPorFila);
    nuevo.dPotenciaSalidaCA = registro.dPotenciaSalidaCA;
    std::swap(nuevo.adCantidad, registro.adCantidad);
    std::swap(nuevo.acsModelo, registro.acsModelo);
    std::swap(nuevo.adHorasDia, registro.adHorasDia);
    std::swap(nuevo.adHorario, registro.adHorario);
    registro = nuevo;
}

}  // namespace efv::assistants
