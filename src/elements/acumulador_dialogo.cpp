#include "elements/acumulador_dialogo.h"

#include <memory>

#include "catalogues/dialogs/acumulador_filas.h"

namespace {

namespace cat = efv::catalogues;
namespace ui = efv::ui;
using D = efv::elements::DatosAcumulador;
using M = CBaseAcumuladorModelo;

constexpr auto kCuantos = ui::Campos<D>({
    {&D::nSerie, L"Nº acumuladores por ramal:", {1, 100}},
    {&D::nParalelo, L"Nº ramales paralelo:", {1, 1000}},
});
constexpr auto kEscala = ui::Campos<D>({
    {.miembro = &D::bEscala,
     .rotulo = L"Representar a escala",
     .casilla = true,
     .indicacion = L"En el dibujo, con sus medidas en lugar de un símbolo"},
});
constexpr auto kVida = ui::Campos<M>({{&M::iVidaUtil, L"Vida útil:"}});

CString NombreTipo(int iTipo)
{
    const bool bHay = iTipo >= 0 && static_cast<std::size_t>(iTipo) < cat::kTiposAcumulador.size();
    return bHay ? CString(cat::kTiposAcumulador.at(static_cast<std::size_t>(iTipo))) : CString();
}

}  // namespace

CDlgDatosAcumulador::CDlgDatosAcumulador(const D& inicial, const cat::Bases& bases)
    : DialogoConModelo("CDlgDatosAcumulador", L"Datos de acumulador", inicial, {}), m_bases(bases)
{
    AnadirReferencia(L"acumulador");
    AnadirModelo(m_bases.elegirAcumulador);
    Anadir(kCuantos);
    AnadirDatosModelo();
    Anadir(kEscala);
    AnadirExcluir();
    AnadirRotulacion();
    Volcar();
    MostrarModelo();
}

void CDlgDatosAcumulador::AnadirDatosModelo()
{
    m_tipo = &Anadir<ui::TextoFijo>(ui::NombreDeCampo<M>(&M::iTipo), L"Tipo:");
    m_campos.Anadir(*this, cat::kFilasAcumulador);
    m_campos.Anadir(*this, kVida);
    m_campos.SoloMostrar();
    m_regimenes = &Anadir<ui::Lista>("listaRegimenes", L"", ui::Lista::Forma::tabla);
}

// One that the catalogue doesn't have shows nothing but zeros.
void CDlgDatosAcumulador::MostrarModelo()
{
    const M* modelo = m_bases.acumuladores.BuscarModelo(datos.csId);
    m_modelo = modelo != nullptr ? *modelo : M();
    m_tipo->csTexto = NombreTipo(m_modelo.iTipo);
    m_campos.Volcar();
    cat::MostrarRegimenes(*m_regimenes, std::make_shared<const cat::FilasRegimen>(m_modelo));
}
