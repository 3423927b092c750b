#include <quorvel/ui/guion.h>

#include <algorithm>
#include <cmath>

#include <quorvel/ui/como.h>
#include <quorvel/ui/dialogo.h>

#include "platform/numero/conversion.h"

namespace efv::ui {

// ---------------------------------------------------------------------------------------------------
// State of a control, for the transcript
// ---------------------------------------------------------------------------------------------------

namespace {

class Observador final : public VisitanteControl {
public:
    explicit Observador(EstadoControl& estado) : m_estado(estado) {}

    void Ver(TextoFijo&) override {}
    void Ver(Edicion&) override {}
    void Ver(Casilla&) override {}
    void Ver(Boton&) override {}
    void Ver(Hora&) override {}
    void Ver(BotonColor& c) override { m_estado.propio = EstadoControl::DeSeleccion{c.Entradas(), Entrada(c)}; }
    void Ver(Progreso&) override {}
    void Ver(Deslizador&) override {}
    void Ver(Imagen&) override {}
    void Ver(Grafica& c) override { m_estado.propio = c.datos; }

    void Ver(Seleccion& c) override
    {
        m_estado.propio = EstadoControl::DeSeleccion{c.acsEntradas, c.iSeleccion};
    }

    void Ver(Lista& c) override
    {
        EstadoControl::DeLista lista{c.forma == Lista::Forma::arbol, c.acsColumnas, {}, {}, c.iSeleccion};
        const int nColumnas = std::max(1, static_cast<int>(c.acsColumnas.size()));
        for (int iFila = 0; iFila < c.Filas(); ++iFila) {
            std::vector<CString>& celdas = lista.filas.emplace_back();
            for (int iColumna = 0; iColumna < nColumnas; ++iColumna)
                celdas.push_back(c.modelo->Celda(iFila, iColumna));
            lista.niveles.push_back(c.modelo->Nivel(iFila));
            if (const auto bMarca = c.modelo->Marca(iFila))
                lista.abMarcas.push_back(*bMarca);
        }
        m_estado.propio = std::move(lista);
    }

private:
    // The entry whose name the colour has; -1 for one that was chosen of the palette.
    static int Entrada(const BotonColor& c)
    {
        const auto entradas = c.Entradas();
        const auto hallada = std::ranges::find(entradas, c.Texto());
        return hallada != entradas.end() ? static_cast<int>(hallada - entradas.begin()) : -1;
    }

