#include "assistants/regulacion_dialogo.h"

#include "assistants/asistente_aislada_registro.h"
#include "assistants/calculo_aislada.h"
#include "solar/calendario.h"
#include "ui/campos_registro.h"

namespace {

namespace ui = efv::ui;
using R = CSFVAsistenteAislada;

constexpr auto kCoeficientes = ui::Campos<R>({
    {.miembro = &R::dKb,
     .rotulo = L"Kb (Coeficiente de perdida por rendimiento en el acumulador):",
     .decimales = 4},
    {.miembro = &R::dKa, .rotulo = L"Ka (Coeficiente de autodescarga):", .decimales = 4},
    {.miembro = &R::dTemperaturaAcumulador,
     .rotulo = L"Tª (Temperatura de trabajo a la que se somete el acumulador ºC):",
     .magnitud = L"Temperatura"},
    {.miembro = &R::dKc, .rotulo = L"Kc (Coeficiente de pérdidas en el convertidor):", .decimales = 4},
    {.miembro = &R::dKv, .rotulo = L"Kv (Coeficiente para otras pérdidas):", .decimales = 4},
});
constexpr auto kResultados = ui::Campos<R>({
    {.miembro = &R::dKaAjustado, .rotulo = L"K´a (Coeficiente de autodescarga ajustado):", .decimales = 4},
    {.miembro = &R::dR, .rotulo = L"R (Factor global de rendimiento del acumulador):", .decimales = 4},
});

}  // namespace

CDlgDatosRegulacion::CDlgDatosRegulacion(const R& inicial)
    : DialogoFicha("CDlgDatosRegulacion", L"Parámetros de regulación", inicial, {})
{
    auto& mes = Anadir<ui::Seleccion>(ui::NombreDeCampo(&R::iMesCalculo), L"Mes a considerar en el cálculo:",
                                      ui::Seleccion::Forma::combo);
    for (int m = 0; m < 15; ++m)
        mes.acsEntradas.emplace_back(efv::solar::NombreMes(m));
    mes.destino = &datos.iMesCalculo;
    Anadir(kCoeficientes);
    Anadir(kResultados);
    for (const auto& fila : kResultados) {
        auto& campo = De<ui::Edicion>(fila.miembro);
        campo.bSoloLectura = true;
        campo.intercambio = ui::Intercambio::soloMuestra;
    }
    // A change of Kb alone doesn't call for a calculation.
    for (const auto& fila : kCoeficientes) {
        auto& campo = De<ui::Edicion>(fila.miembro);
        if (&campo != &De(&R::dKb))
            campo.alCambiar = [this] { bModificado = 1; };
        campo.alSalir = [this] {
            if (bModificado != 0 && RecogerAvisando())
                Calcular();
            bModificado = 0;
        };
    }
    Calcular();
}

void CDlgDatosRegulacion::Calcular()
{
    efv::assistants::CalcularCoeficientes(datos);
    Volcar();
}

void CDlgDatosRegulacion::Devolver(R& destino) const
{
    for (const auto miembro : {&R::dDiasAutonomia, &R::dKb, &R::dKa, &R::dTemperaturaAcumulador,
                               &R::dKaAjustado, &R::dKc, &R::dKv, &R::dR})
        destino.*miembro = datos.*miembro;
    destino.iMesCalculo = datos.iMesCalculo;
}
