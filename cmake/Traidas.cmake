# Libraries written in C that come into the process when they are first needed (src/enlace/biblioteca.h), and what the
# command carries of the others, so that it starts at once.

# Sets EFV_<NOMBRE> to the name that the system knows the library by, and EFV_ENLACE_<NOMBRE> to what is linked: the
# loader's functions; or the library itself, and no name, where it can't be told.
function(efv_traida NOMBRE objetivo fichero)
    set(soname "")
    set(enlace ${objetivo})
    if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_READELF AND EXISTS "${fichero}")
        execute_process(COMMAND ${CMAKE_READELF} -d ${fichero} OUTPUT_VARIABLE dinamica ERROR_QUIET)
        if(dinamica MATCHES "\\(SONAME\\)[^[]*\\[([^]]+)\\]")
            set(soname ${CMAKE_MATCH_1})
            set(enlace ${CMAKE_DL_LIBS})
        endif()
    endif()
    set(EFV_${NOMBRE} "${soname}" PARENT_SCOPE)
    set(EFV_ENLACE_${NOMBRE} "${enlace}" PARENT_SCOPE)
endfunction()

set(EFV_FICHERO_CURL ${CURL_LIBRARY_RELEASE} ${CURL_LIBRARIES})
list(GET EFV_FICHERO_CURL 0 EFV_FICHERO_CURL)
efv_traida(LIBCURL CURL::libcurl "${EFV_FICHERO_CURL}")

# Whether the command carries the libraries written in C++ and the run-time of C++ itself. Sanitizers bring their own.
set(EFV_SUELTA OFF)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND TARGET pugixml::static
   AND NOT EFV_SANEADORES AND NOT EFV_LIBFUZZER)
    set(EFV_SUELTA ON)
endif()
