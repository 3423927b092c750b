// A dialog without a screen: it declares its controls and what the person's actions do.
#pragma once

#include <concepts>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>
#include <quorvel/ui/pagina.h>

namespace efv::ui {

/// Why a dialog's fields can't be taken over: the first field at fault and what to tell the person.
struct Rechazo {
    Control* control;
    CString csTexto;
};

class EFV_API Dialogo : public Contenedor {
public:
    enum Resultado : int { ok = 1, cancelado = 2 };

    Dialogo(std::string_view nombreClase, std::wstring_view titulo);
    ~Dialogo() override;
    Dialogo(const Dialogo&) = delete;
    Dialogo& operator=(const Dialogo&) = delete;

    const std::string clase;  ///< name of the dialog's class
    CString csTitulo;
    CString csAceptar = L"Aceptar";
    CString csCancelar = L"Cancelar";
    bool bAceptarVisible = true;
    bool bMaximizable = false;
    Control* foco = nullptr;  ///< where the next key goes; null leaves it to the presenter
    int iTemporizador = 0;    ///< period of the dialog's timer in ms; 0: none runs

    /// Its own and those of its pages, in tab order.
    std::span<Control* const> Controles() const { return m_orden; }

    /// The choice of the page in front; null without pages.
    Seleccion* Pestanas() const { return m_pestanas; }
    /// Page in front, from 0; -1 without pages.
    int PaginaAlFrente() const { return m_pestanas != nullptr ? m_pestanas->iSeleccion : -1; }

    /// Shows the dialog through the current presenter until it ends.
    int Mostrar();

    // -- What a person can do. The control must be visible and enabled, and writable for typing. A field
    // that was typed into is left first by whatever is done elsewhere, but for cancelling.

    /// Types `csTexto` over the field's content; the focus stays in it.
    void Teclear(Edicion& control, const CString& csTexto);
    /// Leaves the field, unless what was done elsewhere has left it already.
    void Salir(Edicion& control);
    void Elegir(Seleccion& control, int iEntrada);
    void Elegir(Lista& control, int iFila);
    /// Several rows at once, with `iFila` among them as the one at hand.
    void Elegir(Lista& control, int iFila, std::vector<int> aiFilas);
    void Abrir(Lista& control, int iFila, int iColumna);
    void Ordenar(Lista& control, int iColumna);
    void Filtrar(Lista& control, int iColumna);
    void Marcar(Casilla& control, bool bMarcada);
    void Pulsar(Boton& control);
    /// Entry `iEntrada` of the button's menu; the host may be asked for a colour.
    void Elegir(BotonColor& control, int iEntrada);
    void PonerHora(Hora& control, int iMinutos);
    /// Drags to `iValor`, or to the end before it.
    void Mover(Deslizador& control, int iValor);
    /// The OK button: takes the fields over, checks them and ends the dialog. A refusal of the data
    /// exchange comes back; the dialog then stays open with the focus at fault.
    std::optional<Rechazo> Aceptar();
    void Cancelar();
    void VencerTemporizador();

    bool Terminado() const { return m_resultado.has_value(); }
    int ResultadoFinal() const { return m_resultado.value_or(cancelado); }

    // -- Data exchange

    /// Fields to variables, in order, until the first fault. All that stood before it is taken over.
    std::optional<Rechazo> Recoger();
    /// The same, and a fault is shown to the person. False when there was one.
    bool RecogerAvisando();
    /// The same for one field alone, telling nobody. False when it was at fault.
    static bool Recoger(Control& control);
    /// Variables to fields.
    void Volcar();

    /// All fields to reading only, choices, ticks and sliders disabled, OK hidden, Cancel as "&Cerrar".
    void PonerSoloLectura();

    /// Brings a page to the front without asking the one in front.
    void TraerAlFrente(int iPagina);

    void Terminar(int iResultado);

    /// Caption of the framed group that the rows call `grupo`.
    CString TituloDeGrupo(std::wstring_view grupo) const;

protected:
    /// From now on the group's caption reads like this.
    void TitularGrupo(std::wstring_view grupo, CString csRotulo);

    /// Adds a page behind the others (their choice is the control "tab"); OK takes them over one after the
    /// other. A page class is built from the dialog and `args`.
    template <std::derived_from<Pagina> P = Pagina, class... Args>
    P& AnadirPagina(Args&&... args)
    {
        auto pagina = std::make_unique<P>(*this, std::forward<Args>(args)...);
        P& referencia = *pagina;
        Incorporar(std::move(pagina));
        return referencia;
    }

    /// First of all at OK, before any field is taken over; false keeps the dialog open.
    virtual bool AntesDeAceptar() { return true; }
    /// After OK has taken over the fields outside the pages (-1), then those of each page; false keeps
    /// the dialog open.
    virtual bool AlRecogerPagina(int /*iPagina*/) { return true; }
    /// Further checks of OK, after the data exchange; true ends the dialog.
    virtual bool AlAceptar() { return true; }
    virtual void AlCancelar() {}
    /// Whether what the person does now has left that field, which had its say then.
    bool AcabaDeDejar(const Edicion& campo) const { return m_dejado == &campo; }

    virtual void AlVencerTemporizador() {}

private:
    friend class Pagina;

    void Ordenar(Control& control) override;
    void CrearPestanas();
    void Incorporar(std::unique_ptr<Pagina> pagina);
    Pagina* EnFrente() const;
    void AvisarFrente();
    bool CambiarDePagina(int iPagina);
    bool TomarPagina(int iPagina);
    void DejarLoTecleado(const Control* destino);
    std::optional<Rechazo> RecogerPagina(int iPagina);
    std::optional<Rechazo> RecogerLosQue(const std::function<bool(const Control&)>& elegido);
    void IrA(Control& control);

    std::vector<Control*> m_orden;
    std::vector<std::unique_ptr<Pagina>> m_paginas;
    Seleccion* m_pestanas = nullptr;
    std::map<CString, CString, std::less<>> m_titulosDeGrupos;  // those that have changed
    Edicion* m_tecleado = nullptr;                              // typed into and not left yet
    const Edicion* m_dejado = nullptr;                          // by what is being done
    std::optional<int> m_resultado;
};

}  // namespace efv::ui
