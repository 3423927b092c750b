#include "ventana_principal.h"

#include <algorithm>
#include <array>
#include <exception>

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QUrl>

#include <quorvel/qt.h>

#include "ayuda/ventana_ayuda.h"
#include "clima/estudios.h"
#include "diseno/estado.h"
#include "economia/estudios.h"
#include "elementos/rotulos.h"
#include "energia/planos.h"
#include "paneles/rollo.h"
#include "proyecto/asistentes.h"
#include "proyecto/vigencia.h"

namespace efv::estudio {

namespace {

Sesion SesionInicial(const std::vector<Localidad>& localidades)
{
    const Localidad* madrid = BuscarLocalidad(localidades, L"Madrid");
    return madrid != nullptr ? Sesion(LugarDe(*madrid), SituacionDe(*madrid)) : Sesion();
}

constexpr double kParteDePantalla = 0.93;  // the title bar takes some
constexpr int kEntreCopias = 5000;         // ms
constexpr int kAncho = 1280, kAlto = 800, kAnchoLugar = 360, kAltoResumen = 270, kAltoEsquema = 120;

// Of the screen's width, before a panel scrolls sideways.
constexpr double kParteLugar = 0.42, kPartePestanas = 0.5;

constexpr int kComprobaciones = 1;  // tab below a schematic, behind the summary

// The drawing for who can't see it: what stands in it, from left to right.
QString Descripcion(const VistaEsquema& esquema, const CString& csSinDiseno)
{
    QStringList elementos;
    for (const Zona& zona : esquema.Leidos()) {
        QString elemento = QString::fromStdWString(zona.csTitulo);
        // What the pointer is told over it.
        if (!zona.csIndicacion.empty())
            elemento += QStringLiteral(" (") +
                        QString::fromStdWString(zona.csIndicacion).replace('\n', QStringLiteral("; ")) + ')';
        if (!elementos.contains(elemento))
            elementos << elemento;
    }
    return elementos.isEmpty()
               ? QString::fromStdWString(csSinDiseno)
               : QStringLiteral("De los paneles a la salida: ") + elementos.join(QStringLiteral(", "));
}

// Its context menu, as by the key for it.
void PedirMenu(QWidget& conFoco)
{
    const QPoint lugar = conFoco.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent pedido(QContextMenuEvent::Keyboard, lugar, conFoco.mapToGlobal(lugar));
    QApplication::sendEvent(&conFoco, &pedido);
}

// One that unfolds its options below its buttons takes them off a small screen.
void MantenerEnPantalla(QWidget& ventana)
{
    const QRect sitio = ventana.screen()->availableGeometry();
    const QRect marco = ventana.frameGeometry();
    const QPoint lugar(std::max(sitio.left(), std::min(marco.left(), sitio.right() - marco.width())),
                       std::max(sitio.top(), std::min(marco.top(), sitio.bottom() - marco.height())));
    if (ventana.isVisible() && lugar != marco.topLeft())
        ventana.move(lugar);
}

// A design's summary with what keeps it from being up to date.
PanelResumen::Contenido ConAviso(PanelResumen::Contenido contenido, const CProyectoEstudio& proyecto,
                                 Diseno diseno)
{
    for (const CString& csNombre : ModelosSoloDelProyecto(proyecto, diseno))
        contenido.lineas.push_back({L"No está en el catálogo", csNombre + L" (datos del proyecto)"});
    for (const CString& csDesfase : Desfases(proyecto, diseno))
        contenido.csAviso += (contenido.csAviso.empty() ? L"Desactualizado:\n" : L"\n") + csDesfase;
    return contenido;
}

// What a study takes from the grid-connected design holds as far as that does.
PanelResumen::Contenido ConMarca(PanelResumen::Contenido contenido, const CProyectoEstudio& proyecto)
{
    if (!contenido.lineas.empty() && !Desfases(proyecto, Diseno::red).empty())
        contenido.lineas.insert(contenido.lineas.begin(), {L"Diseño de la conexión a red", L"desactualizado"});
    return contenido;
}

}  // namespace

struct VentanaPrincipal::FilaPestana {
    const char* nombre;
    const char* rotulo;
    const char* corto;  // where there is no room for all of them whole
    ui::Dialogo& (*panel)(VentanaPrincipal& ventana);
    const wchar_t* sinLamina;      // said in place of an empty schematic above the panel; null: there is none
    std::optional<Diseno> diseno;  // of which the tab is
};

std::span<const VentanaPrincipal::FilaPestana> VentanaPrincipal::FilasPestanas()
{
    using Ventana = VentanaPrincipal;
    static constexpr auto kFilas = std::to_array<FilaPestana>({
        {"inicio", "Primeros pasos", "Inicio", [](Ventana& v) -> ui::Dialogo& { return v.m_inicio; }, nullptr,
         std::nullopt},
        {"energia", "Ener&gía", "Ener&gía", [](Ventana& v) -> ui::Dialogo& { return v.m_energia; }, nullptr,
         std::nullopt},
        {"aislada", "Ins&talación aislada", "Ins&t. aislada",
         [](Ventana& v) -> ui::Dialogo& { return v.m_aislada; },
         L"Todavía no hay diseño.\n«Asistente de instalación aislada…» lo propone.", Diseno::aislada},
        {"red", "Cone&xión a red", "Cone&xión", [](Ventana& v) -> ui::Dialogo& { return v.m_red; },
         L"Todavía no hay diseño.\n«Asistente de conexión a red…» lo propone.", Diseno::red},
        {"consumo", "Con&sumo", "Con&sumo", [](Ventana& v) -> ui::Dialogo& { return v.m_consumo; }, nullptr,
         std::nullopt},
        {"venta", "&Venta", "&Venta", [](Ventana& v) -> ui::Dialogo& { return v.m_venta; }, nullptr,
         std::nullopt},
        {"autoconsumo", "Autoconsumo", "Autoconsumo",
         [](Ventana& v) -> ui::Dialogo& { return v.m_autoconsumo; }, nullptr, std::nullopt},
    });
    return kFilas;
}

std::vector<const char*> VentanaPrincipal::Pestanas()
{
    std::vector<const char*> nombres;
    for (const FilaPestana& fila : FilasPestanas())
        nombres.push_back(fila.nombre);
    return nombres;
}

VentanaPrincipal::VentanaPrincipal(const std::vector<Localidad>& localidades)
    : m_sesion(SesionInicial(localidades)),
      m_vigia([this] { MirarFichero(); }),
      m_inicio(PrimerosPasos()),
      m_lugar(m_sesion, localidades),
      m_energia(m_sesion.Proyecto().lugar, [this] { EditarPlanos(); }),
      m_aislada(
          "PanelAislada", L"Asistente de &instalación aislada…",
          [this] {
              return ConAviso({ResumenDe(m_sesion.Proyecto(), Diseno::aislada, Calculado(Diseno::aislada))},
                              m_sesion.Proyecto(), Diseno::aislada);
          },
          [this] { MostrarDisenado(DisenarAislada(m_sesion)); },
          [this] { RecalcularDiseno(m_sesion, Diseno::aislada); }),
      m_red(
          "PanelRed", L"Asistente de c&onexión a red…",
          [this] {
              return ConAviso({ResumenDe(m_sesion.Proyecto(), Diseno::red, Calculado(Diseno::red))},
                              m_sesion.Proyecto(), Diseno::red);
          },
          [this] { MostrarDisenado(DisenarRed(m_sesion)); },
          [this] { RecalcularDiseno(m_sesion, Diseno::red); }),
      m_consumo(
          "PanelConsumo", L"Dat&os del consumo…",
          [this]() -> PanelResumen::Contenido {
              const Consumo& datos = m_sesion.Proyecto().consumo;
              const AnoDeConsumo ano = AnoDe(datos);
              return {ResumenDe(datos, ano), GraficaDe(ano)};
          },
          [this] { EditarConsumo(m_sesion); }),
      m_venta(
          "PanelVenta", L"Estudio de venta a la red…",
          [this] { return ConMarca(VentaDe(m_sesion.Proyecto()), m_sesion.Proyecto()); },
          [this] { EstudiarVenta(m_sesion); }),
      m_autoconsumo(
          "PanelAutoconsumo", L"Estudio de autoconsumo…",
          [this] { return ConMarca(AutoconsumoDe(m_sesion.Proyecto()), m_sesion.Proyecto()); },
          [this] { EstudiarAutoconsumo(m_sesion); })
{
    setObjectName("ventana");
    setAcceptDrops(true);
    CrearMenus();
    auto* centro = new QSplitter(this);
    centro->setObjectName("centro");
    centro->addWidget(new Rollo(CrearPanel(m_lugar, centro), kParteLugar));
    m_pestanas = new QTabWidget(centro);
    m_pestanas->setObjectName("pestanas");
    CrearListaDePestanas();
    for (const FilaPestana& fila : FilasPestanas())
        m_pestanas->addTab(CrearPestana(fila), fila.rotulo);
    centro->addWidget(m_pestanas);
    centro->setStretchFactor(1, 1);
    const int iAncho = screen()->availableSize().width();
    const int iLugar = std::min(kAnchoLugar, static_cast<int>(iAncho * kParteLugar));
    centro->setSizes({iLugar, std::min(iAncho, kAncho) - iLugar});
    centro->setChildrenCollapsible(false);
    setCentralWidget(centro);
    CrearEstado();
    CrearTeclas();
    resize(QSize(kAncho, kAlto).boundedTo(screen()->availableSize() * kParteDePantalla));
    m_copia.setSingleShot(true);
    m_copia.setInterval(kEntreCopias);
    connect(&m_copia, &QTimer::timeout, this, [this] { GuardarCopia(); });
    m_rotulos.setSingleShot(true);
    connect(&m_rotulos, &QTimer::timeout, this, [this] { RotularPestanas(); });
    m_frente.setSingleShot(true);
    connect(&m_frente, &QTimer::timeout, this, [this] { MirarFichero(); });
    m_soltado.setSingleShot(true);
    connect(&m_soltado, &QTimer::timeout, this, [this] {
        TomarLoEscrito();
        Atender([&] { m_sesion.Abrir(m_csSoltado); });
    });
    qApp->installEventFilter(this);
    m_sesion.alCambiar = [this] { Actualizar(); };
    m_sesion.puedeGuardarse = [this] { return CamposValidos(); };
    Actualizar();
}

VentanaPrincipal::~VentanaPrincipal()
{
    // The panels' windows go before the dialogs that they show.
    m_sesion.alCambiar = nullptr;
    delete takeCentralWidget();
}

bool VentanaPrincipal::EsMenorDeLoUsual() const
{
    return width() < kAncho || height() < kAlto;
}

QWidget* VentanaPrincipal::CrearPanel(ui::Dialogo& dialogo, QWidget* padre)
{
    QWidget* widget = qt::CrearPanel(dialogo, padre);
    m_paneles.push_back(widget);
    return widget;
}

QWidget* VentanaPrincipal::CrearPestana(const FilaPestana& fila)
{
    if (!fila.diseno) {
        m_esquemas.push_back(nullptr);
        return new Rollo(CrearPanel(fila.panel(*this), m_pestanas), kPartePestanas);
    }
    auto* partes = new QSplitter(Qt::Vertical);
    partes->setObjectName(QString("partes-") + fila.nombre);
    auto* esquema = new VistaEsquema;
    m_esquemas.push_back(esquema);
    const Diseno diseno = *fila.diseno;
    esquema->alAbrir = [this, diseno](Elemento::Clase clase) {
        Atender([&] { EditarElemento(m_sesion, {diseno, clase}); });
    };
    esquema->alRotular = [this, diseno](Elemento::Clase clase) {
        Atender([&] { RotularElemento(m_sesion, {diseno, clase}); });
    };
    esquema->tieneRotulos = [this, diseno](Elemento::Clase clase) {
        return !ClaseDeDialogo(m_sesion.Proyecto(), {diseno, clase}).empty();
    };
    // On a screen of few lines the figures below want to be seen too.
    esquema->setMinimumHeight(kAltoEsquema);
    partes->addWidget(esquema);
    auto* cuentas = new QTabWidget(partes);
    cuentas->setDocumentMode(true);
    cuentas->addTab(new Rollo(CrearPanel(fila.panel(*this), cuentas), kPartePestanas), "Resumen");
    const auto iDiseno = static_cast<std::size_t>(diseno);
    cuentas->addTab(new Rollo(CrearPanel(m_comprobaciones.at(iDiseno), cuentas), kPartePestanas),
                    "Comprobaciones");
    m_cuentas.at(iDiseno) = cuentas;
    partes->addWidget(cuentas);
    partes->setStretchFactor(0, 1);
    partes->setSizes({kAlto - kAltoResumen, kAltoResumen});
    partes->setChildrenCollapsible(false);
    return partes;
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
            QAction* accion = menu->addAction(orden.texto, this, [this, &orden] {
                TomarLoEscrito();
                Atender([&] { orden.funcion(*this); });
            });
            if (orden.atajo != nullptr)
                accion->setShortcut(QKeySequence(QString::fromLatin1(orden.atajo)));
            if (orden.que != nullptr)
                m_conNombre.push_back({accion, &orden});
        }
    }
}

