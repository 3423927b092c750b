// Dialog of a load's data sheet.
#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/kinds/receptor.h"

namespace {

namespace ui = efv::ui;
using M = CBaseReceptorModelo;

constexpr auto kTiposRed = std::to_array<std::wstring_view>({L"Red de CC", L"Red de CA"});

constexpr auto kGenerales = ui::Campos<M>({{&M::csModelo, L"Modelo:"}});

constexpr auto kDatos = ui::Campos<M>({
    {&M::dP, L"Potencia de consumo (W):"},
    {&M::dVs, L"Voltaje de servicio (V):", {1, 10000}},
    {&M::dVsMin, L"Voltaje mínimo de servicio (V):", {1, &M::dVs}},
    {&M::dRend, L"Rendimiento (%):", {1, 100}},
    {.miembro = &M::iTipoRed, .rotulo = L"Tipo de red:", .entradas = kTiposRed},
    {.miembro = &M::bIlum, .rotulo = L"Receptor con caracter de luminaria", .casilla = true},
});

class CDlgItemDatosReceptor : public efv::catalogues::DialogoModelo<M> {
public:
    // An empty name passes here.
    CDlgItemDatosReceptor(const M& inicial, bool bSoloLectura)
        : DialogoModelo("CDlgItemDatosReceptor", L"Especificaciones técnicas del receptor fotovoltaico",
                        inicial, {})
    {
        Anadir(kGenerales);
        AnadirFabricante();
        Anadir(kDatos);
        Abrir(bSoloLectura);
    }
};

}  // namespace

namespace efv::catalogues {

template <>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& /*ordenes*/)
{
    return std::make_unique<CDlgItemDatosReceptor>(modelo, bSoloLectura);
}

}  // namespace efv::catalogues
