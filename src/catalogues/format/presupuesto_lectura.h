// Bound on the memory that one file may become. A value that a row lacks is carried over from the row
// before, so a small file with one long text could otherwise grow without limit.
#pragma once

#include <cstddef>

namespace efv::catalogues {

class PresupuestoLectura {
public:
    static constexpr std::size_t kMaximo = std::size_t{256} << 20;

    /// Counts `bytes` more; false when the budget doesn't hold them.
    bool Gastar(std::size_t bytes)
    {
        if (bytes > m_resto)
            return false;
        m_resto -= bytes;
        return true;
    }

private:
    std::size_t m_resto = kMaximo;
};

}  // namespace efv::catalogues
