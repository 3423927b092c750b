// Dialog of a micro-inverter's data sheet.
#include "catalogues/kinds/inversores_dialogo.h"
#include "catalogues/kinds/micro_inversor.h"

namespace {

namespace ui = efv::ui;
namespace cat = efv::catalogues;
using M = CBaseMicroInversorModelo;

constexpr auto kSalidas = std::to_array<std::wstring_view>({L"Monofásico", L"Trifásico"});

constexpr auto kModelo = std::to_array<ui::Fila<M>>({{"csModelo", &M::csModelo, L"Modelo:"}});
constexpr auto kPrecio = std::to_array<ui::Fila<M>>({{"csCodPrecio", &M::csCodPrecio, L"Cod.Precios:"}});

constexpr auto kCorrientes = std::to_array<ui::Fila<M>>({
    {"dICCMax", &M::dICCMax, L"Corriente de entrada (A) [máx - mín]:"},
    {"dICCMin", &M::dICCMin, L""},
    {"dIScMax", &M::dIScMax, L"Corriente de cortocircuito máxima (A):"},
    {"iNumMPPT", &M::iNumMPPT, L"Número de inversores MPPT:", {1, 100}},
    {"iNumEntradas", &M::iNumEntradas, L"Número de entradas:", {&M::iNumMPPT, 100}},
});

constexpr auto kFase = std::to_array<ui::Fila<M>>({
    {"dFP", &M::dFP, L"Factor de potencia:", {0.1, 1}},
    {.nombre = "iTipoSalida", .campo = &M::iTipoSalida, .rotulo = L"", .entradas = kSalidas},
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
        AnadirPaginas(cat::kPaginasInversor);
        Anadir(cat::kFilasTensiones<M>, {.iPagina = 0});
        Anadir(kCorrientes, {.iPagina = 0});
        Anadir(cat::kFilasSalida<M>, {.iPagina = 1});
        Anadir(kFase, {.iPagina = 1});
        Anadir(cat::kFilasSistema<M>, {.iPagina = 2});
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
