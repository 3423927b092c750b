// A script in the place of a person: steps for the dialogs that open, and a transcript of what came.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/controles.h>
#include <quorvel/ui/presentador.h>

namespace efv::ui {

// Steps, as a person would act. Controls go by field name or caption.
namespace paso {
struct Poner {
    std::string control;
    CString csTexto;
};  ///< types over the content and leaves
struct Teclear {
    std::string control;
    CString csTexto;
};  ///< types without leaving
struct Elegir {
    std::string control;
    std::variant<int, CString> entrada;
};
struct Marcar {
    std::string control;
    bool bMarcada;
};
struct Pulsar {
    std::string control;
};  ///< "OK" and "Cancel" are the dialog's own
struct Abrir {
    std::string lista;
    int iFila, iColumna;
};
struct Fichero {
    std::optional<CString> csRuta;
};  ///< answer of the next file chooser
struct Simbolo {
    int iSimbolo;
};  ///< answer of the host's next symbol choice
struct Color {
    std::optional<int> iColor;
};  ///< answer of the host's next colour choice
struct Portapapeles {
    CString csTexto;
};
struct Esperar {};  ///< lets a pending timer fire
struct Leer {
    std::vector<std::string> controles;
};  ///< empty: all
}  // namespace paso

using Paso =
    std::variant<paso::Poner, paso::Teclear, paso::Elegir, paso::Marcar, paso::Pulsar, paso::Abrir,
                 paso::Fichero, paso::Simbolo, paso::Color, paso::Portapapeles, paso::Esperar, paso::Leer>;

struct GuionDialogo {
    std::string dialogo;  ///< class name
    std::vector<Paso> pasos;
};

/// What a control shows, for the transcript.
struct EstadoControl {
    CString csTexto;
    Valor valor;
    bool bHabilitado, bVisible, bSoloLectura;
    Color color;
    struct DeSeleccion {
        std::vector<CString> acsEntradas;
        int iSeleccion;
    };
    struct DeLista {
        bool bArbol;
        std::vector<CString> acsColumnas;
        std::vector<std::vector<CString>> filas;
        std::vector<int> niveles;
        int iSeleccion;
        std::vector<bool> abMarcas = {};  ///< of a list whose rows have ticks
    };
    std::variant<std::monostate, DeSeleccion, DeLista, CCtrlCurva2D> propio;
};

struct Transcripcion {
    std::string dialogo;
    CString csTitulo;
    int iResultado = 0;
    std::vector<std::vector<std::pair<std::string, EstadoControl>>> lecturas;  ///< one for each Leer
    std::optional<CString> csRechazo;  ///< the message, when the last OK was refused
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
    /// Scripts for the dialogs to come, in the order of their opening; a dialog without one is cancelled.
    std::deque<GuionDialogo> guiones;
    /// Answers of the host's symbol choices, in order.
    std::deque<int> simbolos;
    /// Answers of the host's colour choices, in order; one without an answer is cancelled.
    std::deque<std::optional<int>> colores;
    /// How far each cancellable work to come gets before the person cancels it, in order, 0 to 1; one without
    /// an answer goes on to its end.
    std::deque<double> cancelaciones;
    /// Answers of the file choosers to come, in order; one without an answer is cancelled.
    std::deque<std::optional<CString>> ficheros;
    CString csPortapapeles;

    /// Every box shown, in order.
    std::vector<Mostrado> mostrados;
    /// What each long work said that it does, in order.
    std::vector<CString> trabajos;
    /// Every dialog that opened, in order of opening.
    std::vector<Transcripcion> transcripciones;
    /// First step that couldn't be carried out, with its control; the dialogs were then cancelled.
    std::optional<CString> csErrorGuion;

    Respuesta MostrarMensaje(const Mensaje& mensaje) override;
    void MostrarModal(Dialogo& dialogo) override;
    void MostrarRechazo(Dialogo& dialogo, const Rechazo& rechazo) override;
    std::optional<CString> ElegirFichero(const PeticionFichero& peticion) override;
    std::optional<int> ElegirColor(int iActual) override;
    std::unique_ptr<ProgresoTrabajo> EmpezarTrabajo(const CString& csTexto, bool bCancelable) override;
    CString LeerPortapapeles() override;
    void EscribirPortapapeles(const CString& csTexto) override;
    void Esperar(bool bEmpieza) override;
    void Refrescar(Dialogo& dialogo) override;
};

}  // namespace efv::ui
