#include "rpc/funcion.h"

namespace efv::rpc {

std::string Funcion::Declaracion() const
{
    const Firma firma = GetFirma();
    std::string texto = fmt::format("{} {}(", firma.retorno, m_nombre);
    std::string_view separador;
    for (const Firma::Parametro& parametro : firma.parametros) {
        texto += fmt::format("{}{} {}", separador, parametro.tipo, parametro.nombre);
        separador = ", ";
    }
    return texto + ')';
}

std::string_view Funcion::NombreArgumento(std::size_t i) const
{
    constexpr std::string_view separador = ", ";
    std::string_view resto = m_argumentos;
    for (; i > 0; --i)
        resto.remove_prefix(resto.find(separador) + separador.size());
    return resto.substr(0, resto.find(separador));
}

void Funcion::ComprobarNumero(const Json& argumentos, std::size_t n) const
{
    if (argumentos.size() != n)
        throw ErrorRpc(Codigo::argumentos, fmt::format("número de argumentos: se esperaba {}, llegó {}: {}", n,
                                                       argumentos.size(), Declaracion()));
}

}  // namespace efv::rpc
