#include "qt/ventana.h"

#include <algorithm>
#include <exception>
#include <map>
#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include <quorvel/qt.h>
#include <quorvel/ui/campo.h>
#include <quorvel/ui/como.h>
#include <quorvel/ui/presentador.h>

#include "qt/accesible.h"
#include "qt/cajas.h"
#include "qt/geometria.h"
#include "qt/relleno.h"
#include "qt/texto.h"

namespace efv::qt {

namespace {

// The windows that exist, the innermost last.
std::vector<VentanaDialogo*>& Abiertas()
{
    static std::vector<VentanaDialogo*> abiertas;
    return abiertas;
}

constexpr double kParteDeAncho = 0.985, kParteDeAlto = 0.92;  // of the screen; title and frame take the rest,
constexpr int kTituloYMarco = 42;                             // px, which is not more on a large one
constexpr QSize kTamanoMinimo(300, 0);
constexpr QSize kTamanoMaximizable(760, 540);  // of what is meant to be looked at large
constexpr qsizetype kNotasDichas = 3;          // at once
constexpr int kAdornosDeTitulo = 140;          // icon and buttons of a title bar

}  // namespace

VentanaDialogo::VentanaDialogo(ui::Dialogo& dialogo, Marco marco, QWidget* padre)
    : QDialog(padre), m_dialogo(dialogo), m_marco(marco)
{
    Abiertas().push_back(this);
    InstalarAccesibles();
    setObjectName(QString::fromStdString(dialogo.clase));
    if (marco == Marco::panel)
        setWindowFlags(Qt::Widget);
    else
        setWindowFlag(Qt::WindowMaximizeButtonHint, dialogo.bMaximizable);
    CrearVistas();
    std::vector<Vista*> vistas;
    for (const auto& vista : m_vistas)
        vistas.push_back(vista.get());
    m_controles = new QWidget(this);
    m_disposicion = Disponer(m_controles, vistas, m_paginas);
    m_controles->layout()->setContentsMargins(0, 0, 0, 0);
    auto* pila = new QVBoxLayout(this);
    if (marco == Marco::ventana) {
        m_rollo = new RolloDeControles(this);
        pila->addWidget(m_rollo, 1);
        CrearBotones(*pila);
    } else {
        pila->addWidget(m_controles, 1);
        pila->setContentsMargins(0, 0, 0, 0);
    }
    // Tab order is that of reading, which is the declaration's but for what shares a line or a group.
    QWidget* anterior = nullptr;
    const auto encadenar = [&](QWidget* siguiente) {
        // What can't have the focus isn't taken into the order, and would break it in two.
        if (siguiente->focusPolicy() == Qt::NoFocus)
            return;
        if (anterior != nullptr)
            setTabOrder(anterior, siguiente);
        anterior = siguiente;
    };
    for (Vista* vista : EnOrdenDeLectura(vistas, m_paginas))
        vista->Encadenar(encadenar);
    if (m_aceptar != nullptr) {
        encadenar(m_aceptar);
        encadenar(m_cancelar);
    }

    // From anywhere: a list that drops down keeps Ctrl+Tab for itself. A panel's host has keys of its own.
    if (m_paginas != nullptr && marco == Marco::ventana) {
        for (const auto& [teclas, bSiguiente] :
             {std::pair(Qt::CTRL | Qt::Key_PageDown, true), std::pair(Qt::CTRL | Qt::Key_PageUp, false),
              std::pair(Qt::CTRL | Qt::Key_Tab, true), std::pair(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, false)}) {
            const bool bHacia = bSiguiente;
            connect(new QShortcut(teclas, this), &QShortcut::activated, this,
                    [this, bHacia] { m_paginas->Pasar(bHacia); });
        }
    }
    connect(&m_temporizador, &QTimer::timeout, this, &VentanaDialogo::AtenderTemporizador);
    m_salida.setSingleShot(true);
    connect(&m_salida, &QTimer::timeout, this, [this] {
        if (m_porSalir != nullptr)
            Actuar([](ui::Dialogo&) {});
    });
    m_tema.setSingleShot(true);
    connect(&m_tema, &QTimer::timeout, this, &VentanaDialogo::AtenderAspecto);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* antes, QWidget* ahora) {
        if (Vista* dicha = VistaDe(antes))
            dicha->Anunciar({});
        AtenderFoco(ahora);
    });
    Refrescar();
    if (marco == Marco::ventana) {
        DarTamano();
        RestaurarVentana(*this);
    }
    RecordarColumnas(*this);
}

