// What a target demands of any input.
#pragma once

#include <cstdio>
#include <cstdlib>

// The builtins stand for std::source_location, which clang lacks before 16.
inline void Exigir(bool bCumple, const char* fichero = __builtin_FILE(), int iLinea = __builtin_LINE())
{
    if (bCumple)
        return;
    std::fprintf(stderr, "%s:%d: not met\n", fichero, iLinea);
    std::abort();
}
