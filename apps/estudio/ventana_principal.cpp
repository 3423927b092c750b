#include "ventana_principal.h"

#include <exception>

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <quorvel/qt.h>

#include "ordenes.h"
#include "proyecto/asistentes.h"

namespace efv::estudio {

namespace {

Lugar LugarInicial(const std::vector<Localidad>& localidades)
{
    const Localidad* madrid = BuscarLocalidad(localidades, L"Madrid");
    return madrid != nullptr ? LugarDe(*madrid) : Lugar{};
}

constexpr int kAncho = 1280, kAlto = 800, kAnchoLugar = 360, kAltoResumen = 270;

constexpr const wchar_t* kSinAislada =
    L"Todavía no hay diseño.\n«Asistente de instalación aislada…» lo propone.";
constexpr const wchar_t* kSinRed = L"Todavía no hay diseño.\n«Asistente de conexión a red…» lo propone.";

}  // namespace

VentanaPrincipal::VentanaPrincipal(const std::vector<Localidad>& localidades)
    : m_sesion(LugarInicial(localidades)),
      m_lugar(m_sesion, localidades),
      m_energia(m_sesion.Proyecto().lugar),
      m_aislada(
          "PanelAislada", L"&Asistente de instalación aislada…",
          [this]() -> PanelResumen::Contenido { return {ResumenDe(m_sesion.Proyecto().aislada)}; },
          [this] { DisenarAislada(m_sesion); }),
      m_red(
          "PanelRed", L"&Asistente de conexión a red…",
          [this]() -> PanelResumen::Contenido { return {ResumenDe(m_sesion.Proyecto().red)}; },
          [this] { DisenarRed(m_sesion); }),
      m_consumo(
          "PanelConsumo", L"&Datos del consumo…",
          [this]() -> PanelResumen::Contenido {
              const Consumo& datos = m_sesion.Proyecto().consumo;
              const AnoDeConsumo ano = AnoDe(datos);
              return {ResumenDe(datos, ano), GraficaDe(ano)};
          },
          [this] { EditarConsumo(m_sesion); })
{
    CrearMenus();
    auto* centro = new QSplitter(this);
    const auto panel = [this](ui::Dialogo& dialogo, QWidget* padre) {
        QWidget* widget = qt::CrearPanel(dialogo, padre);
        m_paneles.push_back(widget);
        return widget;
    };
    const auto conMargen = [](QWidget* dentro) {
        auto* marco = new QWidget;
        auto* pila = new QVBoxLayout(marco);
        pila->addWidget(dentro);
        return marco;
    };
    centro->addWidget(conMargen(panel(m_lugar, centro)));
    m_pestanas = new QTabWidget(centro);
    m_pestanas->setObjectName("pestanas");
    m_esquemaAislada = new VistaEsquema;
    m_esquemaRed = new VistaEsquema;
    const auto conEsquema = [&](ui::Dialogo& dialogo, VistaEsquema* esquema) {
        auto* partes = new QSplitter(Qt::Vertical);
        partes->addWidget(esquema);
        partes->addWidget(conMargen(panel(dialogo, partes)));
        partes->setStretchFactor(0, 1);
        partes->setSizes({kAlto - kAltoResumen, kAltoResumen});
        partes->setChildrenCollapsible(false);
        return partes;
    };
    m_pestanas->addTab(conMargen(panel(m_energia, m_pestanas)), "&Energía");
    m_pestanas->addTab(conEsquema(m_aislada, m_esquemaAislada), "&Instalación aislada");
    m_pestanas->addTab(conEsquema(m_red, m_esquemaRed), "Conexión a &red");
    m_pestanas->addTab(conMargen(panel(m_consumo, m_pestanas)), "&Consumo");
    centro->addWidget(m_pestanas);
    centro->setStretchFactor(1, 1);
    centro->setSizes({kAnchoLugar, kAncho - kAnchoLugar});
    centro->setChildrenCollapsible(false);
    setCentralWidget(centro);
    resize(kAncho, kAlto);
    m_sesion.alCambiar = [this] { Actualizar(); };
    Actualizar();
}

VentanaPrincipal::~VentanaPrincipal()
{
    // The panels' windows go before the dialogs that they show.
    m_sesion.alCambiar = nullptr;
    delete takeCentralWidget();
}

void VentanaPrincipal::CrearMenus()
{
    QMenu* menu = nullptr;
    const char* nombre = nullptr;
    for (const Orden& orden : Ordenes()) {
        if (menu == nullptr || orden.menu != nombre)
            menu = menuBar()->addMenu(nombre = orden.menu);
        if (orden.texto == nullptr) {
            menu->addSeparator();
        } else if (orden.llenar != nullptr) {
            QMenu* dentro = menu->addMenu(orden.texto);
            connect(dentro, &QMenu::aboutToShow, this, [this, dentro, &orden] {
                dentro->clear();
                orden.llenar(*this, *dentro);
            });
        } else {
            QAction* accion =
                menu->addAction(orden.texto, this, [this, &orden] { Atender([&] { orden.funcion(*this); }); });
            if (orden.atajo != nullptr)
                accion->setShortcut(QKeySequence(QString::fromLatin1(orden.atajo)));
        }
    }
}

void VentanaPrincipal::Atender(const std::function<void()>& accion)
{
    try {
        accion();
    } catch (const std::exception& fallo) {
        ui::MostrarAviso(CadenaDesdeUtf8(fallo.what()), ui::Icono::error);
    }
}

void VentanaPrincipal::Actualizar()
{
    const CProyectoEstudio& proyecto = m_sesion.Proyecto();
    setWindowTitle(QString::fromStdWString(m_sesion.Titulo()));
    setWindowModified(m_sesion.Modificado());
    m_lugar.Actualizar();
    m_energia.Poner(proyecto.lugar);
    for (PanelResumen* panel : {&m_aislada, &m_red, &m_consumo})
        panel->Actualizar();
    m_esquemaAislada->Poner(Dibujar(EsquemaDe(proyecto.aislada)), kSinAislada);
    m_esquemaRed->Poner(Dibujar(EsquemaDe(proyecto.red)), kSinRed);
    for (QWidget* panel : m_paneles)
        qt::RefrescarVentana(panel);
}

void VentanaPrincipal::MostrarPestana(int iPestana)
{
    m_pestanas->setCurrentIndex(iPestana);
}

std::optional<Diseno> VentanaPrincipal::DisenoALaVista() const
{
    switch (m_pestanas->currentIndex()) {
        case aislada:
            return Diseno::aislada;
        case red:
            return Diseno::red;
        default:
            return std::nullopt;
    }
}

VistaEsquema* VentanaPrincipal::EsquemaALaVista() const
{
    const auto diseno = DisenoALaVista();
    if (!diseno)
        return nullptr;
    return *diseno == Diseno::aislada ? m_esquemaAislada : m_esquemaRed;
}

void VentanaPrincipal::closeEvent(QCloseEvent* evento)
{
    bool bCerrar = false;
    Atender([&] { bCerrar = m_sesion.PuedeCerrarse(); });
    evento->setAccepted(bCerrar);
}

}  // namespace efv::estudio
