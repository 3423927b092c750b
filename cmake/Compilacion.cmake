# Compiler options of every target: efv_compilacion carries them.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Commands find the library beside them in the build tree and, installed, in ../lib.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

add_library(efv_compilacion INTERFACE)
target_compile_options(efv_compilacion INTERFACE
    # Results must not depend on the machine: no fused operations, no reordering.
    -ffp-contract=off
    # Attributes are asked for one by one across a library's border.
    -fno-plt
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wdouble-promotion -Wformat=2
    -Wimplicit-fallthrough -Wextra-semi)
if(EFV_ERRORES)
    target_compile_options(efv_compilacion INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(efv_compilacion INTERFACE
        -Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wuseless-cast
        # GCC 12 takes the empty state of a std::optional for an uninitialised value, and in texts put together it
        # sees copies beyond their end.
        -Wno-maybe-uninitialized -Wno-array-bounds -Wno-restrict)
endif()

if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # It counts the macros NAN and INFINITY; GCC looks for the real ones.
    target_compile_options(efv_compilacion INTERFACE -Wno-double-promotion)
endif()

if(EFV_CCACHE)
    find_program(EFV_PROGRAMA_CCACHE NAMES ccache)
    if(EFV_PROGRAMA_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${EFV_PROGRAMA_CCACHE})
    endif()
endif()

if(EFV_LIBFUZZER)
    # Counters without the fuzzer's main: the library's, the command's and the tests' code reports what it reached.
    target_compile_options(efv_compilacion INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(efv_compilacion INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(EFV_SANEADORES)
    target_compile_options(efv_compilacion INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(efv_compilacion INTERFACE -fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # With these GCC 12 takes no address for different from null in constant expressions (tables of members);
        # a null pointer used is caught by AddressSanitizer all the same.
        target_compile_options(efv_compilacion INTERFACE
            -fno-sanitize=null,nonnull-attribute,returns-nonnull-attribute)
    endif()
endif()
