// The catalogue of PV modules: its table of fields and what hangs on the cell technology.
#pragma once

#include <array>
#include <string_view>

#include <quorvel/catalogues.h>

#include "catalogues/format/campos.h"

namespace efv::catalogues {

template <>
struct FormatoCatalogo<CBasePanelFotoModelo> : ReglasCatalogo<CBasePanelFotoModelo> {
    using M = CBasePanelFotoModelo;

    static constexpr NombresCatalogo kNombres{"CBasePanelFoto",
                                              "CBasePanelFotoFamilia",
                                              "CBasePanelFotoModelo",
                                              L"Panel Fotovoltaico",
                                              L"Base de Datos de Paneles Fotovoltaicos",
                                              20442,
                                              L"panel"};
    static constexpr auto kCampos = std::to_array<CampoModelo<M>>({
        {"csModelo", &M::csModelo},
        {"dPmpm", &M::dPmpm, L"Pmpm (W)", Cero::sinDato},
        {"dVsmax", &M::dVsmax, {}, Cero::sinDato},
        {"dVmpm", &M::dVmpm, L"Vmpm (V)", Cero::sinDato},
        {"dImpm", &M::dImpm, L"Impm (A)", Cero::sinDato},
        {"dVoc", &M::dVoc, {}, Cero::sinDato},
        {"dIsc", &M::dIsc, {}, Cero::sinDato},
        {"dCTVoc", &M::dCTVoc, {}, Cero::sinDato},
        {"dCTIsc", &M::dCTIsc, {}, Cero::sinDato},
        {"dCTPmpm", &M::dCTPmpm, {}, Cero::sinDato},
        {"dCEf", &M::dCEf},
        {"iNp", &M::iNp},
        {"iNs", &M::iNs},
        {"dAcel", &M::dAcel, {}, Cero::sinDato},
        {"iTipoCelula", &M::iTipoCelula, L"Tecnología"},
        {"dH", &M::dH, {}, Cero::sinDato},
        {"dB", &M::dB, {}, Cero::sinDato},
        {"dA", &M::dA, {}, Cero::sinDato},
        {"dP", &M::dP, {}, Cero::sinDato},
        {"nColor", &M::nColor},
        {"csCodPrecio", &M::csCodPrecio},
    });
};

/// A cell technology in the three vocabularies that name it.
struct TipoCelula {
    std::wstring_view entrada;  ///< entry of the dialog
    std::wstring_view nombre;
    std::wstring_view pan;  ///< value in a PAN file; empty: any other
};

inline constexpr auto kTiposCelula = std::to_array<TipoCelula>({
    {L"monocristalino", L"Si Monocristalino", L"mtSiMono"},
    {L"policristalino", L"Si Policristalino", L"mtSiPoly"},
    {L"amorfo", L"Si Amorfo", L"mtSiAmor"},
    {L"híbrido", L"Otras", {}},
});

/// Cells a branch as the getters give them: 200 for the technologies from 3 on.
int CelulasPorRamal(int iTipoCelula, int iNs);

/// Coefficient in thousandths of a unit and degree to percent of a reference and degree. A null
/// reference counts as 1.
double CoeficienteAPorciento(double dCoeficiente, double dReferencia);
/// The way back, unguarded.
double CoeficienteDePorciento(double dPorciento, double dReferencia);

}  // namespace efv::catalogues
