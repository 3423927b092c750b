#include "consumption/importar_consumo_dialogo.h"

namespace {

namespace ui = efv::ui;
using P = efv::consumption::DatosImportConsumo;

constexpr auto kUnidades = std::to_array<std::wstring_view>({L"Wh", L"kWh"});
constexpr auto kTiempos = std::to_array<std::wstring_view>({L"1 hora", L"1/4 hora"});
constexpr auto kTiempoDeSalida = std::to_array<std::wstring_view>({L"1 hora"});

constexpr ui::Campo<P> kUnidad = {
    .miembro = &P::iUnidad, .rotulo = L"Unidad de consumo:", .entradas = kUnidades};
constexpr ui::Campo<P> kArchivo = {&P::csArchivo, L"Archivo de datos:"};

constexpr auto kCampos = ui::Campos<P>({
    kUnidad,
    {.miembro = &P::iTiempo, .rotulo = L"Tiempo:", .entradas = kTiempos},
    kArchivo,
});
constexpr auto kCamposDeSalida = ui::Campos<P>({
    kUnidad,
    {.miembro = &P::iTiempo, .rotulo = L"Tiempo:", .entradas = kTiempoDeSalida},
    kArchivo,
});

constexpr auto kComprobaciones = std::to_array<ui::Comprobacion<P>>({
    {&P::csArchivo, ui::Vacio<&P::csArchivo>, L"Seleccione un archivo CSV válido"},
});

}  // namespace

CDlgConfigImportConsumo::CDlgConfigImportConsumo(const P& inicial, Modo modo)
    : DialogoFicha("CDlgConfigImportConsumo", L"Datos de consumo", inicial, kComprobaciones)
{
    if (modo == Modo::exportar) {
        datos.iTiempo = 0;
        Anadir(kCamposDeSalida);
    } else {
        Anadir(kCampos);
    }
    auto& buscar = Anadir<ui::Boton>("", L"...");
    buscar.colocacion = ui::JuntoA(De(&efv::consumption::DatosImportConsumo::csArchivo));
    buscar.alPulsar = [this, modo] { AlBuscarArchivo(modo); };
    Volcar();
}

void CDlgConfigImportConsumo::AlBuscarArchivo(Modo modo)
{
    ui::PeticionFichero peticion;
    peticion.filtros = {{L"CSV delimitado por comas (*.csv)", L"*.csv"}};
    peticion.bGuardar = modo == Modo::exportar;
    peticion.csPropuesto = De(&P::csArchivo).csTexto;
    if (auto csRuta = ui::PresentadorActual().ElegirFichero(peticion))
        De(&P::csArchivo).csTexto = std::move(*csRuta);
}
