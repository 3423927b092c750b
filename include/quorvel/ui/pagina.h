// What owns controls: a dialog, or one of its pages.
#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>

namespace efv::ui {

class Dialogo;
template <class P>
class CamposDeObjeto;

class EFV_API Contenedor {
public:
    Contenedor() = default;
    virtual ~Contenedor();
    Contenedor(const Contenedor&) = delete;
    Contenedor& operator=(const Contenedor&) = delete;

protected:
    /// Adds a control behind all that the dialog has.
    template <std::derived_from<Control> C, class... Args>
    C& Anadir(Args&&... args)
    {
        auto control = std::make_unique<C>(std::forward<Args>(args)...);
        C& referencia = *control;
        m_propios.push_back(std::move(control));
        Ordenar(referencia);
        return referencia;
    }

private:
    template <class P>
    friend class CamposDeObjeto;

    /// Gives a new control its place in the dialog's order.
    virtual void Ordenar(Control& control) = 0;

    std::vector<std::unique_ptr<Control>> m_propios;
};

/// A page of a dialog. It owns its controls and hears what becomes of it; names may repeat over pages.
class EFV_API Pagina : public Contenedor {
public:
    Pagina(Dialogo& dialogo, std::wstring_view titulo);
    ~Pagina() override;

    using Contenedor::Anadir;

    CString csTitulo;  ///< before it is added; afterwards the tab's entry says it

    std::function<void()> alAbrir;    ///< before it is seen for the first time
    std::function<void()> alFrente;   ///< each time it comes to the front, after `alAbrir`
    std::function<bool()> alDejar;    ///< another page is wanted; false keeps this one in front
    std::function<bool()> alRecoger;  ///< OK has taken its fields over; false keeps the dialog open

    /// Its number in the dialog, from 0.
    int Numero() const { return m_iNumero; }
    /// It has been in front.
    bool Abierta() const { return m_bAbierta; }

private:
    friend class Dialogo;

    void Ordenar(Control& control) override;

    Dialogo& m_dialogo;
    int m_iNumero = -1;
    bool m_bAbierta = false;
};

}  // namespace efv::ui
