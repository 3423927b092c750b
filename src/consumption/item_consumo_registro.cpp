// The record of a consumption profile.
#include <algorithm>
#include <utility>

#include <quorvel/framework/CArchive.h>

#include "consumption/registros.h"

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
    static const CRuntimeClass clase = efv::framework::ClaseDeRegistro<CItemConsumo>("CItemConsumo");
    return clase;
}

const CRuntimeClass& CItemConsumo::GetRuntimeClass() const
{
    return GetThisClass();
}

void CItemConsumo::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}
