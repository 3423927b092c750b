#include "assistants/equipos.h"

#include <algorithm>
#include <array>

#include "platform/numero/conversion.h"
#include "platform/numero/tolerancia.h"

namespace efv::assistants {

namespace {

using M = CBaseAcumuladorModelo;
using Capacidad = double M::*;

struct Regla {
    std::wstring_view csNombre;
    Capacidad candidata;
    std::array<Capacidad, 4> inferiores;
};

constexpr auto kReglas = std::to_array<Regla>({
    {L"C1", &M::dCapC1, {&M::dCapC5, &M::dCapC10, &M::dCapC100, &M::dCapC120}},
    {L"C5", &M::dCapC5, {&M::dCapC1, &M::dCapC10, &M::dCapC100, &M::dCapC120}},
    {L"C10", &M::dCapC10, {&M::dCapC1, &M::dCapC5, &M::dCapC100, &M::dCapC120}},
    {L"C20", &M::dCapC20, {&M::dCapC1, &M::dCapC5, &M::dCapC100, &M::dCapC120}},
    {L"C100", &M::dCapC100, {&M::dCapC1, &M::dCapC5, &M::dCapC10, &M::dCapC120}},
    {L"C120", &M::dCapC120, {&M::dCapC1, &M::dCapC5, &M::dCapC10, &M::dCapC100}},
});

}  // namespace

std::optional<Regimen> RegimenEnVigor(const CBaseAcumuladorModelo& modelo)
{
    for (const Regla& regla : kReglas) {
        const double d = modelo.*regla.candidata;
        if (std::ranges::all_of(regla.inferiores, [&](Capacidad c) { return numero::Mayor(d, modelo.*c); }))
            return Regimen{d, regla.csNombre};
    }
    return std::nullopt;
}

std::optional<double> CapacidadEnVigor(const CBaseAcumuladorModelo& modelo)
{
    const auto regimen = RegimenEnVigor(modelo);
    return regimen ? std::optional(regimen->dCapacidad) : std::nullopt;
}

DatosAcumulador LeerAcumulador(const CBaseAcumuladorModelo& m)
{
    return {.dVnom = m.dVnom, .dH = m.dH, .dW = m.dW, .dL = m.dL, .dPeso = m.dPeso};
}

DatosPanel Disponer(const CBasePanelFotoModelo& modelo, int iDisposicion)
{
    DatosPanel p{.dPmpm = modelo.dPmpm, .dVmpm = modelo.dVmpm, .dImpm = modelo.dImpm, .dVoc = modelo.dVoc};
    p.dLargoPanel = iDisposicion == 0 ? modelo.dH : modelo.dB;
    p.dAnchoPanel = iDisposicion == 0 ? modelo.dB : modelo.dH;
    p.dAreaPanel = (p.dAnchoPanel / 1000) * (p.dLargoPanel / 1000);
    p.dPesoPanel = modelo.dP;
    return p;
}

double CorrienteLimite(double dICCMax, std::wstring_view csICCMaxMPPT)
{
    std::optional<double> limite;
    for (std::size_t inicio = 0, barra = 0; barra != csICCMaxMPPT.npos; inicio = barra + 1) {
        barra = csICCMaxMPPT.find(L'/', inicio);
        double d = 0.0;  // a piece that is no number counts as none
        numero::nuConvertIntlStrToFlt(csICCMaxMPPT.substr(inicio, barra - inicio), d);
        if (numero::Mayor(d, 0.0) && (!limite || numero::Menor(d, *limite)))
            limite = d;
    }
    return limite.value_or(dICCMax);
}

}  // namespace efv::assistants
