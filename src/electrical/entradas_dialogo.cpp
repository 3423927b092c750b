#include "electrical/entradas_dialogo.h"

#include <memory>
#include <utility>

#include <fmt/format.h>
#include <fmt/xchar.h>
#include <quorvel/ui/color.h>
#include <quorvel/ui/presentador.h>

#include "frame/recursos.h"

namespace {

namespace ui = efv::ui;
using R = CSFVInverterInput;

constexpr auto kCampos = ui::Campos<R>({
    {&R::iIndice, L"Índice:"},
    {&R::csReferencia, L"Referencia:"},
});

enum Columna : int { numero, referencia, color };

}  // namespace

// ---------------------------------------------------------------------------------------------------
// One input
// ---------------------------------------------------------------------------------------------------

CDlgItemEntrada::CDlgItemEntrada(const R& inicial)
    : DialogoFicha("CDlgItemEntrada", L"Entrada del inversor", inicial, {})
{
    Anadir(kCampos);
    auto& indice = De<ui::Edicion>(&R::iIndice);
    indice.bSoloLectura = true;
    indice.intercambio = ui::Intercambio::soloMuestra;
    auto& boton = Anadir<ui::BotonColor>(ui::NombreDeCampo(&R::nColor), L"Color:");
    boton.bDelDibujo = true;
    boton.destino = &datos.nColor;
    foco = &De(&R::csReferencia);
    Volcar();
}

int CSFVInverterInput::EditarPropiedades()
{
    const efv::frame::AmbitoRecursos ambito;
    CDlgItemEntrada dialogo(*this);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return 0;
    *this = dialogo.datos;
    return 1;
}

// ---------------------------------------------------------------------------------------------------
// All inputs
// ---------------------------------------------------------------------------------------------------

CDlgDatosEntrada::CDlgDatosEntrada(const efv::electrical::Entradas& inicial, int iNumMPPT, int iNumEntradas)
    : Dialogo("CDlgDatosEntrada", L"Configuración de entradas")
{
    efv::electrical::CopiarEntradas(inicial, entradas);
    AnadirCifra("iNumMPPT", L"Seguidores (MPPT):", iNumMPPT);
    AnadirCifra("iNumEntradas", L"Entradas:", iNumEntradas);
    for (const auto& entrada : entradas)
        entrada->InsertInList(m_filas);
    m_lista = &Anadir<ui::Lista>("listaEntradas", L"", ui::Lista::Forma::tabla);
    m_lista->acsColumnas = {L"Nº", L"Referencia", L"Color"};
    m_lista->adPartes = {0.1, 0.6, 0.3};
    m_lista->modelo = std::make_shared<ui::FilasDeLista>(m_filas);
    m_lista->colocacion.bEstirar = true;
    m_lista->alAbrir = [this](int iFila, int iColumna) { AlAbrir(iFila, iColumna); };
    m_color = &Anadir<ui::Seleccion>("Color", L"", ui::Seleccion::Forma::menu);
    m_color->acsEntradas = ui::MenuDeColores(false);
    m_color->iLineaAntesDe = ui::kEntradaOtroColor;
    m_color->lista = m_lista;
    m_color->iColumna = color;
    m_color->alElegir = [this] { AlElegirColor(); };
}

void CDlgDatosEntrada::AnadirCifra(std::string_view nombre, std::wstring_view rotulo, int iCifra)
{
    Anadir<ui::TextoFijo>(nombre, rotulo).csTexto = std::to_wstring(iCifra);
}

// The colour has its menu.
void CDlgDatosEntrada::AlAbrir(int iFila, int iColumna)
{
    if (iColumna >= color)
        return;
    R& entrada = entradas.GetAt(iFila);
    if (entrada.EditarPropiedades() != 0)
        Refrescar(entrada);
}

void CDlgDatosEntrada::AlElegirColor()
{
    const int iEntrada = std::exchange(m_color->iSeleccion, -1);
    R& entrada = entradas.GetAt(m_lista->iSeleccion);
    const auto iColor = ui::ColorDeEntrada(iEntrada, entrada.nColor);
    if (!iColor)
        return;
    entrada.nColor = static_cast<short>(*iColor);
    Refrescar(entrada);
}

void CDlgDatosEntrada::Refrescar(R& entrada)
{
    entrada.EditInList(m_filas);
    ++m_lista->uVersion;
}

bool CDlgDatosEntrada::AlAceptar()
{
    for (int i = 0; i < static_cast<int>(entradas.GetSize()); ++i) {
        if (!entradas[i].csReferencia.empty())
            continue;
        m_lista->iSeleccion = i;
        ui::MostrarAviso(fmt::format(L"La entrada {}, no tiene una referencia válida.", i + 1),
                         ui::Icono::error);
        return false;
    }
    return true;
}

int efv::EditarEntradas(CObArrayPropio<CSFVInverterInput>& aEntradas, int iNumMPPT, int iNumEntradas)
{
    const frame::AmbitoRecursos ambito;
    CDlgDatosEntrada dialogo(aEntradas, iNumMPPT, iNumEntradas);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return 0;
    electrical::CopiarEntradas(dialogo.entradas, aEntradas);
    return 1;
}