VentanaDialogo::~VentanaDialogo()
{
    std::erase(Abiertas(), this);
    // The widgets may still signal while they go: they go while there is somebody to hear it, who doesn't
    // listen.
    ++m_nAcciones;
    disconnect(qApp, nullptr, this, nullptr);
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

VentanaDialogo* VentanaDialogo::De(const ui::Dialogo& dialogo)
{
    const auto& abiertas = Abiertas();
    const auto hallada = std::find_if(abiertas.rbegin(), abiertas.rend(),
                                      [&](const VentanaDialogo* v) { return &v->m_dialogo == &dialogo; });
    return hallada == abiertas.rend() ? nullptr : *hallada;
}

// ---------------------------------------------------------------------------------------------------
// Construction
// ---------------------------------------------------------------------------------------------------

void VentanaDialogo::CrearVistas()
{
    std::vector<ui::Seleccion*> menusDeCelda;
    for (ui::Control* control : m_dialogo.Controles()) {
        auto* const seleccion = ui::Como<ui::Seleccion>(*control);
        if (seleccion != nullptr && seleccion->lista != nullptr) {
            menusDeCelda.push_back(seleccion);
        } else if (seleccion != nullptr && seleccion == m_dialogo.Pestanas()) {
            auto paginas = CrearPaginas(*seleccion, this, *this);
            m_paginas = paginas.get();
            m_vistas.push_back(std::move(paginas));
        } else {
            m_vistas.push_back(CrearVista(*control, this, *this));
        }
    }
    for (ui::Seleccion* menu : menusDeCelda)
        VistaDe(menu->lista)->OfrecerMenu(*menu);
}

void VentanaDialogo::CrearBotones(QVBoxLayout& pila)
{
    m_aceptar = new QPushButton(this);
    m_aceptar->setObjectName("aceptar");
    m_aceptar->setDefault(true);
    m_cancelar = new QPushButton(this);
    m_cancelar->setObjectName("cancelar");
    // A click on it must not make the field that has the focus complain first.
    m_cancelar->setFocusPolicy(Qt::TabFocus);
    connect(m_aceptar, &QPushButton::clicked, this, &VentanaDialogo::Aceptar);
    connect(m_cancelar, &QPushButton::clicked, this, &VentanaDialogo::reject);
    auto* fila = new QHBoxLayout;
    fila->addStretch();
    fila->addWidget(m_aceptar);
    fila->addWidget(m_cancelar);
    pila.addSpacing(6);
    pila.addLayout(fila);
}

QSize VentanaDialogo::Sitio() const
{
    const QSize pantalla = screen()->availableSize();
    return {static_cast<int>(pantalla.width() * kParteDeAncho),
            std::max(static_cast<int>(pantalla.height() * kParteDeAlto), pantalla.height() - kTituloYMarco)};
}

// Room for the controls and the title; on a screen too small for them they fold, and then scroll.
void VentanaDialogo::DarTamano()
{
    // Not before the captions are there: what is shown keeps the sizes that it was found to have.
    m_rollo->setWidget(m_controles);
    const QSize sitio = Sitio();
    const QSize alrededor = sizeHint() - m_rollo->sizeHint();
    PonerAnchoMinimo();
    Plegar(sitio.width() - alrededor.width() - m_rollo->AnchoDeBarra());
    QSize pedido = m_controles->sizeHint() + alrededor;
    if (!m_rollo->Cabe(sitio - alrededor))
        pedido += QSize(m_rollo->AnchoDeBarra(), 0);
    const QSize minimo = m_dialogo.bMaximizable ? kTamanoMaximizable : kTamanoMinimo;
    const QSize titulo(fontMetrics().horizontalAdvance(windowTitle()) + kAdornosDeTitulo, 0);
    resize(pedido.expandedTo(minimo).expandedTo(titulo).boundedTo(sitio));
    m_rollo->alCambiarTamano = [this] { PlegarEnElRollo(); };
    m_rollo->alPedirSitio = [this] { HacerSitio(); };
}

// What nobody can pull it narrower than.
void VentanaDialogo::PonerAnchoMinimo()
{
    const int iAlrededor = sizeHint().width() - m_rollo->sizeHint().width();
    m_rollo->PonerAnchoMinimo(std::min(AnchoMinimo() + m_rollo->AnchoDeBarra(), Sitio().width() - iAlrededor));
}

int VentanaDialogo::AnchoMinimo()
{
    if (m_iAnchoMinimo == 0)
        m_iAnchoMinimo = m_disposicion.pliegues.AnchoMinimo(*m_controles);
    return m_iAnchoMinimo;
}

void VentanaDialogo::Plegar(int iAncho)
{
    m_iAncho = iAncho;
    QWidget* conFoco = focusWidget();
    if (m_disposicion.pliegues.Ajustar(*m_controles, iAncho) && m_rollo != nullptr && conFoco != nullptr &&
        m_controles->isAncestorOf(conFoco) && conFoco->isVisible())
        m_rollo->ensureWidgetVisible(conFoco);
    // What came later may be wider than all there was.
    if (const int iNecesario = m_controles->minimumSizeHint().width(); iNecesario > iAncho)
        m_iAnchoMinimo = std::max(m_iAnchoMinimo, iNecesario);
}

// Its width, less a bar's where it has to scroll all the same.
void VentanaDialogo::PlegarEnElRollo()
{
    Plegar(m_rollo->width());
    if (!m_rollo->Cabe(m_rollo->size()))
        Plegar(m_rollo->width() - m_rollo->AnchoDeBarra());
    m_rollo->PonerHueco();
    m_bCabe = m_rollo->Cabe(m_rollo->size());
    if (m_rollo->minimumSizeHint().width() < m_iAnchoMinimo)
        PonerAnchoMinimo();
}

void VentanaDialogo::Crecer(const QSize& mayor)
{
    const QRect marco(frameGeometry().topLeft(), frameGeometry().size() + mayor - size());
    resize(mayor);
    move(EnPantalla(marco, {screen()->availableGeometry()}).topLeft());
}

// A window that showed everything goes on doing so while the screen has room for it.
void VentanaDialogo::HacerSitio()
{
    if (!isVisible())
        return;
    m_controles->layout()->activate();
    const QSize falta = m_controles->minimumSizeHint() - m_rollo->size();
    const QSize mayor = (size() + falta.expandedTo({0, 0})).boundedTo(Sitio().expandedTo(size()));
    if (m_bCabe && mayor != size() && (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) == 0)
        Crecer(mayor);
    else
        PlegarEnElRollo();
}

// ---------------------------------------------------------------------------------------------------
// State to widgets
// ---------------------------------------------------------------------------------------------------

void VentanaDialogo::Refrescar()
{
    // What the widgets signal while they are set isn't the person's doing.
    ++m_nAcciones;
    setWindowTitle(AQt(m_dialogo.csTitulo));
    PonerTextosDetras();
    for (const auto& vista : m_vistas)
        vista->Refrescar();
    for (const GrupoDispuesto& grupo : m_disposicion.grupos) {
        grupo.marco->setTitle(SinMnemonico(m_dialogo.TituloDeGrupo(grupo.grupo)));
        grupo.marco->setVisible(
            std::ranges::any_of(grupo.vistas, [](const Vista* vista) { return vista->control.bVisible; }));
    }
    if (m_aceptar != nullptr) {
        m_aceptar->setText(ConMnemonico(m_dialogo.csAceptar));
        m_aceptar->setVisible(m_dialogo.bAceptarVisible);
        m_cancelar->setText(ConMnemonico(m_dialogo.csCancelar));
        // The Enter key needs somebody to press.
        (m_dialogo.bAceptarVisible ? m_aceptar : m_cancelar)->setDefault(true);
    }
    if (m_dialogo.iTemporizador <= 0 || m_dialogo.Terminado())
        m_temporizador.stop();
    else if (!m_temporizador.isActive() || m_temporizador.interval() != m_dialogo.iTemporizador)
        m_temporizador.start(m_dialogo.iTemporizador);
    --m_nAcciones;
    AnunciarNotas();
}

// "18:00 h", "%": a text on a field's line is heard with the field.
void VentanaDialogo::PonerTextosDetras()
{
    std::map<const ui::Control*, QStringList> textos;
    for (const auto& vista : m_vistas) {
        const auto* texto = dynamic_cast<const ui::TextoFijo*>(&vista->control);
        if (texto != nullptr && texto->colocacion.junto != nullptr && texto->bVisible)
            textos[texto->colocacion.junto]
                << (SinMnemonico(texto->csRotulo) + ' ' + AQt(texto->csTexto)).trimmed();
    }
    for (const auto& vista : m_vistas)
        vista->PonerDetras(textos[&vista->control].join(' ').trimmed());
}

// A note that says something else now. Many at once are results, which are read where they stand.
void VentanaDialogo::AnunciarNotas()
{
    QStringList nuevas;
    for (const auto& vista : m_vistas) {
        const auto* nota = dynamic_cast<const ui::TextoFijo*>(&vista->control);
        if (nota == nullptr || !nota->csRotulo.empty() || nota->colocacion.junto != nullptr)
            continue;
        if (auto [antes, bNueva] = m_notas.try_emplace(nota, nota->csTexto); antes->second != nota->csTexto) {
            antes->second = nota->csTexto;
            if (!nota->csTexto.empty() && vista->widget->isVisible())
                nuevas << AQt(nota->csTexto);
        }
    }
    if (!nuevas.isEmpty() && nuevas.size() <= kNotasDichas)
        Anunciar(nuevas.join(QStringLiteral(". ")));
}

void VentanaDialogo::Anunciar(const QString& texto)
{
    // A window whose work was in front has its focus back in a moment.
    Vista* const conFoco = VistaDe(m_marco == Marco::ventana ? focusWidget() : QApplication::focusWidget());
    if (conFoco != nullptr)
        conFoco->Anunciar(texto);
}

// ---------------------------------------------------------------------------------------------------
// The person's actions
// ---------------------------------------------------------------------------------------------------

void VentanaDialogo::Ejecutar(const std::function<void(ui::Dialogo&)>& accion)
{
    const QPointer<VentanaDialogo> yo(this);
    ++m_nAcciones;
    // An exception must not reach Qt's loop: it would take the whole host with it.
    try {
        accion(m_dialogo);
    } catch (const std::exception& fallo) {
        MostrarFallo(this, fallo.what());
    } catch (...) {
        MostrarFallo(this, "Error inesperado.");
    }
    if (yo)
        --m_nAcciones;
}

void VentanaDialogo::Actuar(const std::function<void(ui::Dialogo&)>& accion)
{
    if (m_nAcciones > 0 || m_dialogo.Terminado())
        return;
    // The host may delete the window of a panel in the middle of all this.
    const QPointer<VentanaDialogo> yo(this);
    const int nCajas = CajasMostradas();
    bool bSeguir = true;
    if (ui::Edicion* salida = std::exchange(m_porSalir, nullptr)) {
        Ejecutar([salida](ui::Dialogo& dialogo) { dialogo.Salir(*salida); });
        // When the person was told something about the field that they left, the rest is off.
        bSeguir = yo && !m_dialogo.Terminado() && CajasMostradas() == nCajas;
    }
    if (bSeguir)
        Ejecutar(accion);
    if (!yo)
        return;
    Refrescar();
    if (!m_dialogo.Terminado())
        PonerFoco(CajasMostradas() != nCajas);
    else if (m_marco == Marco::ventana)
        done(m_dialogo.ResultadoFinal());
}

void VentanaDialogo::HaSalido(ui::Edicion& control)
{
    if (m_bMoviendoFoco || m_nAcciones > 0 || m_dialogo.Terminado() || control.bSoloLectura)
        return;
    // Later, from the loop: the answer may be a box, and a mouse button may still be down.
    m_porSalir = &control;
    m_salida.start(0);
}

void VentanaDialogo::Aceptar()
{
    if (m_nAcciones > 0 || !m_dialogo.bAceptarVisible)
        return;
    // Enter accepts from within a field: it counts as left.
    Vista* conFoco = VistaDe(focusWidget());
    auto* edicion = conFoco == nullptr ? nullptr : dynamic_cast<ui::Edicion*>(&conFoco->control);
    if (edicion != nullptr && !edicion->bSoloLectura)
        m_porSalir = edicion;
    Actuar([](ui::Dialogo& dialogo) {
        if (const auto rechazo = dialogo.Aceptar())
            ui::PresentadorActual().MostrarRechazo(dialogo, *rechazo);
    });
}

void VentanaDialogo::reject()
{
    if (m_marco == Marco::panel)
        return;
    m_porSalir = nullptr;
    if (m_dialogo.Terminado())
        done(m_dialogo.ResultadoFinal());
    Actuar([](ui::Dialogo& dialogo) { dialogo.Cancelar(); });
}

// The Cancel button says what it does; Escape and the window's own button are hit by mistake too.
bool VentanaDialogo::PuedeDejarse()
{
    if (m_marco == Marco::panel || m_dialogo.Terminado() || !m_dialogo.bAceptarVisible ||
        LoRellenado(m_dialogo) == m_alMostrar)
        return true;
    return MostrarCaja(this, {m_dialogo.csTitulo, L"Hay cambios sin aceptar.", ui::Icono::pregunta,
                              ui::Botones::siNo, L"&Descartar", L"&Seguir"}) == ui::Respuesta::si;
}

void VentanaDialogo::closeEvent(QCloseEvent* evento)
{
    if (PuedeDejarse())
        QDialog::closeEvent(evento);
    else
        evento->ignore();
}

// Where nobody accepts, Enter takes the field that it is pressed in, if it minds being left.
bool VentanaDialogo::DejarConRetorno()
{
    if (m_nAcciones > 0 || m_dialogo.Terminado() || m_dialogo.bAceptarVisible)
        return false;
    Vista* conFoco = VistaDe(focusWidget());
    auto* edicion = conFoco == nullptr ? nullptr : dynamic_cast<ui::Edicion*>(&conFoco->control);
    if (edicion == nullptr || edicion->bSoloLectura || edicion->bVariasLineas || !edicion->alSalir)
        return false;
    const QPointer<VentanaDialogo> yo(this);
    m_porSalir = edicion;
    Actuar([](ui::Dialogo&) {});
    // The focus stays there.
    if (yo && !m_dialogo.Terminado() && m_dialogo.foco == nullptr)
        m_dialogo.foco = edicion;
    return true;
}

// That of the field that has the focus, or the proposal itself.
bool VentanaDialogo::UsarPropuesta()
{
    const Vista* conFoco = VistaDe(focusWidget());
    if (conFoco == nullptr)
        return false;
    for (const auto& vista : m_vistas) {
        const auto* propuesta = dynamic_cast<const ui::Edicion*>(&vista->control);
        if (propuesta == nullptr || !ui::PuedeUsarse(*propuesta))
            continue;
        if (vista.get() == conFoco || ui::CampoDeLaPropuesta(*propuesta) == &conFoco->control) {
            Actuar([propuesta](ui::Dialogo& dialogo) { ui::UsarPropuesta(dialogo, *propuesta); });
            return true;
        }
    }
    return false;
}

void VentanaDialogo::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_F9 && UsarPropuesta()) {
        evento->accept();
        return;
    }
    if ((evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) && DejarConRetorno()) {
        evento->accept();
        return;
    }
    if (evento->matches(QKeySequence::Cancel) && !PuedeDejarse()) {
        evento->accept();
        return;
    }
    if (m_marco == Marco::panel)
        evento->ignore();
    else
        QDialog::keyPressEvent(evento);
}

