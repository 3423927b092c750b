#include <quorvel/ui/dialogo.h>

#include <algorithm>

#include <quorvel/ui/presentador.h>

#include "ui/intercambio.h"

namespace efv::ui {

Dialogo::Dialogo(std::string_view nombreClase, std::wstring_view titulo) : clase(nombreClase), csTitulo(titulo)
{
}

Dialogo::~Dialogo() = default;

int Dialogo::Mostrar()
{
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

void Dialogo::Teclear(Edicion& control, const CString& csTexto)
{
    foco = &control;
    control.csTexto = csTexto;
    Avisar(control.alCambiar);
}

void Dialogo::Salir(Edicion& control)
{
    if (foco == &control)
        foco = nullptr;
    Avisar(control.alSalir);
}

void Dialogo::Elegir(Seleccion& control, int iEntrada)
{
    control.iSeleccion = iEntrada;
    Avisar(control.alElegir);
}

void Dialogo::Elegir(Lista& control, int iFila)
{
    control.iSeleccion = iFila;
    Avisar(control.alElegir);
}

void Dialogo::Abrir(Lista& control, int iFila, int iColumna)
{
    control.iSeleccion = iFila;
    Avisar(control.alAbrir, iFila, iColumna);
}

void Dialogo::Marcar(Casilla& control, bool bMarcada)
{
    control.bMarcada = bMarcada;
    Avisar(control.alCambiar);
}

void Dialogo::Pulsar(Boton& control)
{
    Avisar(control.alPulsar);
}

void Dialogo::Mover(Deslizador& control, int iValor)
{
    control.iValor = std::max(control.iMinimo, std::min(iValor, control.iMaximo));
    Avisar(control.alMover);
}

std::optional<Rechazo> Dialogo::Aceptar()
{
    if (!AntesDeAceptar())
        return std::nullopt;
    const int nPaginas = m_paginas != nullptr ? static_cast<int>(m_paginas->acsEntradas.size()) : 0;
    for (int iPagina = -1; iPagina < nPaginas; ++iPagina) {
        if (auto rechazo = RecogerPagina(iPagina)) {
            IrA(*rechazo->control);
            return rechazo;
        }
        if (!AlRecogerPagina(iPagina))
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

std::optional<Rechazo> Dialogo::Recoger()
{
    return RecogerLosQue([](const Control&) { return true; });
}

// Without pages of its own a dialog is taken over as a whole.
std::optional<Rechazo> Dialogo::RecogerPagina(int iPagina)
{
    return RecogerLosQue(
        [&](const Control& control) { return m_paginas == nullptr || control.lugar.iPagina == iPagina; });
}

std::optional<Rechazo> Dialogo::RecogerLosQue(const std::function<bool(const Control&)>& elegido)
{
    for (const auto& control : m_controles)
        if (elegido(*control))
            if (auto csFalta = ui::Recoger(*control))
                return Rechazo{control.get(), std::move(*csFalta)};
    return std::nullopt;
}

// The focus goes there, on its page.
void Dialogo::IrA(Control& control)
{
    if (m_paginas != nullptr && control.lugar.iPagina >= 0)
        m_paginas->iSeleccion = control.lugar.iPagina;
    foco = &control;
}

Seleccion& Dialogo::AnadirPaginas(std::vector<CString> acsTitulos)
{
    m_paginas = &Anadir<Seleccion>("tab", L"", Seleccion::Forma::pestanas);
    m_paginas->acsEntradas = std::move(acsTitulos);
    m_paginas->iSeleccion = 0;
    return *m_paginas;
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

void Dialogo::Volcar()
{
    for (const auto& control : m_controles)
        ui::Volcar(*control);
}

void Dialogo::PonerSoloLectura()
{
    for (const auto& control : m_controles) {
        const auto* seleccion = dynamic_cast<const Seleccion*>(control.get());
        if (dynamic_cast<const Edicion*>(control.get()) != nullptr)
            control->bSoloLectura = true;
        else if (dynamic_cast<const Deslizador*>(control.get()) != nullptr ||
                 (seleccion != nullptr && seleccion->forma == Seleccion::Forma::combo))
            control->bHabilitado = false;
    }
    bAceptarVisible = false;
    csCancelar = L"&Cerrar";
}

void Dialogo::Terminar(int iResultado)
{
    m_resultado = iResultado;
}

}  // namespace efv::ui
