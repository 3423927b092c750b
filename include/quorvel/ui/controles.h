// The controls of a dialog, as data. A presenter draws them from their state and tells the dialog what
// the person did; it never changes a control by itself.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <quorvel/exportar.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/color.h>
#include <quorvel/ui/grafica.h>

namespace efv::ui {

class Control;

/// Where a control stands, as a hint for whoever lays the dialog out.
struct Colocacion {
    std::wstring_view grupo = {};  ///< framed group of that caption; empty for none
    int iColumna = 0;
    bool bEstirar = false;           ///< takes the room that is left
    const Control* junto = nullptr;  ///< stands on the line of that control, behind what is there already
};

/// The value that a control stands for: none, a tick, a number, a text.
using Valor = std::variant<std::monostate, bool, int, double, CString>;

/// The variable that a control's content is exchanged with.
using Destino = std::variant<std::monostate, int*, short*, double*, CString*>;

struct Intervalo {
    double dMinimo, dMaximo;  ///< in stored units, both allowed
};

/// What a number must lie between: nothing, two constants, or what holds at the moment of asking.
class Limites {
public:
    using Regla = std::function<std::optional<Intervalo>()>;

    Limites() = default;
    Limites(Intervalo intervalo) : m_regla([intervalo] { return intervalo; }) {}  // NOLINT(*-explicit-*)
    Limites(Regla regla) : m_regla(std::move(regla)) {}                           // NOLINT(*-explicit-*)

    std::optional<Intervalo> Ahora() const { return m_regla ? m_regla() : std::nullopt; }
    bool Alguno() const { return m_regla != nullptr; }

private:
    Regla m_regla;
};

/// How a field takes part in the dialog's data exchange.
enum class Intercambio {
    automatico,
    soloMuestra,  ///< written from its variable, never taken back
    aMano         ///< the dialog reads and writes it itself
};

class Pagina;
class VisitanteControl;

class EFV_API Control {
public:
    Control(std::string_view nombreCampo, std::wstring_view rotulo) : nombre(nombreCampo), csRotulo(rotulo) {}
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string nombre;  ///< name of the field that it shows, as in the code
    CString csRotulo;          ///< caption; '&' before the letter of its key
    CString csIndicacion;      ///< tool-tip: what its caption doesn't tell
    bool bHabilitado = true;
    bool bVisible = true;
    bool bSoloLectura = false;
    Color color = kNegro;
    Colocacion colocacion;
    const Pagina* pagina = nullptr;  ///< page that owns it; null: the dialog itself

    /// Page that it stands on, from 0; -1 outside the pages.
    int NumeroDePagina() const;

    /// Locks it where nothing may be changed.
    virtual void PonerSoloLectura() {}

    /// What it shows, as text.
    virtual CString Texto() const = 0;
    virtual Valor ValorActual() const = 0;
    virtual void Visitar(VisitanteControl& visitante) = 0;
};

/// The place on the line of `control`.
inline Colocacion JuntoA(const Control& control)
{
    Colocacion colocacion = control.colocacion;
    colocacion.junto = &control;
    return colocacion;
}

/// Text that the person can't change.
class EFV_API TextoFijo final : public Control {
public:
    using Control::Control;
    CString csTexto;

    CString Texto() const override { return csTexto; }
    Valor ValorActual() const override { return csTexto; }
    void Visitar(VisitanteControl& visitante) override;
};

class Lista;

/// One line of text, or several.
class EFV_API Edicion final : public Control {
public:
    using Control::Control;
    CString csTexto;
    Destino destino;
    Limites limites;
    std::wstring_view magnitud;  ///< of a decimal number that is shown in the person's unit; empty: as stored
    int iDecimales = 2;
    int iDecimalesMinimos = 15;  ///< those that stay when they are zeros, up to `iDecimales`
    Intercambio intercambio = Intercambio::automatico;
    bool bVariasLineas = false;
    CString csEjemplo;  ///< shown in its place while it is empty
    Lista* lista =
        nullptr;  ///< what it searches: up and down move there, Enter opens the row chosen; may be null
    std::function<void()> alCambiar;  ///< after each change of the text by the person
    std::function<void()> alSalir;    ///< when it loses the focus

    void PonerSoloLectura() override { bSoloLectura = true; }
    CString Texto() const override { return csTexto; }
    Valor ValorActual() const override;
    void Visitar(VisitanteControl& visitante) override;
};

class EFV_API Casilla final : public Control {
public:
    using Control::Control;
    bool bMarcada = false;
    Destino destino;  ///< an int, 0 or 1
    std::function<void()> alCambiar;

