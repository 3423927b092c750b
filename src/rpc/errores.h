// What goes wrong with a request, as the answer reports it.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace efv::rpc {

/// Numbers of JSON-RPC 2.0.
enum class Codigo : int {
    noEsJson = -32700,
    noEsPeticion = -32600,
    noExiste = -32601,
    argumentos = -32602,
    excepcion = -32000,  ///< an exception left the function
};

/// Longest piece of a request that an error text quotes, bytes.
inline constexpr std::size_t kCitaMaxima = 60;

/// Refuses the request.
class ErrorRpc : public std::runtime_error {
public:
    ErrorRpc(Codigo codigo, const std::string& texto) : std::runtime_error(texto), m_codigo(codigo) {}
    Codigo GetCodigo() const { return m_codigo; }

private:
    Codigo m_codigo;
};

/// A value that doesn't fit its place. Whoever knows the place puts its name before the text with
/// `NombrarLugar`, from the inside out.
class ErrorValor : public ErrorRpc {
public:
    explicit ErrorValor(const std::string& texto) : ErrorRpc(Codigo::argumentos, texto) {}
};

/// Runs `leer`; an ErrorValor of it goes on with `lugar()` before its text. The place is a function
/// because its text is wanted only then.
template <class Sitio, class Leer>
void NombrarLugar(Sitio&& lugar, Leer&& leer)
{
    try {
        leer();
    } catch (const ErrorValor& e) {
        throw ErrorValor(std::string(lugar()) + ": " + e.what());
    }
}

}  // namespace efv::rpc
