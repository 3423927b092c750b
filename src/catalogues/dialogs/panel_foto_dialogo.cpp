#include "catalogues/dialogs/panel_foto_dialogo.h"

#include "catalogues/dialogs/dialogo_modelo.h"
#include "catalogues/dialogs/importar_en_campos.h"
#include "catalogues/dialogs/panel_foto_campos.h"
#include "catalogues/import/importacion.h"
#include "catalogues/import/panel_foto_pan.h"
#include "catalogues/kinds/panel_foto.h"
#include "platform/numero/conversion.h"
#include "ui/intercambio.h"

namespace {

namespace ui = efv::ui;
using P = CBasePanelFotoModelo;

constexpr auto kEntradasTipo = [] {
    std::array<std::wstring_view, efv::catalogues::kTiposCelula.size()> entradas;
    for (std::size_t i = 0; i < entradas.size(); ++i)
        entradas[i] = efv::catalogues::kTiposCelula[i].entrada;
    return entradas;
}();

constexpr auto kGenerales = ui::Campos<P>({
    {&P::csModelo, L"Modelo:"},
    {&P::csCodPrecio, L"Cod.Precios:"},
});
constexpr auto kTermicos = ui::Campos<P>({
    {&P::dCEf, L"Reducción efic. [1000 a 200 W/m² ](%):", {0, 100}},
});
constexpr auto kFisicos = ui::Campos<P>({
    {&P::dAcel, L"Dimensiones de la célula [AxB] (mm²):"},
    {&P::dH, L"Longitud (mm):", {0, 50000}, 0},
    {&P::dB, L"Ancho (mm):", {0, 50000}, 0},
    {&P::dA, L"Canto (mm):", {0, 50000}, 0},
    {&P::dP, L"Peso (kg):", {0, 50000}},
    {.miembro = &P::iTipoCelula, .rotulo = L"Tecnología de la célula:", .entradas = kEntradasTipo},
    {&P::iNp, L"Número de ramales paralelo:", {1, 1000}},
    {&P::iNs, L"Número de células por ramal:", {1, 1000}},
});

const ui::Colocacion kZonaElectricos{.grupo = L"Características eléctricas"};
const ui::Colocacion kZonaTermicos{.grupo = L"Coeficientes de temperatura"};
const ui::Colocacion kZonaFisicos{.grupo = L"Características físicas", .iColumna = 1};

constexpr auto kComprobaciones = std::to_array<ui::Comprobacion<P>>({
    {efv::catalogues::kCampoModelo<P>, ui::Vacio<&P::csModelo>,
     L"El modelo del panel, necesita un nombre válido"},
    {&P::dPmpm, ui::Nulo<&P::dPmpm>, L"La potencia máxima (Pmpm), no puede tener un valor nulo"},
    {&P::dVmpm, ui::Nulo<&P::dVmpm>, L"La tensión a máxima potencia (Vmpm), no puede tener un valor nulo"},
    {&P::dImpm, ui::Nulo<&P::dImpm>, L"La corriente a máxima potencia (Impm), no puede tener un valor nulo"},
    {&P::dVoc, ui::Nulo<&P::dVoc>, L"La tensión a circuito abierto (Voc), no puede tener un valor nulo"},
    {&P::dIsc, ui::Nulo<&P::dIsc>, L"La corriente a cortocircuito (Isc), no puede tener un valor nulo"},
    {&P::dH, ui::Nulo<&P::dH>, L"La longitud del panel (H), no puede tener un valor nulo"},
    {&P::dB, ui::Nulo<&P::dB>, L"La anchura del panel (B), no puede tener un valor nulo"},
    {&P::dA, ui::Nulo<&P::dA>, L"La canto del panel (A), no puede tener un valor nulo"},
    {nullptr, [](const P& p) { return p.iNp < 1 || p.iNs < 1; },
     L"El número de células y ramas no puede tener nulo", ui::Icono::error},
});

}  // namespace

CDlgItemDatosPanelFoto::CDlgItemDatosPanelFoto(const P& inicial, bool bSoloLectura, Ordenes ordenes)
    : DialogoFicha("CDlgItemDatosPanelFoto", L"Especificaciones técnicas del panel fotovoltaico", inicial,
                   kComprobaciones),
      m_ordenes(std::move(ordenes)),
      m_coeficientes{{{&P::dCTVoc, &P::dVoc}, {&P::dCTIsc, &P::dIsc}, {&P::dCTPmpm, &P::dPmpm}}}
{
    Anadir(kGenerales);
    Anadir(efv::catalogues::kElectricosPanel, kZonaElectricos);
    AnadirCoeficiente(m_coeficientes[0], L"Coeficiente de Tª de Voc:    (mV/ºC):", "iUnidadVoc", L"mV/ºC");
    AnadirCoeficiente(m_coeficientes[1], L"Coeficiente de Tª de Isc:     (mA/ºC)", "iUnidadIsc", L"mA/ºC");
    AnadirCoeficiente(m_coeficientes[2], L"Coeficiente de Tª a Pmpm:    (mW/ºC):", "iUnidadPmpm", L"mW/ºC");
    Anadir(kTermicos, kZonaTermicos);
    Anadir(kFisicos, kZonaFisicos);
    AnadirBotones();
    Volcar();
    for (const Coeficiente& coeficiente : m_coeficientes)
        Escribir(coeficiente);
    if (bSoloLectura) {
        PonerSoloLectura();
        m_importar->bHabilitado = false;
    }
}

