// The cables of a design. They follow from it and change nothing of it.
#include <quorvel/report/cableado.h>

#include <algorithm>

#include "electrical/entradas.h"

namespace efv::report {

namespace {

/// What a stretch carries; a voltage or current of 0 isn't known.
struct Servicio {
    double dLongitud, dCorriente, dTension;
    enum Clase { continua, monofasica, trifasica } clase = continua;
};

Servicio::Clase Alterna(bool bTrifasica)
{
    return bTrifasica ? Servicio::trifasica : Servicio::monofasica;
}

TramoDiseno Calcular(std::string clave, std::string nombre, int iCuantos, const Servicio& servicio,
                     const CriteriosCableado& criterios)
{
    TramoDiseno tramo{.clave = std::move(clave), .nombre = std::move(nombre), .iCuantos = iCuantos};
    tramo.tramo = criterios.De(tramo.clave);
    tramo.tramo.dLongitud = servicio.dLongitud;
    tramo.tramo.dCorriente = servicio.dCorriente;
    tramo.tramo.dTension = servicio.dTension;
    tramo.tramo.bTrifasico = servicio.clase == Servicio::trifasica;
    if (servicio.clase == Servicio::continua)
        tramo.tramo.dCosFi = 1.0;
    tramo.bDatos = servicio.dCorriente > 0.0 && servicio.dTension > 0.0;
    tramo.bLongitud = servicio.dLongitud > 0.0;
    if (tramo.bDatos)
        tramo.calculo = electrical::Dimensionar(tramo.tramo);
    return tramo;
}

// Strings go round the trackers and, on each, over its inputs; a further round when all have one.
std::vector<EntradaDiseno> Repartir(int iRamales, int iNumMPPT, int iNumEntradas, double dCorriente)
{
    electrical::Entradas rotuladas;
    const int iEntradas = std::clamp(iNumEntradas, 1, electrical::kEntradasMaximas);
    // A tracker without an input gets no string.
    const int iSeguidores = std::clamp(iNumMPPT, 1, iEntradas);
    electrical::AsignarEntradas(0, iSeguidores, iEntradas, rotuladas, true);
    std::vector<EntradaDiseno> entradas;
    entradas.reserve(static_cast<std::size_t>(iEntradas));
    for (int i = 0; i < iEntradas; ++i)
        entradas.push_back({rotuladas[i].csReferencia, i % iSeguidores + 1, 0, 0.0});
    // Inputs of each tracker, in their order.
    for (int iSeguidor = 1; iSeguidor <= iSeguidores; ++iSeguidor) {
        std::vector<EntradaDiseno*> suyas;
        for (EntradaDiseno& entrada : entradas)
            if (entrada.iSeguidor == iSeguidor)
                suyas.push_back(&entrada);
        const int iSuyos = iRamales / iSeguidores + (iSeguidor <= iRamales % iSeguidores ? 1 : 0);
        for (std::size_t i = 0; i < suyas.size(); ++i) {
            const int iPuestos = static_cast<int>(suyas.size());
            suyas[i]->iRamales = iSuyos / iPuestos + (static_cast<int>(i) < iSuyos % iPuestos ? 1 : 0);
            suyas[i]->dCorriente = suyas[i]->iRamales * dCorriente;
        }
    }
    return entradas;
}

// What the inverter gives at most: its data sheet's current, else that of its nominal power.
double CorrienteSalida(const CBaseInversorModelo& inversor, double dCosFi)
{
    if (inversor.dICAMax > 0.0)
        return inversor.dICAMax;
    if (inversor.dVCANom <= 0.0)
        return 0.0;
    return electrical::CorrienteDePotencia(inversor.dPCANom, inversor.dVCANom, dCosFi,
                                           inversor.iTipoSalida != 0);
}

}  // namespace

std::optional<CalibreProteccion> CalibreDe(const TramoDiseno& tramo)
{
    const auto& c = tramo.calculo;
    if (!tramo.bDatos || !c.bCorriente || c.dAdmisible <= 0.0)
        return std::nullopt;
    return CalibreProteccion{c.dAdmisible - c.dReserva, c.dAdmisible};
}

Cableado CableadoDe(const CSFVAsistenteRed& diseno, const CBaseInversorModelo* inversor,
                    const CBasePanelFotoModelo* panel, const CriteriosCableado& criterios)
{
    Cableado cableado;
    cableado.iPanelesSerie = diseno.iPanelesSerie;
    cableado.dTensionRamal = panel != nullptr ? diseno.iPanelesSerie * panel->dVmpm : 0.0;
    if (inversor != nullptr)
        cableado.entradas = Repartir(diseno.iPanelesParalelo, inversor->iNumMPPT, inversor->iNumEntradas,
                                     panel != nullptr ? panel->dImpm : 0.0);
    double dEntrada = 0.0, dUsadas = 0.0;
    for (const EntradaDiseno& entrada : cableado.entradas) {
        dEntrada = std::max(dEntrada, entrada.dCorriente);
        dUsadas += entrada.iRamales > 0 ? 1.0 : 0.0;
    }
    const double dSalida = inversor != nullptr ? CorrienteSalida(*inversor, criterios.De("L2").dCosFi) : 0.0;
    const double dTension = inversor != nullptr ? inversor->dVCANom : 0.0;
    const auto salida = Alterna(inversor != nullptr && inversor->iTipoSalida != 0);
    const int iInversores = std::max(diseno.iInversores, 1);
    const int iUsadas = static_cast<int>(std::min(dUsadas * iInversores, 1e9));
    cableado.tramos = {Calcular("L1", "Generador - Inversor", iUsadas,
                                {diseno.dLongitudL1, dEntrada, cableado.dTensionRamal}, criterios),
                       Calcular("L2", "Inversor - Caja conexión", iInversores,
                                {diseno.dLongitudL2, dSalida, dTension, salida}, criterios),
                       Calcular("L3", "Caja conexión - Red", 1,
                                {diseno.dLongitudL3, dSalida * iInversores, dTension, salida}, criterios)};
    return cableado;
}

Cableado CableadoDe(const CSFVAsistenteAislada& diseno, const CBasePanelFotoModelo* panel,
                    const PotenciaCargas& cargas, const CriteriosCableado& criterios)
{
    const double dSistema = diseno.dTensionSistema;
    const auto enSistema = [&](double dPotencia) { return dSistema > 0.0 ? dPotencia / dSistema : 0.0; };
    const double dCampo =
        panel != nullptr ? panel->dPmpm * diseno.iPanelesSerie * diseno.iPanelesParalelo : 0.0;
    const bool bSalida = diseno.bSalidaCA != 0;
    const double dTotal = cargas.dContinua + cargas.dAlterna;
    Cableado cableado;
    cableado.iPanelesSerie = diseno.iPanelesSerie;
    cableado.dTensionRamal = panel != nullptr ? diseno.iPanelesSerie * panel->dVmpm : 0.0;
    const auto anadir = [&](const char* clave, const char* nombre, double dCorriente, double dTension,
                            Servicio::Clase clase = Servicio::continua) {
        cableado.tramos.push_back(Calcular(
            clave, nombre, 1, {criterios.De(clave).dLongitud, dCorriente, dTension, clase}, criterios));
    };
    anadir("paneles", "Paneles - Regulador", panel != nullptr ? panel->dImpm * diseno.iPanelesParalelo : 0.0,
           cableado.dTensionRamal);
    anadir("acumuladores", "Acumuladores - Regulador", enSistema(std::max(dCampo, dTotal)), dSistema);
    anadir("receptores", "Receptores - Regulador", enSistema(bSalida ? cargas.dContinua : dTotal), dSistema);
    if (!bSalida)
        return cableado;
    anadir("inversor", "Inversor - Regulador", enSistema(cargas.dAlterna), dSistema);
    const bool bTrifasica = diseno.iTipoSalidaCA != 0;
    const double dCosFi = criterios.De("salida").dCosFi;
    anadir("salida", "Receptores - Inversor",
           diseno.dTensionSalidaCA > 0.0
               ? electrical::CorrienteDePotencia(cargas.dAlterna, diseno.dTensionSalidaCA, dCosFi, bTrifasica)
               : 0.0,
           diseno.dTensionSalidaCA, Alterna(bTrifasica));
    return cableado;
}

}  // namespace efv::report
