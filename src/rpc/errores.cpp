#include "rpc/errores.h"

namespace efv::rpc {

thread_local const SitioQueSeLee* SitioQueSeLee::s_actual = nullptr;

std::string SitioQueSeLee::Camino()
{
    std::string camino;
    for (const SitioQueSeLee* sitio = s_actual; sitio != nullptr; sitio = sitio->m_fuera)
        camino.insert(0, sitio->m_nombrar(*sitio) + ": ");
    return camino;
}

}  // namespace efv::rpc
