#include "catalogues/viewer/elegir_dialogo.h"

#include <algorithm>
#include <utility>

#include <quorvel/ui/presentador.h>

namespace ui = efv::ui;

namespace {

CString Identificacion(const CModelo& modelo)
{
    return modelo.csFamilia + L"#" + modelo.csModelo;
}

}  // namespace

CDlgElegirModelo::CDlgElegirModelo(const efv::TipoCatalogo& tipo, const CBaseXML& base,
                                   efv::catalogues::GraficaDeModelo grafica, const CString& csSeleccion)
    : DialogoDeModelos("CDlgElegirModelo", tipo.Titulo()), m_tipoElegido(tipo)
{
    csAceptar = L"&Elegir";
    AnadirTabla(tipo);
    AnadirVista(std::move(grafica));
    m_ver = &Anadir<ui::Boton>("Ver", L"&Ver ficha...");
    m_ver->colocacion.iColumna = 1;
    m_ver->alPulsar = [this] { m_tipoElegido.CrearDialogo(*Actual())->Mostrar(); };
    const Modelos todos = tipo.Modelos(base);
    const auto suyo = [&](const CModelo* m) { return Identificacion(*m) == csSeleccion; };
    const auto elegido = std::ranges::find_if(todos, suyo);
    PonerModelos(todos, {}, elegido == todos.end() ? nullptr : *elegido);
}

CString CDlgElegirModelo::Seleccion() const
{
    return Actual() != nullptr ? Identificacion(*Actual()) : CString();
}

void CDlgElegirModelo::AlCambiarModelo()
{
    m_ver->bHabilitado = Actual() != nullptr;
}

bool CDlgElegirModelo::AlAceptar()
{
    if (Actual() != nullptr)
        return true;
    foco = m_buscar;
    ui::MostrarAviso(L"¡Atención! Debe elegir un modelo", ui::Icono::advertencia);
    return false;
}

// ---------------------------------------------------------------------------------------------------
// Over a file
// ---------------------------------------------------------------------------------------------------

int efv::catalogues::ElegirEnTabla(const TipoCatalogo& tipo, const CString& csRuta,
                                   const GraficaDeModelo& grafica, CString& csSeleccion)
{
    const auto base = tipo.CrearBase();
    {
        const ui::Espera espera;
        if (base->Cargar(csRuta) == 0)
            return 0;
    }
    CDlgElegirModelo dialogo(tipo, *base, grafica, csSeleccion);
    if (dialogo.Mostrar() != ui::Dialogo::ok)
        return ui::Dialogo::cancelado;
    csSeleccion = dialogo.Seleccion();
    return 1;
}

namespace {

efv::FormaDeElegir& Forma()
{
    static efv::FormaDeElegir forma = efv::FormaDeElegir::arbol;
    return forma;
}

}  // namespace

void efv::ElegirModelosEn(FormaDeElegir forma)
{
    Forma() = forma;
}

efv::FormaDeElegir efv::FormaDeElegirModelos()
{
    return Forma();
}
