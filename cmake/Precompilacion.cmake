# Precompiled headers: what nearly every file of a target includes. Only headers of others, so that a change of ours
# never compiles everything anew; and few, since each file pays for the whole (docs/construccion.md: CLI11 costs a
# second in each). A file still includes what it uses: the preset `asan` builds without them.

set(EFV_CABECERAS_NORMA
    <algorithm> <array> <cmath> <functional> <memory> <optional> <span> <string> <string_view> <utility> <vector>)
set(EFV_CABECERAS_FMT <fmt/format.h>)
set(EFV_CABECERAS_JSON <nlohmann/json.hpp>)
set(EFV_CABECERAS_QT <QLabel> <QPainter> <QVBoxLayout> <QWidget>)
set(EFV_CABECERAS_PRUEBAS <gtest/gtest.h>)

# efv_precompilar(target GROUP...): the standard library's headers and those of the named groups.
function(efv_precompilar objetivo)
    set(cabeceras ${EFV_CABECERAS_NORMA})
    foreach(grupo ${ARGN})
        list(APPEND cabeceras ${EFV_CABECERAS_${grupo}})
    endforeach()
    target_precompile_headers(${objetivo} PRIVATE ${cabeceras})
endfunction()
