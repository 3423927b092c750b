#include "capturas/capturar.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPalette>
#include <QScreen>
#include <QScrollBar>
#include <QThread>
#include <QTimer>

#include <quorvel/qt.h>

#include "ayuda/apartados.h"
#include "ayuda/ventana_ayuda.h"
#include "elementos/rotulos.h"
#include "esquema/exportar.h"
#include "ventana_principal.h"

namespace efv::estudio {

namespace {

void Escribir(const std::filesystem::path& archivo, bool bEscrito)
{
    if (!bEscrito)
        throw std::runtime_error("No se puede escribir «" + archivo.string() + "».");
}

// The theme of a dark screen for as long as it lives.
class TemaOscuro {
public:
    TemaOscuro() { QApplication::setPalette(QPalette(QColor(0x3A, 0x3D, 0x41), QColor(0x2B, 0x2D, 0x30))); }
    ~TemaOscuro() { QApplication::setPalette(m_antes); }
    TemaOscuro(const TemaOscuro&) = delete;
    TemaOscuro& operator=(const TemaOscuro&) = delete;

private:
    QPalette m_antes = QApplication::palette();
};

// A table scrolls by itself where letters are larger than usual.
bool EsDeTabla(const QScrollBar& barra)
{
    constexpr double kLetraUsual = 10.0;
    for (const QWidget* w = &barra; w != nullptr && QApplication::font().pointSizeF() > kLetraUsual;
         w = w->parentWidget())
        if (qobject_cast<const QAbstractItemView*>(w) != nullptr)
            return true;
    return false;
}

// A picture in each theme. What doesn't fit is a fault.
void CapturarVentana(QWidget& ventana, const std::filesystem::path& carpeta, const std::string& nombre,
                     ResultadoCapturas& resultado)
{
    const auto capturar = [&](const char* sufijo) {
        // A theme comes with one turn of the loop, what follows from it with the next.
        QApplication::processEvents();
        QApplication::processEvents();
        const std::filesystem::path archivo = carpeta / (nombre + sufijo);
        Escribir(archivo, ventana.grab().save(QString::fromStdString(archivo.string())));
        ++resultado.nCapturas;
    };
    capturar(".png");
    {
        const TemaOscuro oscuro;
        capturar("-oscuro.png");
    }
    for (const QScrollBar* barra : ventana.findChildren<QScrollBar*>())
        if (barra->orientation() == Qt::Horizontal && barra->isVisible() && barra->maximum() > 0 &&
            !EsDeTabla(*barra))
            resultado.faltas.push_back("En «" + nombre + "» no cabe todo a lo ancho.");
    if (const QSize sitio = ventana.screen()->availableSize();
        ventana.width() > sitio.width() || ventana.height() > sitio.height())
        resultado.faltas.push_back("«" + nombre + "» no cabe en la pantalla.");
}

void CapturarEsquema(const Lamina& lamina, const std::filesystem::path& carpeta, const std::string& nombre,
                     ResultadoCapturas& resultado)
{
    for (const auto& [tema, sufijo] :
         {std::pair(Tema::claro, ".png"), std::pair(Tema::oscuro, "-oscuro.png")}) {
        const std::filesystem::path archivo = carpeta / (nombre + sufijo);
        Escribir(archivo, ImagenDe(lamina, tema).save(QString::fromStdString(archivo.string())));
        ++resultado.nCapturas;
    }
}

// Takes pictures of the next modal window, whoever opens it, and cancels it.
void CapturarLaQueSeAbra(QObject& mientras, const std::filesystem::path& carpeta, const std::string& nombre,
                         ResultadoCapturas& resultado)
{
    auto* reloj = new QTimer(&mientras);
    QObject::connect(reloj, &QTimer::timeout, reloj, [&resultado, reloj, carpeta, nombre] {
        auto* ventana = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (ventana == nullptr || !ventana->isVisible())
            return;
        reloj->stop();
        CapturarVentana(*ventana, carpeta, nombre, resultado);
        ventana->reject();
    });
    reloj->start(5);
}

// What the presenter itself shows.
void CapturarPresentador(const std::filesystem::path& carpeta, ResultadoCapturas& resultado)
{
    qt::InstalarPresentadorQt();
    QObject mientras;
    CapturarLaQueSeAbra(mientras, carpeta, "presentador-color", resultado);
    ui::PresentadorActual().ElegirColor(94);
    CapturarLaQueSeAbra(mientras, carpeta, "presentador-trabajo", resultado);
    const auto trabajo = ui::PresentadorActual().EmpezarTrabajo(L"Simulando el año hora a hora...", true);
    while (trabajo->Avanzar(0.4))
        QThread::msleep(5);
}

// Takes a picture of each dialog that opens, then does in it what its screen says.
class PresentadorCapturas final : public ui::PresentadorNulo {
public:
    PresentadorCapturas(const Pantalla& pantalla, const std::filesystem::path& carpeta,
                        ResultadoCapturas& resultado)
        : m_pantalla(pantalla), m_carpeta(carpeta), m_resultado(resultado)
    {
        ui::InstalarPresentador(this);
    }
    ~PresentadorCapturas() override { qt::InstalarPresentadorQt(); }

    bool HaAbierto(std::string_view clase) const
    {
        return std::ranges::find(m_abiertas, clase) != m_abiertas.end();
    }

