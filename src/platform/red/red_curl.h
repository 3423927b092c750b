// The network by libcurl.
#pragma once

#include <quorvel/red.h>

namespace efv {

class RedCurl final : public Red {
public:
    std::variant<RespuestaRed, FalloRed> Obtener(const std::string& url, const OpcionesDescarga& opciones,
                                                 const AvanceRed& avance) override;
};

}  // namespace efv
