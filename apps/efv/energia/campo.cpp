#include "energia/campo.h"

#include <algorithm>

#include <quorvel/solar.h>

namespace efv::orden {

namespace {

// Any year of 365 days.
constexpr int kAnoComun = 2018;

std::array<double, kMeses> Extraer(const Resultado& resultado, double MesCalculado::*valor)
{
    std::array<double, kMeses> valores{};
    for (std::size_t m = 0; m < kMeses; ++m)
        valores[m] = resultado.meses[m].*valor;
    return valores;
}

}  // namespace

double Resultado::RIMedia() const
{
    return MediaAnual(Extraer(*this, &MesCalculado::dRI));
}

double Resultado::EnergiaDiaMedia() const
{
    return MediaAnual(Extraer(*this, &MesCalculado::dEnergiaDia));
}

std::optional<Resultado> Calcular(const Campo& campo, Metodo metodo)
{
    const int iMetodo = static_cast<int>(metodo);
    const int iHemisferio = campo.EsSur() ? 0 : 1;
    const double dInclinacion =
        metodo == Metodo::correlacion ? campo.InclinacionCorrelacion() : campo.dInclinacion;
    Resultado resultado;
    bool bCalculado = true;
    for (std::size_t m = 0; m < kMeses; ++m) {
        const int iMes = static_cast<int>(m);
        const double dRad = campo.adRadHorizontal[m];
        MesCalculado& mes = resultado.meses[m];
        const auto energia = [&](auto funcion, double& dEnergia) {
            return funcion(dEnergia, iMetodo, iMes, campo.dLatitud, iHemisferio, dRad, dInclinacion,
                           campo.dOrientacion, campo.dPotencia, campo.dPR, campo.dFactor) != 0;
        };
        bCalculado = bCalculado &&
                     phGetRI_kWh_m2_dia(mes.dRI, iMetodo, iMes, campo.dLatitud, iHemisferio, dRad, dInclinacion,
                                        campo.dOrientacion, campo.dPR, campo.dFactor) != 0 &&
                     energia(phGetEIR_kWh_dia, mes.dEnergiaDia) && energia(phGetEIR_kWh_mes, mes.dEnergiaMes);
    }
    double adRad[kMeses];
    std::ranges::copy(campo.adRadHorizontal, adRad);
    bCalculado = bCalculado && phGetEIR_kWh_ano(resultado.dEnergiaAno, iMetodo, campo.dLatitud, iHemisferio,
                                                adRad, dInclinacion, campo.dOrientacion, campo.dPotencia,
                                                campo.dPR, campo.dFactor) != 0;
    return bCalculado ? std::optional(resultado) : std::nullopt;
}

int DiasDelMes(std::size_t iMes)
{
    return phGetNumDiasMes(kAnoComun, static_cast<int>(iMes));
}

double MediaAnual(const std::array<double, kMeses>& valores)
{
    double dSuma = 0.0;
    int iDias = 0;
    for (std::size_t m = 0; m < kMeses; ++m) {
        dSuma += valores[m] * DiasDelMes(m);
        iDias += DiasDelMes(m);
    }
    return dSuma / iDias;
}

std::string NombreMes(std::size_t iMes)
{
    CString csNombre;
    phGetNombreMes(static_cast<int>(iMes), csNombre);
    return CadenaUtf8(csNombre);
}

}  // namespace efv::orden
