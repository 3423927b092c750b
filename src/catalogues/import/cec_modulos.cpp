#include <cmath>

#include <fmt/format.h>

#include <quorvel/catalogues.h>

#include "catalogues/import/cec_fila.h"

namespace efv::catalogues {

namespace {

using Modulo = CBasePanelFotoModelo;

// The coefficients of voltage and current are in V and A a degree, the catalogue's in thousandths.
constexpr auto kColumnasModulo = std::to_array<ColumnaNumerica<Modulo>>({
    {"STC", &Modulo::dPmpm},
    {"V_mp_ref", &Modulo::dVmpm},
    {"I_mp_ref", &Modulo::dImpm},
    {"V_oc_ref", &Modulo::dVoc},
    {"I_sc_ref", &Modulo::dIsc},
    {"beta_oc", &Modulo::dCTVoc, 1000},
    {"alpha_sc", &Modulo::dCTIsc, 1000},
});

struct Tecnologia {
    std::string_view nombre;
    int iTipoCelula;
};
// "Thin Film" is amorphous silicon as well as others, so it is no certain 2.
constexpr auto kTecnologias = std::to_array<Tecnologia>({{"Mono-c-Si", 0}, {"Multi-c-Si", 1}});
constexpr int kOtraTecnologia = 3;

constexpr double kMilimetros = 1000.0;
// Half cells counted one by one give half the voltage that a crystalline cell has.
constexpr double kVocMediaCelulaMin = 0.25;
constexpr double kVocMediaCelulaMax = 0.45;

void LeerCelulas(const FilaLeida& fila, Modulo& modulo)
{
    const auto* tecnologia = std::ranges::find(kTecnologias, fila.Texto("Technology"), &Tecnologia::nombre);
    const bool bCristalino = tecnologia != kTecnologias.end();
    modulo.iTipoCelula = bCristalino ? tecnologia->iTipoCelula : kOtraTecnologia;
    const double dCelulas = fila.Numero("N_s");
    if (dCelulas < 1 || dCelulas > 1000 || dCelulas != std::floor(dCelulas))
        throw SinModelo(fmt::format("N_s no es un número de células: «{}»", fila.Texto("N_s")));
    modulo.iNs = static_cast<int>(dCelulas);
    const double dVocCelula = modulo.dVoc / dCelulas;
    if (bCristalino && modulo.iNs % 2 == 0 && dVocCelula >= kVocMediaCelulaMin &&
        dVocCelula < kVocMediaCelulaMax) {
        modulo.iNs /= 2;
        modulo.iNp = 2;
    }
}

void LeerMedidas(const FilaLeida& fila, double dProporcion, Modulo& modulo)
{
    const bool bTiene = !fila.Texto("Length").empty() && !fila.Texto("Width").empty();
    if (bTiene) {
        modulo.dH = fila.Numero("Length") * kMilimetros;
        modulo.dB = fila.Numero("Width") * kMilimetros;
    } else if (dProporcion > 0.0) {
        modulo.dB = std::round(std::sqrt(fila.Numero("A_c") / dProporcion) * kMilimetros);
        modulo.dH = std::round(modulo.dB * dProporcion);
    } else {
        throw SinModelo("no tiene largo y ancho");
    }
}

}  // namespace

NombresModelo NombresDeModulo(const FilaLeida& fila)
{
    const std::string_view fabricante = fila.Texto("Manufacturer");
    const std::string_view nombre = fila.Texto("Name");
    const bool bRepetido = !fabricante.empty() && nombre.starts_with(fabricante) &&
                           nombre.substr(fabricante.size()).starts_with(' ');
    return {fabricante, bRepetido ? Recortar(nombre.substr(fabricante.size())) : nombre};
}

std::unique_ptr<CModelo> LeerModulo(const FilaLeida& fila, const OpcionesCec& opciones)
{
    auto modulo = std::make_unique<Modulo>();
    Copiar(fila, kColumnasModulo, *modulo);
    modulo->dCTPmpm = (fila.Numero("gamma_r") / 100) * modulo->dPmpm * 1000;
    LeerCelulas(fila, *modulo);
    LeerMedidas(fila, opciones.dProporcion, *modulo);
    modulo->dA = opciones.dCanto;
    modulo->dP = 0.0;
    return modulo;
}

}  // namespace efv::catalogues
