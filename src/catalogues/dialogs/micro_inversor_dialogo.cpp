// Dialog of a micro-inverter's data sheet.
#include "catalogues/dialogs/inversores_dialogo.h"
#include "catalogues/kinds/micro_inversor.h"

namespace {

namespace ui = efv::ui;
namespace cat = efv::catalogues;
using M = CBaseMicroInversorModelo;

constexpr auto kSalidas = std::to_array<std::wstring_view>({L"Monofásico", L"Trifásico"});

constexpr auto kModelo = ui::Campos<M>({{&M::csModelo, L"Modelo:"}});
constexpr auto kPrecio = ui::Campos<M>({{&M::csCodPrecio, L"Cod.Precios:"}});

constexpr auto kCorrientes = ui::Campos<M>({
    {&M::dICCMax, L"Corriente de entrada (A) [máx - mín]:"},
    {.miembro = &M::dICCMin, .rotulo = L"", .junto = &M::dICCMax},
    {&M::dIScMax, L"Corriente de cortocircuito máxima (A):"},
    {&M::iNumMPPT, L"Número de inversores MPPT:", {1, 100}},
    {&M::iNumEntradas, L"Número de entradas:", {&M::iNumMPPT, 100}},
});

constexpr auto kFase = ui::Campos<M>({
    {&M::dFP, L"Factor de potencia:", {0.1, 1}},
    {.miembro = &M::iTipoSalida, .rotulo = L"", .entradas = kSalidas, .junto = &M::dFP},
});

class CDlgItemDatosMicroInversor : public cat::DialogoInversor<M> {
public:
    CDlgItemDatosMicroInversor(const M& inicial, bool bSoloLectura)
        : DialogoInversor("CDlgItemDatosMicroInversor", L"Especificaciones técnicas del micro-inversores",
                          inicial, cat::kNombreValido<M>)
    {
        Anadir(kModelo);
        AnadirFabricante();
        Anadir(kPrecio);
        AnadirImportacionOnd();
        ui::Pagina& entrada = AnadirPagina(cat::kPaginaEntrada);
        Anadir(entrada, cat::kFilasTensiones<M>);
        Anadir(entrada, kCorrientes);
        ui::Pagina& salida = AnadirPagina(cat::kPaginaSalida);
        Anadir(salida, cat::kFilasSalida<M>);
        Anadir(salida, kFase);
        Anadir(AnadirPagina(cat::kPaginaSistema), cat::kFilasSistema<M>);
        Abrir(bSoloLectura);
    }
};

}  // namespace

namespace efv::catalogues {

template <>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& /*ordenes*/)
{
    return std::make_unique<CDlgItemDatosMicroInversor>(modelo, bSoloLectura);
}

}  // namespace efv::catalogues
