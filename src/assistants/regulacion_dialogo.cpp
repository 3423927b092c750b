#include "assistants/regulacion_dialogo.h"

#include "assistants/calculo_aislada.h"
#include "solar/calendario.h"

namespace {

namespace ui = efv::ui;
using R = CSFVAsistenteAislada;

constexpr auto kCoeficientes = std::to_array<ui::Fila<R>>({
    {"dKb", &R::dKb, L"Kb (Coeficiente de perdida por rendimiento en el acumulador):", {0.0, 1.0}, 4},
    {"dKa", &R::dKa, L"Ka (Coeficiente de autodescarga):", {0.0, 1.0}, 4},
    {"dTemperaturaAcumulador",
     &R::dTemperaturaAcumulador,
     L"Tª (Temperatura de trabajo a la que se somete el acumulador ºC):",
     {-10.0, 50.0},
     2,
     {},
     L"Temperatura"},
    {"dKc", &R::dKc, L"Kc (Coeficiente de pérdidas en el convertidor):", {0.0, 1.0}, 4},
    {"dKv", &R::dKv, L"Kv (Coeficiente para otras pérdidas):", {0.0, 1.0}, 4},
});
constexpr auto kResultados = std::to_array<ui::Fila<R>>({
    {.nombre = "dKaAjustado",
     .campo = &R::dKaAjustado,
     .rotulo = L"K´a (Coeficiente de autodescarga ajustado):",
     .decimales = 4},
    {.nombre = "dR",
     .campo = &R::dR,
     .rotulo = L"R (Factor global de rendimiento del acumulador):",
     .decimales = 4},
});

}  // namespace

CDlgDatosRegulacion::CDlgDatosRegulacion(const R& inicial)
    : DialogoFicha("CDlgDatosRegulacion", L"Parámetros de regulación", inicial, {})
{
    auto& mes =
        Anadir<ui::Seleccion>("iMesCalculo", L"Mes a considerar en el cálculo:", ui::Seleccion::Forma::combo);
    for (int m = 0; m < 15; ++m)
        mes.acsEntradas.emplace_back(efv::solar::NombreMes(m));
    mes.destino = &datos.iMesCalculo;
    Anadir(kCoeficientes);
    Anadir(kResultados);
    for (const auto& fila : kResultados) {
        auto& campo = ControlDe<ui::Edicion>(fila.nombre);
        campo.bSoloLectura = true;
        campo.intercambio = ui::Intercambio::soloMuestra;
    }
    // A change of Kb alone doesn't call for a calculation.
    for (const auto& fila : kCoeficientes) {
        auto& campo = ControlDe<ui::Edicion>(fila.nombre);
        if (campo.nombre != "dKb")
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