void VentanaDialogo::AtenderTemporizador()
{
    Actuar([](ui::Dialogo& dialogo) { dialogo.VencerTemporizador(); });
}

// ---------------------------------------------------------------------------------------------------
// Focus
// ---------------------------------------------------------------------------------------------------

Vista* VentanaDialogo::VistaDe(const ui::Control* control) const
{
    const auto hallada =
        std::ranges::find_if(m_vistas, [&](const auto& vista) { return &vista->control == control; });
    return hallada == m_vistas.end() ? nullptr : hallada->get();
}

// The view that the widget is, or is a part of.
Vista* VentanaDialogo::VistaDe(const QWidget* w) const
{
    for (; w != nullptr && w != this; w = w->parentWidget())
        for (const auto& vista : m_vistas)
            if (vista->widget == w && vista.get() != m_paginas)
                return vista.get();
    return nullptr;
}

// The dialog's focus is the screen's.
void VentanaDialogo::AtenderFoco(QWidget* conFoco)
{
    if (m_nAcciones > 0 || m_bMoviendoFoco || conFoco == nullptr || !isAncestorOf(conFoco) ||
        conFoco->window() != window())
        return;
    const Vista* vista = VistaDe(conFoco);
    m_dialogo.foco = vista == nullptr ? nullptr : &vista->control;
}

