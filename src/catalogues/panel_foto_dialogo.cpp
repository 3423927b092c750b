#include "catalogues/panel_foto_dialogo.h"

#include "catalogues/importacion.h"
#include "catalogues/panel_foto.h"
#include "catalogues/panel_foto_pan.h"
#include "platform/numero/conversion.h"

namespace {

namespace ui = efv::ui;
using P = CBasePanelFotoModelo;

constexpr auto kEntradasTipo = [] {
    std::array<std::wstring_view, efv::catalogues::kTiposCelula.size()> entradas;
    for (std::size_t i = 0; i < entradas.size(); ++i)
        entradas[i] = efv::catalogues::kTiposCelula[i].entrada;
    return entradas;
}();

constexpr std::wstring_view kElectricos = L"Características eléctricas";
constexpr std::wstring_view kTermicos = L"Coeficientes de temperatura";
constexpr std::wstring_view kFisicos = L"Características físicas";

constexpr auto kFilasElectricas = std::to_array<ui::Fila<P>>({
    {"csModelo", &P::csModelo, L"Modelo:"},
    {"csCodPrecio", &P::csCodPrecio, L"Cod.Precios:"},
    {"dVsmax",
     &P::dVsmax,
     L"Tensión máxima del sistema [Vsmax] (V):",
     ui::Intervalo{0, 10000},
     2,
     {},
     {},
     {.grupo = kElectricos}},
    {"dPmpm",
     &P::dPmpm,
     L"Potencia máxima [Pmpm] (W):",
     ui::Intervalo{0, 15000},
     2,
     {},
     {},
     {.grupo = kElectricos}},
    {"dVmpm",
     &P::dVmpm,
     L"Tensión en máxima potencia [Vmpm] (V):",
     ui::Intervalo{0, 15000},
     2,
     {},
     {},
     {.grupo = kElectricos}},
    {"dImpm",
     &P::dImpm,
     L"Corriente en máxima potencia [Impm] (A):",
     ui::Intervalo{0, 5000},
     2,
     {},
     {},
     {.grupo = kElectricos}},
    {"dVoc",
     &P::dVoc,
     L"Tensión a circuito abierto [Voc] (V):",
     ui::Intervalo{0, 15000},
     2,
     {},
     {},
     {.grupo = kElectricos}},
    {"dIsc",
     &P::dIsc,
     L"Corriente en cortocircuito [Isc] (A):",
     ui::Intervalo{0, 5000},
     2,
     {},
     {},
     {.grupo = kElectricos}},
});

constexpr auto kFilasFisicas = std::to_array<ui::Fila<P>>({
    {"dCEf",
     &P::dCEf,
     L"Reducción efic. [1000 a 200 W/m² ](%):",
     ui::Intervalo{0, 100},
     2,
     {},
     {},
     {.grupo = kTermicos}},
    {"dAcel",
     &P::dAcel,
     L"Dimensiones de la célula [AxB] (mm²):",
     {},
     2,
     {},
     {},
     {.grupo = kFisicos, .iColumna = 1}},
    {"dH", &P::dH, L"Longitud (mm):", ui::Intervalo{0, 50000}, 0, {}, {}, {.grupo = kFisicos, .iColumna = 1}},
    {"dB", &P::dB, L"Ancho (mm):", ui::Intervalo{0, 50000}, 0, {}, {}, {.grupo = kFisicos, .iColumna = 1}},
    {"dA", &P::dA, L"Canto (mm):", ui::Intervalo{0, 50000}, 0, {}, {}, {.grupo = kFisicos, .iColumna = 1}},
    {"dP", &P::dP, L"Peso (kg):", ui::Intervalo{0, 50000}, 2, {}, {}, {.grupo = kFisicos, .iColumna = 1}},
    {"iTipoCelula",
     &P::iTipoCelula,
     L"Tecnología de la célula:",
     {},
     0,
     kEntradasTipo,
     {},
     {.grupo = kFisicos, .iColumna = 1}},
    {"iNp",
     &P::iNp,
     L"Número de ramales paralelo:",
     ui::Intervalo{1, 1000},
     0,
     {},
     {},
     {.grupo = kFisicos, .iColumna = 1}},
    {"iNs",
     &P::iNs,
     L"Número de células por ramal:",
     ui::Intervalo{1, 1000},
     0,
     {},
     {},
     {.grupo = kFisicos, .iColumna = 1}},
});

constexpr auto kComprobaciones = std::to_array<ui::Comprobacion<P>>({
    {"csModelo", ui::Vacio<&P::csModelo>, L"El modelo del panel, necesita un nombre válido"},
    {"dPmpm", ui::Nulo<&P::dPmpm>, L"La potencia máxima (Pmpm), no puede tener un valor nulo"},
    {"dVmpm", ui::Nulo<&P::dVmpm>, L"La tensión a máxima potencia (Vmpm), no puede tener un valor nulo"},
    {"dImpm", ui::Nulo<&P::dImpm>, L"La corriente a máxima potencia (Impm), no puede tener un valor nulo"},
    {"dVoc", ui::Nulo<&P::dVoc>, L"La tensión a circuito abierto (Voc), no puede tener un valor nulo"},
    {"dIsc", ui::Nulo<&P::dIsc>, L"La corriente a cortocircuito (Isc), no puede tener un valor nulo"},
    {"dH", ui::Nulo<&P::dH>, L"La longitud del panel (H), no puede tener un valor nulo"},
    {"dB", ui::Nulo<&P::dB>, L"La anchura del panel (B), no puede tener un valor nulo"},
    {"dA", ui::Nulo<&P::dA>, L"La canto del panel (A), no puede tener un valor nulo"},
    {nullptr, [](const P& p) { return p.iNp < 1 || p.iNs < 1; },
     L"El número de células y ramas no puede tener nulo", ui::Icono::error},
});

}  // namespace

