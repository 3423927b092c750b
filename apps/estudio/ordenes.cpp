#include "ordenes.h"

#include <array>

#include <QuorvelEFV.h>

namespace efv::estudio {

namespace {

constexpr int kEditar = 0;

constexpr const char* kCatalogos = "&Catálogos";
constexpr const char* kAyuda = "Ay&uda";

constexpr auto kOrdenes = std::to_array<Orden>({
    {kCatalogos, "&Paneles fotovoltaicos…", [] { phEditarBasePanelesFotovoltaicos(kEditar); }},
    {kCatalogos, "&Acumuladores…", [] { phEditarBaseAcumuladores(kEditar); }},
    {kCatalogos, "&Inversores…", [] { phEditarBaseInversores(kEditar); }},
    {kCatalogos, "&Microinversores…", [] { phEditarBaseMicroInversores(kEditar); }},
    {kCatalogos, "&Convertidores de CC…", [] { phEditarBaseConvertidorCC(kEditar); }},
    {kCatalogos, "&Receptores…", [] { phEditarBaseReceptores(kEditar); }},
    {kAyuda, "&Versión…", [] { phShowVersion(); }},
});

}  // namespace

std::span<const Orden> Ordenes()
{
    return kOrdenes;
}

}  // namespace efv::estudio
