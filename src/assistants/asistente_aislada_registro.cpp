#include "assistants/asistente_aislada_registro.h"

#include <array>

#include <quorvel/assistants.h>

#include "platform/framework/registro_clases.h"
#include "platform/framework/tabla_registro.h"

namespace {

using R = CSFVAsistenteAislada;

constexpr auto kCampos = std::to_array<efv::framework::CampoDeclarado<R>>({
    {"adCantidad", &R::adCantidad},
    {"acsModelo", &R::acsModelo},
    {"adHorasDia", &R::adHorasDia},
    {"adHorario", &R::adHorario},
    {"csAcumulador", &R::csAcumulador},
    {"dDiasAutonomia", &R::dDiasAutonomia},
    {"iAcumuladoresSerie", &R::iAcumuladoresSerie},
    {"iAcumuladoresParalelo", &R::iAcumuladoresParalelo},
    {"iSimboloAcumulador", &R::iSimboloAcumulador},
    {"csPanel", &R::csPanel},
    {"iPanelesSerie", &R::iPanelesSerie},
    {"iPanelesParalelo", &R::iPanelesParalelo},
    {"iSimboloPanel", &R::iSimboloPanel},
    {"iMesCalculo", &R::iMesCalculo},
    {"dTensionSistema", &R::dTensionSistema},
    {"dPotenciaMaxFV", &R::dPotenciaMaxFV},
    {"dCorrienteMaxFV", &R::dCorrienteMaxFV},
    {"dTensionMaxFV", &R::dTensionMaxFV},
    {"dTensionMinFV", &R::dTensionMinFV},
    {"bSalidaCA", &R::bSalidaCA},
    {"dTensionSalidaCA", &R::dTensionSalidaCA},
    {"dPotenciaSalidaCA", &R::dPotenciaSalidaCA},
    {"iTipoSalidaCA", &R::iTipoSalidaCA},
    {"dProfundidadDescarga", &R::dProfundidadDescarga},
    {"iSimboloRegulador", &R::iSimboloRegulador},
    {"dPerdidaCableado", &R::dPerdidaCableado},
    {"dPerdidaAcumulador", &R::dPerdidaAcumulador},
    {"dPerdidaAcoplamiento", &R::dPerdidaAcoplamiento},
    {"dInclinacion", &R::dInclinacion},
    {"dOrientacion", &R::dOrientacion},
    {"iDisposicion", &R::iDisposicion},
    {"iPanelesPorFila", &R::iPanelesPorFila},
    {"dDistanciaPaneles", &R::dDistanciaPaneles},
    {"dDistanciaFilas", &R::dDistanciaFilas},
    {"dKb", &R::dKb},
    {"dKa", &R::dKa},
    {"dTemperaturaAcumulador", &R::dTemperaturaAcumulador},
    {"dKaAjustado", &R::dKaAjustado},
    {"dKc", &R::dKc},
    {"dKv", &R::dKv},
    {"dR", &R::dR},
});

// The arrays stand behind all scalars in every schema.
constexpr int kEsquema = 6;
constexpr auto kArchivo = std::to_array<efv::framework::ItemArchivo<R>>({
    {1, &R::csAcumulador},
    {1, &R::dDiasAutonomia},
    {1, &R::iAcumuladoresSerie},
    {1, &R::iAcumuladoresParalelo},
    {1, &R::csPanel},
    {1, &R::iPanelesSerie},
    {1, &R::iPanelesParalelo},
    {1, &R::iMesCalculo},
    {1, &R::dProfundidadDescarga},
    {1, &R::dTensionSistema},
    {1, &R::dKb},
    {1, &R::dKa},
    {1, &R::dTemperaturaAcumulador},
    {1, &R::dKaAjustado},
    {1, &R::dKc},
    {1, &R::dKv},
    {1, &R::dR},
    {1, &R::dInclinacion},
    {1, &R::dOrientacion},
    {1, &R::iPanelesPorFila},
    {1, &R::dDistanciaPaneles},
    {1, &R::dDistanciaFilas},
    {2, &R::iSimboloAcumulador},
    {2, &R::iSimboloPanel},
    {2, &R::iSimboloRegulador},
    {4, &R::dPotenciaMaxFV},
    {4, &R::dCorrienteMaxFV},
    {4, &R::dTensionMaxFV},
    {4, &R::dTensionMinFV},
    {4, &R::bSalidaCA},
    {4, &R::dTensionSalidaCA},
    {4, &R::dPotenciaSalidaCA},
    {4, &R::iTipoSalidaCA},
    {5, &R::dPerdidaCableado},
    {5, &R::dPerdidaAcumulador},
    {5, &R::dPerdidaAcoplamiento},
    {6, &R::iDisposicion},
    {1, &R::adCantidad},
    {1, &R::acsModelo},
    {1, &R::adHorasDia},
    {3, &R::adHorario},
});
static_assert(kCampos.size() == kArchivo.size());

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
    static const CRuntimeClass clase{"CSFVAsistenteAislada", &CObject::GetThisClass(),
                                     &efv::framework::Crear<CSFVAsistenteAislada>};
    return clase;
}

const CRuntimeClass& CSFVAsistenteAislada::GetRuntimeClass() const
{
    return GetThisClass();
}

void CSFVAsistenteAislada::Serialize(CArchive& ar)
{
    efv::framework::SerializarPorTabla(ar, *this, kArchivo, kEsquema);
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

namespace efv::assistants {

std::vector<CampoRegistro> Campos(CSFVAsistenteAislada& registro)
{
    return framework::Campos(registro, kCampos);
}

}  // namespace efv::assistants
