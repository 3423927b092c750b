#include "qt/presentador_qt.h"

#include <QApplication>
#include <QClipboard>

#include <quorvel/qt.h>
#include <quorvel/ui/dialogo.h>

#include "qt/cajas.h"
#include "qt/texto.h"
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
    explicit PausaDeEspera(int nEsperas) : m_nEsperas(nEsperas)
    {
        for (int i = 0; i < m_nEsperas; ++i)
            QApplication::restoreOverrideCursor();
    }
    ~PausaDeEspera()
    {
        for (int i = 0; i < m_nEsperas; ++i)
            QApplication::setOverrideCursor(Qt::WaitCursor);
    }
    PausaDeEspera(const PausaDeEspera&) = delete;
    PausaDeEspera& operator=(const PausaDeEspera&) = delete;

private:
    int m_nEsperas;
};

ui::Respuesta PresentadorQt::MostrarMensaje(const ui::Mensaje& mensaje)
{
    if (!HayPantalla())
        return ui::PresentadorNulo().MostrarMensaje(mensaje);
    const PausaDeEspera pausa(m_nEsperas);
    return MostrarCaja(PadreActual(m_padre), mensaje);
}

void PresentadorQt::MostrarModal(ui::Dialogo& dialogo)
{
    if (!HayPantalla()) {
        dialogo.Cancelar();
        return;
    }
    ContarCaja();
    const PausaDeEspera pausa(m_nEsperas);
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
    const PausaDeEspera pausa(m_nEsperas);
    return qt::ElegirFichero(PadreActual(m_padre), peticion);
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
    if (bEmpieza)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
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

void RefrescarVentana(QWidget* ventana)
{
    if (auto* propia = dynamic_cast<VentanaDialogo*>(ventana))
        propia->Refrescar();
}

}  // namespace efv::qt
