#include "catalogues/kinds/inversor.h"

#include <algorithm>

#include "catalogues/format/ausencias.h"
#include "catalogues/format/catalogo.h"

namespace efv::catalogues {

namespace {

using M = CBaseInversorModelo;

void NormalizarListas(M& modelo)
{
    modelo.csICCMaxMPPT = NormalizarCorrientes(modelo.csICCMaxMPPT, modelo.dICCMax, modelo.iNumMPPT);
    modelo.csICCMinMPPT = NormalizarCorrientes(modelo.csICCMinMPPT, modelo.dICCMin, modelo.iNumMPPT);
}

}  // namespace

void FormatoCatalogo<M>::AntesDeModelo(M& retenido)
{
    retenido.csICCMaxMPPT.clear();
    retenido.csICCMinMPPT.clear();
}

void FormatoCatalogo<M>::Sanear(M& leido)
{
    ReglasInversor::Sanear(leido);
    leido.iUsoPrincipal = std::max(leido.iUsoPrincipal, 0);
    NormalizarListas(leido);
}

void FormatoCatalogo<M>::PrepararEdicion(M& modelo, bool bNuevo)
{
    ReglasInversor::PrepararEdicion(modelo, bNuevo);
    NormalizarListas(modelo);
}

// A list out of a current that another model has, or for a count of trackers that another has, is none.
void FormatoCatalogo<M>::SinHeredar(M& propio)
{
    const bool bSeguidores = !Omitido(propio, &M::iNumMPPT);
    if (!bSeguidores)
        propio.dICCMax = propio.dICCMin = propio.dIScMax = 0.0;
    if (!bSeguidores || (Omitido(propio, &M::csICCMaxMPPT) && Omitido(propio, &M::dICCMax)))
        propio.csICCMaxMPPT.clear();
    if (!bSeguidores || (Omitido(propio, &M::csICCMinMPPT) && Omitido(propio, &M::dICCMin)))
        propio.csICCMinMPPT.clear();
}

// Files from before the lists lack them.
std::span<const char* const> FormatoCatalogo<M>::AnadirSiFaltan()
{
    static constexpr auto kAtributos =
        std::to_array<const char*>({"csICCMaxMPPT", "csICCMinMPPT", "dIScMax", "iNumMPPT", "iNumEntradas"});
    return kAtributos;
}

}  // namespace efv::catalogues

template class CModeloCatalogo<CBaseInversorModelo>;
template class CFamiliaCatalogo<CBaseInversorModelo>;
template class CBaseCatalogo<CBaseInversorModelo>;
