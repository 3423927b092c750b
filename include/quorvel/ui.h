// What the module shows, without a screen: the presenter interface and controls as data.
#pragma once

#include <deque>
#include <memory>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv::ui {

enum class Icono { informacion, advertencia, error, pregunta };
enum class Botones { aceptar, siNo, siNoCancelar };
enum class Respuesta { aceptar, si, no, cancelar };

/// A message box.
struct Mensaje {
    CString csTitulo;
    CString csTexto;
    Icono icono = Icono::informacion;
    Botones botones = Botones::aceptar;
};

/// The one way to the person at the screen. The host installs an implementation.
class EFV_API Presentador {
public:
    virtual ~Presentador();

    /// Shows the box and waits for its answer, one that its buttons offer.
    virtual Respuesta MostrarMensaje(const Mensaje& mensaje) = 0;
};

/// Nobody is there: boxes go unseen and a question gets the answer that changes nothing.
class EFV_API PresentadorNulo final : public Presentador {
public:
    Respuesta MostrarMensaje(const Mensaje& mensaje) override;
};

/// Answers from a script and keeps what was shown.
class EFV_API PresentadorGuionizado final : public Presentador {
public:
    struct Mostrado {
        Mensaje mensaje;
        Respuesta respuesta;
    };

    /// Answers for the questions to come, in order; a question without one is answered `no`.
    std::deque<Respuesta> respuestas;
    /// Every box shown, in order.
    std::vector<Mostrado> mostrados;

    Respuesta MostrarMensaje(const Mensaje& mensaje) override;
};

/// Makes `presentador` the current one; null means nobody. It must outlive its use.
EFV_API void InstalarPresentador(Presentador* presentador);

/// The current presenter.
EFV_API Presentador& PresentadorActual();

/// Title of the module's boxes when the case gives none.
inline constexpr std::wstring_view kTituloModulo = L"QuorvelEFv";

/// Shows a box with the module's title and the OK button.
EFV_API void MostrarAviso(std::wstring_view texto, Icono icono);

}  // namespace efv::ui

namespace efv::ui {

/// One row of a tree. Rows own their children; addresses stay valid while the row lives.
struct EFV_API NodoArbol {
    CString csTexto;
    int iImagen = 0;
    bool bExpandido = false;
    NodoArbol* pPadre = nullptr;
    std::vector<std::unique_ptr<NodoArbol>> aHijos;
};

}  // namespace efv::ui

/// Handle of a tree row; null is none.
using HTREEITEM = efv::ui::NodoArbol*;

/// A tree as data; whoever shows it walks its rows.
class EFV_API CTreeCtrl {
public:
    /// Appends a row as the last child of `padre`, or at the root when that is null.
    HTREEITEM InsertItem(std::wstring_view texto, int iImagen, HTREEITEM padre);
    void Expand(HTREEITEM item) { item->bExpandido = true; }
    void DeleteAllItems();

    const std::vector<std::unique_ptr<efv::ui::NodoArbol>>& Raices() const { return m_raices; }

private:
    std::vector<std::unique_ptr<efv::ui::NodoArbol>> m_raices;
};