void VentanaPrincipal::EstudiarInclinacion()
{
    double dInclinacion = m_energia.Inclinacion();
    if (!estudio::EstudiarInclinacion(m_sesion, dInclinacion, m_energia.Orientacion()))
        return;
    m_energia.PonerInclinacion(dInclinacion);
    Actualizar();
}

void VentanaPrincipal::EditarPlanos()
{
    estudio::EditarPlanos(m_sesion, m_energia.Campo());
}

std::array<VentanaPrincipal::PanelDeCampos, 2> VentanaPrincipal::PanelesDeCampos()
{
    return {PanelDeCampos{m_lugar, m_lugar.Campos(), {}},
            PanelDeCampos{m_energia, m_energia.Campos(), "energia"}};
}

// A command of the menu takes the focus from nobody.
void VentanaPrincipal::TomarLoEscrito()
{
    for (const PanelDeCampos& panel : PanelesDeCampos())
        panel.campos.Tomar();
    for (QWidget* panel : m_paneles)
        qt::RefrescarVentana(panel);
}

bool VentanaPrincipal::CamposValidos()
{
    TomarLoEscrito();
    for (const auto& [dialogo, campos, pestana] : PanelesDeCampos()) {
        const ui::Edicion* falta = campos.Falta();
        if (falta == nullptr)
            continue;
        if (!pestana.empty())
            MostrarPestana(pestana);
        campos.Avisar(dialogo);
        for (QWidget* panel : m_paneles)
            if (panel->objectName() == QString::fromStdString(dialogo.clase))
                if (auto* campo = panel->findChild<QWidget*>(QString::fromStdString(falta->nombre)))
                    campo->setFocus();
        return false;
    }
    return true;
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
    ActualizarOrdenes();
    m_vigia.Vigilar(m_sesion.Ruta());
    // What is typed on and on is copied all the same.
    if (!m_sesion.Modificado())
        GuardarCopia();
    else if (!m_copia.isActive())
        m_copia.start();
    m_lugar.Actualizar();
    CargarRegistroDelProyecto(m_sesion);
    m_energia.Poner(proyecto.lugar, proyecto.situacion, proyecto.planos);
    const bool bVigente = m_lugar.Campos().Falta() == nullptr;
    m_energia.PonerVigente(bVigente);
    for (const Diseno diseno : {Diseno::aislada, Diseno::red}) {
        const auto i = static_cast<std::size_t>(diseno);
        m_calculados.at(i) = CalcularDiseno(proyecto, diseno);
        m_comprobaciones.at(i).Poner(m_calculados.at(i), bVigente);
        m_cuentas.at(i)->setTabText(
            kComprobaciones,
            QString::fromStdWString(L"Comprobaciones" + MarcaDe(m_comprobaciones.at(i).Lineas())));
    }
    for (PanelResumen* panel : {&m_aislada, &m_red, &m_consumo, &m_venta, &m_autoconsumo})
        panel->Actualizar(bVigente);
    for (std::size_t i = 0; i < m_esquemas.size(); ++i)
        if (const FilaPestana& fila = FilasPestanas()[i]; fila.diseno)
            MostrarDiseno(static_cast<int>(i), *fila.diseno);
    RotularPestanas();
    m_inicio.Actualizar();
    for (QWidget* panel : m_paneles)
        qt::RefrescarVentana(panel);
    ActualizarEstado();
    // A project that isn't empty has nothing to begin with.
    if (std::exchange(m_mostrado, &proyecto) != &proyecto && m_pestanas->currentIndex() == 0) {
        if (!EquipoDe(proyecto, Diseno::red).empty())
            MostrarPestana("red");
        else if (!EquipoDe(proyecto, Diseno::aislada).empty())
            MostrarPestana("aislada");
        else if (proyecto.economia.venta.dEnergiaBase > 0.0)
            MostrarPestana("venta");
        else if (!proyecto.economia.csGuiado.empty())
            MostrarPestana("autoconsumo");
    }
}

