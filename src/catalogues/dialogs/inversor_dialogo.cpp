// Dialog of an inverter's data sheet. Its main use changes what the first page means and which fields
// there are.
#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/dialogs/inversores_dialogo.h"
#include "catalogues/kinds/inversor.h"
#include "platform/numero/conversion.h"

namespace {

namespace ui = efv::ui;
namespace cat = efv::catalogues;
using M = CBaseInversorModelo;

constexpr int kRed = 0;
constexpr int kAislada = 1;
constexpr ui::Color kGris = 0x808080;

constexpr auto kUsos = std::to_array<std::wstring_view>({L"Conexión a red", L"Instalación aislada"});
constexpr auto kSalidas = std::to_array<std::wstring_view>({L"Monofase", L"Trifase"});

constexpr auto kModelo = ui::Campos<M>({{&M::csModelo, L"Modelo:"}});
constexpr auto kGenerales = ui::Campos<M>({
    {&M::csCodPrecio, L"Cod.Precios:"},
    {.miembro = &M::iUsoPrincipal, .rotulo = L"Uso principal:", .entradas = kUsos},
});

constexpr auto kCorrientes = ui::Campos<M>({
    {&M::iNumMPPT, L"Nº de inversores MPPT y entradas (total):", {1, 100}},
    {.miembro = &M::iNumEntradas, .rotulo = L"", .limites = {&M::iNumMPPT, 100}, .junto = &M::iNumMPPT},
    {&M::csICCMaxMPPT, L"Corriente máxima por MPPT (A):"},
    {&M::csICCMinMPPT, L"Corriente mínima por MPPT (A):"},
});
constexpr auto kCortocircuito = ui::Campos<M>({{&M::dIScMax, L"Corriente de cortocircuito máxima (A):"}});

constexpr auto kFase = ui::Campos<M>({
    {&M::dFP, L"Factor de potencia:", {0.1, 1, [](const M& m) { return m.iUsoPrincipal == kRed; }}},
    {.miembro = &M::iTipoSalida, .rotulo = L"", .entradas = kSalidas, .junto = &M::dFP},
});

/// What a field is called in each use once the use has been chosen. A field without a caption in
/// stand-alone use isn't there then; on the page of the output it is only hidden.
struct RotuloPorUso {
    ui::Miembro<M> campo;
    std::wstring_view red;
    std::wstring_view aislada = {};
};
constexpr auto kRotulos = std::to_array<RotuloPorUso>({
    {&M::dPCCMax, L"Potencia CC máx (W):", L"Potencia de autoconsumo (W):"},
    {&M::dVMPPMax, L"Rango de tensiones MPPT (V) [max.- min.]:", L"Rango tensiones entrada (V) [max.- min.]:"},
    {&M::dVCCMax, L"Tensión de entrada máxima (V):"},
    {&M::dVCCMin, L""},
    {&M::iNumMPPT, L"Nº de inversores MPPT y entradas (total):"},
    {&M::iNumEntradas, L""},
    {&M::csICCMaxMPPT, L"Corriente máx. por MPPT (A):"},
    {&M::csICCMinMPPT, L"Corriente mín. por MPPT (A):"},
    {&M::dIScMax, L"Corriente de cortocircuito máxima (A):"},
});
constexpr auto kOcultosEnAislada = std::to_array<double M::*>({&M::dICAMax, &M::dICAMin, &M::dFP});

class CDlgItemDatosInversor : public cat::DialogoInversor<M> {
public:
    CDlgItemDatosInversor(const M& inicial, bool bSoloLectura)
        : DialogoInversor("CDlgItemDatosInversor", L"Especificaciones técnicas de inversores", inicial,
                          cat::kNombreValido<M>)
    {
        Anadir(kModelo);
        AnadirFabricante();
        Anadir(kGenerales);
        AnadirImportacionOnd();
        AnadirEntrada(AnadirPagina(cat::kPaginaEntrada));
        ui::Pagina& salida = AnadirPagina(cat::kPaginaSalida);
        Anadir(salida, cat::kFilasSalida<M>);
        Anadir(salida, kFase);
        Anadir(AnadirPagina(cat::kPaginaSistema), cat::kFilasSistema<M>);

        m_uso = &De<ui::Seleccion>(&M::iUsoPrincipal);
        m_uso->alElegir = [this] { RotularSegunUso(); };
        Abrir(bSoloLectura);
        if (datos.iUsoPrincipal == kAislada)
            RotularSegunUso();
        Indicar();
        if (!bSoloLectura)
            De<ui::Edicion>(&M::iNumMPPT).alCambiar = [this] { AlTeclearMPPT(); };
    }

private:
    void AnadirEntrada(ui::Pagina& pagina)
    {
        Anadir(pagina, cat::kFilasTensiones<M>);
        Anadir(pagina, kCorrientes);
        m_indicacion = &pagina.Anadir<ui::TextoFijo>("csIndicacionMPPT", L"");
        m_indicacion->color = kGris;
        Anadir(pagina, kCortocircuito);
        pagina.alRecoger = [this] { return datos.iUsoPrincipal != kRed || RecogerCorrientes(); };
    }

