#include <quorvel/marca_decimal.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <string>

#include <quorvel/framework/CException.h>

#include "platform/numero/conversion.h"

namespace efv {

namespace {

std::atomic<wchar_t> gMarca{L','};

}  // namespace

void PonerMarcaDecimal(wchar_t marca)
{
    if (marca != L',' && marca != L'.')
        throw CInvalidArgException("a decimal mark is a comma or a point");
    gMarca.store(marca, std::memory_order_relaxed);
}

wchar_t MarcaDecimal()
{
    return gMarca.load(std::memory_order_relaxed);
}

std::optional<double> LeerNumero(std::string_view texto)
{
    if (texto.size() > 1 && texto[0] == '+' && texto[1] != '-')
        texto.remove_prefix(1);
    std::string copia(texto);
    std::ranges::replace(copia, ',', '.');
    double d = 0.0;
    if (!numero::LeerExacto(copia, d) || !std::isfinite(d))
        return std::nullopt;
    return d;
}

}  // namespace efv
