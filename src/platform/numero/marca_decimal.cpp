#include <quorvel/marca_decimal.h>

#include <atomic>

#include <quorvel/framework/CException.h>

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

}  // namespace efv
