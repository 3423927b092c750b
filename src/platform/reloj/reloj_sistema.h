// The system's local clock.
#pragma once

#include <quorvel/reloj.h>

namespace efv {

class RelojSistema final : public Reloj {
public:
    std::optional<FechaHora> Ahora() const override;
};

}  // namespace efv
