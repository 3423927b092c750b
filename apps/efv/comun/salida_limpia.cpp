#include "comun/salida_limpia.h"

#include <algorithm>

#include <quorvel/report/texto.h>

#include "comun/consola.h"

namespace efv::orden {

SalidaLimpia::int_type SalidaLimpia::overflow(int_type c)
{
    if (traits_type::eq_int_type(c, traits_type::eof()))
        return traits_type::not_eof(c);
    const char letra = traits_type::to_char_type(c);
    return xsputn(&letra, 1) == 1 ? c : traits_type::eof();
}

std::streamsize SalidaLimpia::xsputn(const char* texto, std::streamsize n)
{
    const std::string_view trozo(texto, static_cast<std::size_t>(n));
    if (m_bColor)
        PasarColores(trozo);
    else
        m_depurador.Pasar(trozo, m_limpio);
    return Escribir() ? n : 0;
}

int SalidaLimpia::sync()
{
    m_depurador.Terminar(m_limpio);
    return Escribir() ? m_destino.pubsync() : -1;
}

bool SalidaLimpia::EscribirSinFiltro(std::string_view bytes)
{
    const auto n = static_cast<std::streamsize>(bytes.size());
    return sync() >= 0 && m_destino.sputn(bytes.data(), n) == n;
}

void SalidaLimpia::PasarColores(std::string_view texto)
{
    while (!texto.empty()) {
        const std::size_t iRojo = texto.find(report::kColorRojo), iPropio = texto.find(report::kColorPropio);
        const std::size_t iMarca = std::min({iRojo, iPropio, texto.size()});
        m_depurador.Pasar(texto.substr(0, iMarca), m_limpio);
        texto.remove_prefix(iMarca);
        if (texto.empty())
            return;
        const std::string_view marca = iMarca == iRojo ? report::kColorRojo : report::kColorPropio;
        m_depurador.Terminar(m_limpio);
        m_limpio += marca;
        texto.remove_prefix(marca.size());
    }
}

bool SalidaLimpia::Escribir()
{
    const auto n = static_cast<std::streamsize>(m_limpio.size());
    const bool bEscrito = m_destino.sputn(m_limpio.data(), n) == n;
    m_limpio.clear();
    return bEscrito;
}

void EscribirSinFiltro(std::ostream& salida, std::string_view bytes)
{
    auto* limpia = dynamic_cast<SalidaLimpia*>(salida.rdbuf());
    const bool bEscrito = limpia != nullptr
                              ? limpia->EscribirSinFiltro(bytes)
                              : !salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).fail();
    if (!bEscrito)
        throw ErrorEjecucion("no se puede escribir la salida");
}

}  // namespace efv::orden
