#include "ordenes.h"

#include <array>

#include <QDir>
#include <QFileInfo>
#include <QMenu>

#include <QuorvelEFV.h>

#include "ayuda/apartados.h"
#include "ayuda/ventana_ayuda.h"
#include "clima/estudios.h"
#include "comun/pagina.h"
#include "economia/dialogo_autoconsumo.h"
#include "economia/estudios.h"
#include "esquema/exportar.h"
#include "esquema/plano.h"
#include "informe/imprimir.h"
#include "informe/portada.h"
#include "proyecto/asistentes.h"
#include "proyecto/ejemplo.h"
#include "ventana_principal.h"

namespace efv::estudio {

namespace {

constexpr int kEditar = 0;
constexpr double kPasoAmpliar = 1.25;

constexpr const char* kArchivo = "&Archivo";
constexpr const char* kEdicion = "&Edición";
constexpr const char* kDiseno = "&Diseño";
constexpr const char* kEconomia = "Econo&mía";
constexpr const char* kEsquema = "Es&quema";
constexpr const char* kClima = "C&lima";
constexpr const char* kCatalogos = "&Catálogos";
constexpr const char* kAyuda = "A&yuda";

constexpr std::string_view kConsumo = "consumo", kVenta = "venta", kAutoconsumo = "autoconsumo";  // tabs

using Ventana = VentanaPrincipal;

// What is on view may be of a model that is another now.
template <auto EDITAR>
void EditarCatalogo(Ventana& ventana)
{
    EDITAR(kEditar);
    ventana.LaSesion().Cambiado();
}

// What is accepted is looked at.
template <void (*HACER)(Sesion&), const auto& FICHA>
void ConSuFicha(Ventana& ventana)
{
    ventana.MostrarSiCambia(FICHA, [&] { HACER(ventana.LaSesion()); });
}

void LlenarRecientes(Ventana& ventana, QMenu& menu)
{
    for (const CString& csRuta : ventana.LaSesion().Recientes()) {
        const QString ruta = QString::fromStdWString(csRuta);
        const bool bEsta = QFileInfo::exists(ruta);
        QString texto = QDir::toNativeSeparators(ruta).replace('&', "&&");
        if (!bEsta)
            texto += " (no se encuentra)";
        menu.addAction(texto, &ventana,
                       [&ventana, csRuta] { ventana.Atender([&] { ventana.LaSesion().Abrir(csRuta); }); })
            ->setEnabled(bEsta);
    }
    if (menu.isEmpty())
        menu.addAction("(ninguno)")->setEnabled(false);
}

void LlenarElementos(Ventana& ventana, QMenu& menu)
{
    if (VistaEsquema* vista = ventana.EsquemaALaVista())
        vista->LlenarElementos(menu);
    else
        menu.addAction("(ninguno)")->setEnabled(false);
}

// The drawing on view, or a word about there being none.
const Lamina* LaminaALaVista(Ventana& ventana)
{
    const VistaEsquema* vista = ventana.EsquemaALaVista();
    if (vista != nullptr && !vista->Mostrado().trazos.empty())
        return &vista->Mostrado();
    const std::string_view pestana = ventana.PestanaALaVista();
    const bool bEstudio = pestana == kVenta || pestana == kAutoconsumo;
    ui::MostrarAviso(bEstudio
                         ? L"Este estudio dice potencia y energía, pero no los módulos, el inversor ni los "
                           L"cables que lleva un esquema: el de la instalación está en la ficha «Conexión a "
                           L"red»."
                         : L"No hay ningún esquema a la vista.",
                     ui::Icono::informacion);
    return nullptr;
}

void CopiarEsquema(Ventana& ventana)
{
    if (const Lamina* lamina = LaminaALaVista(ventana))
        CopiarLamina(*lamina);
}

void GuardarEsquemaALaVista(Ventana& ventana)
{
    const Lamina* lamina = LaminaALaVista(ventana);
    const auto diseno = ventana.DisenoALaVista();
    if (lamina != nullptr && diseno)
        GuardarEsquema(ventana.LaSesion().Proyecto(), *diseno, *lamina);
}

void ConEsquemaALaVista(Ventana& ventana, void (*hacer)(const CProyectoEstudio&, Diseno))
{
    const auto diseno = ventana.DisenoALaVista();
    if (LaminaALaVista(ventana) != nullptr && diseno)
        hacer(ventana.LaSesion().Proyecto(), *diseno);
}

// What the tab on view reports of, or a word about there being nothing.
void ConInformeALaVista(Ventana& ventana, void (*hacer)(const report::Documento&))
{
    if (!ventana.CamposValidos())
        return;
    const CProyectoEstudio& proyecto = ventana.LaSesion().Proyecto();
    const std::string_view pestana = ventana.PestanaALaVista();
    if (const auto diseno = ventana.DisenoALaVista())
        hacer(DocumentoDe(proyecto, *diseno));
    else if (pestana == kVenta)
        hacer(DocumentoDeVenta(proyecto));
    else if (pestana == kAutoconsumo)
        hacer(DocumentoDeAutoconsumo(proyecto));
    else
        ui::MostrarAviso(L"No hay ningún diseño a la vista.", ui::Icono::informacion);
}

void AmpliarEsquema(Ventana& ventana, double dFactor)
{
    if (VistaEsquema* vista = ventana.EsquemaALaVista())
        vista->Ampliar(dFactor);
}

void EncajarEsquema(Ventana& ventana)
{
    if (VistaEsquema* vista = ventana.EsquemaALaVista())
        vista->Encajar();
}

constexpr auto kOrdenes = std::to_array<Orden>({
    {kArchivo, "&Nuevo", "Ctrl+N", [](Ventana& v) { v.LaSesion().Nuevo(); }},
    {kArchivo, "&Abrir…", "Ctrl+O", [](Ventana& v) { v.LaSesion().Abrir(); }},
    {kArchivo, "Abrir &reciente", nullptr, nullptr, &LlenarRecientes},
    {kArchivo, "Proyecto de &ejemplo", nullptr,
     [](Ventana& v) { v.LaSesion().Nuevo(ProyectoDeEjemplo(v.LaSesion().LugarInicial())); }},
    {kArchivo, nullptr, nullptr, nullptr},
    {kArchivo, "&Guardar", "Ctrl+S", [](Ventana& v) { v.LaSesion().Guardar(); }},
    {kArchivo, "Guardar &como…", "Ctrl+Shift+S", [](Ventana& v) { v.LaSesion().GuardarComo(); }},
    {kArchivo, nullptr, nullptr, nullptr},
    {kArchivo, "Copias de &recuperación…", nullptr, [](Ventana& v) { v.OfrecerCopias(true); }},
    {kArchivo, nullptr, nullptr, nullptr},
    {kArchivo, "&Salir", "Ctrl+Q", [](Ventana& v) { v.close(); }},
    {kEdicion, "&Deshacer", "Ctrl+Z", [](Ventana& v) { v.LaSesion().Deshacer(); }, nullptr,
     [](const Ventana& v) { return v.LaSesion().QueDeshacer(); }},
    {kEdicion, "&Rehacer", "Ctrl+Shift+Z", [](Ventana& v) { v.LaSesion().Rehacer(); }, nullptr,
     [](const Ventana& v) { return v.LaSesion().QueRehacer(); }},
    {kEdicion, nullptr, nullptr, nullptr},
    {kEdicion, "&Preferencias…", nullptr, [](Ventana& v) { v.EditarPreferencias(); }},
    {kDiseno, "&Elegir tipo de instalación…", "Ctrl+D",
     [](Ventana& v) { v.MostrarDisenado(Disenar(v.LaSesion())); }},
    {kDiseno, nullptr, nullptr, nullptr},
    {kDiseno, "Instalación &aislada…", nullptr,
     [](Ventana& v) { v.MostrarDisenado(DisenarAislada(v.LaSesion())); }},
    {kDiseno, "Conexión a &red…", nullptr, [](Ventana& v) { v.MostrarDisenado(DisenarRed(v.LaSesion())); }},
    {kDiseno, "&Consumo…", nullptr, &ConSuFicha<&EditarConsumo, kConsumo>},
    {kDiseno, "&Planos del campo…", nullptr, [](Ventana& v) { v.EditarPlanos(); }},
    {kDiseno, nullptr, nullptr, nullptr},
    {kDiseno, "Por&tada del informe…", nullptr, [](Ventana& v) { EditarPortada(v.LaSesion()); }},
    {kDiseno, "I&nforme…", "Ctrl+I", [](Ventana& v) { ConInformeALaVista(v, &GuardarInforme); }},
    {kDiseno, "Confi&gurar página del informe…", nullptr,
     [](Ventana&) { ConfigurarPagina(Impresion::informe); }},
    {kDiseno, "&Vista preliminar del informe…", nullptr,
     [](Ventana& v) { ConInformeALaVista(v, &VerInforme); }},
    {kDiseno, "Imprimir in&forme…", "Ctrl+P", [](Ventana& v) { ConInformeALaVista(v, &ImprimirInforme); }},
    {kEconomia, "&Venta a la red…", nullptr, &ConSuFicha<&EstudiarVenta, kVenta>},
    {kEconomia, "&Autoconsumo…", nullptr, &ConSuFicha<&EstudiarAutoconsumo, kAutoconsumo>},
    {kEconomia, "Autoconsumo &guiado…", nullptr, &ConSuFicha<&EstudiarAutoconsumoGuiado, kAutoconsumo>},
    {kEconomia, "&Precios horarios…", nullptr, [](Ventana& v) { EditarPrecios(v.LaSesion()); }},
    {kEsquema, "&Encajar en la ventana", "Ctrl+0", &EncajarEsquema},
    {kEsquema, "&Ampliar", "Ctrl++", [](Ventana& v) { AmpliarEsquema(v, kPasoAmpliar); }},
    {kEsquema, "&Reducir", "Ctrl+-", [](Ventana& v) { AmpliarEsquema(v, 1.0 / kPasoAmpliar); }},
    {kEsquema, "E&lementos", nullptr, nullptr, &LlenarElementos},
    {kEsquema, nullptr, nullptr, nullptr},
    {kEsquema, "&Copiar", "Ctrl+Shift+C", &CopiarEsquema},
    {kEsquema, "&Guardar como…", nullptr, &GuardarEsquemaALaVista},
    {kEsquema, nullptr, nullptr, nullptr},
    {kEsquema, "Con&figurar página…", nullptr, [](Ventana&) { ConfigurarPagina(Impresion::esquema); }},
    {kEsquema, "&Vista preliminar…", nullptr, [](Ventana& v) { ConEsquemaALaVista(v, &VerEsquemaImpreso); }},
    {kEsquema, "&Imprimir…", "Ctrl+Shift+P", [](Ventana& v) { ConEsquemaALaVista(v, &ImprimirEsquema); }},
    {kClima, "&Estudio de la inclinación…", nullptr, [](Ventana& v) { v.EstudiarInclinacion(); }},
    {kClima, "&Mapa de zonas climáticas…", nullptr, [](Ventana&) { phShowMapaZonaHE5(); }},
    {kClima, "&Potencia mínima (CTE HE5)…", nullptr, [](Ventana& v) { CalcularPotenciaMinima(v.LaSesion()); }},
    {kClima, nullptr, nullptr, nullptr},
    {kClima, "&Descargar año típico de PVGIS…", nullptr, [](Ventana& v) { DescargarRegistro(v.LaSesion()); }},
    {kClima, "&Registro climático…", nullptr, [](Ventana& v) { ElegirRegistro(v.LaSesion()); }},
    {kClima, "&Quitar el registro climático", nullptr, [](Ventana& v) { QuitarRegistro(v.LaSesion()); }},
    {kCatalogos, "&Paneles fotovoltaicos…", nullptr, &EditarCatalogo<&phEditarBasePanelesFotovoltaicos>},
    {kCatalogos, "&Acumuladores…", nullptr, &EditarCatalogo<&phEditarBaseAcumuladores>},
    {kCatalogos, "&Inversores…", nullptr, &EditarCatalogo<&phEditarBaseInversores>},
    {kCatalogos, "&Microinversores…", nullptr, &EditarCatalogo<&phEditarBaseMicroInversores>},
    {kCatalogos, "&Convertidores de CC…", nullptr, &EditarCatalogo<&phEditarBaseConvertidorCC>},
    {kCatalogos, "&Receptores…", nullptr, &EditarCatalogo<&phEditarBaseReceptores>},
    {kAyuda, "Ayuda de esta &pantalla", "F1", [](Ventana& v) { v.Ayudar(); }},
    {kAyuda, "&Manual de uso", nullptr, [](Ventana& v) { MostrarAyuda(&v, kManual); }},
    {kAyuda, "Primeros pa&sos", nullptr, [](Ventana& v) { v.MostrarPestana("inicio"); }},
    {kAyuda, nullptr, nullptr, nullptr},
    {kAyuda, "&Versión…", nullptr, [](Ventana&) { phShowVersion(); }},
});

}  // namespace

std::span<const Orden> Ordenes()
{
    return kOrdenes;
}

}  // namespace efv::estudio
