// What stands around the window's panels: status bar, first steps, keys, preferences.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>

#include <quorvel/qt.h>

#include "ayuda/ventana_ayuda.h"
#include "comun/numeros.h"
#include "diseno/estado.h"
#include "informe/informe.h"
#include "proyecto/asistentes.h"
#include "proyecto/ejemplo.h"
#include "ventana_principal.h"

namespace efv::estudio {

namespace {

// What the keyboard reaches first inside.
QWidget* PrimeroDe(QWidget& parte)
{
    if ((parte.focusPolicy() & Qt::TabFocus) != 0 && parte.isVisible() && parte.isEnabled())
        return &parte;
    for (QWidget* w = parte.nextInFocusChain(); w != nullptr && w != &parte; w = w->nextInFocusChain())
        if (parte.isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus) != 0 && w->isVisible() && w->isEnabled())
            return w;
    return nullptr;
}

bool TieneElFoco(const QWidget& parte)
{
    const QWidget* conFoco = QApplication::focusWidget();
    return conFoco != nullptr && (conFoco == &parte || parte.isAncestorOf(conFoco));
}

}  // namespace

void VentanaPrincipal::CrearEstado()
{
    m_estado = new QLabel;
    m_estado->setObjectName("estado");
    m_estado->setTextFormat(Qt::PlainText);
    // As wide as there is room: a long line must not widen the window.
    m_estado->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_ultima = new QLabel;
    m_ultima->setObjectName("ultima");
    m_ultima->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_estado, 1);
    statusBar()->addPermanentWidget(m_ultima);
    connect(m_pestanas, &QTabWidget::currentChanged, this, [this] { ActualizarEstado(); });
}

void VentanaPrincipal::ActualizarEstado()
{
    const CProyectoEstudio& proyecto = m_sesion.Proyecto();
    // Without one on view, that which there is.
    const Diseno otro = EquipoDe(proyecto, Diseno::red).empty() ? Diseno::aislada : Diseno::red;
    const Diseno diseno = DisenoALaVista().value_or(otro);
    const QString linea = QString::fromStdWString(
        LineaDeEstado(proyecto, diseno, m_comprobaciones.at(static_cast<std::size_t>(diseno)).Lineas()));
    m_estado->setText(linea);
    m_estado->setToolTip(linea);
    const QString ultima = QString::fromStdWString(UltimaAccion(m_sesion));
    // What a field did is heard there; what a command did, nowhere else.
    if (ultima != m_ultima->text() && !ultima.startsWith(QStringLiteral("Hecho")) && isVisible())
        qt::Anunciar(ultima);
    m_ultima->setText(ultima);
}

std::vector<PanelInicio::Paso> VentanaPrincipal::PrimerosPasos()
{
    const auto disenado = [this](Diseno diseno) { return EquipoDe(m_sesion.Proyecto(), diseno); };
    const auto disenados = [disenado] {
        const CString csRed = disenado(Diseno::red);
        const CString csAislada = disenado(Diseno::aislada);
        return csRed.empty() || csAislada.empty() ? csRed + csAislada : csRed + L"; " + csAislada;
    };
    return {
        {L"1. El lugar",
         {{"elegirLugar", L"Eleg&ir el lugar",
           [this] {
               if (auto* campo = findChild<QLineEdit*>("csBuscar"))
                   campo->setFocus(Qt::ShortcutFocusReason);
           }}},
         [this] { return m_sesion.Proyecto().lugar.csNombre; }},
        {L"2. Lo que se consume",
         {{"consumo", L"Dat&os del consumo…", [this] { EditarConsumo(m_sesion); }}},
         [this] {
             const double dEnergia = AnoDe(m_sesion.Proyecto().consumo).Energia();
             return dEnergia > 0.0 ? EnUnidad(kEnergia, dEnergia, 0) + L" al año" : CString();
         }},
        {L"3. El diseño",
         {{"disenarRed", L"Conexión a red…", [this] { MostrarDisenado(DisenarRed(m_sesion)); }},
          {"disenarAislada", L"Instalación aislada…", [this] { MostrarDisenado(DisenarAislada(m_sesion)); }}},
         disenados},
        {L"4. El informe", {{"informe", L"Guardar el in&forme…", [this] { GuardarInformeDelDiseno(); }}}, {}},
        {L"O desde algo hecho",
         {{"ejemplo", L"Abrir el e&jemplo",
           [this] { m_sesion.Nuevo(ProyectoDeEjemplo(m_sesion.LugarInicial())); }},
          {"abrir", L"Abrir un proyecto…", [this] { m_sesion.Abrir(); }}},
         {}},
    };
}

