// Exported functions of loads and consumption.
#include <algorithm>

#include <quorvel/consumption.h>

#include "consumption/consumo_dialogo.h"
#include "consumption/receptor_dialogo.h"
#include "frame/recursos.h"
#include "module/singletons.h"

using efv::frame::AmbitoRecursos;

namespace {

constexpr std::size_t kMinutosHorario = std::size_t{12} * 7 * 6;
constexpr std::size_t kEnergias = std::size_t{12} * 6;

}  // namespace

int phShowPropertyConsumo(CString& csReferencia, CObArrayPropio<CSFVDataReceptor>& lReceptores,
                          int& iTipoEntrada, int& iPatron, double& dPotMaxima, double (&adHoras)[8760],
                          double (&adMes)[12][6], int (&aiPeriodoHora)[24], int& bExcluir, int& iRotulacion,
                          int& /*iAux*/, double& dHusoHorario)
{
    const AmbitoRecursos ambito;
    efv::consumption::DatosConsumo datos;
    datos.csReferencia = csReferencia;
    datos.iTipoEntrada = iTipoEntrada;
    datos.iPatron = iPatron;
    datos.dPotMaxima = dPotMaxima;
    std::copy_n(&adMes[0][0], kEnergias, &datos.adMes[0][0]);
    std::ranges::copy(aiPeriodoHora, datos.aiPeriodoHora);
    datos.bExcluir = bExcluir;
    datos.iRotulacion = iRotulacion;
    datos.dHusoHorario = dHusoHorario;
    CDlgDatosConsumo dialogo(datos, lReceptores, adHoras, efv::module::Bases(),
                             efv::module::RecuerdoDialogos().patrones);
    if (dialogo.Mostrar() != efv::ui::Dialogo::ok)
        return efv::ui::Dialogo::cancelado;
    const efv::consumption::DatosConsumo& editado = dialogo.datos;
    csReferencia = editado.csReferencia;
    lReceptores = std::move(dialogo.lReceptores);
    iTipoEntrada = editado.iTipoEntrada;
    iPatron = editado.iPatron;
    dPotMaxima = editado.dPotMaxima;
    std::ranges::copy(*dialogo.adHoras, adHoras);
    std::copy_n(&editado.adMes[0][0], kEnergias, &adMes[0][0]);
    std::ranges::copy(editado.aiPeriodoHora, aiPeriodoHora);
    bExcluir = editado.bExcluir;
    iRotulacion = editado.iRotulacion;
    return efv::ui::Dialogo::ok;
}

int phShowPropertyReceptor(CString& csReferencia, CString& csModelo, int& bModelo, double (&dHorario)[12][7][6],
                           int& bExcluir, int& iReservado, int& iCantidad, int bPedirCantidad,
                           int /*iReservado1*/, int /*iReservado2*/)
{
    const AmbitoRecursos ambito;
    efv::consumption::DatosReceptor datos;
    datos.csReferencia = csReferencia;
    datos.bModelo = bModelo;
    datos.bPedirCantidad = bPedirCantidad;
    datos.receptor.csModelo = csModelo;
    datos.receptor.iCantidad = bPedirCantidad != 0 ? iCantidad : 0;
    datos.receptor.iReservadoB = iReservado;
    datos.receptor.bNoCalcular = bExcluir;
    std::copy_n(&dHorario[0][0][0], kMinutosHorario, &datos.receptor.dHorario[0][0][0]);
    CDlgDatosReceptor dialogo(datos, efv::module::Bases());
    if (dialogo.Mostrar() != efv::ui::Dialogo::ok)
        return efv::ui::Dialogo::cancelado;
    const efv::consumption::DatosReceptor& editado = dialogo.datos;
    csReferencia = editado.csReferencia;
    csModelo = editado.receptor.csModelo;
    bModelo = editado.bModelo;
    std::copy_n(&editado.receptor.dHorario[0][0][0], kMinutosHorario, &dHorario[0][0][0]);
    bExcluir = editado.receptor.bNoCalcular;
    iReservado = editado.receptor.iReservadoB;
    if (bPedirCantidad != 0)
        iCantidad = editado.receptor.iCantidad;
    return efv::ui::Dialogo::ok;
}

unsigned CSFVDataReceptor::EditarPropiedades(int iMes, int /*iAux*/)
{
    return static_cast<unsigned>(efv::consumption::EditarReceptor(*this, iMes, efv::module::Bases()));
}
