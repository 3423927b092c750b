#include "assistants/asistente_red_registro.h"

CSFVAsistenteRed::~CSFVAsistenteRed() = default;

const CRuntimeClass& CSFVAsistenteRed::GetThisClass()
{
    static const CRuntimeClass clase = efv::framework::ClaseDeRegistro<CSFVAsistenteRed>("CSFVAsistenteRed");
    return clase;
}

const CRuntimeClass& CSFVAsistenteRed::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVAsistenteRed::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this);
}
