#include "catalogues/panel_foto.h"

#include "catalogues/catalogo.h"
#include "catalogues/panel_foto_dialogo.h"
#include "platform/numero/tolerancia.h"

namespace efv::catalogues {

namespace {

using M = CBasePanelFotoModelo;

// In the order of reading.
constexpr auto kCampos = std::to_array<CampoModelo<M>>({
    {"csModelo", &M::csModelo},
    {"dPmpm", &M::dPmpm, L"Pmpm (W)"},
    {"dVsmax", &M::dVsmax},
    {"dVmpm", &M::dVmpm, L"Vmpm (V)"},
    {"dImpm", &M::dImpm, L"Impm (A)"},
    {"dVoc", &M::dVoc},
    {"dIsc", &M::dIsc},
    {"dCTVoc", &M::dCTVoc},
    {"dCTIsc", &M::dCTIsc},
    {"dCTPmpm", &M::dCTPmpm},
    {"dCEf", &M::dCEf},
    {"iNp", &M::iNp},
    {"iNs", &M::iNs},
    {"dAcel", &M::dAcel},
    {"iTipoCelula", &M::iTipoCelula, L"Tecnología"},
    {"dH", &M::dH},
    {"dB", &M::dB},
    {"dA", &M::dA},
    {"dP", &M::dP},
    {"nColor", &M::nColor},
    {"csCodPrecio", &M::csCodPrecio},
});

}  // namespace

std::span<const CampoModelo<M>> Catalogo<M>::Campos()
{
    return kCampos;
}

NombresCatalogo Catalogo<M>::Nombres()
{
    return {"CBasePanelFoto",
            "CBasePanelFotoFamilia",
            "CBasePanelFotoModelo",
            L"Panel Fotovoltaico",
            L"Base de Datos de Paneles Fotovoltaicos",
            20442};
}

template <>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura)
{
    return std::make_unique<CDlgItemDatosPanelFoto>(modelo, bSoloLectura);
}

int CelulasPorRamal(int iTipoCelula, int iNs)
{
    return iTipoCelula >= 3 ? 200 : iNs;
}

double CoeficienteAPorciento(double dCoeficiente, double dReferencia)
{
    const double referencia = numero::MenorIgual(dReferencia, 0.0) ? 1.0 : dReferencia;
    return (100 / referencia) * (dCoeficiente / 1000);
}

double CoeficienteDePorciento(double dPorciento, double dReferencia)
{
    return (dReferencia / 100) * (dPorciento * 1000);
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBasePanelFotoModelo>;
template class CFamiliaCatalogo<CBasePanelFotoModelo>;
template class CBaseCatalogo<CBasePanelFotoModelo>;
