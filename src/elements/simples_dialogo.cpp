#include "elements/simples_dialogo.h"

namespace {

namespace elements = efv::elements;
namespace ui = efv::ui;
using elements::DatosCajaConexion;
using elements::DatosNudo;

constexpr auto kNudo = ui::Campos<DatosNudo>({
    {.miembro = &DatosNudo::bCaja, .rotulo = L"El nudo se comporta como una caja de conexión", .casilla = true},
});
constexpr auto kCaja = ui::Campos<DatosCajaConexion>({
    {&DatosCajaConexion::nEntradas, L"Número de pares de conexiones de entrada:", {1, 75}},
    {.miembro = &DatosCajaConexion::bTrifasica,
     .rotulo = L"Caja de conexión/sincronización a red trifásica",
     .casilla = true},
});

}  // namespace

CDlgDatosRedElectrica::CDlgDatosRedElectrica(const elements::DatosRedElectrica& inicial, const IBIMCtrl* ctrl)
    : DialogoElemento("CDlgDatosRedElectrica", L"Datos de la red eléctrica", inicial, {})
{
    if (ctrl == nullptr)
        Terminar(-1);
    AnadirReferencia(L"red-electrica");
    AnadirExcluir();
    AnadirRotulacion();
    Volcar();
}

CDlgDatosElementoAuxiliar::CDlgDatosElementoAuxiliar(const elements::DatosElementoAuxiliar& inicial)
    : DialogoElemento("CDlgDatosElementoAuxiliar", L"Datos del elemento auxiliar", inicial, {})
{
    AnadirReferencia(L"elemento-auxiliar");
    AnadirExcluir();
    AnadirRotulacion();
    Volcar();
}

CDlgDatosNudo::CDlgDatosNudo(const DatosNudo& inicial)
    : DialogoElemento("CDlgDatosNudo", L"Datos del nudo", inicial, {})
{
    AnadirReferencia(L"nudo");
    Anadir(kNudo);
    auto& caja = De<ui::Casilla>(&DatosNudo::bCaja);
    caja.bVisible = false;
    auto& rotulacion = AnadirRotulacion();
    rotulacion.bHabilitado = datos.bCaja != 0;
    caja.alCambiar = [&caja, &rotulacion] { rotulacion.bHabilitado = caja.bMarcada; };
    Volcar();
}

CDlgDatosCajaConexion::CDlgDatosCajaConexion(const DatosCajaConexion& inicial)
    : DialogoElemento("CDlgDatosCajaConexion", L"Datos de la caja de conexión", inicial, {})
{
    AnadirReferencia(L"caja-conexion");
    Anadir(kCaja);
    AnadirExcluir();
    AnadirRotulacion();
    Volcar();
}