    // Values stay as they are.
    void RotularSegunUso()
    {
        const bool bAislada = m_uso->iSeleccion == kAislada;
        for (const RotuloPorUso& rotulo : kRotulos) {
            ui::Control& control = De(rotulo.campo);
            control.csRotulo = bAislada ? rotulo.aislada : rotulo.red;
            control.bVisible = !bAislada || !rotulo.aislada.empty();
            control.bHabilitado = control.bVisible;
        }
        m_indicacion->bVisible = m_indicacion->bHabilitado = !bAislada;
        for (double M::*campo : kOcultosEnAislada)
            De(campo).bVisible = !bAislada;
    }

    void Indicar()
    {
        m_indicacion->csTexto =
            datos.iNumMPPT <= 1
                ? CString(L"Introduzca 1 valor de I máx. y 1 de I mín.")
                : fmt::format(L"Introduzca {} valores para la I máx. e I mín., separados por '/'.",
                              datos.iNumMPPT);
    }

    // What is no number of trackers waits for OK.
    void AlTeclearMPPT()
    {
        double d = 0.0;
        const bool bEntero = efv::numero::nuConvertIntlStrToFlt(De<ui::Edicion>(&M::iNumMPPT).csTexto, d) &&
                             d == efv::numero::Entero(d);
        if (m_uso->iSeleccion != kRed || !bEntero || d < 1 || d > 100)
            return;
        datos.iNumMPPT = efv::numero::Entero(d);
        Indicar();
    }

    // The file has no minimum current: the lists are rebuilt with the one that stands typed.
    void AntesDeImportar() override
    {
        CString csMin, csError;
        double dMin = 0.0;
        if (cat::ParseCorrientes(datos.csICCMinMPPT, datos.iNumMPPT, csMin, dMin, csError) != 0)
            datos.dICCMin = dMin;
    }

    void AlCambiarTodo() override
    {
        RotularSegunUso();
        Indicar();
    }

    bool AlRecogerPagina(int iPagina) override
    {
        if (iPagina == -1)
            TraerAlFrente(0);
        return true;
    }

    bool RecogerCorrientes()
    {
        CString csMax, csMin, csErrorMax, csErrorMin;
        double dMax = 0.0;
        double dMin = 0.0;
        const bool bMax =
            cat::ParseCorrientes(datos.csICCMaxMPPT, datos.iNumMPPT, csMax, dMax, csErrorMax) != 0;
        const bool bMin =
            cat::ParseCorrientes(datos.csICCMinMPPT, datos.iNumMPPT, csMin, dMin, csErrorMin) != 0;
        if (!bMax || !bMin) {
            CString csTexto =
                L"Las intensidades de entrada deben contener un valor por cada MPPT, separados por '/'.";
            if (!bMax)
                csTexto += L"\n\nCorriente máxima: " + csErrorMax;
            if (!bMin)
                csTexto += L"\n\nCorriente mínima: " + csErrorMin;
            foco = &De(bMax ? &M::csICCMinMPPT : &M::csICCMaxMPPT);
            ui::MostrarAviso(csTexto, ui::Icono::error);
            return false;
        }
        datos.csICCMaxMPPT = csMax;
        datos.csICCMinMPPT = csMin;
        datos.dICCMax = dMax;
        datos.dICCMin = dMin;
        return true;
    }

    ui::Seleccion* m_uso = nullptr;
    ui::TextoFijo* m_indicacion = nullptr;
};

}  // namespace

namespace efv::catalogues {

template <>
std::unique_ptr<ui::DialogoFicha<M>> CrearDialogo(const M& modelo, bool bSoloLectura,
                                                  const OrdenesModelo<M>& /*ordenes*/)
{
    return std::make_unique<CDlgItemDatosInversor>(modelo, bSoloLectura);
}

}  // namespace efv::catalogues
