// A line as a JSON document.
#pragma once

#include <string_view>

#include "rpc/json.h"

namespace efv::rpc {

/// Unlike a bare value of JSON it needs no memory to be taken apart, which it does by recursion: a line's depth
/// must have been looked at before.
class Documento {
public:
    Documento() = default;
    ~Documento();
    Documento(const Documento&) = delete;
    Documento& operator=(const Documento&) = delete;

    /// @throws Json::parse_error, Json::out_of_range, std::bad_alloc; the document may be cut then
    void Interpretar(std::string_view linea);

    const Json& Raiz() const { return m_raiz; }

private:
    Json m_raiz;
};

}  // namespace efv::rpc
