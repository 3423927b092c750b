#include "comun/memoria_escasa.h"

#include <cstdlib>
#include <new>

#include <pugixml.hpp>

namespace {

bool gActiva = false, gHaFaltado = false;
std::size_t gFaltan = 0;

void* Asignar(std::size_t n)
{
    if (gActiva && !gHaFaltado && gFaltan-- == 0) {
        gHaFaltado = true;
        return nullptr;
    }
    return std::malloc(n > 0 ? n : 1);
}

}  // namespace

void* operator new(std::size_t n)
{
    void* const p = Asignar(n);
    if (p == nullptr)
        throw std::bad_alloc();
    return p;
}

void* operator new(std::size_t n, const std::nothrow_t&) noexcept
{
    return Asignar(n);
}

void operator delete(void* p) noexcept
{
    std::free(p);
}

void operator delete(void* p, std::size_t) noexcept
{
    std::free(p);
}

namespace efv::pruebas {

MemoriaEscasa::MemoriaEscasa(std::size_t nAsignacion)
{
    static const bool kPuesta = (pugi::set_memory_management_functions(&Asignar, &std::free), true);
    gFaltan = nAsignacion;
    gHaFaltado = false;
    gActiva = kPuesta;
}

MemoriaEscasa::~MemoriaEscasa()
{
    gActiva = false;
}

bool MemoriaEscasa::HaFaltado()
{
    return gHaFaltado;
}

}  // namespace efv::pruebas
