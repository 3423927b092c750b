#include "electrical/vocabulario_cables.h"

#include <array>
#include <span>

namespace efv::electrical {

namespace {

struct Nombre {
    std::wstring_view corto, largo;
};

constexpr auto kTramos = std::to_array<std::wstring_view>({
    L"Automático",
    L"Tramo Panel-Regulador",
    L"Tramo Acumulador-Regulador",
    L"Tramo Inversor-Regulador",
    L"Tramo Convertidor-Regulador",
    L"Tramo Receptor-Regulador",
    L"Tramo Receptor-Inversor",
    L"Tramo Receptor-Convertidor",
    L"Tramo Panel-Inversor",
    L"Tramo Inversor-Red",
});

constexpr auto kMetodos = std::to_array<Nombre>({
    {L"A1", L"A1: Conductores aislados en tubos en el interior de una pared térmicamente aislante"},
    {L"A2", L"A2: Cables multipolares en tubos en el interior de una pared térmicamente aislante"},
    {L"B1", L"B1: Conductores aislados en tubos sobre una pared de madera/mampostería"},
    {L"B2", L"B2: Cable multipolar en tubo sobre una pared de madera/mampostería"},
    {L"C", L"C: Cable unipolar o multipolar sobre una pared de madera/mampostería"},
    {L"D1", L"D1: Cable multipolar en conductos en el suelo"},
    {L"D2", L"D2: Cables multipolares diseñados para enterrarse directamente en el suelo"},
    {L"E", L"E: Cables multipolares al aire libre"},
    {L"F", L"F: Cable unipolar al aire libre"},
});

constexpr auto kAislantes = std::to_array<Nombre>({
    {L"PVC", L"PVC (Policloruro de vinilo)"},
    {L"XLPE", L"XLPE (Polietileno reticulado)"},
    {L"EPR", L"EPR (Etileno - propileno)"},
    {L"CADA", L"Cable aislante desnudo accesible"},
    {L"CADI", L"Cable aislante desnudo inaccesible"},
});

constexpr Nombre kNombreCobre{L"Cu", L"Cobre (Cu)"}, kNombreAluminio{L"Al", L"Aluminio (Al)"};

template <class T>
T En(std::span<const T> tabla, int i)
{
    return i >= 0 && static_cast<std::size_t>(i) < tabla.size() ? tabla[static_cast<std::size_t>(i)] : T{};
}

const Nombre& Material(int iMaterial)
{
    return iMaterial == 0 ? kNombreCobre : kNombreAluminio;
}

}  // namespace

std::wstring_view NombreTramo(int iTipo)
{
    return En<std::wstring_view>(kTramos, iTipo);
}

std::wstring_view NombreMetodo(int iMetodo)
{
    return En<Nombre>(kMetodos, iMetodo).corto;
}

std::wstring_view NombreLargoMetodo(int iMetodo)
{
    return En<Nombre>(kMetodos, iMetodo).largo;
}

std::wstring_view NombreAislante(int iAislante)
{
    return En<Nombre>(kAislantes, iAislante).corto;
}

std::wstring_view NombreLargoAislante(int iAislante)
{
    return En<Nombre>(kAislantes, iAislante).largo;
}

std::wstring_view NombreMaterial(int iMaterial)
{
    return Material(iMaterial).corto;
}

std::wstring_view NombreLargoMaterial(int iMaterial)
{
    return Material(iMaterial).largo;
}

}  // namespace efv::electrical
