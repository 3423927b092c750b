#include "rpc/entrada.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "rpc/flujos.h"
#include "rpc/presupuesto.h"
#include "rpc/servidor.h"
#include "rpc/tabla_funciones.h"

namespace efv::rpc {

namespace {

// Answers are held back, while more requests wait, up to this size.
constexpr std::size_t kVolcado = std::size_t{1024} * 1024;
[[maybe_unused]] constexpr int kBloqueGrande = 256 * 1024;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kConSaneador = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kConSaneador = true;
#else
constexpr bool kConSaneador = false;
#endif
#else
constexpr bool kConSaneador = false;
#endif

// From the limit on an allocation fails, and the request that wants it is answered with an error. The
// sanitizer reserves address space far beyond any such limit.
void LimitarMemoria()
{
    constexpr rlim_t maximo = rlim_t{1024} * 1024 * 1024;
    rlimit limite{};
    if (kConSaneador || ::getrlimit(RLIMIT_AS, &limite) != 0)
        return;
    limite.rlim_cur = std::min(maximo, limite.rlim_max);
    ::setrlimit(RLIMIT_AS, &limite);
}

// A closed output shows in the failing write.
void IgnorarTuberiaRota()
{
    struct sigaction accion {};
    accion.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &accion, nullptr);
}

// Large blocks go back to the system as soon as they are freed, so that a large request leaves room for
// the next one.
void DevolverMemoria()
{
#if defined(__GLIBC__)
    // NOLINTNEXTLINE(concurrency-mt-unsafe): one thread
    ::mallopt(M_MMAP_THRESHOLD, kBloqueGrande);
#endif
}

void Recortar()
{
#if defined(__GLIBC__)
    ::malloc_trim(0);
#endif
}

}  // namespace

int AtenderEntrada()
{
    LimitarMemoria();
    DevolverMemoria();
    IgnorarTuberiaRota();
    Servidor servidor;
    LectorLineas lector(STDIN_FILENO, kLineaMaxima);
    std::string respuestas;
    std::string_view linea;
    for (;;) {
        const LectorLineas::Estado estado = lector.Siguiente(linea);
        if (estado == LectorLineas::Estado::fin)
            return 0;
        if (estado == LectorLineas::Estado::linea)
            servidor.Responder(linea, respuestas);
        else
            Servidor::RechazarLinea(respuestas);
        if (lector.HayLinea() && respuestas.size() < kVolcado)
            continue;
        if (!EscribirTodo(STDOUT_FILENO, respuestas))
            return 0;
        respuestas.clear();
        if (respuestas.capacity() > 2 * kVolcado)
            respuestas.shrink_to_fit();
        if (linea.size() > kVolcado)
            Recortar();
    }
}

std::string ListaDeFunciones()
{
    std::string lista;
    for (const Funcion& funcion : Funciones())
        lista += funcion.Declaracion() + '\n';
    return lista;
}

}  // namespace efv::rpc