CDlgItemDatosPanelFoto::Comandos& CDlgItemDatosPanelFoto::ComandosGraficos()
{
    static Comandos comandos;
    return comandos;
}

CDlgItemDatosPanelFoto::CDlgItemDatosPanelFoto(const P& inicial, bool bSoloLectura)
    : DialogoFicha("CDlgItemDatosPanelFoto", L"Especificaciones técnicas del panel fotovoltaico", inicial,
                   kComprobaciones),
      m_coeficientes{{{&P::dCTVoc, &P::dVoc}, {&P::dCTIsc, &P::dIsc}, {&P::dCTPmpm, &P::dPmpm}}}
{
    for (const auto& fila : kFilasElectricas)
        Anadir(fila);
    AnadirCoeficiente(m_coeficientes[0], "dCTVoc", L"Coeficiente de Tª de Voc:    (mV/ºC):", "iUnidadVoc",
                      L"mV/ºC");
    AnadirCoeficiente(m_coeficientes[1], "dCTIsc", L"Coeficiente de Tª de Isc:     (mA/ºC)", "iUnidadIsc",
                      L"mA/ºC");
    AnadirCoeficiente(m_coeficientes[2], "dCTPmpm", L"Coeficiente de Tª a Pmpm:    (mW/ºC):", "iUnidadPmpm",
                      L"mW/ºC");
    for (const auto& fila : kFilasFisicas)
        Anadir(fila);
    AnadirBotones();
    Volcar();
    for (const Coeficiente& coeficiente : m_coeficientes)
        Escribir(coeficiente);
    if (bSoloLectura) {
        PonerSoloLectura();
        m_importar->bHabilitado = false;
    }
}

void CDlgItemDatosPanelFoto::AnadirCoeficiente(Coeficiente& coeficiente, const char* nombre,
                                               std::wstring_view rotulo, const char* nombreUnidad,
                                               std::wstring_view unidadAbsoluta)
{
    auto& campo = Anadir<ui::Edicion>(nombre, rotulo);
    campo.destino = &(datos.*coeficiente.valor);
    campo.iDecimales = 3;
    campo.intercambio = ui::Intercambio::aMano;
    campo.lugar.grupo = kTermicos;
    campo.alCambiar = [this] { bCambio = 1; };
    campo.alSalir = [this, &coeficiente] { AlSalirDe(coeficiente); };
    coeficiente.campo = &campo;

    auto& unidad = Anadir<ui::Seleccion>(nombreUnidad, L"", ui::Seleccion::Forma::combo);
    unidad.acsEntradas = {CString(unidadAbsoluta), L"%/ºC"};
    unidad.iSeleccion = coeficiente.iUnidad;
    unidad.lugar.grupo = kTermicos;
    unidad.alElegir = [this, &coeficiente] { AlCambiarUnidad(coeficiente); };
    coeficiente.unidad = &unidad;
}

void CDlgItemDatosPanelFoto::AnadirBotones()
{
    struct {
        std::wstring_view rotulo;
        const char* imagen;
        std::function<void(const P&)> Comandos::*comando;
    } const curvas[] = {
        {L"Curvas I-V y P-A a T constante", "curvas-t", &Comandos::curvasATemperaturaConstante},
        {L"Curvas I-V y P-A a G constante", "curvas-g", &Comandos::curvasAIrradiacionConstante}};
    for (const auto& curva : curvas) {
        auto& boton = Anadir<ui::Boton>("", curva.rotulo);
        boton.csImagen = efv::CadenaDesdeUtf8(curva.imagen);
        boton.csIndicacion = curva.rotulo;
        boton.alPulsar = [this, comando = curva.comando] {
            if (RecogerAvisando() && ComandosGraficos().*comando)
                (ComandosGraficos().*comando)(datos);
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

void CDlgItemDatosPanelFoto::AlCambiarUnidad(Coeficiente& c)
{
    if (c.unidad->iSeleccion == c.iUnidad)
        return;
    c.iUnidad = c.unidad->iSeleccion;
    Escribir(c);
}

void CDlgItemDatosPanelFoto::AlSalirDe(Coeficiente& c)
{
    if (bCambio == 0 || !RecogerAvisando())
        return;
    double dTecleado = 0.0;  // a text that is no number counts as 0
    efv::numero::nuConvertIntlStrToFlt(c.campo->csTexto, dTecleado);
    datos.*c.valor =
        c.iUnidad == 1 ? efv::catalogues::CoeficienteDePorciento(dTecleado, datos.*c.referencia) : dTecleado;
    c.campo->csTexto = efv::numero::nuConvertFltToIntlStr(dTecleado, c.campo->iDecimales);
    bCambio = 0;
}

void CDlgItemDatosPanelFoto::AlImportar()
{
    ui::PeticionFichero peticion;
    peticion.filtros = {{L"Archivo PAN de PVSyst (*.pan)", L"*.pan"},
                        {L"Texto (*.txt)", L"*.txt"},
                        {L"Todos los ficheros (*.*)", L"*.*"}};
    const auto csRuta = ui::PresentadorActual().ElegirFichero(peticion);
    if (!csRuta)
        return;
    const auto csTexto = efv::catalogues::LeerTextoImportado(*csRuta);
    if (!csTexto || csTexto->empty())
        return;
    efv::catalogues::ImportarPan(*csTexto, datos);
    for (const Coeficiente& coeficiente : m_coeficientes)
        Escribir(coeficiente);
    Volcar();
}
