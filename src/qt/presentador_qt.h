// The presenter that shows dialogs as Qt windows.
#pragma once

#include <QPointer>
#include <QWidget>

#include <quorvel/ui/presentador.h>

namespace efv::qt {

class PresentadorQt final : public ui::Presentador {
public:
    void PonerPadre(QWidget* padre) { m_padre = padre; }

    ui::Respuesta MostrarMensaje(const ui::Mensaje& mensaje) override;
    void MostrarModal(ui::Dialogo& dialogo) override;
    void MostrarRechazo(ui::Dialogo& dialogo, const ui::Rechazo& rechazo) override;
    std::optional<CString> ElegirFichero(const ui::PeticionFichero& peticion) override;
    std::optional<int> ElegirColor(int iActual) override;
    std::unique_ptr<ui::ProgresoTrabajo> EmpezarTrabajo(const CString& csTexto, bool bCancelable) override;
    CString LeerPortapapeles() override;
    void EscribirPortapapeles(const CString& csTexto) override;
    void Esperar(bool bEmpieza) override;
    void Refrescar(ui::Dialogo& dialogo) override;

private:
    class PausaDeEspera;
    class TrabajoConCursor;

    void PonerCursor();

    QPointer<QWidget> m_padre;
    int m_nEsperas = 0;
    int m_nPausas = 0;  // the wait cursor is not shown however many wait
    bool m_bCursorDeEspera = false;
};

}  // namespace efv::qt