// The drawing, and on it and on its tab whether the design is out of date.
void VentanaPrincipal::MostrarDiseno(int iPestana, Diseno diseno)
{
    const CProyectoEstudio& proyecto = m_sesion.Proyecto();
    const FilaPestana& fila = FilasPestanas()[static_cast<std::size_t>(iPestana)];
    const CString csAviso = AvisoDeDesfase(proyecto, diseno);
    Esquema esquema = EsquemaDe(proyecto, diseno, Calculado(diseno));
    if (!csAviso.empty())
        esquema.acsNotas.insert(esquema.acsNotas.begin(), csAviso);
    VistaEsquema& vista = *m_esquemas[static_cast<std::size_t>(iPestana)];
    vista.Poner(Dibujar(esquema), fila.sinLamina);
    vista.setAccessibleDescription(Descripcion(vista, fila.sinLamina));
    m_avisos.at(static_cast<std::size_t>(diseno)) = QString::fromStdWString(csAviso);
}

// What names them all where they have no room side by side.
void VentanaPrincipal::CrearListaDePestanas()
{
    auto* menu = new QMenu(m_pestanas);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        for (std::size_t i = 0; i < FilasPestanas().size(); ++i) {
            const auto n = static_cast<int>(i);
            QAction* accion =
                menu->addAction(FilasPestanas()[i].rotulo, this, [this, n] { m_pestanas->setCurrentIndex(n); });
            accion->setCheckable(true);
            accion->setChecked(n == m_pestanas->currentIndex());
        }
    });
    m_listaDePestanas = new QToolButton(m_pestanas);
    m_listaDePestanas->setObjectName("listaDePestanas");
    m_listaDePestanas->setArrowType(Qt::DownArrow);
    m_listaDePestanas->setPopupMode(QToolButton::InstantPopup);
    m_listaDePestanas->setFocusPolicy(Qt::TabFocus);
    m_listaDePestanas->setToolTip("Todas las fichas");
    m_listaDePestanas->setAccessibleName("Todas las fichas");
    m_listaDePestanas->setMenu(menu);
    m_listaDePestanas->hide();
    m_pestanas->setCornerWidget(m_listaDePestanas);
}

