// A dialog as a window: its views, buttons, keys, focus and timer.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include <QDialog>
#include <QTimer>

#include <quorvel/ui/dialogo.h>

#include "qt/disposicion.h"
#include "qt/rollo.h"
#include "qt/vistas.h"

QT_BEGIN_NAMESPACE
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace efv::qt {

class VentanaDialogo final : public QDialog, private Accionador {
public:
    enum class Marco {
        ventana,  ///< with OK and Cancel
        panel     ///< a part of the host's window
    };

    VentanaDialogo(ui::Dialogo& dialogo, Marco marco, QWidget* padre);

    /// The open window of that dialog, the innermost; null without one.
    static VentanaDialogo* De(const ui::Dialogo& dialogo);

    /// Shows the state of all controls.
    void Refrescar();
    /// Says it with the control that has the focus here, if one has.
    void Anunciar(const QString& texto) override;
    /// Puts the focus into that control once the action that runs is over.
    void PedirFoco(ui::Control& control) { m_focoPedido = &control; }

    /// Lets its columns go below each other as far as that width asks for, and beside each other again.
    void Plegar(int iAncho);
    /// The width that it needs with all of them below each other.
    int AnchoMinimo();

    ~VentanaDialogo() override;

protected:
    void reject() override;
    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void Actuar(const std::function<void(ui::Dialogo&)>& accion) override;
    void HaSalido(ui::Edicion& control) override;

    void CrearVistas();
    void CrearBotones(QVBoxLayout& pila);
    void DarTamano();
    QSize Sitio() const;
    void PonerAnchoMinimo();
    void PlegarEnElRollo();
    void HacerSitio();
    void Crecer(const QSize& mayor);
    void AtenderAspecto();

    bool DejarConRetorno();
    bool UsarPropuesta();
    void Ejecutar(const std::function<void(ui::Dialogo&)>& accion);
    void Aceptar();
    void PonerTextosDetras();
    void AnunciarNotas();
    void PonerFoco(bool bSeAviso);
    void AtenderFoco(QWidget* conFoco);
    void AtenderTemporizador();
    Vista* VistaDe(const ui::Control* control) const;
    Vista* VistaDe(const QWidget* w) const;
    void EnfocarPrimera();
    bool PuedeDejarse();

    ui::Dialogo& m_dialogo;
    Marco m_marco;
    std::vector<std::unique_ptr<Vista>> m_vistas;
    Disposicion m_disposicion;
    QWidget* m_controles = nullptr;
    RolloDeControles* m_rollo = nullptr;  // of a window
    int m_iAncho = 0;                     // that it is folded for
    int m_iAnchoMinimo = 0;               // 0: not known yet
    bool m_bCabe = false;                 // nothing scrolls
    VistaPaginas* m_paginas = nullptr;
    QPushButton* m_aceptar = nullptr;
    QPushButton* m_cancelar = nullptr;
    QTimer m_temporizador;
    QTimer m_salida;  // to the next turn of the loop, after a field was left
    QTimer m_tema;    // the same after a change of theme or letters

    int m_nAcciones = 0;                // running now, one inside the other
    bool m_bMoviendoFoco = false;       // by us, not by the person
    ui::Edicion* m_porSalir = nullptr;  // left, and the dialog not told yet
    ui::Control* m_focoPedido = nullptr;
    bool m_bMostrada = false;
    bool m_bOtraLetra = false;
    std::vector<CString> m_alMostrar;               // what was filled in when it came up
    std::map<const ui::Control*, CString> m_notas;  // texts without a caption, as last said
};

}  // namespace efv::qt
