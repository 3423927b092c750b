// Dialog of a DC/DC converter's data sheet.
#include "catalogues/kinds/convertidor.h"
#include "catalogues/kinds/dialogo_modelo.h"

namespace {

namespace ui = efv::ui;
using M = CBaseConvertidorModelo;

constexpr auto kGenerales = std::to_array<ui::Fila<M>>({{"csModelo", &M::csModelo, L"Modelo:"}});

constexpr auto kEntradaSalida = std::to_array<ui::Fila<M>>({
    {"dVInMin", &M::dVInMin, L"Tensión mínima de entrada (V):"},
    {"dVInMax", &M::dVInMax, L"Tensión máxima de entrada (V):"},
    {"dPAutoCons", &M::dPAutoCons, L"Potencia de autoconsumo (W)"},
    {"dVOutNom", &M::dVOutNom, L"Tensión nominal de salida (V):"},
    {"dPOutNom", &M::dPOutNom, L"Potencia nominal de salida (W):"},
});

constexpr auto kSistema = std::to_array<ui::Fila<M>>({
    {"dRendMax", &M::dRendMax, L"Rendimiento máximo (%):", {50, 100}},
    {.nombre = "dAncho", .campo = &M::dAncho, .rotulo = L"Anchura (~DIM~):", .magnitud = L"Dimensiones"},
    {.nombre = "dLargo", .campo = &M::dLargo, .rotulo = L"Profundidad (~DIM~):", .magnitud = L"Dimensiones"},
    {.nombre = "dAlto", .campo = &M::dAlto, .rotulo = L"Altura (~DIM~):", .magnitud = L"Dimensiones"},
    {.nombre = "dPeso", .campo = &M::dPeso, .rotulo = L"Peso (~MASA~):", .magnitud = L"Masa"},
});

class CDlgItemDatosConvertidor : public efv::catalogues::DialogoModelo<M> {
public:
    CDlgItemDatosConvertidor(const M& inicial, bool bSoloLectura)
        : DialogoModelo("CDlgItemDatosConvertidor", L"Especificaciones técnicas del convertidor CC", inicial,
                        efv::catalogues::kNombreValido<M>)
    {
        Anadir(kGenerales);
        AnadirFabricante();
        AnadirPaginas({L"Entrada/Salida", L"Datos del sistema"});
        Anadir(kEntradaSalida, {.iPagina = 0});
        Anadir(kSistema, {.iPagina = 1});
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
