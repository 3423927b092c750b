// The record of a consumption profile.
#include <algorithm>
#include <array>
#include <utility>

#include <quorvel/framework/CArchive.h>

#include "consumption/registros.h"
#include "platform/framework/registro_clases.h"
#include "platform/framework/tabla_registro.h"

namespace {

using R = CItemConsumo;

constexpr auto kCampos = std::to_array<efv::framework::CampoDeclarado<R>>({
    {"csNombre", &R::csNombre},
    {"csDescripcion", &R::csDescripcion},
    {"dConsumoHora", efv::framework::Bloque<R, &R::dConsumoHora>()},
});

// Unlike the other records', its number has 16 bits.
constexpr short kEsquema = 1;
constexpr auto kArchivo = std::to_array<efv::framework::ItemArchivo<R>>({
    {1, kCampos[0].miembro},
    {1, kCampos[1].miembro},
    {1, kCampos[2].miembro},
});
static_assert(kCampos.size() == kArchivo.size());

}  // namespace

CItemConsumo::CItemConsumo(CString csTitulo, CString csConsejo, std::span<const double, 8760> valores)
    : csNombre(std::move(csTitulo)), csDescripcion(std::move(csConsejo))
{
    std::ranges::copy(valores, dConsumoHora);
}

CItemConsumo::~CItemConsumo() = default;
// NOLINTNEXTLINE(misc-unconventional-assign-operator): it has a slot of its own
CItemConsumo& CItemConsumo::operator=(const CItemConsumo& otro) = default;

const CRuntimeClass& CItemConsumo::GetThisClass()
{
    static const CRuntimeClass clase{"CItemConsumo", &CObject::GetThisClass(),
                                     &efv::framework::Crear<CItemConsumo>};
    return clase;
}

const CRuntimeClass& CItemConsumo::GetRuntimeClass() const
{
    return GetThisClass();
}

void CItemConsumo::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this, kArchivo, kEsquema);
}

namespace efv::consumption {

std::vector<CampoRegistro> Campos(CItemConsumo& registro)
{
    return framework::Campos(registro, kCampos);
}

}  // namespace efv::consumption
