#include "proyecto/ejemplo.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "proyecto/receptores.h"

namespace efv::estudio {

namespace {

struct CargaEjemplo {
    const wchar_t* csId;
    int iCantidad;
    double adFranjas[6];  // start and end, minutes since midnight
};

constexpr auto kCargas = std::to_array<CargaEjemplo>({
    {L"Vivienda#Lámpara interior 7 W", 8, {420, 480, 1140, 1380, 0, 0}},
    {L"Vivienda#Televisor 60 W", 1, {870, 960, 1230, 1380, 0, 0}},
    {L"Vivienda#Frigorífico 150 W", 1, {0, 480, 0, 0, 0, 0}},
    {L"Vivienda#Ordenador", 1, {540, 720, 0, 0, 0, 0}},
    {L"Vivienda#Lavadora", 1, {720, 765, 0, 0, 0, 0}},
});

// Takes the steps in the dialog of that class and presses OK, whatever else is asked.
class Aceptante {
public:
    explicit Aceptante(const char* clase, std::vector<ui::Paso> pasos = {}) : m_antes(ui::PresentadorActual())
    {
        pasos.emplace_back(ui::paso::Pulsar{"OK"});
        m_guion.guiones.push_back({clase, std::move(pasos)});
        ui::InstalarPresentador(&m_guion);
    }
    ~Aceptante() { ui::InstalarPresentador(&m_antes); }
    Aceptante(const Aceptante&) = delete;
    Aceptante& operator=(const Aceptante&) = delete;

private:
    ui::Presentador& m_antes;
    ui::PresentadorGuionizado m_guion;
};

void PonerCargas(CProyectoEstudio& proyecto)
{
    for (const CargaEjemplo& ejemplo : kCargas) {
        auto receptor = NuevoReceptor(ejemplo.csId);
        if (receptor == nullptr)
            continue;
        receptor->iCantidad = ejemplo.iCantidad;
        for (auto& mes : receptor->dHorario)
            for (auto& dia : mes)
                std::ranges::copy(ejemplo.adFranjas, dia);
        receptor->GetNHdia(0, 0);
        proyecto.consumo.lReceptores.Add(std::move(receptor));
    }
    ReceptoresALaAislada(proyecto);
}

// Prices dearer by day, a roof of 1,200 € a kWp on a loan of ten years.
void PonerEconomia(Economia& economia)
{
    for (auto& mes : economia.adPrecioConsumo)
        for (auto& dia : mes)
            for (int h = 0; h < 24; ++h)
                dia[h] = h >= 10 && h < 22 ? 0.21 : 0.12;
    economia.venta.dRepercusion = 1.2;
    economia.venta.dPrimaFija = 0.12;
    economia.venta.dAniosPrestamo = 10.0;
    economia.autoconsumo.dCosteInstalacion = 24000.0;
    economia.autoconsumo.dCapitalInicial = 6000.0;
    economia.autoconsumo.dMesesFinanciacion = 60.0;
}

// References, what is written beside the elements, and the colours of an inverter's strings.
void PonerElementos(const CSFVAsistenteRed& red, Elementos& elementos)
{
    constexpr int kReferencia = 1, kInclinacion = 4, kCapacidad = 8, kEnergiaAnual = 16;
    constexpr std::array<short, 4> kColores = {5, 1, 3, 6};
    elementos.panelesAislada.csReferencia = L"FV-A";
    elementos.panelesAislada.iRotulos = kReferencia | kInclinacion;
    elementos.acumuladores.csReferencia = L"BAT-1";
    elementos.acumuladores.iRotulos = kReferencia | kCapacidad;
    elementos.panelesRed.csReferencia = L"FV-R";
    elementos.panelesRed.iRotulos = kReferencia | kInclinacion;
    elementos.red.csReferencia = L"CUPS-1";
    elementos.red.iRotulos = kReferencia | kEnergiaAnual;
    DatosInversor& inversor = elementos.inversor;
    if (const CBaseInversorModelo* modelo = phGetBaseInversores().BuscarModelo(red.csInversor)) {
        inversor.iNumMPPT = modelo->iNumMPPT;
        inversor.iNumEntradas = modelo->iNumEntradas;
        phAsignArrayInverterInputs(0, inversor.iNumMPPT, inversor.iNumEntradas, inversor.entradas, 1);
    }
    for (std::size_t i = 0; i < kColores.size() && static_cast<int>(i) < inversor.entradas.GetSize(); ++i)
        inversor.entradas[static_cast<std::ptrdiff_t>(i)].nColor = kColores.at(i);
}

}  // namespace

std::unique_ptr<CProyectoEstudio> ProyectoDeEjemplo(const Lugar& lugar)
{
    auto proyecto = std::make_unique<CProyectoEstudio>();
    proyecto->csNombre = L"Casa de labor";
    proyecto->lugar = lugar;
    PonerCargas(*proyecto);
    proyecto->consumo.csReferencia = L"Casa de labor";
    proyecto->consumo.iTipoEntrada = 1;

    CSFVAsistenteAislada& aislada = proyecto->aislada;
    aislada.csAcumulador = L"TAB#6 OPzS 420";
    aislada.csPanel = L"Canadian Solar#CS3U-350P";
    aislada.dTensionSistema = 48.0;
    aislada.dTensionMaxFV = 180.0;
    aislada.dProfundidadDescarga = 70.0;
    aislada.bSalidaCA = 1;
    CSFVAsistenteRed& red = proyecto->red;
    red.csInversor = L"SMA#SB5.0-1AV-40";
    red.csPanel = L"Canadian Solar#CS3U-350P";
    red.dPotenciaObjetivo = 20.0;
    {
        const Aceptante aceptante("CDlgAsistenteSFVAislada");
        phAsistenteSFVAislada(lugar.Texto(), lugar.dLatitud, lugar.iHemisferio, lugar.adRadHorizontal, aislada);
    }
    // What keeps to the limits in the cold; the assistant's own proposal works at 25 ºC.
    const Aceptante aceptante("CDlgAsistenteSFVRed",
                              {ui::paso::Poner{"iInversores", L"5"}, ui::paso::Poner{"iPanelesSerie", L"6"},
                               ui::paso::Poner{"iPanelesParalelo", L"2"}});
    phAsistenteSFVRed(lugar.Texto(), lugar.dLatitud, lugar.iHemisferio, red);
    PonerEconomia(proyecto->economia);
    PonerElementos(red, proyecto->elementos);
    return proyecto;
}

}  // namespace efv::estudio
