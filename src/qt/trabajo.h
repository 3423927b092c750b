// Long work as a window that tells how far it is.
#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QPointer>

#include <quorvel/ui/presentador.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace efv::qt {

class VentanaTrabajo;

/// Short work is never seen. After a while its window comes up over `padre`; from then on nothing else of the
/// program takes the person's actions until it ends.
class TrabajoQt final : public ui::ProgresoTrabajo {
public:
    TrabajoQt(QWidget* padre, const CString& csTexto, bool bCancelable, std::function<void()> alMostrar);
    ~TrabajoQt() override;

    bool Avanzar(double dFraccion) override;

private:
    bool EnPantalla() const;

    QPointer<VentanaTrabajo> m_ventana;  // gone with its parent, or with the work
    std::function<void()> m_alMostrar;   // before the window shows
    QElapsedTimer m_desdeInicio, m_desdePintura;
};

}  // namespace efv::qt
