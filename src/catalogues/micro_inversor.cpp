#include "catalogues/micro_inversor.h"

#include <array>

#include "catalogues/catalogo.h"
#include "catalogues/inversores_comun.h"

namespace efv::catalogues {

namespace {

using M = CBaseMicroInversorModelo;

// In the order of reading.
constexpr auto kCampos =
    Unir(std::to_array<CampoModelo<M>>({{"csModelo", &M::csModelo}}), kCamposEntrada<M>, kCamposRestantes<M>);

}  // namespace

std::span<const CampoModelo<M>> Catalogo<M>::Campos()
{
    return kCampos;
}

NombresCatalogo Catalogo<M>::Nombres()
{
    return {"CBaseMicroInversores", "CBaseMicroInversorFamilia",         "CBaseMicroInversorModelo",
            L"MicroInversores",     L"Base de Datos de MicroInversores", 20447};
}

void Catalogo<M>::Preparar(M& retenido)
{
    SanearContadores(retenido);
}

void Catalogo<M>::Sanear(M& leido)
{
    SanearInversor(leido);
}

void Catalogo<M>::PrepararEdicion(M& modelo, bool bNuevo)
{
    PrepararEdicionInversor(modelo, bNuevo);
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBaseMicroInversorModelo>;
template class CFamiliaCatalogo<CBaseMicroInversorModelo>;
template class CBaseCatalogo<CBaseMicroInversorModelo>;