// Follows the dialog's focus when an action moved it; after a box also to the same field, to have its text
// selected.
void VentanaDialogo::PonerFoco(bool bSeAviso)
{
    ui::Control* control = std::exchange(m_focoPedido, nullptr);
    if (control == nullptr)
        control = m_dialogo.foco;
    Vista* vista = VistaDe(control);
    if (vista == nullptr || (!bSeAviso && vista == VistaDe(focusWidget())))
        return;
    m_bMoviendoFoco = bSeAviso;
    if (m_paginas != nullptr && control->NumeroDePagina() >= 0) {
        // The person sees that page now; it wasn't chosen, so the one in front isn't asked.
        m_dialogo.TraerAlFrente(control->NumeroDePagina());
        static_cast<ui::Seleccion&>(m_paginas->control).iSeleccion = control->NumeroDePagina();
        m_paginas->Mostrar(control->NumeroDePagina());
    }
    vista->Enfocar();
    if (m_rollo != nullptr)
        m_rollo->ensureWidgetVisible(vista->widget);
    m_dialogo.foco = control;
    m_bMoviendoFoco = false;
}

void VentanaDialogo::EnfocarPrimera()
{
    Vista* primera = VistaDe(m_dialogo.foco);
    for (const auto& vista : m_vistas) {
        const int iPagina = vista->control.NumeroDePagina();
        const bool bALaVista =
            iPagina < 0 || m_paginas == nullptr ||
            iPagina == std::max(0, static_cast<const ui::Seleccion&>(m_paginas->control).iSeleccion);
        if (primera == nullptr && vista->AdmiteFoco() && bALaVista)
            primera = vista.get();
    }
    if (primera != nullptr)
        primera->Enfocar();
    // Of what is only looked at, the button that closes it: the keys must reach somebody.
    else if (m_aceptar != nullptr)
        (m_dialogo.bAceptarVisible ? m_aceptar : m_cancelar)->setFocus(Qt::OtherFocusReason);
}

