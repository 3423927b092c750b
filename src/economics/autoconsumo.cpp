#include <quorvel/autoconsumo.h>

#include <algorithm>

#include <quorvel/framework/CException.h>

#include "economics/horas_bloque.h"
#include "solar/calendario.h"

namespace efv::economics {

namespace {

constexpr std::size_t kHoras = solar::kHorasAno;

/// Where the energies of an hour go.
struct HoraAutoconsumo {
    double dAutoconsumo, dVertido;
};

HoraAutoconsumo Hora(const HorasEstudio& h, const OperacionBateria* o, std::size_t i)
{
    if (o != nullptr)
        return {o->adAutoconsumo[i], o->adVertido[i]};
    const double dSobrante = h.adProduccion[i] - h.adConsumo[i];
    const double dVertido = dSobrante > 0.0 ? dSobrante : 0.0;
    return {h.adProduccion[i] - dVertido, dVertido};
}

SumaAutoconsumo SumarMes(const HorasEstudio& h, const OperacionBateria* o, double dCosteDegradacion,
                         TramoHoras tramo)
{
    SumaAutoconsumo s;
    for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
        const auto [dAutoconsumo, dVertido] = Hora(h, o, i);
        const double dCargaRed = o != nullptr ? o->adCargaRed[i] : 0.0;
        const double dComprada = (h.adConsumo[i] - dAutoconsumo) + dCargaRed;
        s.dProducida += h.adProduccion[i];
        s.dConsumida += h.adConsumo[i];
        s.dAutoconsumida += dAutoconsumo;
        s.dVertida += dVertido;
        s.dComprada += dComprada;
        s.dGastoSin += h.adConsumo[i] * h.adPrecioConsumo[i];
        s.dCompra += dComprada * h.adPrecioConsumo[i];
        s.dValorVertido += dVertido * h.adPrecioVertido[i];
        if (o != nullptr) {
            s.dCargaFV += o->adCargaFV[i];
            s.dCargaRed += dCargaRed;
            s.dDescarga += o->adDescarga[i];
        }
    }
    s.dDegradacion = s.dDescarga * dCosteDegradacion;
    return s;
}

}  // namespace

std::vector<double> BloqueDeAno(std::span<const double> ad)
{
    if (ad.size() != kHoras)
        throw CInvalidArgException("an hourly year has 8760 values");
    std::vector<double> bloque(kHorasBloque);
    std::size_t iHora = 0;
    for (std::size_t m = 0; m < 12; ++m)
        for (auto [i, iFin] = HorasDelMes(m); i < iFin; ++i)
            bloque[i] = ad[iHora++];
    return bloque;
}

std::vector<double> AnoDeBloque(BloqueHorario bloque)
{
    std::vector<double> ad;
    ad.reserve(kHoras);
    for (std::size_t m = 0; m < 12; ++m)
        for (auto [i, iFin] = HorasDelMes(m); i < iFin; ++i)
            ad.push_back(bloque[i]);
    return ad;
}

SumaAutoconsumo& SumaAutoconsumo::operator+=(const SumaAutoconsumo& otra)
{
    using S = SumaAutoconsumo;
    static constexpr double S::*kCampos[] = {
        &S::dProducida,    &S::dConsumida,  &S::dAutoconsumida, &S::dVertida,  &S::dComprada,
        &S::dCargaFV,      &S::dCargaRed,   &S::dDescarga,      &S::dGastoSin, &S::dCompra,
        &S::dValorVertido, &S::dCompensado, &S::dDegradacion,   &S::dAhorro};
    for (const auto campo : kCampos)
        this->*campo += otra.*campo;
    return *this;
}

double SumaAutoconsumo::Cobertura() const
{
    return dConsumida > 0.0 ? 1.0 - dComprada / dConsumida : 0.0;
}

double SumaAutoconsumo::Aprovechamiento() const
{
    return dProducida > 0.0 ? 1.0 - dVertida / dProducida : 0.0;
}

AnoAutoconsumo EstudiarAno(const HorasEstudio& horas, const OperacionBateria* operacion,
                           double dCosteDegradacion, PagoVertido pago)
{
    AnoAutoconsumo ano;
    for (std::size_t m = 0; m < 12; ++m) {
        SumaAutoconsumo& mes = ano.meses[m];
        mes = SumarMes(horas, operacion, dCosteDegradacion, HorasDelMes(m));
        // Negative prices: what a surplus costs is no compensation, and is paid whole.
        mes.dCompensado = pago == PagoVertido::compensacion
                              ? std::min(mes.dValorVertido, std::max(mes.dCompra, 0.0))
                              : mes.dValorVertido;
        mes.dAhorro = mes.dGastoSin - mes.dCompra + mes.dCompensado - mes.dDegradacion;
        ano.total += mes;
    }
    return ano;
}

RentabilidadAutoconsumo CalcularRentabilidad(const AnoAutoconsumo& ano, const InversionAutoconsumo& inversion,
                                             CSFVCalculoEconomicoAuto& registro)
{
    RentabilidadAutoconsumo r;
    registro.dEnergiaProducida = ano.total.dProducida;
    registro.dEnergiaConsumida = ano.total.dConsumida;
    CalcularFinanciacion(registro);
    const double dAhorro = ano.total.dAhorro - inversion.dMantenimiento;
    const double dFactor = FactorAnual(registro);
    r.recuperacion = CalcularRecuperacion(registro.dCosteTotal, dAhorro, dFactor);
    registro.dAniosRecuperacion = r.recuperacion.dAnos;
    double dFlujo = dAhorro;
    r.dAcumulado = -registro.dCosteTotal;
    for (int y = 0; y < inversion.iAnos; ++y) {
        r.adFlujos.push_back(dFlujo);
        r.dAcumulado += dFlujo;
        dFlujo *= dFactor;
    }
    if (registro.dCosteInstalacion > 0.0)
        r.tasa = TasaInternaRetorno(registro.dCosteInstalacion, r.adFlujos);
    registro.dTIR = r.tasa.dTIR;
    return r;
}

std::array<DiaTipico, 4> DiasTipicos(const HorasEstudio& horas, const OperacionBateria* operacion)
{
    std::array<DiaTipico, 4> dias;
    std::array<double, 4> adDias{};
    for (std::size_t m = 0; m < 12; ++m) {
        // December opens the winter.
        const std::size_t iEstacion = (m + 1) % 12 / 3;
        DiaTipico& dia = dias[iEstacion];
        const TramoHoras tramo = HorasDelMes(m);
        adDias[iEstacion] += static_cast<double>(tramo.iFin - tramo.iPrimera) / 24.0;
        for (std::size_t i = tramo.iPrimera; i < tramo.iFin; ++i) {
            const std::size_t h = i % 24;
            const auto [dAutoconsumo, dVertido] = Hora(horas, operacion, i);
            dia.adProduccion[h] += horas.adProduccion[i];
            dia.adConsumo[h] += horas.adConsumo[i];
            dia.adAutoconsumo[h] += dAutoconsumo;
            dia.adVertido[h] += dVertido;
        }
    }
    for (std::size_t e = 0; e < dias.size(); ++e)
        for (auto* ad : {&dias[e].adProduccion, &dias[e].adConsumo, &dias[e].adAutoconsumo, &dias[e].adVertido})
            for (double& d : *ad)
                d /= adDias[e];
    return dias;
}

}  // namespace efv::economics
