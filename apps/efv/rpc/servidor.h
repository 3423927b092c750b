// The scripted host without its streams: a line with a request in, a line with the answer out.
#pragma once

#include <string>
#include <string_view>

#include <quorvel/ui.h>

#include "rpc/control_guionizado.h"
#include "rpc/json.h"

namespace efv::orden::rpc {

/// Answers JSON-RPC 2.0 requests, one a line. It is the library's presenter while it lives: boxes go
/// into the answer and questions take their answers from the request. The library's state is the
/// process's, so two servers at a time would share it.
class Servidor {
public:
    Servidor();
    ~Servidor();
    Servidor(const Servidor&) = delete;
    Servidor& operator=(const Servidor&) = delete;

    /// The answer to one line, without line end, in one line without line end. Whatever the line holds,
    /// there is exactly one answer and nothing is thrown but for want of memory for a short error text.
    std::string Responder(std::string_view linea);

    /// The same, appended to `salida` with a line end.
    void Responder(std::string_view linea, std::string& salida);

    /// The answer to a line that was too long to be held.
    static void RechazarLinea(std::string& salida);

private:
    void Atender(std::string_view linea, std::string& id, std::string& salida);
    void Llamar(const Json& documento, std::string& salida);
    void PrepararGuion(const Json& documento);
    void EscribirMensajes(std::string& salida) const;

    ui::PresentadorGuionizado m_presentador;
};

}  // namespace efv::orden::rpc
