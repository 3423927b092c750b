#include "qt/presentador_qt.h"

#include <utility>

#include <QApplication>
#include <QClipboard>

#include <quorvel/qt.h>
#include <quorvel/ui/dialogo.h>

#include "qt/cajas.h"
#include "qt/paleta.h"
#include "qt/texto.h"
#include "qt/trabajo.h"
#include "qt/ventana.h"

namespace efv::qt {

namespace {

bool HayPantalla()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

}  // namespace

// The person must see a normal pointer when asked something in the middle of long work.
class PresentadorQt::PausaDeEspera {
public:
    explicit PausaDeEspera(PresentadorQt& presentador) : m_presentador(presentador)
    {
        ++m_presentador.m_nPausas;
        m_presentador.PonerCursor();
    }
    ~PausaDeEspera()
    {
        --m_presentador.m_nPausas;
        m_presentador.PonerCursor();
    }
    PausaDeEspera(const PausaDeEspera&) = delete;
    PausaDeEspera& operator=(const PausaDeEspera&) = delete;

private:
    PresentadorQt& m_presentador;
};

void PresentadorQt::PonerCursor()
{
    const bool bEspera = m_nEsperas > 0 && m_nPausas == 0;
    if (std::exchange(m_bCursorDeEspera, bEspera) == bEspera)
        return;
    if (bEspera)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

ui::Respuesta PresentadorQt::MostrarMensaje(const ui::Mensaje& mensaje)
{
    if (!HayPantalla())
        return ui::PresentadorNulo().MostrarMensaje(mensaje);
    const PausaDeEspera pausa(*this);
    return MostrarCaja(PadreActual(m_padre), mensaje);
}

void PresentadorQt::MostrarModal(ui::Dialogo& dialogo)
{
    if (!HayPantalla()) {
        dialogo.Cancelar();
        return;
    }
    ContarCaja();
    const PausaDeEspera pausa(*this);
    VentanaDialogo ventana(dialogo, VentanaDialogo::Marco::ventana, PadreActual(m_padre));
    ventana.exec();
    if (!dialogo.Terminado())
        dialogo.Cancelar();
}

void PresentadorQt::MostrarRechazo(ui::Dialogo& dialogo, const ui::Rechazo& rechazo)
{
    MostrarMensaje({CString(ui::kTituloModulo), rechazo.csTexto, ui::Icono::advertencia, ui::Botones::aceptar});
    if (VentanaDialogo* ventana = VentanaDialogo::De(dialogo); ventana != nullptr && rechazo.control != nullptr)
        ventana->PedirFoco(*rechazo.control);
}

std::optional<CString> PresentadorQt::ElegirFichero(const ui::PeticionFichero& peticion)
{
    if (!HayPantalla())
        return std::nullopt;
    const PausaDeEspera pausa(*this);
    return qt::ElegirFichero(PadreActual(m_padre), peticion);
}

std::optional<int> PresentadorQt::ElegirColor(int iActual)
{
    if (!HayPantalla())
        return std::nullopt;
    const PausaDeEspera pausa(*this);
    return ElegirDePaleta(PadreActual(m_padre), iActual);
}

// Waits like any other work until its window comes; who can cancel it there gets a pointer that points.
class PresentadorQt::TrabajoConCursor final : public ui::ProgresoTrabajo {
public:
    TrabajoConCursor(PresentadorQt& presentador, const CString& csTexto, bool bCancelable)
        : m_presentador(presentador),
          m_trabajo(PadreActual(presentador.m_padre), csTexto, bCancelable, [this, bCancelable] {
              if (bCancelable)
                  m_pausa.emplace(m_presentador);
          })
    {
        m_presentador.Esperar(true);
    }
    ~TrabajoConCursor() override
    {
        m_pausa.reset();
        m_presentador.Esperar(false);
    }

    bool Avanzar(double dFraccion) override { return m_trabajo.Avanzar(dFraccion); }

private:
    PresentadorQt& m_presentador;
    std::optional<PausaDeEspera> m_pausa;
    TrabajoQt m_trabajo;
};

std::unique_ptr<ui::ProgresoTrabajo> PresentadorQt::EmpezarTrabajo(const CString& csTexto, bool bCancelable)
{
    if (!HayPantalla())
        return Presentador::EmpezarTrabajo(csTexto, bCancelable);
    return std::make_unique<TrabajoConCursor>(*this, csTexto, bCancelable);
}

CString PresentadorQt::LeerPortapapeles()
{
    return HayPantalla() ? DeQt(QApplication::clipboard()->text()) : CString();
}

void PresentadorQt::EscribirPortapapeles(const CString& csTexto)
{
    if (HayPantalla())
        QApplication::clipboard()->setText(AQt(csTexto));
}

void PresentadorQt::Esperar(bool bEmpieza)
{
    if (!HayPantalla() || (!bEmpieza && m_nEsperas == 0))
        return;
    m_nEsperas += bEmpieza ? 1 : -1;
    PonerCursor();
}

void PresentadorQt::Refrescar(ui::Dialogo& dialogo)
{
    VentanaDialogo* ventana = HayPantalla() ? VentanaDialogo::De(dialogo) : nullptr;
    if (ventana == nullptr)
        return;
    ventana->Refrescar();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// ---------------------------------------------------------------------------------------------------
// Interface to the host
// ---------------------------------------------------------------------------------------------------

void InstalarPresentadorQt(QWidget* padre)
{
    static PresentadorQt presentador;
    presentador.PonerPadre(padre);
    ui::InstalarPresentador(&presentador);
}

QDialog* CrearVentana(ui::Dialogo& dialogo, QWidget* padre)
{
    return new VentanaDialogo(dialogo, VentanaDialogo::Marco::ventana, padre);
}

QWidget* CrearPanel(ui::Dialogo& dialogo, QWidget* padre)
{
    return new VentanaDialogo(dialogo, VentanaDialogo::Marco::panel, padre);
}

void PlegarPanel(QWidget* panel, int iAncho)
{
    if (auto* propio = dynamic_cast<VentanaDialogo*>(panel))
        propio->Plegar(iAncho);
}

int AnchoMinimoDePanel(QWidget* panel)
{
    if (auto* propio = dynamic_cast<VentanaDialogo*>(panel))
        return propio->AnchoMinimo();
    return panel != nullptr ? panel->minimumSizeHint().width() : 0;
}

void RefrescarVentana(QWidget* ventana)
{
    if (auto* propia = dynamic_cast<VentanaDialogo*>(ventana))
        propia->Refrescar();
}

}  // namespace efv::qt
