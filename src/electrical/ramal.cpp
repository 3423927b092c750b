// Strings of panels as a host traces them.
#include <limits>
#include <utility>

#include <quorvel/entradas.h>
#include <quorvel/framework/CException.h>

#include "platform/numero/tolerancia.h"

namespace {

using efv::numero::Igual;

// Greater, and not within the tolerance.
bool EsMayor(double a, double b)
{
    return !Igual(a, b) && a > b;
}

// Exchange sort: the tolerance makes no order that a sort of the library could go by, and which of two
// almost equal values comes first is part of the result.
template <class DEBEN, class CAMBIAR>
void OrdenarCambiando(std::ptrdiff_t n, DEBEN deben, CAMBIAR cambiar)
{
    for (std::ptrdiff_t i = 0; i < n; ++i)
        for (std::ptrdiff_t k = i + 1; k < n; ++k)
            if (deben(i, k))
                cambiar(i, k);
}

}  // namespace

// ---------------------------------------------------------------------------------------------------
// A panel
// ---------------------------------------------------------------------------------------------------

CSFVStringElm::~CSFVStringElm() = default;

const CRuntimeClass& CSFVStringElm::GetThisClass()
{
    static const CRuntimeClass clase{"CSFVStringElm", &CObject::GetThisClass(), nullptr};
    return clase;
}

const CRuntimeClass& CSFVStringElm::GetRuntimeClass() const
{
    return GetThisClass();
}

// ---------------------------------------------------------------------------------------------------
// A string
// ---------------------------------------------------------------------------------------------------

CSFVString::~CSFVString()
{
    Clean();
}

const CRuntimeClass& CSFVString::GetThisClass()
{
    static const CRuntimeClass clase{"CSFVString", &CObject::GetThisClass(), nullptr};
    return clase;
}

const CRuntimeClass& CSFVString::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVString::Clean()
{
    aElementos.RemoveAll();
}

int CSFVString::SortString(int iSentido)
{
    OrdenarCambiando(
        aElementos.GetSize(),
        [&](std::ptrdiff_t i, std::ptrdiff_t k) {
            const double dAntes = aElementos[i].dLongitud, dDespues = aElementos[k].dLongitud;
            return iSentido == 0 ? EsMayor(dDespues, dAntes) : EsMayor(dAntes, dDespues);
        },
        [&](std::ptrdiff_t i, std::ptrdiff_t k) { aElementos.Swap(i, k); });
    return 1;
}

int CSFVString::IsThisPaneInString(int lPanel) const
{
    for (const auto& elemento : aElementos)
        if (elemento->lPanel == lPanel)
            return 1;
    return 0;
}

double CSFVString::GetLMax() const
{
    double dMaxima = 0.0;
    for (const auto& elemento : aElementos)
        if (EsMayor(elemento->dLongitud, dMaxima))
            dMaxima = elemento->dLongitud;
    return dMaxima;
}

double CSFVString::GetLMin() const
{
    double dMinima = std::numeric_limits<double>::max();
    for (const auto& elemento : aElementos)
        if (EsMayor(dMinima, elemento->dLongitud))
            dMinima = elemento->dLongitud;
    return dMinima;
}

// ---------------------------------------------------------------------------------------------------
// Connections
// ---------------------------------------------------------------------------------------------------

CSFVInterconectInfo::~CSFVInterconectInfo() = default;

const CRuntimeClass& CSFVInterconectInfo::GetThisClass()
{
    static const CRuntimeClass clase{"CSFVInterconectInfo", &CObject::GetThisClass(), nullptr};
    return clase;
}

const CRuntimeClass& CSFVInterconectInfo::GetRuntimeClass() const
{
    return GetThisClass();
}

int CSFVInterconectInfo::SortByDistancia()
{
    if (adDistancia.GetSize() != aObjetos.GetSize())
        throw CInvalidArgException("Las distancias y los objetos no son tantos unas como otros.");
    OrdenarCambiando(
        adDistancia.GetSize(),
        [&](std::ptrdiff_t i, std::ptrdiff_t k) { return EsMayor(adDistancia[i], adDistancia[k]); },
        [&](std::ptrdiff_t i, std::ptrdiff_t k) {
            std::swap(adDistancia[i], adDistancia[k]);
            std::swap(aObjetos[i], aObjetos[k]);
        });
    return 1;
}

int CSFVInterconectInfo::CanCreateOtherLine() const
{
    return iNumLineas < (bLineaUnica == 0 ? 2 : 1) ? 1 : 0;
}
