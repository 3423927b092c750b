#include "platform/reloj/reloj_sistema.h"

#include <ctime>

namespace efv {

std::optional<FechaHora> RelojSistema::Ahora() const
{
    const std::time_t segundos = std::time(nullptr);
    std::tm local = {};
    if (segundos == static_cast<std::time_t>(-1) || localtime_r(&segundos, &local) == nullptr)
        return std::nullopt;
    return FechaHora{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                     local.tm_hour,        local.tm_min,     local.tm_sec};
}

}  // namespace efv
