#include "platform/red/libcurl.h"

#ifdef EFV_LIBCURL
#include <dlfcn.h>
#endif

namespace efv {

namespace {

#ifdef EFV_LIBCURL

/// Takes functions by name; the library stays until the process ends.
class Biblioteca {
public:
    template <class Funcion>
    void Tomar(Funcion& funcion, const char* nombre)
    {
        funcion = m_mango != nullptr ? reinterpret_cast<Funcion>(dlsym(m_mango, nombre)) : nullptr;
        m_bCompleta = m_bCompleta && funcion != nullptr;
    }
    bool Completa() const { return m_bCompleta; }

private:
    void* m_mango = dlopen(EFV_LIBCURL, RTLD_NOW | RTLD_LOCAL);
    bool m_bCompleta = m_mango != nullptr;
};

bool Tomar(FuncionesCurl& f)
{
    Biblioteca b;
    b.Tomar(f.easy_cleanup, "curl_easy_cleanup");
    b.Tomar(f.easy_getinfo, "curl_easy_getinfo");
    b.Tomar(f.easy_init, "curl_easy_init");
    b.Tomar(f.easy_setopt, "curl_easy_setopt");
    b.Tomar(f.easy_strerror, "curl_easy_strerror");
    b.Tomar(f.global_init, "curl_global_init");
    b.Tomar(f.multi_add_handle, "curl_multi_add_handle");
    b.Tomar(f.multi_cleanup, "curl_multi_cleanup");
    b.Tomar(f.multi_info_read, "curl_multi_info_read");
    b.Tomar(f.multi_init, "curl_multi_init");
    b.Tomar(f.multi_perform, "curl_multi_perform");
    b.Tomar(f.multi_poll, "curl_multi_poll");
    b.Tomar(f.multi_remove_handle, "curl_multi_remove_handle");
    b.Tomar(f.slist_append, "curl_slist_append");
    b.Tomar(f.slist_free_all, "curl_slist_free_all");
    b.Tomar(f.strnequal, "curl_strnequal");
    b.Tomar(f.version_info, "curl_version_info");
    return b.Completa();
}

#else

bool Tomar(FuncionesCurl& f)
{
    f.easy_cleanup = &::curl_easy_cleanup;
    f.easy_getinfo = &::curl_easy_getinfo;
    f.easy_init = &::curl_easy_init;
    f.easy_setopt = &::curl_easy_setopt;
    f.easy_strerror = &::curl_easy_strerror;
    f.global_init = &::curl_global_init;
    f.multi_add_handle = &::curl_multi_add_handle;
    f.multi_cleanup = &::curl_multi_cleanup;
    f.multi_info_read = &::curl_multi_info_read;
    f.multi_init = &::curl_multi_init;
    f.multi_perform = &::curl_multi_perform;
    f.multi_poll = &::curl_multi_poll;
    f.multi_remove_handle = &::curl_multi_remove_handle;
    f.slist_append = &::curl_slist_append;
    f.slist_free_all = &::curl_slist_free_all;
    f.strnequal = &::curl_strnequal;
    f.version_info = &::curl_version_info;
    return true;
}

#endif

struct Carga {
    FuncionesCurl funciones;
    bool bHay = Tomar(funciones);
};

const Carga& LaCarga()
{
    static const Carga carga;
    return carga;
}

}  // namespace

bool CargarCurl()
{
    return LaCarga().bHay;
}

const FuncionesCurl& Curl()
{
    return LaCarga().funciones;
}

}  // namespace efv