void VentanaPrincipal::GuardarInformeDelDiseno()
{
    if (!CamposValidos())
        return;
    for (const Diseno diseno : {Diseno::red, Diseno::aislada})
        if (!EquipoDe(m_sesion.Proyecto(), diseno).empty())
            return GuardarInforme(DocumentoDe(m_sesion.Proyecto(), diseno));
    ui::MostrarAviso(L"Todavía no hay ningún diseño del que informar.", ui::Icono::informacion);
}

// ---------------------------------------------------------------------------------------------------
// Keys
// ---------------------------------------------------------------------------------------------------

void VentanaPrincipal::CrearTeclas()
{
    const auto tecla = [this](const QKeySequence& teclas, std::function<void()> accion) {
        connect(new QShortcut(teclas, this), &QShortcut::activated, this, std::move(accion));
    };
    tecla(Qt::Key_F6, [this] { CambiarDeParte(true); });
    tecla(Qt::SHIFT | Qt::Key_F6, [this] { CambiarDeParte(false); });
    const auto pasarFicha = [this](int iPaso) {
        const int n = m_pestanas->count();
        m_pestanas->setCurrentIndex((m_pestanas->currentIndex() + iPaso + n) % n);
        if (QWidget* primero = PrimeroDe(*m_pestanas->currentWidget()))
            primero->setFocus(Qt::ShortcutFocusReason);
    };
    tecla(Qt::CTRL | Qt::Key_PageDown, [pasarFicha] { pasarFicha(1); });
    tecla(Qt::CTRL | Qt::Key_PageUp, [pasarFicha] { pasarFicha(-1); });
    // What is found is chosen where it is searched, and heard where it is chosen.
    connect(findChild<QLineEdit*>("csBuscar"), &QLineEdit::returnPressed, this, [this] {
        if (!m_lugar.ElegirPrimero())
            return;
        Actualizar();
        findChild<QWidget*>("iLugar")->setFocus(Qt::ShortcutFocusReason);
    });
}

std::vector<QWidget*> VentanaPrincipal::Partes() const
{
    std::vector<QWidget*> partes{qobject_cast<QSplitter*>(centralWidget())->widget(0)};
    const auto* division = qobject_cast<QSplitter*>(m_pestanas->currentWidget());
    if (division == nullptr)
        partes.push_back(m_pestanas->currentWidget());
    // A design has its schematic above and its figures below.
    for (int i = 0; division != nullptr && i < division->count(); ++i) {
        const auto* fichas = qobject_cast<QTabWidget*>(division->widget(i));
        partes.push_back(fichas != nullptr ? fichas->currentWidget() : division->widget(i));
    }
    return partes;
}

void VentanaPrincipal::CambiarDeParte(bool bSiguiente)
{
    const std::vector<QWidget*> partes = Partes();
    const std::size_t n = partes.size();
    std::size_t iActual = n - 1;
    for (std::size_t i = 0; i < n; ++i)
        if (TieneElFoco(*partes[i]))
            iActual = i;
    for (std::size_t iPaso = 1; iPaso <= n; ++iPaso) {
        QWidget* parte = partes[(iActual + (bSiguiente ? iPaso : n - iPaso)) % n];
        if (QWidget* primero = PrimeroDe(*parte))
            return primero->setFocus(Qt::ShortcutFocusReason);
    }
}

void VentanaPrincipal::Ayudar()
{
    QWidget* desde = QApplication::focusWidget();
    MostrarAyudaDe(desde != nullptr ? desde : this);
}

// ---------------------------------------------------------------------------------------------------
// Preferences
// ---------------------------------------------------------------------------------------------------

void VentanaPrincipal::PonerPreferencias(const Preferencias& preferencias)
{
    m_preferencias = preferencias;
    Aplicar(preferencias, MarcaDelSistema());
    m_lugar.PonerUnidades();
    m_energia.PonerUnidades();
    Actualizar();
}

void VentanaPrincipal::EditarPreferencias()
{
    DialogoPreferencias dialogo(m_preferencias);
    if (dialogo.Mostrar() != ui::Dialogo::ok || dialogo.preferencias == m_preferencias)
        return;
    PonerPreferencias(dialogo.preferencias);
    if (alPreferir)
        alPreferir(m_preferencias);
}

}  // namespace efv::estudio