    EstadoControl& m_estado;
};

EstadoControl Observar(Control& control)
{
    EstadoControl estado{control.Texto(),
                         control.ValorActual(),
                         control.bHabilitado,
                         control.bVisible,
                         control.bSoloLectura,
                         control.color,
                         {}};
    Observador observador(estado);
    control.Visitar(observador);
    return estado;
}

// ---------------------------------------------------------------------------------------------------
// Steps
// ---------------------------------------------------------------------------------------------------

/// A step that can't be carried out.
struct ErrorDePaso {
    std::string texto;
};

// A caption as a script writes it: without the mark of its key.
CString SinMnemonico(CString rotulo)
{
    std::erase(rotulo, L'&');
    return rotulo;
}

// What a reading of all controls calls it: its field, else its caption, else what it says.
std::string NombreEnLectura(const Control& control)
{
    if (!control.nombre.empty())
        return control.nombre;
    return CadenaUtf8(control.csRotulo.empty() ? control.Texto() : control.csRotulo);
}

bool TieneRotulo(const Control& control, const CString& csRotulo)
{
    return control.csRotulo == csRotulo || SinMnemonico(control.csRotulo) == csRotulo;
}

// The controls that `elegido` takes, on the page in front and outside the pages or elsewhere.
template <class F>
std::vector<Control*> Los(const Dialogo& dialogo, bool bALaVista, F elegido)
{
    std::vector<Control*> elegidos;
    for (Control* control : dialogo.Controles()) {
        const int iPagina = control->NumeroDePagina();
        if ((iPagina < 0 || iPagina == dialogo.PaginaAlFrente()) == bALaVista && elegido(*control))
            elegidos.push_back(control);
    }
    return elegidos;
}

// A field's name means the control of the page in front, else the one outside the pages; of two in the same
// place, the first.
Control* DelFrente(const Dialogo& dialogo, const std::vector<Control*>& controles)
{
    const auto deFrente = std::ranges::find_if(controles, [&](const Control* control) {
        return control->NumeroDePagina() >= 0 && control->NumeroDePagina() == dialogo.PaginaAlFrente();
    });
    return deFrente != controles.end() ? *deFrente : controles.front();
}

// By field or caption. What can be seen comes first; a page behind it is meant where nothing else is called
// the same.
Control& Buscar(const Dialogo& dialogo, const std::string& nombre)
{
    const CString csNombre = CadenaDesdeUtf8(nombre);
    const auto porNombre = [&](const Control& c) { return !c.nombre.empty() && c.nombre == nombre; };
    const auto porRotulo = [&](const Control& c) { return TieneRotulo(c, csNombre); };
    const auto unico = [&](const std::vector<Control*>& controles, std::string_view que) -> Control& {
        if (controles.size() > 1)
            throw ErrorDePaso{"control \"" + nombre + "\": dos controles tienen ese " + std::string(que)};
        return *controles.front();
    };
    if (const auto hallados = Los(dialogo, true, porNombre); !hallados.empty())
        return *DelFrente(dialogo, hallados);
    if (const auto hallados = Los(dialogo, false, porNombre); !hallados.empty())
        return unico(hallados, "nombre");
    if (const auto hallados = Los(dialogo, true, porRotulo); !hallados.empty())
        return unico(hallados, "rótulo");
    if (const auto hallados = Los(dialogo, false, porRotulo); !hallados.empty())
        return unico(hallados, "rótulo");
    throw ErrorDePaso{"control \"" + nombre + "\": no existe en " + dialogo.clase};
}

// The control, as a C where one is asked for, that a person can use now.
Control& Usable(const Dialogo& dialogo, const std::string& nombre)
{
    Control& control = Buscar(dialogo, nombre);
    if (!control.bVisible)
        throw ErrorDePaso{"control \"" + nombre + "\": está oculto"};
    if (!control.bHabilitado)
        throw ErrorDePaso{"control \"" + nombre + "\": está inhabilitado"};
    return control;
}

template <class C>
C& Usable(const Dialogo& dialogo, const std::string& nombre)
{
    C* const propio = Como<C>(Usable(dialogo, nombre));
    if (propio == nullptr)
        throw ErrorDePaso{"control \"" + nombre + "\": no admite este paso"};
    return *propio;
}

template <class C>
C& Escribible(const Dialogo& dialogo, const std::string& nombre)
{
    auto& control = Usable<C>(dialogo, nombre);
    if (control.bSoloLectura)
        throw ErrorDePaso{"control \"" + nombre + "\": es de solo lectura"};
    return control;
}

// Where a script drags to: a whole number between the ends.
int PosicionEn(const Deslizador& deslizador, const CString& csTexto, const std::string& nombre)
{
    double d = 0.0;
    if (!numero::nuConvertIntlStrToFlt(csTexto, d) || d != std::trunc(d) || d < deslizador.iMinimo ||
        d > deslizador.iMaximo)
        throw ErrorDePaso{"control \"" + nombre + "\": no llega a \"" + CadenaUtf8(csTexto) + "\", va de " +
                          std::to_string(deslizador.iMinimo) + " a " + std::to_string(deslizador.iMaximo)};
    return numero::Entero(d);
}

int IndiceValido(int i, int n, const std::string& nombre)
{
    if (i < 0 || i >= n)
        throw ErrorDePaso{"control \"" + nombre + "\": no tiene la entrada " + std::to_string(i)};
    return i;
}

int IndiceDe(const std::vector<CString>& entradas, const CString& csTexto, const std::string& nombre)
{
    const auto hallada = std::ranges::find(entradas, csTexto);
    if (hallada == entradas.end())
        throw ErrorDePaso{"control \"" + nombre + "\": no tiene la entrada \"" + CadenaUtf8(csTexto) + "\""};
    return static_cast<int>(hallada - entradas.begin());
}

// A row of a list by its first cell; in a tree also by "parent#child".
int FilaDe(const Lista& lista, const CString& csTexto, const std::string& nombre)
{
    CString csPadre;
    for (int iFila = 0; iFila < lista.Filas(); ++iFila) {
        const CString celda = lista.modelo->Celda(iFila, 0);
        if (celda == csTexto)
            return iFila;
        if (lista.modelo->Nivel(iFila) == 0)
            csPadre = celda;
        else if (csPadre + L"#" + celda == csTexto)
            return iFila;
    }
    throw ErrorDePaso{"control \"" + nombre + "\": no tiene la fila \"" + CadenaUtf8(csTexto) + "\""};
}

class Actor {
public:
    Actor(PresentadorGuionizado& presentador, Dialogo& dialogo, std::size_t iTranscripcion)
        : m_presentador(presentador), m_dialogo(dialogo), m_iTranscripcion(iTranscripcion)
    {
    }