// Whole where they all have room, else short, the last letters cut off; where that is too much, the list of all
// beside them.
void VentanaPrincipal::RotularPestanas()
{
    const auto filas = FilasPestanas();
    const auto rotular = [&](bool bCortos) {
        for (std::size_t i = 0; i < filas.size(); ++i) {
            const QString aviso =
                filas[i].diseno ? m_avisos.at(static_cast<std::size_t>(*filas[i].diseno)) : "";
            const QString marca = aviso.isEmpty() ? "" : bCortos ? " (!)" : " (desactualizada)";
            const auto n = static_cast<int>(i);
            if (const QString texto = (bCortos ? filas[i].corto : filas[i].rotulo) + marca;
                m_pestanas->tabText(n) != texto)
                m_pestanas->setTabText(n, texto);
            const QString entera = QString(filas[i].rotulo).remove('&');
            const bool bCalla = !bCortos || QString(filas[i].corto) == filas[i].rotulo;
            m_pestanas->setTabToolTip(n, bCalla ? aviso : entera + (aviso.isEmpty() ? "" : "\n" + aviso));
            m_pestanas->tabBar()->setAccessibleTabName(n, entera + (aviso.isEmpty() ? "" : ", desactualizada"));
        }
    };
    rotular(false);
    constexpr double kRecorte = 1.15;
    const auto faltaSitio = [this](double dVeces) {
        return isVisible() && m_pestanas->tabBar()->sizeHint().width() > dVeces * m_pestanas->width();
    };
    if (faltaSitio(1.0))
        rotular(true);
    const bool bLista = faltaSitio(kRecorte);
    m_pestanas->setUsesScrollButtons(bLista);
    m_pestanas->setElideMode(bLista ? Qt::ElideNone : Qt::ElideRight);
    m_listaDePestanas->setVisible(bLista);
}

