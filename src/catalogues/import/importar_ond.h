// The OND file, the inverter description of the simulation program PVsyst, as the dialogs import it.
#pragma once

#include <array>

#include "catalogues/import/importacion.h"
#include "catalogues/kinds/inversores_comun.h"

namespace efv::catalogues {

/// Lengths come in metres. The nominal output takes the nominal DC power, the power factor the European
/// efficiency, and height and depth change places: so this import has always been.
template <class M>
inline constexpr auto kClavesOnd = std::to_array<ClaveImportada<M>>({
    {L"Model", &M::csModelo},
    {L"PNomDC", &M::dPCCMax},
    {L"VMPPMax", &M::dVMPPMax},
    {L"VMppMin", &M::dVMPPMin},
    {L"VAbsMax", &M::dVCCMax},
    {L"IDCMax", &M::dICCMax},
    {L"NbMPPT", &M::iNumMPPT},
    {L"NbInputs", &M::iNumEntradas},
    {L"PNomDC", &M::dPCANom},
    {L"PMaxOUT", &M::dPCAMax},
    {L"VOutConv", &M::dVCANom},
    {L"IMaxAC", &M::dICAMax},
    {.clave = L"EfficEuro", .miembro = &M::dFP, .dDivisor = 100},
    {L"EfficMax", &M::dRendMax},
    {L"Width", &M::dAncho, 1000},
    {L"Height", &M::dLargo, 1000},
    {L"Depth", &M::dAlto, 1000},
    {L"Weight", &M::dPeso},
});

/// Fills the inverter from the file's text; its lines must end in CR LF. An absent key clears its field;
/// what the format doesn't hold stays. @return the maker.
template <class M>
CString ImportarOnd(std::wstring_view csTexto, M& modelo)
{
    Importar<M>(csTexto, kClavesOnd<M>, modelo);
    SanearContadores(modelo);
    modelo.iTipoSalida = ValorDeClave(csTexto, L"MonoTri") == L"Tri" ? 1 : 0;
    if constexpr (requires { modelo.iUsoPrincipal; })
        modelo.iUsoPrincipal = 0;
    RehacerListas(modelo);
    return ValorDeClave(csTexto, L"Manufacturer");
}

}  // namespace efv::catalogues
