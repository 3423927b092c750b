#include "platform/reloj/reloj.h"

#include <ctime>

namespace efv {

namespace {

std::optional<FechaHora> (*gFuente)() = nullptr;
FechaHora gFijado{};

std::optional<FechaHora> Fijado()
{
    return gFijado;
}

std::optional<FechaHora> DelSistema()
{
    const std::time_t segundos = std::time(nullptr);
    std::tm local = {};
    if (segundos == static_cast<std::time_t>(-1) || localtime_r(&segundos, &local) == nullptr)
        return std::nullopt;
    return FechaHora{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                     local.tm_hour,        local.tm_min,     local.tm_sec};
}

}  // namespace

void FijarReloj(std::optional<FechaHora> ahora)
{
    gFijado = ahora.value_or(FechaHora{});
    gFuente = ahora ? &Fijado : nullptr;
}

std::optional<FechaHora> LeerReloj()
{
    return reloj::Ahora();
}

namespace reloj {

std::optional<FechaHora> Ahora()
{
    return gFuente != nullptr ? gFuente() : DelSistema();
}

void Sustituir(std::optional<FechaHora> (*fuente)())
{
    gFuente = fuente;
}

}  // namespace reloj
}  // namespace efv
