#include "catalogues/convertidor.h"

#include <array>

#include "catalogues/catalogo.h"

namespace efv::catalogues {

namespace {

using M = CBaseConvertidorModelo;

// In the order of reading.
constexpr auto kCampos = std::to_array<CampoModelo<M>>({
    {"csModelo", &M::csModelo},
    {"dVInMin", &M::dVInMin, L"Vin mín. (V)"},
    {"dVInMax", &M::dVInMax, L"Vin máx. (V)"},
    {"dPAutoCons", &M::dPAutoCons},
    {"dVOutNom", &M::dVOutNom, L"Vout (V)"},
    {"dPOutNom", &M::dPOutNom, L"Pout (W)"},
    {"dRendMax", &M::dRendMax},
    {"dAncho", &M::dAncho},
    {"dLargo", &M::dLargo},
    {"dAlto", &M::dAlto},
    {"dPeso", &M::dPeso},
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
    return {"CBaseConvertidores", "CBaseConvertidorFamilia",         "CBaseConvertidorModelo",
            L"Convertidores",     L"Base de Datos de Convertidores", 20445};
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBaseConvertidorModelo>;
template class CFamiliaCatalogo<CBaseConvertidorModelo>;
template class CBaseCatalogo<CBaseConvertidorModelo>;