    void PonerSoloLectura() override { bHabilitado = false; }
    CString Texto() const override { return csRotulo; }
    Valor ValorActual() const override { return bMarcada; }
    void Visitar(VisitanteControl& visitante) override;
};

/// One entry out of several: a combo box, a radio group, the pages of a dialog (named "tab"), a button
/// with a menu, a menu in the cells of a list.
class EFV_API Seleccion final : public Control {
public:
    enum class Forma { combo, radio, pestanas, menu };

    Seleccion(std::string_view nombreCampo, std::wstring_view rotulo, Forma formaControl)
        : Control(nombreCampo, rotulo), forma(formaControl)
    {
    }

    const Forma forma;
    std::vector<CString> acsEntradas;
    int iSeleccion = -1;  ///< -1: none, and its variable stays as it is
    Destino destino;      ///< an int, the entry's index
    Intercambio intercambio = Intercambio::automatico;
    int iLineaAntesDe = -1;          ///< entry of a menu that a line stands before; -1: none
    const Lista* lista = nullptr;    ///< of a menu that opens on a cell of the selected row; null: a button's
    int iColumna = 0;                ///< of that cell
    std::function<void()> alElegir;  ///< after the person chose, also the same entry again

    void PonerSoloLectura() override;
    CString Texto() const override;
    Valor ValorActual() const override { return iSeleccion; }
    void Visitar(VisitanteControl& visitante) override;
};

/// A button that shows a colour of the host's and offers others in a menu.
class EFV_API BotonColor final : public Control {
public:
    using Control::Control;
    int iColor = kColorPorCapa;  ///< the host's code
    bool bDelDibujo = false;     ///< the menu also offers "Por capa" and "Por bloque"
    Destino destino;             ///< an int or a short
    std::function<void()> alElegir;

    std::vector<CString> Entradas() const { return MenuDeColores(bDelDibujo); }
    void PonerSoloLectura() override { bHabilitado = false; }
    CString Texto() const override { return NombreDeColor(iColor); }
    Valor ValorActual() const override { return iColor; }
    void Visitar(VisitanteControl& visitante) override;
};

/// A time of day, "HH:MM". It always holds one.
class EFV_API Hora final : public Control {
public:
    using Control::Control;
    static constexpr int kMaxima = 24 * 60 - 1;
    int iMinutos = 0;  ///< since midnight, up to kMaxima
    Destino destino;   ///< an int, in minutes
    std::function<void()> alCambiar;

    void PonerSoloLectura() override { bSoloLectura = true; }
    CString Texto() const override;
    Valor ValorActual() const override { return iMinutos; }
    void Visitar(VisitanteControl& visitante) override;
};

/// The minutes that "HH:MM" says; nothing for any other text.
EFV_API std::optional<int> MinutosDeHora(std::wstring_view texto);

class EFV_API Boton final : public Control {
public:
    using Control::Control;
    std::function<void()> alPulsar;
    CString csImagen;  ///< name of its picture, such as an element's symbol; empty for a button of text
    bool bImagenGrande = false;

    CString Texto() const override { return csRotulo; }
    Valor ValorActual() const override { return {}; }
    void Visitar(VisitanteControl& visitante) override;
};

/// Rows asked for one by one, so that a list of thousands costs what is seen of it.
class EFV_API ModeloFilas {
public:
    virtual ~ModeloFilas();
    virtual int Filas() const = 0;
    virtual CString Celda(int iFila, int iColumna) const = 0;
    /// Depth of a row in a tree, 0 at the root.
    virtual int Nivel(int /*iFila*/) const { return 0; }
    /// Name of the picture before a row; empty for none.
    virtual std::wstring_view Imagen(int /*iFila*/) const { return {}; }
    /// Name of the field that a cell shows; empty for none.
    virtual std::string_view Campo(int /*iFila*/, int /*iColumna*/) const { return {}; }
    /// Tick before a row, only to be looked at; nothing where rows have none.
    virtual std::optional<bool> Marca(int /*iFila*/) const { return std::nullopt; }
};

/// Where the texts of a column stand.
enum class Alineacion { izquierda, derecha };

/// A list, a table, or a tree told by the levels of its rows.
class EFV_API Lista final : public Control {
public:
    enum class Forma { tabla, arbol };

