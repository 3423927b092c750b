#include "capturas/registro.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

#include <QuorvelEFV.h>

#include "capturas/elementos.h"
#include "capturas/panel_fotovoltaico.h"
#include "clima/estudios.h"
#include "comun/pagina.h"
#include "economia/dialogo_autoconsumo.h"
#include "energia/planos.h"
#include "informe/portada.h"
#include "preferencias/preferencias.h"
#include "proyecto/asistentes.h"

namespace efv::estudio {

namespace {

// The control of that field name or caption, null without one.
ui::Control* Buscar(const ui::Dialogo& dialogo, std::string_view nombre)
{
    for (const auto& control : dialogo.Controles())
        if (control->nombre == nombre || CadenaUtf8(control->csRotulo) == nombre)
            return control;
    return nullptr;
}

void Pulsar(ui::Dialogo& dialogo, std::string_view nombre)
{
    if (auto* boton = dynamic_cast<ui::Boton*>(Buscar(dialogo, nombre));
        boton != nullptr && boton->bVisible && boton->bHabilitado)
        dialogo.Pulsar(*boton);
}

void ElegirFila(ui::Dialogo& dialogo, std::string_view nombre, int iFila)
{
    if (auto* lista = dynamic_cast<ui::Lista*>(Buscar(dialogo, nombre));
        lista != nullptr && iFila < lista->Filas())
        dialogo.Elegir(*lista, iFila);
}

void AbrirFila(ui::Dialogo& dialogo, std::string_view nombre, int iFila, int iColumna)
{
    if (auto* lista = dynamic_cast<ui::Lista*>(Buscar(dialogo, nombre));
        lista != nullptr && lista->bVisible && iFila < lista->Filas())
        dialogo.Abrir(*lista, iFila, iColumna);
}

void ElegirEntrada(ui::Dialogo& dialogo, std::string_view nombre, int iEntrada)
{
    if (auto* seleccion = dynamic_cast<ui::Seleccion*>(Buscar(dialogo, nombre));
        seleccion != nullptr && seleccion->bVisible && seleccion->bHabilitado)
        dialogo.Elegir(*seleccion, iEntrada);
}

// What a hidden button leads to is there all the same.
void PulsarOculto(ui::Dialogo& dialogo, std::string_view nombre)
{
    if (auto* boton = dynamic_cast<ui::Boton*>(Buscar(dialogo, nombre)); boton != nullptr && boton->alPulsar)
        boton->alPulsar();
}

/// Opens what hangs on a dialog of that class.
struct Ramificacion {
    std::string_view clase;
    void (*abrir)(ui::Dialogo&);
};

constexpr auto kRamificaciones = std::to_array<Ramificacion>({
    {"CDlgVisorXML",
     [](ui::Dialogo& d) {
         Pulsar(d, "Editar");
         Pulsar(d, "NuevaFamilia");
     }},
    {"CDlgElegirModelo",
     [](ui::Dialogo& d) {
         ElegirFila(d, "modelos", 0);
         Pulsar(d, "Filtrar");
         Pulsar(d, "Ver");
     }},
    {"CDlgItemDatosPanelFoto",
     [](ui::Dialogo& d) {
         Pulsar(d, "Curvas I-V y P-A a T constante");
         Pulsar(d, "Curvas I-V y P-A a G constante");
     }},
    {"CDlgItemDatosAcumulador",
     [](ui::Dialogo& d) {
         ElegirFila(d, "listaRegimenes", 0);
         Pulsar(d, "Modificar ...");
     }},
    {"CDlgAsistenteSFVAislada",
     [](ui::Dialogo& d) {
         ElegirFila(d, "lReceptores", 0);
         Pulsar(d, "Editar ...");
         Pulsar(d, "CDlgImgCoordenadas");
         Pulsar(d, "iSimboloPanel");
         PulsarOculto(d, "Regulacion");
     }},
    {"CDlgDatosPanelFotovoltaico", [](ui::Dialogo& d) { Pulsar(d, "ElegirInclinacion"); }},
    {"CDlgDatosEntrada", [](ui::Dialogo& d) { AbrirFila(d, "listaEntradas", 0, 0); }},
    {"CDlgDatosReceptor", [](ui::Dialogo& d) { ElegirEntrada(d, "Unificar planificación", 1); }},
    {"CDlgDatosConsumo",
     [](ui::Dialogo& d) {
         Pulsar(d, "Editar tabla de datos ...");
         AbrirFila(d, "adHoras", 0, 1);
         AbrirFila(d, "lReceptores", 0, 0);
     }},
    {"CDlgDatosConsumoHoraHora",
     [](ui::Dialogo& d) {
         Pulsar(d, "Importar datos ...");
         Pulsar(d, "Datos mensuales ...");
         ElegirEntrada(d, "iOrigen", 1);  // by a preset, which has its own dialog
         Pulsar(d, "...");
     }},
});

void Recorrer(ui::Dialogo& dialogo)
{
    for (const Ramificacion& ramificacion : kRamificaciones)
        if (ramificacion.clase == dialogo.clase)
            ramificacion.abrir(dialogo);
}

// Models out of a table while it lives, as in the program.
class EnTabla {
public:
    EnTabla() { ElegirModelosEn(FormaDeElegir::tabla); }
    ~EnTabla() { ElegirModelosEn(m_antes); }
    EnTabla(const EnTabla&) = delete;
    EnTabla& operator=(const EnTabla&) = delete;

private:
    FormaDeElegir m_antes = FormaDeElegirModelos();
};

// Managing a catalogue: the first model and what hangs on it.
Pantalla DeCatalogo(std::string nombre, int (*editar)(int), std::vector<std::string_view> clases)
{
    clases.insert(clases.end(), {"CDlgVisorXML", "CDlgVisorNombre"});
    return {std::move(nombre), std::move(clases),
            [editar] {
                const EnTabla tabla;
                editar(0);
            },
            [](ui::Dialogo& dialogo) {
                if (dialogo.clase == "CDlgVisorXML")
                    ElegirFila(dialogo, "modelos", 0);
                Recorrer(dialogo);
            }};
}

// An inverter of each use.
void RecorrerUsos(ui::Dialogo& dialogo)
{
    if (dialogo.clase != "CDlgVisorXML")
        return;
    for (const wchar_t* csModelo : {L"SUN2000", L"AJ 500"}) {
        if (auto* buscar = dynamic_cast<ui::Edicion*>(Buscar(dialogo, "csBuscar")))
            dialogo.Teclear(*buscar, csModelo);
        ElegirFila(dialogo, "modelos", 0);
        Pulsar(dialogo, "Editar");
    }
}

// Identification of the first model.
CString PrimerModelo()
{
    for (const auto& objeto : phGetBasePanelFoto().aFamilias)
        if (const auto* familia = dynamic_cast<const CBasePanelFotoFamilia*>(objeto.get());
            familia != nullptr && familia->aModelos.GetSize() > 0)
            return familia->csNombre + L"#" + familia->aModelos[0].csModelo;
    return {};
}

// The consumption element by that entry of data. The project has its own back afterwards.
Pantalla DeConsumo(Sesion& sesion, std::string nombre, int iTipoEntrada, std::vector<std::string_view> clases)
{
    clases.emplace_back("CDlgDatosConsumo");
    return {std::move(nombre), std::move(clases),
            [&sesion, iTipoEntrada] {
                Consumo& consumo = sesion.Proyecto().consumo;
                const int iAntes = std::exchange(consumo.iTipoEntrada, iTipoEntrada);
                const auto horas = std::make_unique<AnoHorario>();
                std::ranges::copy(consumo.adHoras, horas->begin());
                AnoDeReceptores(consumo.lReceptores, consumo.adHoras);
                EditarConsumo(sesion);
                std::ranges::copy(*horas, consumo.adHoras);
                consumo.iTipoEntrada = iAntes;
                sesion.Cambiado();
            },
            &Recorrer};
}

// A plane that looks south-west at the project's latitude.
void AbrirInclinacion(const Sesion& sesion)
{
    double dInclinacion = 15.0;
    EstudiarInclinacion(sesion, dInclinacion, 30.0);
}

// A roof that looks east and west, most of it east. The project's own planes aren't touched.
void AbrirPlanos(const Sesion& sesion)
{
    const Lugar& lugar = sesion.Proyecto().lugar;
    solar::CampoSolar campo{.dLatitud = lugar.dLatitud,
                            .bNorte = lugar.iHemisferio == 1,
                            .adRadHorizontal = {},
                            .dInclinacion = 30.0,
                            .dPotencia = 10.0};
    std::ranges::copy(lugar.adRadHorizontal, campo.adRadHorizontal.begin());
    DialogoPlanos({{30.0, -90.0, 0.6}, {30.0, 90.0, 0.4}}, campo, sesion.Proyecto().situacion.dAltitud)
        .Mostrar();
}

void AbrirPerdidas()
{
    CSFVAsistenteAislada diseno;
    phDatosPerdidasAislada(diseno.dPerdidaCableado, diseno.dPerdidaAcumulador, diseno.dPerdidaAcoplamiento);
}

// A roof of 10 kWp that sells what it gives.
void AbrirVenta()
{
    CSFVCalculoEconomico estudio;
    estudio.dEnergiaBase = 16000.0;
    estudio.dPotenciaGenerador = 10000.0;
    estudio.dRepercusion = 2.5;
    estudio.dAniosPrestamo = 10.0;
    const double adMeses[12] = {};
    phViabilidadEconomicaRed(estudio, adMeses, adMeses, 0.0);
}

// A conductor with its section forced, its colours and what holds for all conductors.
void AbrirCableado()
{
    CString csReferencia = L"Tramo 1";
    int iTramo = 8, bForzarLongitud = 0, bNoContabilizar = 0, bForzarSeccion = 1, bConductores = 1;
    int iConductores = 2, iInstalacion = 2, iAislante = 1, iMaterial = 0, bMaterial = 1, bExcluir = 0, iAux = 0;
    double dForzada = 0.0, dAdicional = 1.5, dSeccion = 6.0, dMaxima = 300.0, dCorrector = 25.0;
    phShowPropertyConductor(1, 1204, 18.4, 2.6, csReferencia, iTramo, bForzarLongitud, dForzada, dAdicional,
                            bNoContabilizar, bForzarSeccion, dSeccion, dMaxima, bConductores, iConductores,
                            dCorrector, iInstalacion, iAislante, iMaterial, bMaterial, bExcluir, iAux);
    double adResistividad[] = {0.018, 0.029}, adCoeficiente[] = {0.00392, 0.00403};
    phShowDatosConductor(adResistividad, adCoeficiente);
    double dPaneles = 25.0, dAcumuladores = 10.0, dReceptores = 0.0;
    phShowDatosMargenSeguridadCableado(dPaneles, dAcumuladores, dReceptores);
}

void AbrirEntradas()
{
    CObArrayPropio<CSFVInverterInput> entradas;
    phAsignArrayInverterInputs(3, 2, 6, entradas, 1);
    entradas[0].nColor = 1;
    entradas[1].nColor = 5;
    EditarEntradas(entradas, 2, 6);
}

/// Hours of a house with its field and its battery: two elements and the whole.
struct HorasDeMuestra {
    using Bloque = double[12][31][24];

