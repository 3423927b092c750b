# Precompiled headers: what many files include and costs much to read. Only headers of others, so that a change
# of ours never compiles everything anew. A file still includes what it uses: the preset `asan` builds without them.

set(EFV_CABECERAS_NORMA
    <algorithm> <array> <charconv> <cmath> <filesystem> <fstream> <functional> <map> <memory> <optional> <set>
    <span> <sstream> <stdexcept> <string> <string_view> <tuple> <unordered_map> <utility> <variant> <vector>)
set(EFV_CABECERAS_FMT <fmt/format.h> <fmt/xchar.h>)
set(EFV_CABECERAS_ORDEN <CLI/CLI.hpp> <nlohmann/json.hpp>)
set(EFV_CABECERAS_QT <QtWidgets>)
set(EFV_CABECERAS_PRUEBAS <gtest/gtest.h>)

# efv_precompilar(target GROUP...): the standard library's headers and those of the named groups.
function(efv_precompilar objetivo)
    set(cabeceras ${EFV_CABECERAS_NORMA})
    foreach(grupo ${ARGN})
        list(APPEND cabeceras ${EFV_CABECERAS_${grupo}})
    endforeach()
    target_precompile_headers(${objetivo} PRIVATE ${cabeceras})
endfunction()
