#include "assistants/perdidas_dialogo.h"

#include <fmt/format.h>
#include <fmt/xchar.h>

#include "platform/numero/conversion.h"

CDlgDatosPerdidasSolarAislada::CDlgDatosPerdidasSolarAislada(const CSFVAsistenteAislada& inicial)
    : DialogoFicha("CDlgDatosPerdidasSolarAislada", L"Criterios de pérdida para el cálculo de acumuladores",
                   inicial, {})
{
    Anadir(efv::assistants::kPerdidas<CSFVAsistenteAislada>);
    Volcar();
}

bool CDlgDatosPerdidasSolarAislada::AlAceptar()
{
    namespace numero = efv::numero;
    const double dSuma = datos.dPerdidaCableado + datos.dPerdidaAcumulador + datos.dPerdidaAcoplamiento;
    if (numero::Menor(dSuma, 100.0))
        return true;
    efv::ui::MostrarAviso(fmt::format(L"La pérdida combinada de Ka + Kbi + Kc = {}, {} el 100 %",
                                      numero::nuConvertFltToIntlStr(dSuma, 2),
                                      numero::Igual(dSuma, 100.0) ? L"alcanza" : L"supera"),
                          efv::ui::Icono::error);
    return false;
}