    void operator()(const paso::Poner& p)
    {
        if (Mover(p.control, p.csTexto) || PonerHora(p.control, p.csTexto))
            return;
        auto& edicion = Escribible<Edicion>(m_dialogo, p.control);
        m_dialogo.Teclear(edicion, p.csTexto);
        m_dialogo.Salir(edicion);
    }

    void operator()(const paso::Teclear& p)
    {
        if (!Mover(p.control, p.csTexto) && !PonerHora(p.control, p.csTexto))
            m_dialogo.Teclear(Escribible<Edicion>(m_dialogo, p.control), p.csTexto);
    }

    void operator()(const paso::Elegir& p)
    {
        if (auto* const lista = Como<Lista>(Usable(m_dialogo, p.control))) {
            const int* i = std::get_if<int>(&p.entrada);
            m_dialogo.Elegir(*lista, i != nullptr ? IndiceValido(*i, lista->Filas(), p.control)
                                                  : FilaDe(*lista, std::get<CString>(p.entrada), p.control));
            return;
        }
        if (auto* const color = Como<BotonColor>(Usable(m_dialogo, p.control))) {
            m_dialogo.Elegir(*color, Entrada(p, color->Entradas()));
            return;
        }
        auto& seleccion = Usable<Seleccion>(m_dialogo, p.control);
        if (seleccion.lista != nullptr && seleccion.lista->iSeleccion < 0)
            throw ErrorDePaso{"control \"" + p.control + "\": no hay fila elegida"};
        m_dialogo.Elegir(seleccion, Entrada(p, seleccion.acsEntradas));
    }

    void operator()(const paso::Marcar& p)
    {
        m_dialogo.Marcar(Usable<Casilla>(m_dialogo, p.control), p.bMarcada);
    }

    void operator()(const paso::Pulsar& p)
    {
        if (p.control == "OK")
            Aceptar();
        else if (p.control == "Cancel")
            m_dialogo.Cancelar();
        else
            m_dialogo.Pulsar(Usable<Boton>(m_dialogo, p.control));
    }

    void operator()(const paso::Abrir& p)
    {
        auto& lista = Usable<Lista>(m_dialogo, p.lista);
        IndiceValido(p.iFila, lista.Filas(), p.lista);
        m_dialogo.Abrir(lista, p.iFila, p.iColumna);
    }

