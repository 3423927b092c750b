// libcurl's functions that the downloads use. Where EFV_LIBCURL names the library it is fetched from the system
// at the first download: it and the libraries that it needs are more than half of the start of a program, and
// most programs that use this library never ask the network.
#pragma once

#include <curl/curl.h>

namespace efv {

struct FuncionesCurl {
    decltype(&::curl_easy_cleanup) easy_cleanup = nullptr;
    decltype(&::curl_easy_getinfo) easy_getinfo = nullptr;
    decltype(&::curl_easy_init) easy_init = nullptr;
    decltype(&::curl_easy_setopt) easy_setopt = nullptr;
    decltype(&::curl_easy_strerror) easy_strerror = nullptr;
    decltype(&::curl_global_init) global_init = nullptr;
    decltype(&::curl_multi_add_handle) multi_add_handle = nullptr;
    decltype(&::curl_multi_cleanup) multi_cleanup = nullptr;
    decltype(&::curl_multi_info_read) multi_info_read = nullptr;
    decltype(&::curl_multi_init) multi_init = nullptr;
    decltype(&::curl_multi_perform) multi_perform = nullptr;
    decltype(&::curl_multi_poll) multi_poll = nullptr;
    decltype(&::curl_multi_remove_handle) multi_remove_handle = nullptr;
    decltype(&::curl_slist_append) slist_append = nullptr;
    decltype(&::curl_slist_free_all) slist_free_all = nullptr;
    decltype(&::curl_strnequal) strnequal = nullptr;
    decltype(&::curl_version_info) version_info = nullptr;
};

/// @return false when the system has no libcurl, or one that lacks a function
bool CargarCurl();

/// The functions, once CargarCurl() has found them.
const FuncionesCurl& Curl();

}  // namespace efv
