#include "economics/calculo_economico_registro.h"

CSFVCalculoEconomico::~CSFVCalculoEconomico() = default;

const CRuntimeClass& CSFVCalculoEconomico::GetThisClass()
{
    static const CRuntimeClass clase =
        efv::framework::ClaseDeRegistro<CSFVCalculoEconomico>("CSFVCalculoEconomico");
    return clase;
}

const CRuntimeClass& CSFVCalculoEconomico::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVCalculoEconomico::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

void CSFVCalculoEconomico::CopyArray(const CArray<double, double&>& origen, CArray<double, double&>& destino)
{
    if (&origen != &destino)
        destino = origen;
}

void CSFVCalculoEconomico::CopiaExacta(const CSFVCalculoEconomico& otro)
{
    if (&otro != this)
        *this = otro;
}

void CSFVCalculoEconomico::Reset()
{
    for (auto* tabla :
         {&aAnio, &aEnergia, &aPrima, &aIngresos, &aIngresosAcumulados, &aCapitalInteres, &aMantenimiento,
          &aCashFlow, &aAcumulado, &aRadHorizontal, &aRadInclinada, &aEnergiaDia, &aEnergiaMes})
        *tabla = {};
}
