// Dialog of a DC/DC converter's data sheet.
#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/kinds/convertidor.h"

namespace {

namespace ui = efv::ui;
using M = CBaseConvertidorModelo;

constexpr auto kGenerales = ui::Campos<M>({{&M::csModelo, L"Modelo:"}});

constexpr auto kEntradaSalida = ui::Campos<M>({
    {&M::dVInMin, L"Tensión mínima de entrada (V):"},
    {&M::dVInMax, L"Tensión máxima de entrada (V):"},
    {&M::dPAutoCons, L"Potencia de autoconsumo (W)"},
    {&M::dVOutNom, L"Tensión nominal de salida (V):"},
    {&M::dPOutNom, L"Potencia nominal de salida (W):"},
});

constexpr auto kSistema = ui::Campos<M>({
    {&M::dRendMax, L"Rendimiento máximo (%):", {50, 100}},
    {.miembro = &M::dAncho, .rotulo = L"Anchura (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &M::dLargo, .rotulo = L"Profundidad (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &M::dAlto, .rotulo = L"Altura (~DIM~):", .magnitud = L"Dimensiones"},
    {.miembro = &M::dPeso, .rotulo = L"Peso (~MASA~):", .magnitud = L"Masa"},
});

class CDlgItemDatosConvertidor : public efv::catalogues::DialogoModelo<M> {
public:
    CDlgItemDatosConvertidor(const M& inicial, bool bSoloLectura)
        : DialogoModelo("CDlgItemDatosConvertidor", L"Especificaciones técnicas del convertidor CC", inicial,
                        efv::catalogues::kNombreValido<M>)
    {
        Anadir(kGenerales);
        AnadirFabricante();
        Anadir(AnadirPagina(L"Entrada/Salida"), kEntradaSalida);
        Anadir(AnadirPagina(L"Datos del sistema"), kSistema);
        Abrir(bSoloLectura);
    }
};

}  // namespace

namespace efv::catalogues {

template <>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& /*ordenes*/)
{
    return std::make_unique<CDlgItemDatosConvertidor>(modelo, bSoloLectura);
}

}  // namespace efv::catalogues
