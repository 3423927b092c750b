#include "assistants/asistente_red_registro.h"

#include <array>

#include <quorvel/assistants.h>

#include "platform/framework/registro_clases.h"
#include "platform/framework/tabla_registro.h"

namespace {

using R = CSFVAsistenteRed;

constexpr auto kCampos = std::to_array<efv::framework::CampoDeclarado<R>>({
    {"iSimboloInversor", &R::iSimboloInversor},
    {"iSimboloPanel", &R::iSimboloPanel},
    {"dPotenciaObjetivo", &R::dPotenciaObjetivo},
    {"iTipoSalida", &R::iTipoSalida},
    {"dLongitudL1", &R::dLongitudL1},
    {"dLongitudL2", &R::dLongitudL2},
    {"dLongitudL3", &R::dLongitudL3},
    {"csInversor", &R::csInversor},
    {"iInversores", &R::iInversores},
    {"csPanel", &R::csPanel},
    {"iPanelesSerie", &R::iPanelesSerie},
    {"iPanelesParalelo", &R::iPanelesParalelo},
    {"dInclinacion", &R::dInclinacion},
    {"dOrientacion", &R::dOrientacion},
    {"iDisposicion", &R::iDisposicion},
    {"dPanelesPorFila", &R::dPanelesPorFila},
    {"dDistanciaPaneles", &R::dDistanciaPaneles},
    {"dDistanciaFilas", &R::dDistanciaFilas},
});

constexpr int kEsquema = 3;
constexpr auto kArchivo = std::to_array<efv::framework::ItemArchivo<R>>({
    {1, &R::dPotenciaObjetivo},
    {1, &R::iTipoSalida},
    {1, &R::dLongitudL1},
    {1, &R::dLongitudL2},
    {1, &R::dLongitudL3},
    {1, &R::csInversor},
    {1, &R::iInversores},
    {1, &R::csPanel},
    {1, &R::iPanelesSerie},
    {1, &R::iPanelesParalelo},
    {1, &R::dInclinacion},
    {1, &R::dOrientacion},
    {1, &R::dPanelesPorFila},
    {1, &R::dDistanciaPaneles},
    {1, &R::dDistanciaFilas},
    {2, &R::iSimboloInversor},
    {2, &R::iSimboloPanel},
    {3, &R::iDisposicion},
});
static_assert(kCampos.size() == kArchivo.size());

}  // namespace

CSFVAsistenteRed::~CSFVAsistenteRed() = default;

const CRuntimeClass& CSFVAsistenteRed::GetThisClass()
{
    static const CRuntimeClass clase{"CSFVAsistenteRed", &CObject::GetThisClass(),
                                     &efv::framework::Crear<CSFVAsistenteRed>};
    return clase;
}

const CRuntimeClass& CSFVAsistenteRed::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVAsistenteRed::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this, kArchivo, kEsquema);
}

namespace efv::assistants {

std::vector<CampoRegistro> Campos(CSFVAsistenteRed& registro)
{
    return framework::Campos(registro, kCampos);
}

}  // namespace efv::assistants
