// Memory that runs out at a chosen allocation.
#pragma once

#include <cstddef>

namespace efv::pruebas {

/// While it lives, the allocation of that number fails, one of the XML tree's included; later ones don't.
class MemoriaEscasa {
public:
    explicit MemoriaEscasa(std::size_t nAsignacion);
    ~MemoriaEscasa();
    MemoriaEscasa(const MemoriaEscasa&) = delete;
    MemoriaEscasa& operator=(const MemoriaEscasa&) = delete;

    /// Whether that allocation came.
    static bool HaFaltado();
};

}  // namespace efv::pruebas