    Lista(std::string_view nombreCampo, std::wstring_view rotulo, Forma formaControl)
        : Control(nombreCampo, rotulo), forma(formaControl)
    {
    }

    const Forma forma;
    std::vector<CString> acsColumnas;
    std::vector<Alineacion> alineaciones;       ///< of the first columns
    Alineacion otras = Alineacion::izquierda;   ///< of those after them
    bool bColumnasIguales = false;              ///< all as wide
    std::vector<double> adPartes;               ///< of the width, one a column; empty: by their texts
    std::shared_ptr<const ModeloFilas> modelo;  ///< null: no rows
    int iSeleccion = -1;
    bool bVarias = false;         ///< the owner wants to know which rows are selected beside the one at hand
    std::vector<int> aiElegidas;  ///< those, with the one at hand; empty: that one alone
    int nFilasFijas = 0;    ///< at the end; they stay there in whatever order a view shows the others: totals
    unsigned uVersion = 0;  ///< raised with each change of the rows, so that a view knows
    std::function<void()> alElegir;
    std::function<void(int iFila, int iColumna)> alAbrir;  ///< double click
    /// A click on a heading, where the owner of the rows puts them in order; none: a view may do it.
    std::function<void(int iColumna)> alOrdenar;
    /// A filter of that column is asked for; none: it has none.
    std::function<void(int iColumna)> alFiltrar;
    int iColumnaOrden = -1;  ///< the column in whose order the owner has put them; -1: none
    bool bDescendente = false;

    int Filas() const { return modelo ? modelo->Filas() : 0; }
    Alineacion AlineacionDe(int iColumna) const
    {
        const auto i = static_cast<std::size_t>(iColumna);
        return i < alineaciones.size() ? alineaciones[i] : otras;
    }
    CString Texto() const override;
    Valor ValorActual() const override { return iSeleccion; }
    void Visitar(VisitanteControl& visitante) override;
};

class EFV_API Grafica final : public Control {
public:
    using Control::Control;
    CCtrlCurva2D datos;

    CString Texto() const override { return datos.csTitulo; }
    Valor ValorActual() const override { return {}; }
    void Visitar(VisitanteControl& visitante) override;
};

class EFV_API Progreso final : public Control {
public:
    using Control::Control;
    double dFraccion = 0.0;  ///< 0 to 1

    CString Texto() const override { return {}; }
    Valor ValorActual() const override { return dFraccion; }
    void Visitar(VisitanteControl& visitante) override;
};

/// A whole number that is set by dragging.
class EFV_API Deslizador final : public Control {
public:
    using Control::Control;
    int iMinimo = 0, iMaximo = 100;  ///< both reached
    int iValor = 0;
    int iPaso = 1;                     ///< of an arrow key
    int iPasoGrande = 10;              ///< of the keys of a page and of a click beside the knob
    std::function<void()> alMover;     ///< after each movement by the person, at every place on the way
    std::function<CString(int)> leer;  ///< how a value reads; none: as its number

    void PonerSoloLectura() override { bHabilitado = false; }
    CString Texto() const override { return leer ? leer(iValor) : std::to_wstring(iValor); }
    Valor ValorActual() const override { return iValor; }
    void Visitar(VisitanteControl& visitante) override;
};

/// A picture that is only looked at; its caption is what is said of it to whoever can't see it.
class EFV_API Imagen final : public Control {
public:
    using Control::Control;
    CString csImagen;  ///< name of the picture

    CString Texto() const override { return csImagen; }
    Valor ValorActual() const override { return {}; }
    void Visitar(VisitanteControl& visitante) override;
};

/// One operation for each kind of control: a new kind can't be forgotten by anybody.
class EFV_API VisitanteControl {
public:
    virtual ~VisitanteControl();
    virtual void Ver(TextoFijo& control) = 0;
    virtual void Ver(Edicion& control) = 0;
    virtual void Ver(Casilla& control) = 0;
    virtual void Ver(Seleccion& control) = 0;
    virtual void Ver(Boton& control) = 0;
    virtual void Ver(BotonColor& control) = 0;
    virtual void Ver(Hora& control) = 0;
    virtual void Ver(Lista& control) = 0;
    virtual void Ver(Grafica& control) = 0;
    virtual void Ver(Progreso& control) = 0;
    virtual void Ver(Deslizador& control) = 0;
    virtual void Ver(Imagen& control) = 0;
};

}  // namespace efv::ui
