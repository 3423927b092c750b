#include "catalogues/panel_foto_pan.h"

#include <algorithm>
#include <array>
#include <variant>

#include "catalogues/importacion.h"
#include "catalogues/panel_foto.h"
#include "platform/numero/conversion.h"

namespace efv::catalogues {

namespace {

using M = CBasePanelFotoModelo;

struct ClavePan {
    std::wstring_view clave;
    std::variant<CString M::*, double M::*, int M::*> miembro;
    double dFactor = 1.0;
};

// Lengths come in metres.
constexpr auto kClaves = std::to_array<ClavePan>({
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

void Tomar(const CString& csValor, double /*dFactor*/, CString& cs)
{
    cs = csValor;
}

void Tomar(const CString& csValor, double dFactor, double& d)
{
    d = numero::LeerDoble(std::wstring_view(csValor)) * dFactor;
}

void Tomar(const CString& csValor, double /*dFactor*/, int& i)
{
    i = numero::LeerEntero(CadenaUtf8(csValor));
}

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
    for (const ClavePan& fila : kClaves) {
        const CString csValor = ValorDeClave(csTexto, fila.clave);
        std::visit([&](auto m) { Tomar(csValor, fila.dFactor, modelo.*m); }, fila.miembro);
    }
    modelo.iTipoCelula = TipoDe(ValorDeClave(csTexto, L"Technol"));
    // The file gives this coefficient in percent a degree.
    modelo.dCTPmpm = (modelo.dPmpm / 100) * (modelo.dCTPmpm * 1000);
}

std::vector<CString> ClavesAusentes(std::wstring_view csTexto)
{
    std::vector<CString> ausentes;
    for (const ClavePan& fila : kClaves)
        if (csTexto.find(CString(fila.clave) + L"=") == std::wstring_view::npos)
            ausentes.emplace_back(fila.clave);
    return ausentes;
}

std::size_t NumeroDeClavesPan()
{
    return kClaves.size();
}

}  // namespace efv::catalogues