void CDlgItemDatosPanelFoto::AnadirCoeficiente(Coeficiente& coeficiente, std::wstring_view rotulo,
                                               const char* nombreUnidad, std::wstring_view unidadAbsoluta)
{
    auto& campo = Anadir<ui::Edicion>(ui::NombreDeCampo(coeficiente.valor), rotulo);
    campo.destino = &(datos.*coeficiente.valor);
    campo.iDecimales = 3;
    campo.intercambio = ui::Intercambio::aMano;
    campo.colocacion = kZonaTermicos;
    campo.alCambiar = [&coeficiente] { coeficiente.bTecleado = true; };
    campo.alSalir = [this, &coeficiente] {
        if (coeficiente.bTecleado)
            TomarCampos();
    };
    coeficiente.campo = &campo;

    auto& unidad = Anadir<ui::Seleccion>(nombreUnidad, L"", ui::Seleccion::Forma::combo);
    unidad.acsEntradas = {CString(unidadAbsoluta), L"%/ºC"};
    unidad.iSeleccion = coeficiente.iUnidad;
    unidad.csIndicacion = L"La unidad en que se ve y se escribe; el valor se convierte";
    unidad.colocacion = ui::JuntoA(campo);
    unidad.alElegir = [this, &coeficiente] { AlCambiarUnidad(coeficiente); };
    coeficiente.unidad = &unidad;
}

void CDlgItemDatosPanelFoto::AnadirBotones()
{
    struct {
        std::wstring_view rotulo;
        const char* imagen;
        std::function<void(const P&)> Ordenes::*orden;
    } const curvas[] = {{L"Curvas I-V y P-A a T constante", "curvas-t", &Ordenes::curvasATemperaturaConstante},
                        {L"Curvas I-V y P-A a G constante", "curvas-g", &Ordenes::curvasAIrradiacionConstante}};
    for (const auto& curva : curvas) {
        auto& boton = Anadir<ui::Boton>("", curva.rotulo);
        boton.csImagen = efv::CadenaDesdeUtf8(curva.imagen);
        boton.csIndicacion = curva.rotulo;
        boton.alPulsar = [this, orden = curva.orden] {
            if (TomarCampos() && m_ordenes.*orden)
                (m_ordenes.*orden)(datos);
        };
    }
    m_importar = &Anadir<ui::Boton>("", L"Importar archivo .PAN de PVSyst ...");
    m_importar->alPulsar = [this] { AlImportar(); };
}

double CDlgItemDatosPanelFoto::Mostrado(const Coeficiente& c) const
{
    return c.iUnidad == 1 ? efv::catalogues::CoeficienteAPorciento(datos.*c.valor, datos.*c.referencia)
                          : datos.*c.valor;
}

void CDlgItemDatosPanelFoto::Escribir(const Coeficiente& c)
{
    c.campo->csTexto = efv::numero::nuConvertFltToIntlStr(Mostrado(c), c.campo->iDecimales);
}

// The percentage is of the reference as it stands typed.
void CDlgItemDatosPanelFoto::AlCambiarUnidad(Coeficiente& c)
{
    if (c.unidad->iSeleccion == c.iUnidad)
        return;
    for (const auto& control : Controles())
        ui::Recoger(*control);  // what is wrong with a field is told on acceptance
    if (c.bTecleado)
        Tomar(c);
    c.iUnidad = c.unidad->iSeleccion;
    Escribir(c);
}

void CDlgItemDatosPanelFoto::Tomar(Coeficiente& c)
{
    double dTecleado = 0.0;  // a text that is no number counts as 0
    efv::numero::nuConvertIntlStrToFlt(c.campo->csTexto, dTecleado);
    datos.*c.valor =
        c.iUnidad == 1 ? efv::catalogues::CoeficienteDePorciento(dTecleado, datos.*c.referencia) : dTecleado;
    c.campo->csTexto = efv::numero::nuConvertFltToIntlStr(dTecleado, c.campo->iDecimales);
    c.bTecleado = false;
}

void CDlgItemDatosPanelFoto::TomarCoeficientes()
{
    for (Coeficiente& coeficiente : m_coeficientes)
        if (coeficiente.bTecleado)
            Tomar(coeficiente);
}

// The other fields first: a percentage is of what they hold.
bool CDlgItemDatosPanelFoto::TomarCampos()
{
    if (!RecogerAvisando())
        return false;
    TomarCoeficientes();
    return true;
}

bool CDlgItemDatosPanelFoto::AlAceptar()
{
    TomarCoeficientes();
    return DialogoFicha::AlAceptar();
}

void CDlgItemDatosPanelFoto::AlImportar()
{
    const auto csTexto = efv::catalogues::PedirTextoImportado({L"Archivo PAN de PVSyst (*.pan)", L"*.pan"});
    if (!csTexto || csTexto->empty())
        return;
    efv::catalogues::ImportarEnCampos(*this, [&] { efv::catalogues::ImportarPan(*csTexto, datos); });
    for (Coeficiente& coeficiente : m_coeficientes) {
        coeficiente.bTecleado = false;
        Escribir(coeficiente);
    }
}

template <>
std::unique_ptr<ui::DialogoFicha<P>> efv::catalogues::CrearDialogo(const P& modelo, bool bSoloLectura,
                                                                   const OrdenesModelo<P>& ordenes)
{
    return std::make_unique<CDlgItemDatosPanelFoto>(modelo, bSoloLectura, ordenes);
}
