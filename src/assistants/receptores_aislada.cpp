#include "assistants/receptores_aislada.h"

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

ListaReceptores LeerReceptores(const CSFVAsistenteAislada& registro, const CBaseReceptores& base)
{
    ListaReceptores receptores;
    std::span<const double> bandas(registro.adHorario.GetData(),
                                   static_cast<std::size_t>(registro.adHorario.GetSize()));
    for (std::ptrdiff_t i = 0; i < registro.adCantidad.GetSize(); ++i) {
        const CString& csModelo = registro.acsModelo[i];
        const CBaseReceptorModelo* modelo = base.BuscarModelo(csModelo);
        if (modelo == nullptr)
            continue;
        CSFVDataReceptor& receptor = receptores.Add(std::make_unique<CSFVDataReceptor>());
        receptor.iReservadoB = 1;
        receptor.iReservadoA = 0;
        receptor.csModelo = csModelo;
        receptor.csFabricante = modelo->csFamilia;
        receptor.iCantidad = numero::Entero(registro.adCantidad[i]);
        receptor.dPotencia = modelo->dP;
        receptor.iTipoRed = modelo->iTipoRed;
        receptor.dHorasDia = registro.adHorasDia[i];
        const auto suyas = bandas.first(std::min(bandas.size(), Bandas(receptor).size()));
        std::ranges::copy(suyas, Bandas(receptor).begin());
        bandas = bandas.subspan(suyas.size());
    }
    return receptores;
}

void GuardarReceptores(const ListaReceptores& receptores, CSFVAsistenteAislada& registro)
{
    registro.Reset();
    for (const auto& receptor : receptores) {
        registro.adCantidad.Add(receptor->iCantidad);
        registro.acsModelo.Add(receptor->csModelo);
        registro.adHorasDia.Add(receptor->dHorasDia);
        for (const double d : Bandas(*receptor))
            registro.adHorario.Add(d);
    }
}

std::vector<DatosReceptor> ReceptoresParaCalculo(const ListaReceptores& receptores)
{
    std::vector<DatosReceptor> resultado;
    resultado.reserve(static_cast<std::size_t>(receptores.GetSize()));
    for (const auto& receptor : receptores)
        resultado.push_back({receptor->iCantidad, receptor->dPotencia, receptor->dHorasDia});
    return resultado;
}

}  // namespace efv::assistants