void VentanaDialogo::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    if (!std::exchange(m_bMostrada, true) && m_marco == Marco::ventana) {
        AnotarSitio(*this);
        m_alMostrar = LoRellenado(m_dialogo);
        EnfocarPrimera();
    }
}

void VentanaDialogo::hideEvent(QHideEvent* evento)
{
    if (m_marco == Marco::ventana && !evento->spontaneous())
        GuardarVentana(*this);
    QDialog::hideEvent(evento);
}

void VentanaDialogo::changeEvent(QEvent* evento)
{
    QDialog::changeEvent(evento);
    // From the loop: a theme reaches the widgets in no order, and colours are worked out from their parents'.
    m_bOtraLetra = m_bOtraLetra || evento->type() == QEvent::FontChange;
    if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::FontChange)
        m_tema.start(0);
}

void VentanaDialogo::AtenderAspecto()
{
    Refrescar();
    if (!std::exchange(m_bOtraLetra, false))
        return;
    m_disposicion.pliegues.Desplegar(*m_controles);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    m_iAnchoMinimo = 0;
    if (m_rollo != nullptr) {
        PonerAnchoMinimo();
        HacerSitio();
    } else if (m_iAncho > 0) {
        Plegar(m_iAncho);
    }
}

}  // namespace efv::qt
