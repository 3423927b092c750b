// Controls as widgets: one view for each kind. A view shows what its control says and turns the person's
// actions into the dialog's methods; it keeps nothing of its own.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QWidget>

#include <quorvel/ui/dialogo.h>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace efv::qt {

/// Where the views' actions go.
class Accionador {
public:
    /// Runs what the person did and then shows what came of it. Throws nothing.
    virtual void Actuar(const std::function<void(ui::Dialogo&)>& accion) = 0;
    /// The person left the field; told to the dialog before anything else happens to it.
    virtual void HaSalido(ui::Edicion& control) = 0;
    /// Says it to whoever hears the screen.
    virtual void Anunciar(const QString& texto) = 0;

protected:
    ~Accionador() = default;
};

class Vista {
public:
    Vista(ui::Control& controlVisto, QWidget* widgetPropio);
    virtual ~Vista();
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;

    /// Shows the control's state.
    void Refrescar();
    /// Takes the focus, with its text selected.
    virtual void Enfocar();
    virtual bool AdmiteFoco() const;
    /// Says it in place of its description; an empty text, that again.
    void Anunciar(const QString& texto);
    /// The fixed text that stands behind it on its line.
    void PonerDetras(const QString& texto) { m_detras = texto; }
    /// Names its widgets that take the focus, in order.
    virtual void Encadenar(const std::function<void(QWidget*)>& siguiente) { siguiente(widget); }

    /// Wants room of its own rather than a line of a form.
    virtual bool EsAncha() const { return false; }
    /// Makes use of all the room that there is.
    virtual bool QuiereSitio() const { return false; }
    /// Opens the menu on the cells of its selected row; only lists do.
    virtual void OfrecerMenu(ui::Seleccion& /*menu*/) {}
    /// Shows its caption itself.
    virtual bool RotulaPorSiMisma() const { return false; }

    ui::Control& control;
    QWidget* const widget;
    QLabel* rotulo = nullptr;  ///< its caption, when it stands beside it

protected:
    virtual void RefrescarContenido() = 0;
    /// What it is called to whoever hears it rather than sees it.
    virtual QString NombreHablado() const;
    /// Whether the person can use it at all.
    virtual bool Utilizable() const { return control.bHabilitado; }
    /// What its kind says of it beside its name.
    virtual QString Descripcion() const { return {}; }
    virtual void RefrescarDescripcion();

private:
    void RefrescarIndicacion();

    /// What the colours are worked out from.
    struct Aspecto {
        qint64 tema;
        ui::Color color;
        bool bSoloLectura;
        bool operator==(const Aspecto&) const = default;
    };

    void RefrescarColores();

    std::optional<Aspecto> m_aspecto;
    QString m_detras, m_anuncio;
};

std::unique_ptr<Vista> CrearVista(ui::Control& control, QWidget* padre, Accionador& accionador);

/// The pages of a dialog: its tabs with a widget for each entry.
class VistaPaginas : public Vista {
public:
    using Vista::Vista;
    virtual QWidget* Pagina(int iPagina) = 0;
    /// Shows that page without telling the dialog.
    virtual void Mostrar(int iPagina) = 0;
    /// Goes to the next page, or the one before, as the person does.
    virtual void Pasar(bool bSiguiente) = 0;
};

std::unique_ptr<VistaPaginas> CrearPaginas(ui::Seleccion& control, QWidget* padre, Accionador& accionador);

}  // namespace efv::qt