    HorasDeMuestra()
    {
        for (std::size_t i = 0; i < kHoras; ++i) {
            const std::size_t iHora = i % 24;
            const double dSol =
                iHora > 6 && iHora < 19 ? std::sin((static_cast<double>(iHora) - 6.0) * kPi / 13.0) : 0.0;
            const double dUso = iHora > 17 ? 0.9 : 0.3;
            for (std::size_t k = 0; k < 3; ++k) {
                const double dParte = k == 0 ? 0.7 : k == 1 ? 0.3 : 1.0;
                produccion[k * kHoras + i] = 3.5 * dSol * dParte;
                consumo[k * kHoras + i] = dUso * dParte;
                carga[k * kHoras + i] = 0.4 * dSol * dParte;
                descarga[k * kHoras + i] = iHora > 18 ? 0.6 * dParte : 0.0;
                propio[k * kHoras + i] = std::min(dUso, 3.5 * dSol) * dParte + descarga[k * kHoras + i];
                vertido[k * kHoras + i] = std::max(0.0, 3.1 * dSol - dUso) * dParte;
            }
            (&precios[0][0][0][0])[i] = iHora > 9 && iHora < 22 ? 0.21 : 0.12;
            (&precios[1][0][0][0])[i] = 0.06;
        }
    }

