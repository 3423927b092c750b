#include "catalogues/import/panel_foto_pan.h"

#include <algorithm>
#include <array>

#include "catalogues/kinds/panel_foto.h"

namespace efv::catalogues {

namespace {

using M = CBasePanelFotoModelo;

// Lengths come in metres.
constexpr auto kClaves = std::to_array<ClaveImportada<M>>({
    {L"Model", &M::csModelo},
    {L"PNom", &M::dPmpm},
    {L"Vmp", &M::dVmpm},
    {L"Imp", &M::dImpm},
    {L"Voc", &M::dVoc},
    {L"Isc", &M::dIsc},
    {L"Width", &M::dB, 1000},
    {L"Height", &M::dH, 1000},
    {L"Depth", &M::dA, 1000},
    {L"Weight", &M::dP},
    {L"muISC", &M::dCTIsc},
    {L"muVocSpec", &M::dCTVoc},
    {L"muPmpReq", &M::dCTPmpm},
    {L"NCelS", &M::iNs},
    {L"NCelP", &M::iNp},
    {L"VMaxUL", &M::dVsmax},
});

// Index of the technology; the last entry is any other.
int TipoDe(const CString& csTecnologia)
{
    const auto hallado = std::ranges::find_if(
        kTiposCelula, [&](const TipoCelula& t) { return t.pan.empty() || t.pan == csTecnologia; });
    return static_cast<int>(hallado - kTiposCelula.begin());
}

}  // namespace

void ImportarPan(std::wstring_view csTexto, M& modelo)
{
    Importar<M>(csTexto, kClaves, modelo);
    modelo.iTipoCelula = TipoDe(ValorDeClave(csTexto, L"Technol"));
    // The file gives this coefficient in percent a degree.
    modelo.dCTPmpm = (modelo.dPmpm / 100) * (modelo.dCTPmpm * 1000);
}

std::span<const ClaveImportada<M>> ClavesPan()
{
    return kClaves;
}

}  // namespace efv::catalogues
