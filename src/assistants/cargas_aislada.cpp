#include "assistants/cargas_aislada.h"

#include <algorithm>
#include <span>

#include "platform/numero/conversion.h"

namespace efv::assistants {

namespace {

std::span<double> Bandas(CSFVDataReceptor& receptor)
{
    return {&receptor.dHorario[0][0][0], sizeof receptor.dHorario / sizeof(double)};
}

}  // namespace

ListaCargas LeerCargas(const CSFVAsistenteAislada& registro, const CBaseReceptores& base)
{
    ListaCargas cargas;
    std::span<const double> bandas(registro.adHorario.GetData(),
                                   static_cast<std::size_t>(registro.adHorario.GetSize()));
    for (std::ptrdiff_t i = 0; i < registro.adCantidad.GetSize(); ++i) {
        const CString& csModelo = registro.acsModelo[i];
        const CBaseReceptorModelo* modelo = base.BuscarModelo(csModelo);
        if (modelo == nullptr)
            continue;
        CSFVDataReceptor& carga = cargas.Add(std::make_unique<CSFVDataReceptor>());
        carga.iReservadoB = 1;
        carga.iReservadoA = 0;
        carga.csModelo = csModelo;
        carga.csFabricante = modelo->csFamilia;
        carga.iCantidad = numero::Entero(registro.adCantidad[i]);
        carga.dPotencia = modelo->dP;
        carga.iTipoRed = modelo->iTipoRed;
        carga.dHorasDia = registro.adHorasDia[i];
        const auto suyas = bandas.first(std::min(bandas.size(), Bandas(carga).size()));
        std::ranges::copy(suyas, Bandas(carga).begin());
        bandas = bandas.subspan(suyas.size());
    }
    return cargas;
}

void GuardarCargas(const ListaCargas& cargas, CSFVAsistenteAislada& registro)
{
    registro.Reset();
    for (const auto& carga : cargas) {
        registro.adCantidad.Add(carga->iCantidad);
        registro.acsModelo.Add(carga->csModelo);
        registro.adHorasDia.Add(carga->dHorasDia);
        for (const double d : Bandas(*carga))
            registro.adHorario.Add(d);
    }
}

std::vector<Carga> CargasParaCalculo(const ListaCargas& cargas)
{
    std::vector<Carga> resultado;
    resultado.reserve(static_cast<std::size_t>(cargas.GetSize()));
    for (const auto& carga : cargas)
        resultado.push_back({carga->iCantidad, carga->dPotencia, carga->dHorasDia});
    return resultado;
}

}  // namespace efv::assistants
