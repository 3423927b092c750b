// libcurl's functions that the downloads use. Where EFV_LIBCURL names the library it is fetched from the system
// at the first download; most programs that use this library never ask the network.
#pragma once

#include <curl/curl.h>

/// Each of them, without "curl_".
// clang-format off
#define EFV_FUNCIONES_CURL(una) \
    una(easy_cleanup) una(easy_getinfo) una(easy_init) una(easy_setopt) una(easy_strerror) \
    una(global_init) una(multi_add_handle) una(multi_cleanup) una(multi_info_read) una(multi_init) \
    una(multi_perform) una(multi_poll) una(multi_remove_handle) una(slist_append) una(slist_free_all) \
    una(strnequal) una(version_info)
// clang-format on

namespace efv {

struct FuncionesCurl {
// NOLINTNEXTLINE(bugprone-macro-parentheses): the name of a member
#define EFV_MIEMBRO(nombre) decltype(&::curl_##nombre) nombre = nullptr;
    EFV_FUNCIONES_CURL(EFV_MIEMBRO)
#undef EFV_MIEMBRO

    bool Tomar();  ///< whether all were found
};

/// @return false when the system has no libcurl, or one that lacks a function
bool CargarCurl();

/// The functions, once CargarCurl() has found them.
const FuncionesCurl& Curl();

}  // namespace efv
