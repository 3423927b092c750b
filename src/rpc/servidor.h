// The scripted host without its streams: a line with a request or a batch in, a line with the answer out.
#pragma once

#include <string>
#include <string_view>

#include <quorvel/ui.h>

#include "rpc/control_guionizado.h"
#include "rpc/json.h"

namespace efv::rpc {

/// Answers JSON-RPC 2.0 requests, one a line. It is the library's presenter while it lives: boxes go
/// into the answer and questions take their answers from the request. The library's state is the
/// process's, so two servers at a time would share it.
class Servidor {
public:
    Servidor();
    ~Servidor();
    Servidor(const Servidor&) = delete;
    Servidor& operator=(const Servidor&) = delete;

    /// The answer to one line, without line end, in one line without line end; empty for a notification (a
    /// request without id) and for a batch of them. Whatever the line holds, there is at most one answer and
    /// nothing is thrown but for want of memory for a short error text.
    std::string Responder(std::string_view linea);

    /// The same, appended to `salida` with a line end.
    void Responder(std::string_view linea, std::string& salida);

    /// The answer to a line that was too long to be held.
    static void RechazarLinea(std::string& salida);

private:
    void AtenderLinea(std::string_view linea, std::string& salida);
    void AtenderLote(const Json& lote, std::string& salida);
    /// @param bHayLugar false: what would be carried out is refused for want of room in the answer
    void Atender(const Json& peticion, std::string& salida, bool bHayLugar = true);
    void Llamar(std::string_view metodo, const Json& peticion, std::string& salida);
    void PrepararGuion(const Json& peticion);
    void EscribirMensajes(std::string& salida) const;

    ui::PresentadorGuionizado m_presentador;
};

}  // namespace efv::rpc