void VentanaPrincipal::MostrarPestana(std::string_view nombre)
{
    const auto filas = FilasPestanas();
    const auto fila =
        std::ranges::find(filas, nombre, [](const FilaPestana& f) { return std::string_view(f.nombre); });
    if (fila != filas.end())
        m_pestanas->setCurrentIndex(static_cast<int>(fila - filas.begin()));
}

void VentanaPrincipal::MostrarDisenado(std::optional<Diseno> diseno)
{
    if (diseno)
        MostrarPestana(*diseno == Diseno::aislada ? "aislada" : "red");
}

void VentanaPrincipal::MostrarSiCambia(std::string_view pestana, const std::function<void()>& accion)
{
    const std::vector<std::byte> antes(m_sesion.Bytes().begin(), m_sesion.Bytes().end());
    accion();
    if (!std::ranges::equal(antes, m_sesion.Bytes()))
        MostrarPestana(pestana);
}

void VentanaPrincipal::MostrarComprobaciones(bool bMostrar)
{
    for (QTabWidget* cuentas : m_cuentas)
        cuentas->setCurrentIndex(bMostrar ? kComprobaciones : 0);
}

std::string_view VentanaPrincipal::PestanaALaVista() const
{
    return FilasPestanas()[static_cast<std::size_t>(m_pestanas->currentIndex())].nombre;
}

