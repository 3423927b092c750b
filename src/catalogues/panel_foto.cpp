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
    {"dPmpm", &M::dPmpm},
    {"dVsmax", &M::dVsmax},
    {"dVmpm", &M::dVmpm},
    {"dImpm", &M::dImpm},
    {"dVoc", &M::dVoc},
    {"dIsc", &M::dIsc},
    {"dCTVoc", &M::dCTVoc},
    {"dCTIsc", &M::dCTIsc},
    {"dCTPmpm", &M::dCTPmpm},
    {"dCEf", &M::dCEf},
    {"iNp", &M::iNp},
    {"iNs", &M::iNs},
    {"dAcel", &M::dAcel},
    {"iTipoCelula", &M::iTipoCelula},
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
    return {"CBasePanelFoto", "CBasePanelFotoFamilia", "CBasePanelFotoModelo", L"Panel Fotovoltaico",
            L"Base de Datos de Paneles Fotovoltaicos"};
}

template <>
bool MostrarDialogo(M& modelo)
{
    CDlgItemDatosPanelFoto dialogo(modelo, SoloLectura<M>() != 0);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return false;
    modelo = dialogo.datos;
    return true;
}

int CelulasPorRamal(const M& modelo)
{
    return modelo.iTipoCelula >= 3 ? 200 : modelo.iNs;
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

const CRuntimeClass& CBasePanelFotoModelo::GetThisClass()
{
    static const CRuntimeClass clase{"CBasePanelFotoModelo", &CObject::GetThisClass(),
                                     &efv::framework::Crear<CBasePanelFotoModelo>};
    return clase;
}

const CRuntimeClass& CBasePanelFotoModelo::GetRuntimeClass() const
{
    return GetThisClass();
}

CBasePanelFotoModelo::~CBasePanelFotoModelo() = default;

template class CFamiliaCatalogo<CBasePanelFotoModelo>;
template class CBaseCatalogo<CBasePanelFotoModelo>;