    void MostrarModal(ui::Dialogo& dialogo) override
    {
        const std::unique_ptr<QDialog> ventana(qt::CrearVentana(dialogo));
        m_abiertas.push_back(dialogo.clase);
        m_resultado.clases.insert(dialogo.clase);
        std::string nombre = m_pantalla.nombre + '-' + dialogo.clase;
        // A class that opens again gets a number.
        for (int i = 2; !m_escritos.insert(nombre).second; ++i)
            nombre = m_pantalla.nombre + '-' + dialogo.clase + '-' + std::to_string(i);
        ventana->show();
        // Work that begins a moment after the opening is shown done.
        if (dialogo.iTemporizador > 0) {
            dialogo.VencerTemporizador();
            qt::RefrescarVentana(ventana.get());
        }
        CapturarPaginas(dialogo, *ventana, nombre);
        if (m_pantalla.recorrer)
            m_pantalla.recorrer(dialogo);
        if (!dialogo.Terminado())
            dialogo.Cancelar();
    }

private:
    // One picture, or one of each page.
    void CapturarPaginas(ui::Dialogo& dialogo, QDialog& ventana, const std::string& nombre)
    {
        ui::Seleccion* const paginas = dialogo.Pestanas();
        if (paginas == nullptr)
            return CapturarVentana(ventana, m_carpeta, nombre, m_resultado);
        const int iAntes = paginas->iSeleccion;
        for (int i = 0; i < static_cast<int>(paginas->acsEntradas.size()); ++i) {
            dialogo.Elegir(*paginas, i);
            qt::RefrescarVentana(&ventana);
            CapturarVentana(ventana, m_carpeta, nombre + "-p" + std::to_string(i + 1), m_resultado);
        }
        dialogo.Elegir(*paginas, iAntes);
    }

    const Pantalla& m_pantalla;
    const std::filesystem::path& m_carpeta;
    ResultadoCapturas& m_resultado;
    std::set<std::string> m_escritos;
    std::vector<std::string> m_abiertas;
};

// More panels in series than the inverter bears in the cold.
void CapturarDisenoQueFalla(VentanaPrincipal& ventana, const std::filesystem::path& carpeta,
                            ResultadoCapturas& resultado)
{
    constexpr int kDeMas = 13;
    Sesion& sesion = ventana.LaSesion();
    const int iAntes = std::exchange(sesion.Proyecto().red.iPanelesSerie, kDeMas);
    sesion.Cambiado();
    ventana.MostrarPestana("red");
    ventana.MostrarComprobaciones(true);
    CapturarVentana(ventana, carpeta, "ventana-red-no-cumple", resultado);
    ventana.MostrarComprobaciones(false);
    CapturarEsquema(Dibujar(EsquemaDe(sesion.Proyecto(), Diseno::red)), carpeta, "esquema-red-no-cumple",
                    resultado);
    sesion.Proyecto().red.iPanelesSerie = iAntes;
    sesion.Cambiado();
}

void CapturarCampoConFalta(VentanaPrincipal& ventana, const std::filesystem::path& carpeta,
                           ResultadoCapturas& resultado)
{
    ventana.MostrarPestana("energia");
    auto* campo = ventana.findChild<QLineEdit*>(QStringLiteral("dPR"));
    if (campo == nullptr) {
        resultado.faltas.emplace_back("La ventana no tiene el campo «dPR».");
        return;
    }
    const auto escribir = [&](const QString& texto) {
        campo->setText(texto);
        emit campo->textEdited(texto);
        ventana.TomarLoEscrito();
    };
    const QString antes = campo->text();
    escribir(QStringLiteral("1,5"));
    CapturarVentana(ventana, carpeta, "ventana-campo-con-falta", resultado);
    escribir(antes);
}

}  // namespace

ResultadoCapturas Capturar(const std::vector<Pantalla>& pantallas, const std::filesystem::path& carpeta)
{
    ResultadoCapturas resultado;
    for (const Pantalla& pantalla : pantallas) {
        const PresentadorCapturas presentador(pantalla, carpeta, resultado);
        pantalla.abrir();
        for (const std::string_view clase : pantalla.clases)
            if (!presentador.HaAbierto(clase))
                resultado.faltas.push_back("La pantalla «" + pantalla.nombre + "» no abre " +
                                           std::string(clase) + '.');
    }
    return resultado;
}

ResultadoCapturas CapturarPrograma(VentanaPrincipal& ventana, const std::filesystem::path& carpeta)
{
    ResultadoCapturas resultado;
    for (const char* nombre : VentanaPrincipal::Pestanas()) {
        ventana.MostrarPestana(nombre);
        CapturarVentana(ventana, carpeta, std::string("ventana-") + nombre, resultado);
    }
    CapturarDisenoQueFalla(ventana, carpeta, resultado);
    CapturarCampoConFalta(ventana, carpeta, resultado);
    CapturarPresentador(carpeta, resultado);
    {
        VentanaAyuda ayuda(&ventana);
        ayuda.show();
        ayuda.Mostrar(QString::fromLatin1(kAyudaDePantallas), QStringLiteral("El lugar"));
        CapturarVentana(ayuda, carpeta, "ayuda", resultado);
    }
    // Somewhere else the designs don't hold.
    Sesion& sesion = ventana.LaSesion();
    sesion.Proyecto().lugar.dLatitud -= 1.0;
    sesion.Cambiado();
    ventana.MostrarPestana("aislada");
    CapturarVentana(ventana, carpeta, "ventana-desactualizada", resultado);
    sesion.Deshacer();
    const CProyectoEstudio& proyecto = ventana.LaSesion().Proyecto();
    CapturarEsquema(Dibujar(EsquemaDe(proyecto, Diseno::aislada)), carpeta, "esquema-aislada", resultado);
    CapturarEsquema(Dibujar(EsquemaDe(proyecto, Diseno::red)), carpeta, "esquema-red", resultado);
    return resultado;
}

}  // namespace efv::estudio
