#include "catalogues/inversor.h"

#include <array>

#include "catalogues/catalogo.h"
#include "catalogues/inversores_comun.h"

namespace efv::catalogues {

namespace {

using M = CBaseInversorModelo;

// In the order of reading.
constexpr auto kCampos = Unir(std::to_array<CampoModelo<M>>({
                                  {"csModelo", &M::csModelo},
                                  {"iUsoPrincipal", &M::iUsoPrincipal, L"Uso"},
                              }),
                              kCamposEntrada<M>,
                              std::to_array<CampoModelo<M>>({
                                  {"csICCMaxMPPT", &M::csICCMaxMPPT},
                                  {"csICCMinMPPT", &M::csICCMinMPPT},
                              }),
                              kCamposRestantes<M>);

void NormalizarListas(M& modelo)
{
    modelo.csICCMaxMPPT = NormalizarCorrientes(modelo.csICCMaxMPPT, modelo.dICCMax, modelo.iNumMPPT);
    modelo.csICCMinMPPT = NormalizarCorrientes(modelo.csICCMinMPPT, modelo.dICCMin, modelo.iNumMPPT);
}

}  // namespace

std::span<const CampoModelo<M>> Catalogo<M>::Campos()
{
    return kCampos;
}

NombresCatalogo Catalogo<M>::Nombres()
{
    return {"CBaseInversores", "CBaseInversorFamilia",         "CBaseInversorModelo",
            L"Inversores",     L"Base de Datos de Inversores", 20444};
}

void Catalogo<M>::Preparar(M& retenido)
{
    SanearContadores(retenido);
}

void Catalogo<M>::AntesDeModelo(M& retenido)
{
    retenido.csICCMaxMPPT.clear();
    retenido.csICCMinMPPT.clear();
}

void Catalogo<M>::Sanear(M& leido)
{
    SanearInversor(leido);
    leido.iUsoPrincipal = std::max(leido.iUsoPrincipal, 0);
    NormalizarListas(leido);
}

void Catalogo<M>::PrepararEdicion(M& modelo, bool bNuevo)
{
    PrepararEdicionInversor(modelo, bNuevo);
    NormalizarListas(modelo);
}

// Files from before the lists lack them.
std::span<const char* const> Catalogo<M>::AnadirSiFaltan()
{
    static constexpr auto kAtributos =
        std::to_array<const char*>({"csICCMaxMPPT", "csICCMinMPPT", "dIScMax", "iNumMPPT", "iNumEntradas"});
    return kAtributos;
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBaseInversorModelo>;
template class CFamiliaCatalogo<CBaseInversorModelo>;
template class CBaseCatalogo<CBaseInversorModelo>;