    static constexpr std::size_t kHoras = 8928;
    static constexpr double kPi = 3.14159265358979;
    std::vector<double> produccion = std::vector<double>(3 * kHoras), consumo = produccion, carga = produccion,
                        descarga = produccion, propio = produccion, vertido = produccion, nada = produccion;
    std::unique_ptr<Bloque[]> precios = std::make_unique<Bloque[]>(2);
};

void AbrirAutoconsumo()
{
    HorasDeMuestra horas;
    CObArrayPropio<CSFVCalculoEconomicoAuto> estudios;
    for (const auto& [csReferencia, dParte] :
         {std::pair(L"Cubierta sur", 0.7), std::pair(L"Cubierta este", 0.3)}) {
        auto& estudio = estudios.Add(std::make_unique<CSFVCalculoEconomicoAuto>());
        estudio.csReferencia = csReferencia;
        estudio.dPotenciaPaneles = 4.5 * dParte;
        estudio.dPotenciaInversores = 4.0 * dParte;
        estudio.dCosteInstalacion = 7000.0 * dParte;
        estudio.dCapitalInicial = 2000.0 * dParte;
    }
    phViabilidadEconomicaAutoconsumo(horas.produccion.data(), horas.consumo.data(), horas.carga.data(),
                                     horas.propio.data(), horas.vertido.data(), horas.nada.data(),
                                     horas.descarga.data(), 0.02, horas.precios[0], horas.precios[1], estudios);
}

void AbrirPrecios()
{
    HorasDeMuestra horas;
    phPrecioEconomicoEnergetico(horas.precios[0], horas.precios[1]);
}

void AbrirHoras()
{
    int aiHoras[24] = {};
    std::fill_n(aiHoras + 8, 10, 1);
    phShowDlgHorasDia(aiHoras);
}

// The day's dialog is another one over a price than over an energy.
void AbrirDias(ui::Dialogo& dialogo)
{
    if (dialogo.clase != "CCalculoEconomicoAutoSheet")
        return;
    AbrirFila(dialogo, "adConsumo", 0, 1);
    AbrirFila(dialogo, "adPrecioConsumo", 0, 1);
}

}  // namespace

std::vector<Pantalla> Pantallas(Sesion& sesion)
{
    return {
        {"tipo", {"CDlgAsistenteTipoInstalacion"}, [] { phSeleccionAsistenteSFV(); }, {}},
        {"aislada",
         {"CDlgAsistenteSFVAislada", "CDlgDatosReceptor", "CDlgMesAno", "CDlgImgCoordenadas",
          "CDlgDatosRegulacion", "DialogoSimbolo"},
         [&sesion] { DisenarAislada(sesion); },
         &Recorrer},
        {"perdidas", {"CDlgDatosPerdidasSolarAislada"}, &AbrirPerdidas, {}},
        {"inclinacion",
         {"CDlgCalculoInclinacionPanel"},
         [&sesion] { AbrirInclinacion(sesion); },
         [](ui::Dialogo& dialogo) { ElegirEntrada(dialogo, "iOpcion", 1); }},
        {"planos", {"DialogoPlanos"}, [&sesion] { AbrirPlanos(sesion); }, {}},
        {"preferencias", {"DialogoPreferencias"}, [] { DialogoPreferencias(Preferencias{}).Mostrar(); }, {}},
        {"pagina-esquema",
         {"DialogoPagina"},
         [] { DialogoPagina(Impresion::esquema, report::Pagina{}).Mostrar(); },
         {}},
        {"pagina-informe",
         {"DialogoPagina"},
         [] { DialogoPagina(Impresion::informe, report::PaginaDeInforme()).Mostrar(); },
         {}},
        {"portada", {"DialogoPortada"}, [&sesion] { EditarPortada(sesion); }, {}},
        {"potencia-minima", {"DialogoHE5"}, [&sesion] { CalcularPotenciaMinima(sesion); }, {}},
        {"mapa-zonas", {"CDlgMapaZonas"}, [] { phShowMapaZonaHE5(); }, {}},
        {"red", {"CDlgAsistenteSFVRed"}, [&sesion] { DisenarRed(sesion); }, &Recorrer},
        DeConsumo(sesion, "consumo-horas", 0,
                  {"CDlgDatosConsumoHoraHora", "CDlgConfigPatronConsumo", "CDlgConfigImportConsumo",
                   "CDlgDatosConsumoMes", "CDlgDatosConsumoDia"}),
        DeConsumo(sesion, "consumo-receptores", 1, {"CDlgDatosReceptor", "CDlgMesAno"}),
        {"venta", {"CDlgCalculoEconomicoRed"}, &AbrirVenta, {}},
        {"autoconsumo",
         {"CCalculoEconomicoAutoSheet", "CDlgCalculoEconomicoAutoDia"},
         &AbrirAutoconsumo,
         &AbrirDias},
        {"autoconsumo-guiado",
         {"DialogoAutoconsumo"},
         [&sesion] { DialogoAutoconsumo(sesion.Proyecto()).Mostrar(); },
         {}},
        {"precios", {"CCalculoEconomicoAutoSheet"}, &AbrirPrecios, {}},
        {"horas", {"CDlgDetalleHoras"}, &AbrirHoras, {}},
        {"tarifa", {"CDlgGeneradorTarifa"}, [] { economics::AbrirGeneradorTarifa(); }, {}},
        {"paneles-elegir",
         {"CDlgElegirModelo", "CDlgFiltroModelos", "CDlgItemDatosPanelFoto"},
         [] {
             CString csId = PrimerModelo();
             const EnTabla tabla;
             phSeleccionPanelFoto(csId);
         },
         &Recorrer},
        DeCatalogo("paneles", &phEditarBasePanelesFotovoltaicos,
                   {"CDlgItemDatosPanelFoto", "CDlgItemDatosGraficaPanelFoto"}),
        DeCatalogo("acumuladores", &phEditarBaseAcumuladores,
                   {"CDlgItemDatosAcumulador", "CDlgItemDatosAcumuladorCap"}),
        DeCatalogo("inversores", &phEditarBaseInversores, {"CDlgItemDatosInversor"}),
        {"inversores-usos",
         {"CDlgItemDatosInversor"},
         [] {
             const EnTabla tabla;
             phEditarBaseInversores(0);
         },
         RecorrerUsos},
        DeCatalogo("microinversores", &phEditarBaseMicroInversores, {"CDlgItemDatosMicroInversor"}),
        DeCatalogo("convertidores", &phEditarBaseConvertidorCC, {"CDlgItemDatosConvertidor"}),
        DeCatalogo("receptores", &phEditarBaseReceptores, {"CDlgItemDatosReceptor"}),
        {"conductores",
         {"CDlgDatosConductor", "CDlgDatosFisicoConductor", "CDlgDatosMargenSeguridadCableado"},
         &AbrirCableado,
         {}},
        {"panel-fotovoltaico",
         {"CDlgDatosPanelFotovoltaico", "CDlgCalculoInclinacionPanel"},
         &AbrirPanelFotovoltaico,
         &Recorrer},
        {"entradas", {"CDlgDatosEntrada", "CDlgItemEntrada"}, &AbrirEntradas, &Recorrer},
        {"elementos",
         {"CDlgDatosAcumulador", "CDlgDatosConvertidorCC", "CDlgDatosCajaConexion", "CDlgDatosNudo",
          "CDlgDatosElementoAuxiliar", "CDlgDatosRedElectrica"},
         &AbrirElementos,
         {}},
        {"reguladores", {"CDlgDatosReguladorCarga", "CDlgDatosReguladorAuto"}, &AbrirReguladores, {}},
        {"elemento-inversor", {"CDlgDatosInversor"}, &AbrirInversores, {}},
        {"rotulacion", {"CDlgRotulacion"}, &AbrirRotulacion, {}},
    };
}

}  // namespace efv::estudio
