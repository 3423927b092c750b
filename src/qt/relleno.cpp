#include "qt/relleno.h"

#include <string>
#include <variant>

namespace efv::qt {

namespace {

// Of a longer list only the count of its rows tells.
constexpr int kFilas = 2000;

class Recoleccion final : public ui::VisitanteControl {
public:
    std::vector<CString> contenidos;

    void Ver(ui::TextoFijo& /*control*/) override {}
    void Ver(ui::Edicion& control) override
    {
        // A text without a variable may be what a list is searched for.
        if (!control.bSoloLectura && (EsDato(control.destino) || control.bVariasLineas))
            Anotar(control);
    }
    void Ver(ui::Casilla& control) override
    {
        if (EsDato(control.destino))
            contenidos.emplace_back(control.bMarcada ? L"1" : L"0");
    }
    void Ver(ui::Seleccion& control) override
    {
        if (EsDato(control.destino) && control.forma != ui::Seleccion::Forma::pestanas &&
            control.forma != ui::Seleccion::Forma::menu)
            contenidos.push_back(std::to_wstring(control.iSeleccion));
    }
    void Ver(ui::Boton& control) override
    {
        // Changes that no control shows, as those of a catalogue: while they can be undone, there are some.
        if (control.nombre == "Deshacer")
            contenidos.emplace_back(control.bHabilitado ? L"1" : L"0");
    }
    void Ver(ui::BotonColor& control) override { contenidos.push_back(std::to_wstring(control.iColor)); }
    void Ver(ui::Hora& control) override { contenidos.push_back(std::to_wstring(control.iMinutos)); }
    void Ver(ui::Lista& control) override
    {
        // Rows that open are data: loads, hours, inputs. Those that are asked for by conditions are not.
        if (!control.alAbrir || control.alFiltrar || control.forma != ui::Lista::Forma::tabla)
            return;
        CString csFilas = std::to_wstring(control.Filas());
        for (int i = 0; i < control.Filas() && i < kFilas; ++i)
            for (int j = 0; j < static_cast<int>(control.acsColumnas.size()); ++j)
                csFilas += L"\n" + control.modelo->Celda(i, j);
        contenidos.push_back(std::move(csFilas));
    }
    void Ver(ui::Grafica& /*control*/) override {}
    void Ver(ui::Progreso& /*control*/) override {}
    void Ver(ui::Deslizador& control) override { contenidos.push_back(std::to_wstring(control.iValor)); }
    void Ver(ui::Imagen& /*control*/) override {}

private:
    static bool EsDato(const ui::Destino& destino) { return !std::holds_alternative<std::monostate>(destino); }

    // A number counts by its value: it is written with other decimals when a calculation shows it again.
    void Anotar(const ui::Edicion& control)
    {
        const ui::Valor valor = control.ValorActual();
        if (const auto* entero = std::get_if<int>(&valor))
            contenidos.push_back(std::to_wstring(*entero));
        else if (const auto* decimal = std::get_if<double>(&valor))
            contenidos.push_back(std::to_wstring(*decimal));
        else
            contenidos.push_back(control.csTexto);
    }
};

}  // namespace

std::vector<CString> LoRellenado(const ui::Dialogo& dialogo)
{
    Recoleccion recoleccion;
    for (ui::Control* control : dialogo.Controles())
        control->Visitar(recoleccion);
    return std::move(recoleccion.contenidos);
}

}  // namespace efv::qt
