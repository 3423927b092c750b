#include <quorvel/ui/dialogo.h>

#include <algorithm>
#include <utility>

#include <quorvel/ui/presentador.h>

#include "ui/intercambio.h"

namespace efv::ui {

Dialogo::Dialogo(std::string_view nombreClase, std::wstring_view titulo) : clase(nombreClase), csTitulo(titulo)
{
}

Dialogo::~Dialogo() = default;

void Dialogo::Ordenar(Control& control)
{
    m_orden.push_back(&control);
}

int Dialogo::Mostrar()
{
    if (const Pagina* pagina = EnFrente(); pagina != nullptr && !pagina->Abierta() && !Terminado())
        AvisarFrente();
    PresentadorActual().MostrarModal(*this);
    if (!Terminado())
        Cancelar();
    return ResultadoFinal();
}

namespace {

// Runs what the dialog does on an action of the person, if anything.
template <class F, class... Args>
void Avisar(const F& accion, Args... args)
{
    if (accion)
        accion(args...);
}

}  // namespace

// ---------------------------------------------------------------------------------------------------
// What a person does
// ---------------------------------------------------------------------------------------------------

// The focus goes elsewhere: who typed into a field has left it.
void Dialogo::DejarLoTecleado(const Control* destino)
{
    m_dejado = m_tecleado != destino ? m_tecleado : nullptr;
    if (m_dejado != nullptr)
        Salir(*m_tecleado);
}

void Dialogo::Teclear(Edicion& control, const CString& csTexto)
{
    DejarLoTecleado(&control);
    foco = &control;
    m_tecleado = &control;
    control.csTexto = csTexto;
    Avisar(control.alCambiar);
}

void Dialogo::Salir(Edicion& control)
{
    if (m_tecleado != &control && foco != &control)
        return;
    if (foco == &control)
        foco = nullptr;
    m_tecleado = nullptr;
    Avisar(control.alSalir);
}

void Dialogo::Elegir(Seleccion& control, int iEntrada)
{
    DejarLoTecleado(&control);
    if (&control != m_pestanas)
        control.iSeleccion = iEntrada;
    else if (!CambiarDePagina(iEntrada))
        return;
    Avisar(control.alElegir);
}

void Dialogo::Elegir(Lista& control, int iFila)
{
    Elegir(control, iFila, {});
}

void Dialogo::Elegir(Lista& control, int iFila, std::vector<int> aiFilas)
{
    DejarLoTecleado(&control);
    control.iSeleccion = iFila;
    control.aiElegidas = std::move(aiFilas);
    Avisar(control.alElegir);
}

void Dialogo::Abrir(Lista& control, int iFila, int iColumna)
{
    DejarLoTecleado(&control);
    control.iSeleccion = iFila;
    Avisar(control.alAbrir, iFila, iColumna);
}

void Dialogo::Ordenar(Lista& control, int iColumna)
{
    DejarLoTecleado(&control);
    Avisar(control.alOrdenar, iColumna);
}

void Dialogo::Filtrar(Lista& control, int iColumna)
{
    DejarLoTecleado(&control);
    Avisar(control.alFiltrar, iColumna);
}

void Dialogo::Marcar(Casilla& control, bool bMarcada)
{
    DejarLoTecleado(&control);
    control.bMarcada = bMarcada;
    Avisar(control.alCambiar);
}

void Dialogo::Pulsar(Boton& control)
{
    DejarLoTecleado(&control);
    Avisar(control.alPulsar);
}

void Dialogo::Elegir(BotonColor& control, int iEntrada)
{
    DejarLoTecleado(&control);
    const auto iColor = ColorDeEntrada(iEntrada, control.iColor);
    if (!iColor)
        return;
    control.iColor = *iColor;
    Avisar(control.alElegir);
}

void Dialogo::PonerHora(Hora& control, int iMinutos)
{
    DejarLoTecleado(&control);
    control.iMinutos = std::clamp(iMinutos, 0, Hora::kMaxima);
    Avisar(control.alCambiar);
}

void Dialogo::Mover(Deslizador& control, int iValor)
{
    DejarLoTecleado(&control);
    control.iValor = std::max(control.iMinimo, std::min(iValor, control.iMaximo));
    Avisar(control.alMover);
}

std::optional<Rechazo> Dialogo::Aceptar()
{
    DejarLoTecleado(nullptr);
    if (!AntesDeAceptar())
        return std::nullopt;
    const int nPaginas = m_pestanas != nullptr ? static_cast<int>(m_pestanas->acsEntradas.size()) : 0;
    for (int iPagina = -1; iPagina < nPaginas; ++iPagina) {
        if (auto rechazo = RecogerPagina(iPagina)) {
            IrA(*rechazo->control);
            return rechazo;
        }
        if (!TomarPagina(iPagina))
            return std::nullopt;
    }
    if (AlAceptar() && !Terminado())
        Terminar(ok);
    return std::nullopt;
}

void Dialogo::Cancelar()
{
    AlCancelar();
    Terminar(cancelado);
}

void Dialogo::VencerTemporizador()
{
    AlVencerTemporizador();
}

// ---------------------------------------------------------------------------------------------------
// Data exchange
// ---------------------------------------------------------------------------------------------------

std::optional<Rechazo> Dialogo::Recoger()
{
    return RecogerLosQue([](const Control&) { return true; });
}

// Without pages of its own a dialog is taken over as a whole.
std::optional<Rechazo> Dialogo::RecogerPagina(int iPagina)
{
    return RecogerLosQue(
        [&](const Control& control) { return m_pestanas == nullptr || control.NumeroDePagina() == iPagina; });
}

std::optional<Rechazo> Dialogo::RecogerLosQue(const std::function<bool(const Control&)>& elegido)
{
    for (Control* control : m_orden)
        if (elegido(*control))
            if (auto csFalta = ui::Recoger(*control))
                return Rechazo{control, std::move(*csFalta)};
    return std::nullopt;
}

// The focus goes there, on its page.
void Dialogo::IrA(Control& control)
{
    if (control.NumeroDePagina() >= 0)
        TraerAlFrente(control.NumeroDePagina());
    foco = &control;
}

bool Dialogo::RecogerAvisando()
{
    const auto rechazo = Recoger();
    if (rechazo) {
        IrA(*rechazo->control);
        PresentadorActual().MostrarRechazo(*this, *rechazo);
    }
    return !rechazo;
}

bool Dialogo::Recoger(Control& control)
{
    return !ui::Recoger(control).has_value();
}

void Dialogo::Volcar()
{
    for (Control* control : m_orden)
        ui::Volcar(*control);
}

void Dialogo::PonerSoloLectura()
{
    for (Control* control : m_orden)
        control->PonerSoloLectura();
    bAceptarVisible = false;
    csCancelar = L"&Cerrar";
}

// ---------------------------------------------------------------------------------------------------
// Pages
// ---------------------------------------------------------------------------------------------------

void Dialogo::CrearPestanas()
{
    if (m_pestanas != nullptr)
        return;
    m_pestanas = &Anadir<Seleccion>("tab", L"", Seleccion::Forma::pestanas);
    m_pestanas->iSeleccion = 0;
}

void Dialogo::Incorporar(std::unique_ptr<Pagina> pagina)
{
    m_pestanas->acsEntradas.push_back(pagina->csTitulo);
    m_paginas.push_back(std::move(pagina));
}

Pagina* Dialogo::EnFrente() const
{
    const int iPagina = PaginaAlFrente();
    return iPagina >= 0 && iPagina < std::ssize(m_paginas) ? m_paginas[static_cast<std::size_t>(iPagina)].get()
                                                           : nullptr;
}

void Dialogo::AvisarFrente()
{
    Pagina* const pagina = EnFrente();
    if (pagina == nullptr)
        return;
    if (!std::exchange(pagina->m_bAbierta, true))
        Avisar(pagina->alAbrir);
    Avisar(pagina->alFrente);
}

void Dialogo::TraerAlFrente(int iPagina)
{
    if (m_pestanas == nullptr || iPagina == m_pestanas->iSeleccion)
        return;
    m_pestanas->iSeleccion = iPagina;
    AvisarFrente();
}

// The page in front may refuse to be left.
bool Dialogo::CambiarDePagina(int iPagina)
{
    const Pagina* const pagina = EnFrente();
    if (pagina != nullptr && iPagina != pagina->Numero() && pagina->alDejar && !pagina->alDejar())
        return false;
    TraerAlFrente(iPagina);
    return true;
}

bool Dialogo::TomarPagina(int iPagina)
{
    if (iPagina >= 0 && iPagina < std::ssize(m_paginas)) {
        const Pagina& pagina = *m_paginas[static_cast<std::size_t>(iPagina)];
        if (pagina.alRecoger && !pagina.alRecoger())
            return false;
    }
    return AlRecogerPagina(iPagina);
}

// ---------------------------------------------------------------------------------------------------
// Groups, end
// ---------------------------------------------------------------------------------------------------

CString Dialogo::TituloDeGrupo(std::wstring_view grupo) const
{
    const auto titulo = m_titulosDeGrupos.find(grupo);
    return titulo != m_titulosDeGrupos.end() ? titulo->second : CString(grupo);
}

void Dialogo::TitularGrupo(std::wstring_view grupo, CString csRotulo)
{
    m_titulosDeGrupos.insert_or_assign(CString(grupo), std::move(csRotulo));
}

void Dialogo::Terminar(int iResultado)
{
    m_resultado = iResultado;
}

}  // namespace efv::ui
