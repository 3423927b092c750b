// The network as the module reaches it.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <quorvel/exportar.h>

namespace efv {

struct OpcionesDescarga {
    std::size_t maximo = std::size_t{64} << 20;  ///< bytes of the body; a larger one is an error
    std::chrono::milliseconds espera{30'000};    ///< longest time without a byte, from the beginning on
    std::string autoridades;  ///< file of certificate authorities (PEM) beside the system's; empty: none
    std::vector<std::pair<std::string, std::string>> cabeceras;  ///< name and value, sent along
};

struct RespuestaRed {
    int iEstado = 0;  ///< of HTTP: 200, 404
    std::string cuerpo;
};

/// Why there is no answer.
struct FalloRed {
    enum class Causa { sinRed, sinRespuesta, tiempoAgotado, noSegura, demasiadoGrande, cancelada, memoria };

    Causa causa = Causa::sinRed;
    std::string texto;  ///< Spanish, for the person
};

/// What has come so far, and of how much when the server says so; false ends the download.
using AvanceRed = std::function<bool(std::uint64_t uRecibidos, std::optional<std::uint64_t> uTotal)>;

class EFV_API Red {
public:
    Red() = default;
    Red(const Red&) = delete;
    Red& operator=(const Red&) = delete;
    virtual ~Red() = default;

    /// What stands at an address of http or https. An answer of any status is an answer; redirections are
    /// followed, but none from https to http. Certificates and names are always verified.
    virtual std::variant<RespuestaRed, FalloRed> Obtener(const std::string& url,
                                                         const OpcionesDescarga& opciones,
                                                         const AvanceRed& avance) = 0;
};

}  // namespace efv
