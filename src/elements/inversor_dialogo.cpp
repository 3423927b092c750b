#include "elements/inversor_dialogo.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "catalogues/dialogs/inversores_dialogo.h"

namespace {

namespace cat = efv::catalogues;
namespace elements = efv::elements;
namespace ui = efv::ui;
using D = elements::DatosInversor;

// The labels of an inverter that has no number in the drawing yet.
constexpr int kSinNumero = 0;

constexpr auto kEscala = ui::Campos<D>({
    {.miembro = &D::bEscala,
     .rotulo = L"Representar a escala",
     .casilla = true,
     .indicacion = L"En el dibujo, con sus medidas en lugar de un símbolo"},
});

}  // namespace

// ---------------------------------------------------------------------------------------------------
// Converter
// ---------------------------------------------------------------------------------------------------

CDlgDatosConvertidorCC::CDlgDatosConvertidorCC(const elements::DatosConvertidorCC& inicial,
                                               const cat::Bases& bases)
    : DialogoConModelo("CDlgDatosConvertidorCC", L"Datos del convertidor de CC/CC", inicial, {})
{
    AnadirReferencia(L"convertidor");
    AnadirModelo(bases.elegirConvertidor);
    AnadirExcluir();
    AnadirRotulacion();
    Volcar();
}

// ---------------------------------------------------------------------------------------------------
// Inverter
// ---------------------------------------------------------------------------------------------------

CDlgDatosInversor::CDlgDatosInversor(const D& inicial, const efv::electrical::Entradas& entradasIniciales,
                                     int iNumMPPT, int iNumEntradas, const cat::Bases& bases)
    : DialogoConModelo("CDlgDatosInversor", L"Datos del inversor", inicial, {}),
      m_bases(bases),
      m_iNumMPPT(iNumMPPT),
      m_iNumEntradas(iNumEntradas)
{
    efv::electrical::CopiarEntradas(entradasIniciales, entradas);
    AnadirReferencia(L"inversor");
    AnadirModelo(m_bases.elegirInversor);
    m_uso = &Anadir<ui::TextoFijo>("", L"Tipo de uso:");
    m_uso->bVisible = false;
    Anadir(kEscala);
    AnadirExcluir();
    Anadir<ui::Boton>("", L"Configuración de string ...").alPulsar = [this] {
        efv::EditarEntradas(entradas, m_iNumMPPT, m_iNumEntradas);
    };
    AnadirRotulacion();
    AnadirPaginas();
    CargarModelo();
    Volcar();
    // The captions of a fresh page are those of the grid's use.
    if (m_modelo.iUsoPrincipal == cat::kUsoAislada)
        m_paginas.Rotular(true);
    m_paginas.Indicar();
}

void CDlgDatosInversor::AnadirPaginas()
{
    ui::Pagina& entrada = AnadirPagina(cat::kPaginaEntrada);
    ui::Pagina& salida = AnadirPagina(cat::kPaginaSalida);
    m_paginas.Anadir(entrada, salida, AnadirPagina(cat::kPaginaSistema));
    m_paginas.campos.SoloMostrar();
}

// Model, manufacturer, use and inputs after `datos.csId`. One that the catalogue doesn't have is told, unless
// none was named, and changes nothing.
bool CDlgDatosInversor::CargarModelo()
{
    if (datos.csId.empty())
        return false;
    const CBaseInversorModelo* modelo = m_bases.inversores.BuscarModelo(datos.csId);
    if (modelo == nullptr) {
        ui::MostrarAviso(
            fmt::format(
                L"El modelo de inversor {} no está definido en la base de datos. Los valores no han podido "
                L"ser cargados correctamente",
                datos.csId),
            ui::Icono::error);
        return false;
    }
    m_modelo = *modelo;
    EscribirFabricante(m_modelo.csFamilia);
    const bool bAislada = m_modelo.iUsoPrincipal == cat::kUsoAislada;
    m_uso->csTexto = bAislada ? cat::kUsosInversor.back() : cat::kUsosInversor.front();
    if (m_modelo.iNumMPPT != m_iNumMPPT || m_modelo.iNumEntradas != m_iNumEntradas) {
        efv::electrical::AsignarEntradas(kSinNumero, m_modelo.iNumMPPT, m_modelo.iNumEntradas, entradas, true);
        m_iNumMPPT = m_modelo.iNumMPPT;
        m_iNumEntradas = m_modelo.iNumEntradas;
    }
    return true;
}

void CDlgDatosInversor::AlElegirModelo()
{
    if (!CargarModelo())
        return;
    m_paginas.campos.Volcar();
    m_paginas.Rotular(m_modelo.iUsoPrincipal == cat::kUsoAislada);
    m_paginas.Indicar();
}
