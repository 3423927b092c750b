#include "comun/salida_limpia.h"

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
    m_depurador.Pasar({texto, static_cast<std::size_t>(n)}, m_limpio);
    return Escribir() ? n : 0;
}

int SalidaLimpia::sync()
{
    m_depurador.Terminar(m_limpio);
    return Escribir() ? m_destino.pubsync() : -1;
}

bool SalidaLimpia::Escribir()
{
    const auto n = static_cast<std::streamsize>(m_limpio.size());
    const bool bEscrito = m_destino.sputn(m_limpio.data(), n) == n;
    m_limpio.clear();
    return bEscrito;
}

}  // namespace efv::orden
