#include "assistants/asistente_aislada_registro.h"

namespace {

template <class LISTA>
void Copiar(const LISTA& origen, LISTA& destino)
{
    destino.RemoveAll();
    for (const auto& elemento : origen)
        destino.Add(elemento);
}

}  // namespace

CSFVAsistenteAislada::~CSFVAsistenteAislada() = default;

const CRuntimeClass& CSFVAsistenteAislada::GetThisClass()
{
    static const CRuntimeClass clase =
        efv::framework::ClaseDeRegistro<CSFVAsistenteAislada>("CSFVAsistenteAislada");
    return clase;
}

const CRuntimeClass& CSFVAsistenteAislada::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVAsistenteAislada::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}

void CSFVAsistenteAislada::CopyArray(const CArray<double, double&>& origen, CArray<double, double&>& destino)
{
    Copiar(origen, destino);
}

void CSFVAsistenteAislada::CopyArray(const CStringArray& origen, CStringArray& destino)
{
    Copiar(origen, destino);
}

void CSFVAsistenteAislada::CopyArray(const CUIntArray& origen, CUIntArray& destino)
{
    Copiar(origen, destino);
}

void CSFVAsistenteAislada::Reset()
{
    adCantidad.RemoveAll();
    acsModelo.RemoveAll();
    adHorasDia.RemoveAll();
    adHorario.RemoveAll();
}
