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

/// A place that is being read, within those that contain it; it lives as long as the reading. Because its text
/// is wanted only of a value that doesn't fit, it is a function; and because every throw that passes through a
/// place costs as much as answering a call, the places are asked when the error is made.
class SitioQueSeLee {
public:
    SitioQueSeLee(const SitioQueSeLee&) = delete;
    SitioQueSeLee& operator=(const SitioQueSeLee&) = delete;

    /// "a: b: ", from the outside in; empty outside every place.
    static std::string Camino();

protected:
    using Nombrar = std::string (*)(const SitioQueSeLee&);

    explicit SitioQueSeLee(Nombrar nombrar) : m_nombrar(nombrar), m_fuera(s_actual) { s_actual = this; }
    ~SitioQueSeLee() { s_actual = m_fuera; }

private:
    Nombrar m_nombrar;
    const SitioQueSeLee* m_fuera;
    static thread_local const SitioQueSeLee* s_actual;
};

/// A value that doesn't fit its place, whose name stands before the text.
class ErrorValor : public ErrorRpc {
public:
    explicit ErrorValor(const std::string& texto)
        : ErrorRpc(Codigo::argumentos, SitioQueSeLee::Camino() + texto)
    {
    }
};

/// Runs `leer`; an ErrorValor made in it has `lugar()` before its text.
template <class Sitio, class Leer>
void NombrarLugar(Sitio&& lugar, Leer&& leer)
{
    struct Este final : SitioQueSeLee {
        explicit Este(Sitio& s) : SitioQueSeLee(&Texto), sitio(s) {}
        static std::string Texto(const SitioQueSeLee& este)
        {
            return std::string(static_cast<const Este&>(este).sitio());
        }
        Sitio& sitio;
    };
    const Este este(lugar);
    leer();
}

}  // namespace efv::rpc