std::optional<Diseno> VentanaPrincipal::DisenoALaVista() const
{
    return FilasPestanas()[static_cast<std::size_t>(m_pestanas->currentIndex())].diseno;
}

VistaEsquema* VentanaPrincipal::EsquemaALaVista() const
{
    return m_esquemas.at(static_cast<std::size_t>(m_pestanas->currentIndex()));
}

void VentanaPrincipal::ActualizarOrdenes()
{
    for (const auto& [accion, orden] : m_conNombre) {
        const CString csQue = orden->que(*this);
        accion->setText(QString(orden->texto) + ' ' + QString::fromStdWString(csQue).replace('&', "&&"));
        accion->setEnabled(!csQue.empty());
    }
}

// ---------------------------------------------------------------------------------------------------
// What keeps the work
// ---------------------------------------------------------------------------------------------------

void VentanaPrincipal::CopiarEn(const std::string& carpeta)
{
    m_recuperacion.emplace(carpeta);
}

void VentanaPrincipal::GuardarCopia()
{
    m_copia.stop();
    if (!m_recuperacion)
        return;
    try {
        m_recuperacion->Seguir(m_sesion);
    } catch (const std::exception& fallo) {
        // No box in the middle of somebody's work; the next change tries again.
        statusBar()->showMessage("Sin copia de recuperación. " + QString::fromUtf8(fallo.what()));
    }
}

