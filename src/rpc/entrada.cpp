#include "rpc/entrada.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <new>
#include <stdexcept>

#include <quorvel/terminal.h>

#include "rpc/flujos.h"
#include "rpc/presupuesto.h"
#include "rpc/saneador.h"
#include "rpc/servidor.h"
#include "rpc/tabla_funciones.h"

namespace efv::rpc {

namespace {

// Answers are held back, while more requests wait, up to this size.
constexpr std::size_t kVolcado = std::size_t{1024} * 1024;
[[maybe_unused]] constexpr int kBloqueGrande = 256 * 1024;

// From the limit on an allocation fails, and the request that wants it is answered with an error.
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

constexpr std::string_view kSinMemoria =
    R"({"jsonrpc":"2.0","id":null,"error":{"code":-32000,"message":"memoria insuficiente"}})"
    "\n";

// Answers with `responder`. What runs out of memory even for its error's text is answered all the same: what
// waits is written first, for which nothing is asked for. False when it can't be written.
template <class RESPONDER>
bool Responder(std::string& respuestas, RESPONDER&& responder)
{
    const std::size_t nAntes = respuestas.size();
    try {
        responder();
        return true;
    } catch (const std::bad_alloc&) {
        respuestas.resize(nAntes);
    }
    const bool bEscrito = EscribirTodo(STDOUT_FILENO, respuestas) && EscribirTodo(STDOUT_FILENO, kSinMemoria);
    respuestas.clear();
    return bEscrito;
}

bool Atender(Servidor& servidor, LectorLineas::Estado estado, std::string_view linea, std::string& respuestas)
{
    return Responder(respuestas, [&] {
        if (estado == LectorLineas::Estado::sinMemoria)
            throw std::bad_alloc();
        if (estado == LectorLineas::Estado::linea)
            servidor.Responder(linea, respuestas);
        else
            Servidor::RechazarLinea(respuestas);
    });
}

std::string Depurado(std::string_view texto)
{
    std::string limpio;
    Depurador depurador;
    depurador.Pasar(texto, limpio);
    depurador.Terminar(limpio);
    return limpio;
}

// On a terminal cleaned first, for which the memory may be missing too.
bool Escribir(const std::string& respuestas)
{
    if (::isatty(STDOUT_FILENO) != 1)
        return EscribirTodo(STDOUT_FILENO, respuestas);
    std::string limpias;
    try {
        limpias = Depurado(respuestas);
    } catch (const std::bad_alloc&) {
        return EscribirTodo(STDOUT_FILENO, kSinMemoria);
    }
    return EscribirTodo(STDOUT_FILENO, limpias);
}

// Room for what waits; without it each answer takes what it needs.
void Reservar(std::string& respuestas)
{
    try {
        respuestas.shrink_to_fit();
        respuestas.reserve(2 * kVolcado);
    } catch (const std::bad_alloc&) {
        return;
    }
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
    Reservar(respuestas);
    std::string_view linea;
    for (;;) {
        const LectorLineas::Estado estado = lector.Siguiente(linea);
        if (estado == LectorLineas::Estado::fin)
            return 0;
        const bool bEscrito = Atender(servidor, estado, linea, respuestas);
        if (bEscrito && lector.HayLinea() && respuestas.size() < kVolcado)
            continue;
        if (!bEscrito || !Escribir(respuestas)) {
            // Nobody reads any more: there is nobody to tell either.
            if (errno == EPIPE)
                return 0;
            throw std::runtime_error("no se puede escribir la salida");
        }
        respuestas.clear();
        if (respuestas.capacity() > 2 * kVolcado)
            Reservar(respuestas);
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
