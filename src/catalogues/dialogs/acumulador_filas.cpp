#include "catalogues/dialogs/acumulador_filas.h"

#include <utility>

#include "platform/numero/conversion.h"

namespace efv::catalogues {

CString DosDecimales(double d)
{
    return numero::nuConvertFltToIntlStr(d, 2);
}

FilasRegimen::FilasRegimen(const CBaseAcumuladorModelo& modelo)
{
    const auto anadir = [this](std::wstring_view nombre, double dCapacidad, double dVoltaje) {
        filas.push_back({CString(nombre), DosDecimales(dCapacidad), DosDecimales(dVoltaje)});
    };
    if (modelo.iTipo == kLiIon) {
        anadir(L"CLi", modelo.dCapC1, modelo.dVccC1);
        return;
    }
    filas.reserve(kRegimenes.size());
    for (const Regimen& r : kRegimenes)
        anadir(r.nombre, modelo.*r.capacidad, modelo.*r.voltaje);
}

void MostrarRegimenes(ui::Lista& lista, std::shared_ptr<const FilasRegimen> regimenes)
{
    lista.acsColumnas = {L"Cv", L"Cap. (Ah)", L"Voltaje (V)"};
    lista.alineaciones = {ui::Alineacion::izquierda};
    lista.otras = ui::Alineacion::derecha;
    lista.bColumnasIguales = true;
    lista.modelo = std::move(regimenes);
    ++lista.uVersion;
}

}  // namespace efv::catalogues
