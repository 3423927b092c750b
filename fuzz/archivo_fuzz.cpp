// Any bytes as an archive of any record: read or refused, and what was read is written and read again
// alike.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include <QuorvelEFV.h>

namespace {

std::vector<std::byte> Escribir(CObject& objeto)
{
    std::vector<std::byte> bytes;
    CArchive ar(bytes);
    objeto.Serialize(ar);
    return bytes;
}

void Leer(CObject& objeto, std::span<const std::byte> bytes)
{
    CArchive ar(bytes);
    objeto.Serialize(ar);
}

void ProbarClase(const CRuntimeClass& clase, std::span<const std::byte> bytes)
{
    const auto leido = clase.CreateObject();
    try {
        Leer(*leido, bytes);
    } catch (const CArchiveException&) {
        return;
    }
    const auto escrito = Escribir(*leido);
    const auto otro = clase.CreateObject();
    Leer(*otro, escrito);
    if (Escribir(*otro) != escrito)
        std::abort();
}

void ProbarListas(std::span<const std::byte> bytes)
{
    try {
        CArchive ar(bytes);
        CArray<double, double&> ad;
        CStringArray acs;
        while (ar.Restantes() > 0)
            ar >> acs >> ad;
    } catch (const CArchiveException&) {
        return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    const auto bytes = std::as_bytes(std::span(datos, tamano));
    for (const CRuntimeClass* clase : CRuntimeClass::Registradas())
        ProbarClase(*clase, bytes);
    ProbarListas(bytes);
    return 0;
}