    void operator()(const paso::Fichero& p) { m_presentador.ficheros.push_back(p.csRuta); }
    void operator()(const paso::Simbolo& p) { m_presentador.simbolos.push_back(p.iSimbolo); }
    void operator()(const paso::Color& p) { m_presentador.colores.push_back(p.iColor); }
    void operator()(const paso::Portapapeles& p) { m_presentador.csPortapapeles = p.csTexto; }

    void operator()(const paso::Esperar& /*p*/)
    {
        if (m_dialogo.iTemporizador > 0)
            m_dialogo.VencerTemporizador();
    }

    void operator()(const paso::Leer& p)
    {
        std::vector<std::pair<std::string, EstadoControl>> lectura;
        if (p.controles.empty()) {
            for (Control* control : Los(m_dialogo, true, [&](const Control& c) { return SeLee(c); }))
                lectura.emplace_back(NombreEnLectura(*control), Observar(*control));
        }
        for (const std::string& nombre : p.controles)
            lectura.emplace_back(nombre, Observar(Buscar(m_dialogo, nombre)));
        Transcripcion().lecturas.push_back(std::move(lectura));
    }

private:
    // Nested dialogs add transcripts: a reference wouldn't last.
    ui::Transcripcion& Transcripcion() { return m_presentador.transcripciones[m_iTranscripcion]; }

    // A name outside the pages that the page in front has as well means the latter.
    bool SeLee(const Control& control) const
    {
        return control.nombre.empty() || control.NumeroDePagina() >= 0 ||
               Buscar(m_dialogo, control.nombre).NumeroDePagina() < 0;
    }

    // A slider is set by a number's text, like a field; false when the control is none.
    bool Mover(const std::string& nombre, const CString& csTexto)
    {
        if (Como<Deslizador>(Buscar(m_dialogo, nombre)) == nullptr)
            return false;
        auto& deslizador = Escribible<Deslizador>(m_dialogo, nombre);
        m_dialogo.Mover(deslizador, PosicionEn(deslizador, csTexto, nombre));
        return true;
    }

    // A time of day is set by its text; false when the control is none.
    bool PonerHora(const std::string& nombre, const CString& csTexto)
    {
        if (Como<Hora>(Buscar(m_dialogo, nombre)) == nullptr)
            return false;
        const auto iMinutos = MinutosDeHora(csTexto);
        if (!iMinutos)
            throw ErrorDePaso{"control \"" + nombre + "\": \"" + CadenaUtf8(csTexto) + "\" no es HH:MM"};
        m_dialogo.PonerHora(Escribible<Hora>(m_dialogo, nombre), *iMinutos);
        return true;
    }

    static int Entrada(const paso::Elegir& p, const std::vector<CString>& acsEntradas)
    {
        const int* i = std::get_if<int>(&p.entrada);
        return i != nullptr ? IndiceValido(*i, static_cast<int>(acsEntradas.size()), p.control)
                            : IndiceDe(acsEntradas, std::get<CString>(p.entrada), p.control);
    }

    void Aceptar()
    {
        if (!m_dialogo.bAceptarVisible)
            throw ErrorDePaso{"control \"OK\": está oculto"};
        const auto rechazo = m_dialogo.Aceptar();
        Transcripcion().csRechazo = rechazo ? std::optional(rechazo->csTexto) : std::nullopt;
    }

