#include "economics/generador_tarifa_dialogo.h"

#include <fmt/format.h>

#include <quorvel/ui/presentador.h>

namespace {

namespace ui = efv::ui;

constexpr auto kRotulos = std::to_array<std::wstring_view>(
    {L"P1 - Punta:", L"P2 - Llano:", L"P3 - Valle:", L"P4 - Punta:", L"P5 - Llano:", L"P6 - Valle:"});
constexpr std::size_t kPrimeroDeFinDeSemana = 3;

ui::Colocacion Grupo(std::size_t iPeriodo)
{
    if (iPeriodo < kPrimeroDeFinDeSemana)
        return {.grupo = L"Tarifa ordinaria: "};
    return {.grupo = L"Tarifa fin de semana:", .iColumna = 1};
}

}  // namespace

CDlgGeneradorTarifa::CDlgGeneradorTarifa() : Dialogo("CDlgGeneradorTarifa", L"Generador de Tarifa")
{
    for (std::size_t i = 0; i < abPeriodos.size(); ++i)
        AnadirPeriodo(i);
    Volcar();
}

void CDlgGeneradorTarifa::AnadirPeriodo(std::size_t iPeriodo)
{
    auto& casilla = Anadir<ui::Casilla>(fmt::format("bP{}", iPeriodo + 1), kRotulos.at(iPeriodo));
    casilla.destino = &abPeriodos.at(iPeriodo);
    casilla.colocacion = Grupo(iPeriodo);
    casilla.csIndicacion = L"El precio del período se escribe en las horas que se dan";
    casilla.alCambiar = [&casilla] { Dialogo::Recoger(casilla); };
    AnadirEstacion(iPeriodo, L"Invierno: ", 'I');
    AnadirEstacion(iPeriodo, L"Verano:", 'V');
}

// Times and price of a season on one line; they belong to no variable.
void CDlgGeneradorTarifa::AnadirEstacion(std::size_t iPeriodo, std::wstring_view estacion, char letra)
{
    auto& titulo = Anadir<ui::TextoFijo>("", estacion);
    titulo.colocacion = Grupo(iPeriodo);
    for (const auto& [nombre, rotulo] : {std::pair("Inicio", L"Inicio"), std::pair("Final", L"Final:")}) {
        auto& hora = Anadir<ui::Hora>(fmt::format("h{}{}P{}", nombre, letra, iPeriodo + 1), rotulo);
        hora.bHabilitado = iPeriodo < kPrimeroDeFinDeSemana;
        hora.colocacion = ui::JuntoA(titulo);
    }
    auto& precio = Anadir<ui::Edicion>(fmt::format("dPrecio{}P{}", letra, iPeriodo + 1), L"Precio €/kWh");
    precio.colocacion = ui::JuntoA(titulo);
}

bool CDlgGeneradorTarifa::AlAceptar()
{
    ui::MostrarAviso(L"Tarifa generada", ui::Icono::informacion);
    return true;
}
