#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <initializer_list>
#include <iostream>
#include <stdexcept>

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>

#include <QuorvelEFV.h>
#include <quorvel/qt.h>

#include "anfitrion/simbolos.h"
#include "capturas/capturar.h"
#include "capturas/pantalla.h"
#include "comun/ajustes.h"
#include "datos.h"
#include "idioma.h"
#include "proyecto/ejemplo.h"
#include "proyecto/recientes.h"
#include "ventana_principal.h"

namespace {

using namespace efv::estudio;

bool HayOpcion(int argc, char** argv, std::initializer_list<QByteArrayView> opciones)
{
    return std::any_of(argv, argv + argc, [&](const char* palabra) {
        return std::ranges::any_of(opciones,
                                   [&](QByteArrayView o) { return QByteArrayView(palabra).startsWith(o); });
    });
}

// Help and pictures need no screen.
void PrepararPantalla(int argc, char** argv, PantallaDeCapturas& pantalla)
{
    // A platform of the person's stays; the pictures bring the screen that it would have without windows.
    const QByteArray plataforma = qgetenv("QT_QPA_PLATFORM");
    if (!plataforma.isEmpty() && plataforma != "offscreen")
        return;
    if (HayOpcion(argc, argv, {"--capturas"}))
        pantalla.Poner();
    else if (HayOpcion(argc, argv, {"--help", "--ayuda", "--version", "-h", "-v"}))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

std::vector<efv::Localidad> Lugares(const Carpetas& carpetas)
{
    return efv::LeerLugares(Ruta(carpetas.datos, ""), Ruta(carpetas.propios, ""));
}

int Capturar(const Carpetas& datos, const std::filesystem::path& carpeta)
{
    std::filesystem::create_directories(carpeta);
    VentanaPrincipal ventana(Lugares(datos));
    ventana.PonerPreferencias({});
    ventana.LaSesion().Nuevo(ProyectoDeEjemplo(ventana.LaSesion().LugarInicial()));
    ventana.show();
    const ResultadoCapturas programa = CapturarPrograma(ventana, carpeta);
    const ResultadoCapturas dialogos = efv::estudio::Capturar(Pantallas(ventana.LaSesion()), carpeta);
    std::cout << programa.nCapturas + dialogos.nCapturas << " capturas en " << carpeta.string() << '\n';
    for (const auto& faltas : {programa.faltas, dialogos.faltas})
        for (const std::string& falta : faltas)
            std::cerr << "efv-estudio: " << falta << '\n';
    return programa.faltas.empty() && dialogos.faltas.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

// Work goes on without them.
void AvisarDe(const CStringArray& fallidas)
{
    CString csTexto = L"No se han podido cargar estos archivos:\n";
    for (const CString& csFichero : fallidas)
        csTexto += L"\n" + csFichero;
    if (!fallidas.IsEmpty())
        efv::ui::MostrarAviso(csTexto, efv::ui::Icono::advertencia);
}

void AvisarDeAdoptadas(const std::vector<CString>& adoptadas)
{
    CString csTexto =
        L"Lo que había en sus copias de los catálogos está ahora en sus catálogos propios, sobre los "
        L"distribuidos:\n";
    for (const CString& csCatalogo : adoptadas)
        csTexto += L"\n" + csCatalogo;
    if (!adoptadas.empty())
        efv::ui::MostrarAviso(csTexto + L"\n\nLas copias se guardan, con otro nombre, en la misma carpeta.",
                              efv::ui::Icono::informacion);
}

bool PonerLetra(const QString& puntos)
{
    bool bNumero = false;
    const double dPuntos = QString(puntos).replace(',', '.').toDouble(&bNumero);
    if (!bNumero || dPuntos < 6.0 || dPuntos > 40.0)
        return false;
    QFont letra = QApplication::font();
    letra.setPointSizeF(dPuntos);
    QApplication::setFont(letra);
    return true;
}

int Ejecutar(QApplication& programa)
{
    QCommandLineParser orden;
    orden.setApplicationDescription("Estudio de instalaciones fotovoltaicas.");
    const QCommandLineOption ayuda({"h", "help", "ayuda"}, "Muestra esta ayuda.");
    const QCommandLineOption version({"v", "version"}, "Muestra la versión.");
    const QCommandLineOption datos("datos", "Carpeta de catálogos y lugares.", "DIR");
    const QCommandLineOption capturas("capturas", "Escribe una imagen PNG de cada pantalla y termina.", "DIR");
    const QCommandLineOption letra("letra", "Tamaño de la letra, en puntos, de 6 a 40.", "PUNTOS");
    orden.addOptions({ayuda, version, datos, capturas, letra});
    orden.addPositionalArgument("PROYECTO", "Proyecto que se abre: .efvp, o JSON de la orden efv.",
                                "[PROYECTO]");
    orden.process(programa);
    if (orden.isSet(ayuda)) {
        std::cout << orden.helpText().toStdString();
        return EXIT_SUCCESS;
    }
    if (orden.isSet(version)) {
        std::cout << efv::CadenaUtf8(efv::Version()) << '\n';
        return EXIT_SUCCESS;
    }

    if (orden.isSet(letra) && !PonerLetra(orden.value(letra)))
        throw std::runtime_error("«--letra» quiere un número de 6 a 40.");

    efv::solar::PonerServicioPVGISDelEntorno();
    efv::qt::InstalarPresentadorQt();
    efv::ElegirModelosEn(efv::FormaDeElegir::tabla);
    static ControlAnfitrion control;
    phSetQuorvelBIMCtrl(control);
    const bool bCapturas = orden.isSet(capturas);
    // Pictures show the shipped data, whatever the person has made of their own.
    const std::string opcion = orden.value(datos).toStdString();
    const Carpetas carpetas = bCapturas && opcion.empty() ? Carpetas{CarpetaDistribuida(), CarpetaDistribuida()}
                                                          : CarpetasDeTrabajo(opcion);
    const DatosPuestos puestos = PonerDatos(carpetas);
    if (bCapturas)
        return Capturar(carpetas, orden.value(capturas).toStdString());
    Ajustes ajustes;
    efv::qt::RecordarVentanas(&ajustes);
    VentanaPrincipal ventana(Lugares(carpetas));
    // On a screen that is smaller than what it would like to have, all of it.
    if (!efv::qt::RestaurarVentana(ventana) && ventana.EsMenorDeLoUsual())
        ventana.setWindowState(ventana.windowState() | Qt::WindowMaximized);
    efv::qt::InstalarPresentadorQt(&ventana);
    Sesion& sesion = ventana.LaSesion();
    sesion.PonerRecientes(RecientesDeLaPersona());
    sesion.PonerDatos(opcion);
    ventana.PonerPreferencias(LeerPreferencias(ajustes));
    ventana.alPreferir = [&ajustes](const Preferencias& elegidas) { EscribirPreferencias(ajustes, elegidas); };
    ventana.CopiarEn(CarpetaDeRecuperacion());
    ventana.show();
    AvisarDe(puestos.fallidas);
    AvisarDeAdoptadas(puestos.adoptadas);
    if (const QStringList ficheros = orden.positionalArguments(); !ficheros.isEmpty())
        ventana.Atender([&] { sesion.Abrir(ficheros.constFirst().toStdWString()); });
    ventana.Atender([&] { ventana.OfrecerCopias(false); });
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv)
{
    // A file beyond the process's limit of size is an error like any other, not the program's end.
    std::signal(SIGXFSZ, SIG_IGN);
    PantallaDeCapturas pantalla;
    PrepararPantalla(argc, argv, pantalla);
    QApplication programa(argc, argv);
    QApplication::setApplicationName("efv-estudio");
    QApplication::setDesktopFileName("efv-estudio");
    QApplication::setApplicationVersion(QString::fromStdWString(efv::Version()));
    PonerEspanol();
    QPalette paleta = QApplication::palette();
    efv::qt::AclararTextos(paleta);
    QApplication::setPalette(paleta);
    try {
        return Ejecutar(programa);
    } catch (const std::exception& fallo) {
        std::cerr << "efv-estudio: " << fallo.what() << '\n';
        return EXIT_FAILURE;
    }
}