void VentanaPrincipal::OfrecerCopias(bool bAvisar)
{
    const bool bHabia = m_recuperacion && m_recuperacion->Ofrecer(m_sesion);
    if (!bHabia && bAvisar)
        ui::MostrarAviso(L"No hay copias de recuperación.", ui::Icono::informacion);
}

// Not while a dialog works on the project: the window comes back to the front when it closes.
void VentanaPrincipal::MirarFichero()
{
    if (m_bMirando || !isActiveWindow() || QApplication::activeModalWidget() != nullptr)
        return;
    m_bMirando = true;
    Atender([this] { m_sesion.ComprobarFichero(); });
    m_bMirando = false;
}

void VentanaPrincipal::changeEvent(QEvent* evento)
{
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow())
        m_frente.start(0);
}

// A field has its own steps while there are some; then the keys are the project's.
bool VentanaPrincipal::eventFilter(QObject* objeto, QEvent* evento)
{
    // In dialogs, which the menu's keys don't reach.
    if (evento->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F1 &&
        objeto->isWidgetType()) {
        MostrarAyudaDe(static_cast<QWidget*>(objeto));
        return true;
    }
    // Not every keyboard has the key of menus.
    if (evento->type() == QEvent::KeyPress && objeto == QApplication::focusWidget()) {
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        if (tecla->key() == Qt::Key_F10 && tecla->modifiers() == Qt::ShiftModifier) {
            PedirMenu(*static_cast<QWidget*>(objeto));
            return true;
        }
    }
    // Whoever chose a tab by its letter goes on there.
    if (evento->type() == QEvent::Shortcut && qobject_cast<QTabBar*>(objeto) != nullptr)
        static_cast<QWidget*>(objeto)->setFocus(Qt::ShortcutFocusReason);
    if (evento->type() == QEvent::Resize && objeto->inherits("QPrintDialog"))
        MantenerEnPantalla(*static_cast<QWidget*>(objeto));
    if (objeto == m_pestanas && (evento->type() == QEvent::Resize || evento->type() == QEvent::FontChange))
        m_rotulos.start(0);
    if (evento->type() != QEvent::ShortcutOverride)
        return false;
    const auto* linea = qobject_cast<QLineEdit*>(objeto);
    if (linea == nullptr || linea->window() != this)
        return false;
    const auto* tecla = static_cast<QKeyEvent*>(evento);
    if ((tecla->matches(QKeySequence::Undo) && !linea->isUndoAvailable()) ||
        (tecla->matches(QKeySequence::Redo) && !linea->isRedoAvailable())) {
        evento->ignore();
        return true;
    }
    return false;
}

void VentanaPrincipal::dragEnterEvent(QDragEnterEvent* evento)
{
    const QList<QUrl> ficheros = evento->mimeData()->urls();
    if (ficheros.size() == 1 && ficheros.constFirst().isLocalFile())
        evento->acceptProposedAction();
}

void VentanaPrincipal::dropEvent(QDropEvent* evento)
{
    evento->acceptProposedAction();
    // Who let it go waits for the answer; a question of ours comes after that.
    m_csSoltado = evento->mimeData()->urls().constFirst().toLocalFile().toStdWString();
    m_soltado.start();
}

void VentanaPrincipal::closeEvent(QCloseEvent* evento)
{
    bool bCerrar = false;
    Atender([&] { bCerrar = m_sesion.PuedeCerrarse(); });
    if (bCerrar && m_recuperacion) {
        m_copia.stop();
        m_recuperacion->Retirar();
    }
    if (bCerrar)
        qt::GuardarVentana(*this);
    evento->setAccepted(bCerrar);
}

}  // namespace efv::estudio
