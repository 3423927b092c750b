#include "catalogues/import/cec_fila.h"

#include <charconv>
#include <cmath>

#include <fmt/format.h>

#include "platform/texto/recortar.h"

namespace efv::catalogues {

std::string_view Recortar(std::string_view celda)
{
    return texto::Recortar(celda, std::string_view(" \t"));
}

std::string_view FilaLeida::Texto(std::string_view columna) const
{
    const auto hallada = std::ranges::find(m_cabecera, columna);
    const auto i = static_cast<std::size_t>(hallada - m_cabecera.begin());
    return i < m_celdas.size() ? Recortar(m_celdas[i]) : std::string_view();
}

double FilaLeida::Numero(std::string_view columna) const
{
    const std::string_view texto = Texto(columna);
    if (texto.empty())
        throw SinModelo(fmt::format("falta {}", columna));
    double d = 0.0;
    const auto [fin, fallo] = std::from_chars(texto.data(), texto.data() + texto.size(), d);
    if (fallo != std::errc() || fin != texto.data() + texto.size() || !std::isfinite(d))
        throw SinModelo(fmt::format("{} no es un número: «{}»", columna, texto));
    return d;
}

}  // namespace efv::catalogues
