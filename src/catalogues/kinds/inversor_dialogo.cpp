// Dialog of an inverter's data sheet. Its main use changes what the first page means and which fields
// there are.
#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/kinds/inversor.h"
#include "catalogues/kinds/inversores_dialogo.h"
#include "platform/numero/conversion.h"

namespace {

namespace ui = efv::ui;
namespace cat = efv::catalogues;
using M = CBaseInversorModelo;

constexpr int kRed = 0;
constexpr int kAislada = 1;
constexpr ui::Color kGris = 0x808080;
constexpr const char* kIndicacion = "csIndicacionMPPT";

constexpr auto kUsos = std::to_array<std::wstring_view>({L"Conexión a red", L"Instalación aislada"});
constexpr auto kSalidas = std::to_array<std::wstring_view>({L"Monofase", L"Trifase"});

constexpr auto kModelo = std::to_array<ui::Fila<M>>({{"csModelo", &M::csModelo, L"Modelo:"}});
constexpr auto kGenerales = std::to_array<ui::Fila<M>>({
    {"csCodPrecio", &M::csCodPrecio, L"Cod.Precios:"},
    {.nombre = "iUsoPrincipal", .campo = &M::iUsoPrincipal, .rotulo = L"Uso principal:", .entradas = kUsos},
});

constexpr auto kCorrientes = std::to_array<ui::Fila<M>>({
    {"iNumMPPT", &M::iNumMPPT, L"Nº de inversores MPPT y entradas (total):", {1, 100}},
    {"iNumEntradas", &M::iNumEntradas, L"", {&M::iNumMPPT, 100}},
    {"csICCMaxMPPT", &M::csICCMaxMPPT, L"Corriente máxima por MPPT (A):"},
    {"csICCMinMPPT", &M::csICCMinMPPT, L"Corriente mínima por MPPT (A):"},
});
constexpr auto kCortocircuito =
    std::to_array<ui::Fila<M>>({{"dIScMax", &M::dIScMax, L"Corriente de cortocircuito máxima (A):"}});

constexpr auto kFase = std::to_array<ui::Fila<M>>({
    {"dFP", &M::dFP, L"Factor de potencia:", {0.1, 1, [](const M& m) { return m.iUsoPrincipal == kRed; }}},
    {.nombre = "iTipoSalida", .campo = &M::iTipoSalida, .rotulo = L"", .entradas = kSalidas},
});

/// What a field is called in each use once the use has been chosen. A field without a caption in
/// stand-alone use isn't there then; on the page of the output it is only hidden.
struct RotuloPorUso {
    const char* campo;
    std::wstring_view red;
    std::wstring_view aislada = {};
};
constexpr auto kRotulos = std::to_array<RotuloPorUso>({
    {"dPCCMax", L"Potencia CC máx (W):", L"Potencia de autoconsumo (W):"},
    {"dVMPPMax", L"Rango de tensiones MPPT (V) [max.- min.]:", L"Rango tensiones entrada (V) [max.- min.]:"},
    {"dVCCMax", L"Tensión de entrada máxima (V):"},
    {"dVCCMin", L""},
    {"iNumMPPT", L"Nº de inversores MPPT y entradas (total):"},
    {"iNumEntradas", L""},
    {"csICCMaxMPPT", L"Corriente máx. por MPPT (A):"},
    {"csICCMinMPPT", L"Corriente mín. por MPPT (A):"},
    {kIndicacion, L""},
    {"dIScMax", L"Corriente de cortocircuito máxima (A):"},
});
constexpr auto kOcultosEnAislada = std::to_array<const char*>({"dICAMax", "dICAMin", "dFP"});

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
        m_paginas = &AnadirPaginas(cat::kPaginasInversor);
        AnadirEntrada();
        Anadir(cat::kFilasSalida<M>, {.iPagina = 1});
        Anadir(kFase, {.iPagina = 1});
        Anadir(cat::kFilasSistema<M>, {.iPagina = 2});

        m_uso = &ControlDe<ui::Seleccion>("iUsoPrincipal");
        m_uso->alElegir = [this] { RotularSegunUso(); };
        Abrir(bSoloLectura);
        if (datos.iUsoPrincipal == kAislada)
            RotularSegunUso();
        Indicar();
        if (!bSoloLectura)
            ControlDe<ui::Edicion>("iNumMPPT").alCambiar = [this] { AlTeclearMPPT(); };
    }

private:
    void AnadirEntrada()
    {
        const ui::Lugar pagina{.iPagina = 0};
        Anadir(cat::kFilasTensiones<M>, pagina);
        Anadir(kCorrientes, pagina);
        m_indicacion = &Anadir<ui::TextoFijo>(kIndicacion, L"");
        m_indicacion->color = kGris;
        m_indicacion->lugar = pagina;
        Anadir(kCortocircuito, pagina);
    }

    // Values stay as they are.
    void RotularSegunUso()
    {
        const bool bAislada = m_uso->iSeleccion == kAislada;
        for (const RotuloPorUso& rotulo : kRotulos) {
            auto& control = ControlDe<ui::Control>(rotulo.campo);
            control.csRotulo = bAislada ? rotulo.aislada : rotulo.red;
            control.bVisible = !bAislada || !rotulo.aislada.empty();
            control.bHabilitado = control.bVisible;
        }
        for (const char* campo : kOcultosEnAislada)
            ControlDe<ui::Control>(campo).bVisible = !bAislada;
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
        const bool bEntero =
            efv::numero::nuConvertIntlStrToFlt(ControlDe<ui::Edicion>("iNumMPPT").csTexto, d) &&
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
            m_paginas->iSeleccion = 0;
        return iPagina != 0 || datos.iUsoPrincipal != kRed || RecogerCorrientes();
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
            foco = &ControlDe<ui::Edicion>(bMax ? "csICCMinMPPT" : "csICCMaxMPPT");
            ui::MostrarAviso(csTexto, ui::Icono::error);
            return false;
        }
        datos.csICCMaxMPPT = csMax;
        datos.csICCMinMPPT = csMin;
        datos.dICCMax = dMax;
        datos.dICCMin = dMin;
        return true;
    }

    ui::Seleccion* m_paginas = nullptr;
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
