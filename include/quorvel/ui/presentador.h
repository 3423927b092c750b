// The one way to the person at the screen. A host installs an implementation: none (nobody is there), a
// script, or a toolkit.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>

namespace efv::ui {

class Dialogo;
struct Rechazo;

enum class Icono { informacion, advertencia, error, pregunta };
enum class Botones { aceptar, siNo, siNoCancelar };
enum class Respuesta { aceptar, si, no, cancelar };

/// A message box.
struct Mensaje {
    CString csTitulo;
    CString csTexto;
    Icono icono = Icono::informacion;
    Botones botones = Botones::aceptar;
    /// Captions of the answers; empty: "Sí", "No", "Cancelar". Escape takes `cancelar`, else `no`.
    CString csSi = {}, csNo = {}, csCancelar = {};
    /// What Enter takes: nothing that throws something away. Nothing: `no` of two answers, `si` of three.
    std::optional<Respuesta> intro = {};
};

/// One kind of file that a file chooser offers: "Archivo PAN (*.pan)" and "*.pan".
struct FiltroFichero {
    std::wstring_view rotulo;
    std::wstring_view patron;
};

struct PeticionFichero {
    CString csTitulo;
    std::vector<FiltroFichero> filtros;
    bool bGuardar = false;  ///< choose a file to write, not one to read
    CString csPropuesto;    ///< name offered
};

/// Work that takes long, while it goes on. It ends when this does.
class EFV_API ProgresoTrabajo {
public:
    virtual ~ProgresoTrabajo();
    /// @param dFraccion what is done, 0 to 1
    /// @return false when the person has cancelled it
    virtual bool Avanzar(double dFraccion) = 0;
};

class EFV_API Presentador {
public:
    virtual ~Presentador();

    /// Shows the box and waits for its answer, one that its buttons offer.
    virtual Respuesta MostrarMensaje(const Mensaje& mensaje) = 0;

    /// Shows the dialog until it has ended (Dialogo::Terminado). One that can't be shown is cancelled.
    virtual void MostrarModal(Dialogo& dialogo) = 0;

    /// Tells the person why a dialog's fields weren't taken over, and puts the focus there.
    virtual void MostrarRechazo(Dialogo& dialogo, const Rechazo& rechazo) = 0;

    /// Nothing when the person cancels.
    virtual std::optional<CString> ElegirFichero(const PeticionFichero& peticion) = 0;

    /// The host's choice of a colour of its palette, beginning with `iActual`; nothing when the person
    /// cancels, or the host has none.
    virtual std::optional<int> ElegirColor(int iActual);

    /// Plain text of the clipboard; empty when it holds none.
    virtual CString LeerPortapapeles() = 0;
    virtual void EscribirPortapapeles(const CString& csTexto) = 0;

    /// Long work begins that tells how far it is; nobody sees it unless an implementation shows it.
    virtual std::unique_ptr<ProgresoTrabajo> EmpezarTrabajo(const CString& csTexto, bool bCancelable);

    /// Long work begins or ends: the wait cursor. Calls nest.
    virtual void Esperar(bool bEmpieza) = 0;

    /// Lets what changed in `dialogo` show while work goes on.
    virtual void Refrescar(Dialogo& dialogo) = 0;
};

/// Makes `presentador` the current one; null means nobody. It must outlive its use.
EFV_API void InstalarPresentador(Presentador* presentador);

/// The current presenter.
EFV_API Presentador& PresentadorActual();

/// Nobody is there: boxes go unseen, a question gets the answer that changes nothing, a dialog counts as
/// cancelled.
class EFV_API PresentadorNulo : public Presentador {
public:
    Respuesta MostrarMensaje(const Mensaje& mensaje) override;
    void MostrarModal(Dialogo& dialogo) override;
    void MostrarRechazo(Dialogo& dialogo, const Rechazo& rechazo) override;
    std::optional<CString> ElegirFichero(const PeticionFichero& peticion) override;
    CString LeerPortapapeles() override;
    void EscribirPortapapeles(const CString& csTexto) override;
    void Esperar(bool bEmpieza) override;
    void Refrescar(Dialogo& dialogo) override;
};

/// Wait cursor for the length of a block.
class EFV_API Espera {
public:
    Espera() { PresentadorActual().Esperar(true); }
    ~Espera() { PresentadorActual().Esperar(false); }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;
};

/// Title of the module's boxes when the case gives none.
inline constexpr std::wstring_view kTituloModulo = L"QuorvelEFv";

/// Shows a box with the module's title and the OK button.
EFV_API void MostrarAviso(std::wstring_view texto, Icono icono);

/// Asks yes or no; true for yes.
EFV_API bool Preguntar(std::wstring_view texto);

}  // namespace efv::ui
