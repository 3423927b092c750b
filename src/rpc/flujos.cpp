#include "rpc/flujos.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <new>
#include <utility>

namespace efv::rpc {

namespace {

constexpr std::size_t kBufer = std::size_t{256} * 1024;
// A partial line's memory is kept for the next one up to this size.
constexpr std::size_t kParcialRetenida = std::size_t{1024} * 1024;

// True when the call is worth repeating: interrupted, or a descriptor that doesn't block wasn't ready.
bool Reintentar(int iDescriptor, short nSuceso)
{
    if (errno == EINTR)
        return true;
    if (errno != EAGAIN)
        return false;
    pollfd espera{iDescriptor, nSuceso, 0};
    return ::poll(&espera, 1, -1) >= 0 || errno == EINTR;
}

}  // namespace

LectorLineas::LectorLineas(int iDescriptor, std::size_t maximo)
    : m_iDescriptor(iDescriptor), m_maximo(maximo), m_bufer(kBufer)
{
}

LectorLineas::Estado LectorLineas::Siguiente(std::string_view& linea)
{
    if (std::exchange(m_bAgotada, false)) {
        m_parcial.clear();
        if (m_parcial.capacity() > kParcialRetenida)
            m_parcial.shrink_to_fit();
    }
    for (;;) {
        if (const std::size_t corte = m_pendiente.find('\n'); corte != std::string_view::npos) {
            const std::string_view trozo = m_pendiente.substr(0, corte);
            m_pendiente.remove_prefix(corte + 1);
            return Terminar(trozo, linea);
        }
        Acumular(m_pendiente);
        if (!Rellenar())
            return m_parcial.empty() && m_estado == Estado::linea ? Estado::fin : Terminar({}, linea);
    }
}

bool LectorLineas::HayLinea() const
{
    return m_pendiente.find('\n') != std::string_view::npos;
}

bool LectorLineas::Rellenar()
{
    m_pendiente = {};
    for (;;) {
        const ssize_t n = ::read(m_iDescriptor, m_bufer.data(), m_bufer.size());
        if (n > 0)
            m_pendiente = {m_bufer.data(), static_cast<std::size_t>(n)};
        if (n >= 0 || !Reintentar(m_iDescriptor, POLLIN))
            return n > 0;
    }
}

// Keeps a piece of a line; from the limit on, or without memory for it, the line is only skipped.
void LectorLineas::Acumular(std::string_view trozo)
{
    if (m_estado != Estado::linea)
        return;
    if (m_parcial.size() + trozo.size() > m_maximo)
        return Saltar(Estado::demasiadoLarga);
    try {
        m_parcial += trozo;
    } catch (const std::bad_alloc&) {
        Saltar(Estado::sinMemoria);
    }
}

void LectorLineas::Saltar(Estado porque)
{
    m_estado = porque;
    m_parcial = {};
    m_parcial.shrink_to_fit();
}

LectorLineas::Estado LectorLineas::Terminar(std::string_view trozo, std::string_view& linea)
{
    if (m_parcial.empty() && m_estado == Estado::linea) {
        linea = trozo;
        return trozo.size() > m_maximo ? Estado::demasiadoLarga : Estado::linea;
    }
    Acumular(trozo);
    m_bAgotada = true;
    linea = m_parcial;
    return std::exchange(m_estado, Estado::linea);
}

bool EscribirTodo(int iDescriptor, std::string_view texto)
{
    while (!texto.empty()) {
        const ssize_t n = ::write(iDescriptor, texto.data(), texto.size());
        if (n >= 0)
            texto.remove_prefix(static_cast<std::size_t>(n));
        else if (!Reintentar(iDescriptor, POLLOUT))
            return false;
    }
    return true;
}

}  // namespace efv::rpc
