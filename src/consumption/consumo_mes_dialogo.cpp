#include "consumption/consumo_mes_dialogo.h"

#include <array>

#include <fmt/format.h>

#include "consumption/horas_texto.h"
#include "solar/calendario.h"

namespace {

namespace ui = efv::ui;

constexpr auto kRotulosPeriodos =
    std::to_array<std::wstring_view>({L"P1 (Punta):", L"P2 (Llano):", L"P3 (Valle):"});
constexpr std::wstring_view kGrupoMeses = L"Consumo mensual (kWh)";
constexpr std::wstring_view kGrupoHoras = L"Configuración horaria del consumo: ";
constexpr double kEnergiaMaxima = 1e7;  // kWh

}  // namespace

CDlgDatosConsumoMes::CDlgDatosConsumoMes(const efv::consumption::DatosConsumoMes& inicial,
                                         std::vector<CString> acsPatrones)
    : Dialogo("CDlgDatosConsumoMes", L"Datos de consumo mensual"), datos(inicial)
{
    AnadirMeses();
    AnadirHoras();
    auto& patron = Anadir<ui::Seleccion>("iPatron", L"Patrón de consumo: ", ui::Seleccion::Forma::combo);
    patron.acsEntradas = std::move(acsPatrones);
    patron.destino = &datos.iPatron;
    Volcar();
}

// The captions are those of the columns and the same in every month: a field goes by its name.
void CDlgDatosConsumoMes::AnadirMeses()
{
    for (int iMes = 0; iMes < 12; ++iMes) {
        auto& mes = Anadir<ui::TextoFijo>(fmt::format("csMes[{}]", iMes), L"");
        mes.csTexto = efv::solar::NombreMes(iMes);
        mes.colocacion.grupo = kGrupoMeses;
        for (std::size_t p = 0; p < kRotulosPeriodos.size(); ++p) {
            auto& campo = Anadir<ui::Edicion>(fmt::format("adMes[{}][{}]", iMes, p), kRotulosPeriodos[p]);
            campo.destino = &datos.adMes[iMes][p];
            campo.limites = ui::Intervalo{0, kEnergiaMaxima};
            campo.colocacion.grupo = kGrupoMeses;
            campo.colocacion.iColumna = static_cast<int>(p) + 1;
        }
    }
}

void CDlgDatosConsumoMes::AnadirHoras()
{
    for (int h = 0; h < 24; ++h) {
        auto& periodo =
            Anadir<ui::Seleccion>("", efv::consumption::NombreDeHora(h), ui::Seleccion::Forma::combo);
        periodo.acsEntradas = {L"P1", L"P2", L"P3"};
        periodo.destino = &datos.aiPeriodoHora[h];
        periodo.colocacion.grupo = kGrupoHoras;
        periodo.colocacion.iColumna = h < 12 ? 1 : 2;
    }
}