    PresentadorGuionizado& m_presentador;
    Dialogo& m_dialogo;
    std::size_t m_iTranscripcion;
};

// Carries the steps out until the dialog ends or a step can't be; the text of the failure comes back.
std::optional<CString> Actuar(Actor& actor, const Dialogo& dialogo, const GuionDialogo& guion,
                              const std::optional<CString>& csErrorAnidado)
{
    if (guion.dialogo != dialogo.clase)
        return CadenaDesdeUtf8("se abrió el diálogo " + dialogo.clase + " y el guion es de " + guion.dialogo);
    for (std::size_t i = 0; i < guion.pasos.size() && !dialogo.Terminado() && !csErrorAnidado; ++i) {
        try {
            std::visit(actor, guion.pasos[i]);
        } catch (const ErrorDePaso& error) {
            return CadenaDesdeUtf8("paso " + std::to_string(i) + " de " + dialogo.clase + ": " + error.texto);
        }
    }
    return std::nullopt;
}

}  // namespace

// ---------------------------------------------------------------------------------------------------
// The presenter
// ---------------------------------------------------------------------------------------------------

Respuesta PresentadorGuionizado::MostrarMensaje(const Mensaje& mensaje)
{
    Respuesta respuesta = mensaje.botones == Botones::aceptar ? Respuesta::aceptar : Respuesta::no;
    if (mensaje.botones != Botones::aceptar && !respuestas.empty()) {
        respuesta = respuestas.front();
        respuestas.pop_front();
    }
    mostrados.push_back({mensaje, respuesta});
    return respuesta;
}

void PresentadorGuionizado::MostrarModal(Dialogo& dialogo)
{
    const std::size_t iTranscripcion = transcripciones.size();
    transcripciones.push_back({dialogo.clase, dialogo.csTitulo, 0, {}, {}});
    // One that has ended before it shows takes no script.
    if (!guiones.empty() && !csErrorGuion && !dialogo.Terminado()) {
        const GuionDialogo guion = std::move(guiones.front());
        guiones.pop_front();
        Actor actor(*this, dialogo, iTranscripcion);
        if (auto csError = Actuar(actor, dialogo, guion, csErrorGuion))
            csErrorGuion = std::move(csError);
    }
    if (!dialogo.Terminado())
        dialogo.Cancelar();
    transcripciones[iTranscripcion].csTitulo = dialogo.csTitulo;
    transcripciones[iTranscripcion].iResultado = dialogo.ResultadoFinal();
}

void PresentadorGuionizado::MostrarRechazo(Dialogo& /*dialogo*/, const Rechazo& rechazo)
{
    MostrarMensaje({CString(kTituloModulo), rechazo.csTexto, Icono::advertencia, Botones::aceptar});
}

std::optional<CString> PresentadorGuionizado::ElegirFichero(const PeticionFichero& /*peticion*/)
{
    if (ficheros.empty())
        return std::nullopt;
    std::optional<CString> csRuta = std::move(ficheros.front());
    ficheros.pop_front();
    return csRuta;
}

std::optional<int> PresentadorGuionizado::ElegirColor(int /*iActual*/)
{
    if (colores.empty())
        return std::nullopt;
    const std::optional<int> iColor = colores.front();
    colores.pop_front();
    return iColor;
}

namespace {

class TrabajoGuionizado final : public ProgresoTrabajo {
public:
    explicit TrabajoGuionizado(std::optional<double> dHasta) : m_dHasta(dHasta) {}
    bool Avanzar(double dFraccion) override { return !m_dHasta || dFraccion < *m_dHasta; }

private:
    std::optional<double> m_dHasta;
};

}  // namespace

std::unique_ptr<ProgresoTrabajo> PresentadorGuionizado::EmpezarTrabajo(const CString& csTexto, bool bCancelable)
{
    trabajos.push_back(csTexto);
    std::optional<double> dHasta;
    if (bCancelable && !cancelaciones.empty()) {
        dHasta = cancelaciones.front();
        cancelaciones.pop_front();
    }
    return std::make_unique<TrabajoGuionizado>(dHasta);
}

CString PresentadorGuionizado::LeerPortapapeles()
{
    return csPortapapeles;
}

void PresentadorGuionizado::EscribirPortapapeles(const CString& csTexto)
{
    csPortapapeles = csTexto;
}

void PresentadorGuionizado::Esperar(bool /*bEmpieza*/) {}
void PresentadorGuionizado::Refrescar(Dialogo& /*dialogo*/) {}

}  // namespace efv::ui
