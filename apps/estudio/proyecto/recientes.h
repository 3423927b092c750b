// The files last used, kept in the person's settings, where other windows of the program see them too.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include <quorvel/framework/CString.h>

namespace efv::estudio {

inline constexpr std::size_t kRecientes = 8;

/// Where the list is kept.
struct AlmacenRecientes {
    std::function<std::vector<CString>()> leer;
    std::function<void(const std::vector<CString>&)> escribir;
};

/// One that lasts as long as the program.
AlmacenRecientes RecientesEnMemoria();
/// The person's settings.
AlmacenRecientes RecientesDeLaPersona();

}  // namespace efv::estudio
