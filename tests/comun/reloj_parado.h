// A clock that fails.
#pragma once

#include <quorvel/mundo.h>
#include <quorvel/reloj.h>

namespace efv::pruebas {

/// The clock in use while it lives.
class RelojParado final : public Reloj {
public:
    RelojParado() : m_antes(ElMundo())
    {
        Mundo mundo = m_antes;
        mundo.reloj = this;
        PonerMundo(mundo);
    }
    ~RelojParado() override { PonerMundo(m_antes); }
    std::optional<FechaHora> Ahora() const override { return std::nullopt; }

private:
    Mundo m_antes;
};

}  // namespace efv::pruebas
