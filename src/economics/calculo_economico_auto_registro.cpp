#include "economics/calculo_economico_auto_registro.h"

CSFVCalculoEconomicoAuto::~CSFVCalculoEconomicoAuto() = default;

const CRuntimeClass& CSFVCalculoEconomicoAuto::GetThisClass()
{
    static const CRuntimeClass clase =
        efv::framework::ClaseDeRegistro<CSFVCalculoEconomicoAuto>("CSFVCalculoEconomicoAuto");
    return clase;
}

const CRuntimeClass& CSFVCalculoEconomicoAuto::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVCalculoEconomicoAuto::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

void CSFVCalculoEconomicoAuto::CopiaExacta(const CSFVCalculoEconomicoAuto& otro)
{
    if (&otro != this)
        *this = otro;
}

void CSFVCalculoEconomicoAuto::Reset()
{
    *this = CSFVCalculoEconomicoAuto();
}
